#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QSlider>
#include <QStyle>

/**
 * A QSlider that goes where it is clicked and is safe to scroll past.
 *
 * - A left click beside the handle moves the handle's centre to that place at once, and the drag goes on
 *   from there. The signals come as in a drag that began on the handle: sliderPressed(), then
 *   sliderMoved() and, with tracking, valueChanged(). A press on the handle itself moves nothing. It
 *   works in both orientations, inverted, right to left, and with a handle and groove that a style sheet
 *   has moved. The middle button does the same where it sets a QSlider of the style.
 * - The wheel changes the value only while the slider has focus; then it keeps the event at the end of
 *   the range too. Without focus the event is ignored, so that a scroll area around it scrolls, and the
 *   wheel does not give it focus: its focus policy is Qt::StrongFocus.
 * - Every range of 32 bits is painted and clicked rightly, where QSlider loses its handle, or divides by
 *   zero, from 2^31 steps on.
 *
 * A style sheet selects the class name and QSlider's sub-controls `::groove`, `::handle`, `::add-page`
 * and `::sub-page`.
 *
 * A listener of any signal that mouse, wheel or keys cause may delete the slider, and so may one of
 * valueChanged() that setValue() causes. Behind the signals of setRange(), setMinimum(), setMaximum(),
 * setSliderDown(), setSliderPosition(), triggerAction() and setEnabled(), and behind sliderMoved() of a
 * setValue() during a drag, QAbstractSlider goes on: use deleteLater() there.
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
    /// As QSlider's, which it hides, with all numbers halved in a range that QStyle cannot divide.
    void initStyleOption(QStyleOptionSlider* option) const;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void placeHandle(int position);
    bool moveHandle(int position);
    void dragHandle(int position);
    void perform(SliderAction action);

    double m_grip = 0.0;           // of the drag: how far the cursor is from the handle's middle, in pixels
    double m_wheelRemainder = 0.0; // what the wheel has turned by less than a step
    QStyle::SubControl m_hovered = QStyle::SC_None;
};
