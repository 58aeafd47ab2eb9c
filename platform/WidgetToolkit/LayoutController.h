#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <optional>

class QEvent;
class QLayout;

/**
 * Hands the metrics of one layout over to the style sheet.
 *
 * Components build their layouts with contents margins and spacing 0; what a user sees comes from the
 * host's sheet. A layout controller is the object that the sheet talks to: it carries the properties
 * below, a rule sets them with `qproperty-`, and the controller writes them into its layout.
 *
 * There are two kinds. An OvFrame is its own controller:
 *
 *     ColorInputWidget { qproperty-layoutSpacing: 4; qproperty-layoutMarginLeft: 8; }
 *
 * Any other widget gets one from Util::installLayoutController(); it is a hidden child that the sheet
 * selects by its class name:
 *
 *     ColorPickerButton > InstalledLayoutController { qproperty-layoutMargin: 2; }
 *
 * | property                  | unit   | effect                                             |
 * |---------------------------|--------|----------------------------------------------------|
 * | `layoutMargin`            | pixels | all four contents margins; reads the left one      |
 * | `layoutMarginLeft`, `…Top`, `…Right`, `…Bottom` | pixels | one contents margin          |
 * | `layoutSpacing`           | pixels | the gap between items; in a grid, both directions  |
 * | `layoutHorizontalSpacing` | pixels | a grid's gap between columns; a row's gap          |
 * | `layoutVerticalSpacing`   | pixels | a grid's gap between rows; a column's gap          |
 *
 * Of a general property and one for a side, the one that the sheet names later wins on that side.
 *
 * A property that was never set leaves the layout alone and reads what the layout has (0 without a
 * layout). A negative value is ignored. A value that was set holds: it is written again when the layout
 * is replaced or when code changes the layout's metrics afterwards, because a sheet's values win over
 * code everywhere else too: at once in the toolkit's own layouts, in others when Qt next lays them out.
 * Values that a sheet no longer sets keep their last value, as all `qproperty-` values of Qt do.
 */
class WIDGETTOOLKIT_EXPORT LayoutController
{
public:
    virtual ~LayoutController();
    LayoutController(const LayoutController&) = delete;
    LayoutController& operator=(const LayoutController&) = delete;

    /// The layout that is controlled, not owned; null while there is none.
    virtual QLayout* getLayout() const = 0;

    int layoutMargin() const { return layoutMarginLeft(); }
    void setLayoutMargin(int pixels);
    int layoutMarginLeft() const;
    void setLayoutMarginLeft(int pixels);
    int layoutMarginTop() const;
    void setLayoutMarginTop(int pixels);
    int layoutMarginRight() const;
    void setLayoutMarginRight(int pixels);
    int layoutMarginBottom() const;
    void setLayoutMarginBottom(int pixels);
    int layoutSpacing() const { return layoutHorizontalSpacing(); }
    void setLayoutSpacing(int pixels);
    int layoutHorizontalSpacing() const;
    void setLayoutHorizontalSpacing(int pixels);
    int layoutVerticalSpacing() const;
    void setLayoutVerticalSpacing(int pixels);

protected:
    LayoutController();

    /// Writes every value that was set into the layout, where it differs. Cheap when nothing differs.
    void applyLayoutMetrics();

    /// Whether @p event, sent to the widget whose layout is controlled, says that the layout's metrics may
    /// be others now.
    static bool isLayoutEvent(const QEvent* event);

private:
    void set(std::optional<int>& value, int pixels);

    std::optional<int> m_marginLeft;
    std::optional<int> m_marginTop;
    std::optional<int> m_marginRight;
    std::optional<int> m_marginBottom;
    std::optional<int> m_horizontalSpacing;
    std::optional<int> m_verticalSpacing;
};

/// The properties of a controller that is a QObject: write this into its class, after Q_OBJECT.
#define LAYOUT_CONTROLLER_PROPERTIES                                                                         \
    Q_PROPERTY(int layoutMargin READ layoutMargin WRITE setLayoutMargin)                                     \
    Q_PROPERTY(int layoutMarginLeft READ layoutMarginLeft WRITE setLayoutMarginLeft)                         \
    Q_PROPERTY(int layoutMarginTop READ layoutMarginTop WRITE setLayoutMarginTop)                            \
    Q_PROPERTY(int layoutMarginRight READ layoutMarginRight WRITE setLayoutMarginRight)                      \
    Q_PROPERTY(int layoutMarginBottom READ layoutMarginBottom WRITE setLayoutMarginBottom)                   \
    Q_PROPERTY(int layoutSpacing READ layoutSpacing WRITE setLayoutSpacing)                                  \
    Q_PROPERTY(int layoutHorizontalSpacing READ layoutHorizontalSpacing WRITE setLayoutHorizontalSpacing)    \
    Q_PROPERTY(int layoutVerticalSpacing READ layoutVerticalSpacing WRITE setLayoutVerticalSpacing)
