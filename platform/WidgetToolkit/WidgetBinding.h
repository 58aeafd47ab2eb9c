// Internal: what Util::bindWidgets() makes.

#pragma once

#include <QObject>

#include <optional>

class OvDoubleSlider;
class QAbstractSlider;
class QAbstractSpinBox;
class QDoubleSpinBox;
class QSpinBox;

/// Keeps a slider and a spin box at the same value. The slider owns it; it is deleted with the first of the
/// two.
///
/// A change on one side is copied to the other, whose signals are ignored meanwhile. Since slots may change
/// either side during a copy, both are compared after it and copied again where they differ.
class WidgetBinding : public QObject
{
    Q_OBJECT

public:
    ~WidgetBinding() override;

    /// True if @p slider and @p spinBox are bound to each other.
    static bool exists(const QAbstractSlider* slider, const QAbstractSpinBox* spinBox);

    enum class Side { Slider, SpinBox };

    /// Copies from @p side until both agree. Does nothing when it is called recursively. Slots may delete
    /// either widget, and with it the binding.
    void synchronise(Side side);

protected:
    WidgetBinding(QAbstractSlider* slider, QAbstractSpinBox* spinBox);

    /// Copies from @p side to the other and returns the side to copy from next, if they differ. Each write
    /// may delete the binding, which sets @p gone.
    virtual std::optional<Side> copy(Side side, const bool& gone) = 0;

private:
    const QAbstractSpinBox* const m_boundSpinBox;
    bool* m_gone = nullptr; // set while synchronise() runs
};

/// Binds integers.
class IntegerBinding : public WidgetBinding
{
    Q_OBJECT

public:
    IntegerBinding(QAbstractSlider* slider, QSpinBox* spinBox);
    ~IntegerBinding() override;

private:
    std::optional<Side> copy(Side side, const bool& gone) override;

    /// Copies range and value, and returns the value.
    template <typename To, typename From>
    int copyTo(To* to, const From& from, const bool& gone);

    QAbstractSlider* const m_slider;
    QSpinBox* const m_spinBox;
    // The last range copied; none at first.
    int m_minimum = 1;
    int m_maximum = 0;
};

/// Binds doubles.
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

    // The last range of the slider that was copied, in steps and in units; none at first.
    int m_firstStep = 1;
    int m_lastStep = 0;
    double m_multiplier = 0.0;
    double m_sliderMinimum = 0.0;
    double m_sliderMaximum = 0.0;

    // The spin box's range, exact and rounded to m_decimals.
    double m_fullMinimum = 0.0;
    double m_fullMaximum = 0.0;
    double m_shownMinimum = 0.0;
    double m_shownMaximum = 0.0;
    int m_decimals = -1;
    double m_lastDigit = 1.0; // the value of one unit of the last decimal

    // The values of both after the last copy.
    double m_sliderValue = 0.0;
    double m_spinBoxValue = 0.0;
    // Whether the spin box then showed the slider's value, rounded to its decimals, and not a value that the
    // slider cannot take.
    bool m_spinBoxFollows = true;
};
