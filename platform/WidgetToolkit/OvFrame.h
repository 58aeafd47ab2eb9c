#pragma once

#include <WidgetToolkit/LayoutController.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QFrame>

/**
 * The frame that composite components are built on: a QFrame that controls its own layout.
 *
 * It has neither a frame nor margins until a style sheet sets them; the sheet sets the layout's metrics
 * through the properties that LayoutController lists. They reach the layout before the frame is first shown,
 * whether layout or sheet is set first.
 * @see LayoutController, OvBoxLayout, OvGridLayout
 */
class WIDGETTOOLKIT_EXPORT OvFrame : public QFrame, public LayoutController
{
    Q_OBJECT
    LAYOUT_CONTROLLER_PROPERTIES

public:
    /// @p parent owns the frame; null makes it a window. @p flags go to QFrame.
    explicit OvFrame(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OvFrame() override;

    /// The frame's layout(). A subclass that lays out its content in an inner widget returns that widget's.
    QLayout* getLayout() const override;

protected:
    bool event(QEvent* event) override;
};
