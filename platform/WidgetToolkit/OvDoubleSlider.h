#pragma once

#include <WidgetToolkit/OvCustomSlider.h>

#include <memory>

/**
 * A slider with a fractional value: its integer steps times a multiplier.
 *
 * The slider keeps the value given to setDoubleValue() exactly, also between two steps; the handle is then on
 * the nearest step, halves away from zero. When the handle moves to another step, by the user or by
 * setValue(), the value is that step's: steps times multiplier, rounded correctly where the multiplier is a
 * decimal fraction or the inverse of a whole number, so that 3 steps of 0.1 are exactly 0.3. setValue() with
 * the step of the handle changes nothing.
 *
 * The range is in steps, as in any QSlider; the value is clamped to minimum() and maximum() times the
 * multiplier. Before a slot is connected, multiplier, range and value may be set in any order: the slider
 * keeps what was set last and applies it again when multiplier or range change. A value of setDoubleValue()
 * that the range cuts returns when the range has room for it, unless the cut value has been reported to a
 * slot: then that one stays. A step of setValue() stays, and its value follows the multiplier.
 *
 * Click, wheel, style sheet and lifetime are as in OvCustomSlider. Slots of the signals added here may always
 * delete the slider, except in setRange(), setMinimum() and setMaximum().
 *
 * **Readers.** They find a slider with its value in units, which they may set while it is enabled.
 * @see Util::bindWidgets(), OvDoubleSpinBox
 */
class WIDGETTOOLKIT_EXPORT OvDoubleSlider : public OvCustomSlider
{
    Q_OBJECT
    Q_PROPERTY(double doubleValue READ doubleValue WRITE setDoubleValue NOTIFY doubleValueChanged USER true)
    Q_PROPERTY(double multiplier READ multiplier WRITE setMultiplier NOTIFY multiplierChanged)

public:
    /// A vertical slider, as QSlider's, with multiplier 1. @p parent owns it.
    explicit OvDoubleSlider(QWidget* parent = nullptr);
    ~OvDoubleSlider() override;

    /// The value of one step, 1 by default. Zero, negative, infinite and NaN are ignored.
    double multiplier() const;
    void setMultiplier(double multiplier);

    /// The value in units, 0 by default. A value outside the range, also an infinite one, is clamped; NaN is
    /// ignored.
    double doubleValue() const;
    void setDoubleValue(double value);

Q_SIGNALS:
    /// doubleValue() changed to @p value. Emitted once for each change, also when the handle stays, and
    /// before valueChanged() reaches other slots.
    void doubleValueChanged(double value);
    /// multiplier() changed; value and handle follow it already.
    void multiplierChanged(double multiplier);

protected:
    void sliderChange(SliderChange change) override;

private:
    class WIDGETTOOLKIT_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
