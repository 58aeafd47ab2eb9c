#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <memory>

class QLayout;

/**
 * Lets the style sheet set the metrics of one layout.
 *
 * Components construct their layouts with contents margins and spacing 0; the host's sheet sets what a user
 * sees. A layout controller is the object with the properties below: a rule sets them with `qproperty-`, and
 * the controller writes them into its layout. An OvFrame is its own controller:
 *
 *     ColorInputWidget { qproperty-layoutSpacing: 4; qproperty-layoutMarginLeft: 8; }
 *
 * Any other widget gets one from Util::installLayoutController(): a hidden child that the sheet selects by
 * its class name:
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
 * Of a general property and one for a side, the one that the sheet names later wins on that side. A negative
 * value is ignored. A property that was never set leaves the layout alone and reads the layout's value, 0
 * without a layout. A value that was set wins over code: it is written again when the widget is polished and
 * whenever Qt lays it out after a change. A value that a sheet no longer sets stays, as all `qproperty-`
 * values do.
 * @see OvFrame, OvBoxLayout, OvGridLayout, Util::installLayoutController()
 */
class WIDGETTOOLKIT_EXPORT LayoutController
{
public:
    virtual ~LayoutController();
    LayoutController(const LayoutController&) = delete;
    LayoutController& operator=(const LayoutController&) = delete;

    /// The controlled layout, not owned; null while there is none.
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

private:
    class WIDGETTOOLKIT_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};

/// The properties of a controller that is a QObject; belongs into its class, after Q_OBJECT.
#define LAYOUT_CONTROLLER_PROPERTIES                                                                         \
    Q_PROPERTY(int layoutMargin READ layoutMargin WRITE setLayoutMargin)                                     \
    Q_PROPERTY(int layoutMarginLeft READ layoutMarginLeft WRITE setLayoutMarginLeft)                         \
    Q_PROPERTY(int layoutMarginTop READ layoutMarginTop WRITE setLayoutMarginTop)                            \
    Q_PROPERTY(int layoutMarginRight READ layoutMarginRight WRITE setLayoutMarginRight)                      \
    Q_PROPERTY(int layoutMarginBottom READ layoutMarginBottom WRITE setLayoutMarginBottom)                   \
    Q_PROPERTY(int layoutSpacing READ layoutSpacing WRITE setLayoutSpacing)                                  \
    Q_PROPERTY(int layoutHorizontalSpacing READ layoutHorizontalSpacing WRITE setLayoutHorizontalSpacing)    \
    Q_PROPERTY(int layoutVerticalSpacing READ layoutVerticalSpacing WRITE setLayoutVerticalSpacing)
