#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QSlider>

/**
 * A QSlider that goes where it is clicked and is safe to scroll past.
 *
 * - A left click beside the handle moves the handle's centre to that place at once, and the drag goes on
 *   from there. The signals come as in a drag that began on the handle: sliderPressed(), then
 *   sliderMoved() and, with tracking, valueChanged(). A press on the handle itself moves nothing. It
 *   works in both orientations, inverted, right to left, and with a handle and groove that a style sheet
 *   has moved.
 * - The wheel changes the value only while the slider has focus; then it keeps the event at the end of
 *   the range too. Without focus the event is ignored, so that a scroll area around it scrolls, and the
 *   wheel does not give it focus: its focus policy is Qt::StrongFocus.
 *
 * A click finds its place in any range; but QStyle paints the handle wrongly in one of more than 31 bits.
 *
 * A style sheet selects the class name and QSlider's sub-controls `::groove`, `::handle`, `::add-page`
 * and `::sub-page`. A listener of the signals of a click may delete the slider, save of sliderPressed(),
 * behind which QSlider goes on.
 */
class WIDGETTOOLKIT_EXPORT OvCustomSlider : public QSlider
{
    Q_OBJECT

public:
    /// A vertical slider, as QSlider's. @p parent owns it as usual.
    explicit OvCustomSlider(QWidget* parent = nullptr);
    explicit OvCustomSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~OvCustomSlider() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    double m_grip = 0.0; // of the drag: how far the cursor is from the handle's middle, in pixels
};
