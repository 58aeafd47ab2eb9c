#pragma once

#include <WidgetToolkit/OvCustomSlider.h>

#include <memory>

/**
 * A slider with a fractional value: its integer steps times a multiplier.
 *
 * The slider keeps the value that setDoubleValue() was given, exactly, even where it lies between two
 * steps; the handle then sits on the nearest step, halves away from zero. Once the handle moves to
 * another step, by the user or by setValue(), the value is that step's: steps times multiplier, rounded
 * correctly where the multiplier is a decimal fraction or the inverse of a whole number, so that 3 steps
 * of 0.1 are exactly 0.3. setValue() with the step where the handle already sits changes nothing.
 *
 * Multiplier, range and value may be set in any order, before anybody listens: what was asked for last is
 * remembered, and worked out again whenever multiplier or range change. A value given to setDoubleValue()
 * that the range cuts returns when the range has room for it, and the handle moves to its step, unless the
 * value that it was cut to has been reported to a listener: that one stays. A step given to setValue()
 * stays, and its value follows the multiplier. The range is given in steps, as in any QSlider; the value
 * is clamped to minimum() and maximum() times the multiplier.
 *
 * A click on the groove, the wheel, what a style sheet can select and which listeners may delete the slider
 * are as in OvCustomSlider; a listener of the signals that are added here always may, save in setRange(),
 * setMinimum() and setMaximum().
 */
class WIDGETTOOLKIT_EXPORT OvDoubleSlider : public OvCustomSlider
{
    Q_OBJECT
    Q_PROPERTY(double doubleValue READ doubleValue WRITE setDoubleValue NOTIFY doubleValueChanged USER true)
    Q_PROPERTY(double multiplier READ multiplier WRITE setMultiplier NOTIFY multiplierChanged)

public:
    /// A vertical slider, as QSlider's, of multiplier 1. @p parent owns it as usual.
    explicit OvDoubleSlider(QWidget* parent = nullptr);
    ~OvDoubleSlider() override;

    /// The value of one step, 1 by default. Zero, negative, infinite and NaN are ignored.
    double multiplier() const;
    void setMultiplier(double multiplier);

    /// The value in units, 0 at first. A value outside the range, also an infinite one, is clamped; NaN
    /// is ignored.
    double doubleValue() const;
    void setDoubleValue(double value);

Q_SIGNALS:
    /// doubleValue() has changed to @p value. Emitted once a change, also when the handle stays where it
    /// is, and before the other listeners of valueChanged() hear of the step.
    void doubleValueChanged(double value);
    /// multiplier() has changed; value and handle are already in keeping with it.
    void multiplierChanged(double multiplier);

protected:
    void sliderChange(SliderChange change) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
