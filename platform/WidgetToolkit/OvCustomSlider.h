#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QSlider>

#include <memory>

/**
 * A QSlider that goes where it is clicked and is safe to scroll past.
 *
 * - A left click beside the handle moves the handle's centre there at once, and a drag continues from there.
 *   The signals are those of a drag from the handle: sliderPressed(), then sliderMoved() and, with tracking,
 *   valueChanged(). A press on the handle moves nothing. This holds in both orientations, inverted, from
 *   right to left, and with a handle and groove that a style sheet moves. The middle button does the same
 *   where it sets a QSlider of the style.
 * - The wheel changes the value only while the slider has focus; it then accepts the event at the end of the
 *   range too. Without focus it ignores the event, so that a scroll area around it scrolls; the wheel does
 *   not give focus: the focus policy is Qt::StrongFocus.
 * - Every range of 32 bits is painted and clicked correctly, where QSlider loses its handle, or divides by
 *   zero, from 2^31 steps on. There is at most one tick for each pixel, where QSlider draws billions.
 * - Readers get one event for a drag, when it is over, and one for each step by a key or the wheel.
 *
 * **Style sheet.** Select the class name and QSlider's sub-controls `::groove`, `::handle`, `::add-page` and
 * `::sub-page`.
 *
 * **Lifetime.** Slots of signals that mouse, wheel or keys cause may delete the slider, and so may those of a
 * valueChanged() that setValue() causes. After the signals of setRange(), setMinimum(), setMaximum(),
 * setSliderDown(), setSliderPosition(), triggerAction() and setEnabled(), and after sliderMoved() of a
 * setValue() during a drag, QAbstractSlider still uses the slider: use deleteLater() there.
 * @see OvDoubleSlider, Util::bindWidgets()
 */
class WIDGETTOOLKIT_EXPORT OvCustomSlider : public QSlider
{
    Q_OBJECT

public:
    /// A vertical slider, as QSlider's. @p parent owns it.
    explicit OvCustomSlider(QWidget* parent = nullptr);
    explicit OvCustomSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~OvCustomSlider() override;

    bool event(QEvent* event) override;

protected:
    /// Hides QSlider's function: numbers that a style cannot paint with are moved and divided until it can.
    void initStyleOption(QStyleOptionSlider* option) const;

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

    class WIDGETTOOLKIT_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
