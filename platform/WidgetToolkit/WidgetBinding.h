// Internal: what Util::bindWidgets() makes.

#pragma once

#include <QObject>

#include <optional>

class OvDoubleSlider;
class QAbstractSlider;
class QAbstractSpinBox;
class QDoubleSpinBox;
class QSpinBox;

/// Keeps a slider and a spin box on the same value. It is a child of the slider and goes with the first
/// of the two that dies.
///
/// A change on one side is copied to the other. What the other reports meanwhile is its echo and is not
/// followed; but a listener may have moved either side in the same moment, so after each copy the two
/// are compared, and copied again if need be.
class WidgetBinding : public QObject
{
    Q_OBJECT

public:
    ~WidgetBinding() override;

    /// True if @p slider and @p spinBox are bound to each other.
    static bool exists(const QAbstractSlider* slider, const QAbstractSpinBox* spinBox);

    enum class Side { Slider, SpinBox };

    /// Copies from @p side until the two agree. Does nothing while it runs already. Listeners may delete
    /// either widget, and so the binding.
    void synchronise(Side side);

protected:
    WidgetBinding(QAbstractSlider* slider, QAbstractSpinBox* spinBox);

    /// Copies from @p side to the other and says which side has to be copied next, none if they agree.
    /// Every write may delete this object; @p gone tells.
    virtual std::optional<Side> copy(Side side, const bool& gone) = 0;

private:
    const QAbstractSpinBox* const m_boundSpinBox;
    bool* m_gone = nullptr; // set while synchronise() runs
};

/// The binding of whole numbers.
class IntegerBinding : public WidgetBinding
{
    Q_OBJECT

public:
    IntegerBinding(QAbstractSlider* slider, QSpinBox* spinBox);
    ~IntegerBinding() override;

private:
    std::optional<Side> copy(Side side, const bool& gone) override;

    QAbstractSlider* const m_slider;
    QSpinBox* const m_spinBox;
    // The range that both agreed on last; at first none.
    int m_minimum = 1;
    int m_maximum = 0;
};

/// The binding of fractions.
class FractionBinding : public WidgetBinding
{
    Q_OBJECT

public:
    FractionBinding(OvDoubleSlider* slider, QDoubleSpinBox* spinBox);
    ~FractionBinding() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::optional<Side> copy(Side side, const bool& gone) override;
    std::optional<Side> copyToSpinBox(const bool& gone);
    std::optional<Side> copyToSlider(const bool& gone);

    bool sliderRangeChanged() const;
    void rememberSliderRange(int minimum, int maximum);
    double sliderValue() const;
    bool noteDecimals();
    bool spinBoxRangeChanged() const;
    void rememberSpinBoxRange(double minimum, double maximum);
    bool spinBoxShows(double value) const;
    void settle(bool spinBoxFollows);
    void watchDecimals();

    OvDoubleSlider* const m_slider;
    QDoubleSpinBox* const m_spinBox;

    // The slider's range as it was copied last, in steps and in units; at first none.
    int m_firstStep = 1;
    int m_lastStep = 0;
    double m_multiplier = 0.0;
    double m_sliderMinimum = 0.0;
    double m_sliderMaximum = 0.0;

    // The spin box's range in full, and as it reads with m_decimals.
    double m_fullMinimum = 0.0;
    double m_fullMaximum = 0.0;
    double m_shownMinimum = 0.0;
    double m_shownMaximum = 0.0;
    int m_decimals = -1;
    double m_lastDigit = 1.0; // the value of one unit of the last decimal

    // Where both were when they agreed last.
    double m_sliderValue = 0.0;
    double m_spinBoxValue = 0.0;
    // Whether the spin box then showed the slider's value, as far as its decimals go, and not a value
    // that the slider cannot take.
    bool m_spinBoxFollows = true;
};
