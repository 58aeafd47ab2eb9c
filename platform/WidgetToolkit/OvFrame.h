#pragma once

#include <WidgetToolkit/LayoutController.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QFrame>

/**
 * The frame that composite components are built on: a QFrame that controls its own layout.
 *
 * It has no frame and no margins of its own until a style sheet gives it some; the sheet sets the
 * metrics of the frame's layout through the properties that LayoutController lists. The values reach the
 * layout before the frame is shown for the first time, whichever of the two, layout or sheet, is set
 * first.
 */
class WIDGETTOOLKIT_EXPORT OvFrame : public QFrame, public LayoutController
{
    Q_OBJECT
    LAYOUT_CONTROLLER_PROPERTIES

public:
    /// @p parent owns the frame as usual; null makes it a window. @p flags go to QFrame.
    explicit OvFrame(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OvFrame() override;

    /// The frame's layout(); a subclass that lays its content out in an inner widget returns that one's.
    QLayout* getLayout() const override;

protected:
    bool event(QEvent* event) override;
};
