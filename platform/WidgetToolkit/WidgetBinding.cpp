#include "WidgetBinding.h"

#include "OvDoubleSlider.h"
#include "OvDoubleSpinBox.h"
#include "StepMapping.h"
#include "Util.h"

#include <QEvent>
#include <QSpinBox>

#include <cmath>
#include <type_traits>

namespace {

// Ends an endless loop of slots that change the two sides in turn.
constexpr int maxCopies = 16;

/// Sets range and value with one valueChanged(). Setting the range first would clamp the old value and emit
/// that too.
template <typename Widget, typename Number, typename SetValue>
void setRangeAndValue(Widget* widget, Number minimum, Number maximum, bool oldValueFits, const bool& gone,
                      SetValue setValue)
{
    if (!oldValueFits) {
        widget->setRange(qMin(minimum, Number(widget->minimum())), qMax(maximum, Number(widget->maximum())));
        if (gone) {
            return;
        }
        setValue();
        if (gone) {
            return;
        }
    }
    widget->setRange(minimum, maximum);
    if (!gone) {
        setValue();
    }
}

template <typename Number>
bool isWithin(Number value, Number minimum, Number maximum)
{
    return value >= minimum && value <= maximum;
}

} // namespace

WidgetBinding::WidgetBinding(QAbstractSlider* slider, QAbstractSpinBox* spinBox)
    : QObject(slider)
    , m_boundSpinBox(spinBox)
{
    // Deleted at once, since the next change of the slider would use the spin box.
    connect(spinBox, &QObject::destroyed, this, [this] { delete this; });
}

WidgetBinding::~WidgetBinding()
{
    if (m_gone != nullptr) {
        *m_gone = true;
    }
}

bool WidgetBinding::exists(const QAbstractSlider* slider, const QAbstractSpinBox* spinBox)
{
    const auto bindings = slider->findChildren<WidgetBinding*>(QString(), Qt::FindDirectChildrenOnly);
    for (const WidgetBinding* binding : bindings) {
        if (binding->m_boundSpinBox == spinBox) {
            return true;
        }
    }
    return false;
}

void WidgetBinding::synchronise(Side side)
{
    if (m_gone != nullptr) {
        return;
    }
    bool gone = false;
    m_gone = &gone;
    for (int copies = 0; copies < maxCopies; ++copies) {
        const std::optional<Side> next = copy(side, gone);
        if (gone) {
            return;
        }
        if (!next) {
            break;
        }
        side = *next;
    }
    m_gone = nullptr;
}

IntegerBinding::IntegerBinding(QAbstractSlider* slider, QSpinBox* spinBox)
    : WidgetBinding(slider, spinBox)
    , m_slider(slider)
    , m_spinBox(spinBox)
{
    const auto onSlider = [this] { synchronise(Side::Slider); };
    connect(slider, &QAbstractSlider::rangeChanged, this, onSlider);
    connect(slider, &QAbstractSlider::valueChanged, this, onSlider);
    connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this, [this] { synchronise(Side::SpinBox); });
}

IntegerBinding::~IntegerBinding() = default;

template <typename To, typename From>
int IntegerBinding::copyTo(To* to, const From& from, const bool& gone)
{
    const int minimum = from.minimum();
    const int maximum = from.maximum();
    // A slider emits rangeChanged() before it clamps its value.
    const int value = qBound(minimum, from.value(), maximum);
    const auto setValue = [to, value] {
        // The same value would rewrite the text of a spin box.
        if (std::is_same_v<To, QAbstractSlider> || to->value() != value) {
            to->setValue(value);
        }
    };
    if (minimum != m_minimum || maximum != m_maximum) {
        m_minimum = minimum;
        m_maximum = maximum;
        setRangeAndValue(to, minimum, maximum, isWithin(to->value(), minimum, maximum), gone, setValue);
    } else {
        setValue();
    }
    return value;
}

std::optional<WidgetBinding::Side> IntegerBinding::copy(Side side, const bool& gone)
{
    const int value =
        side == Side::Slider ? copyTo(m_spinBox, *m_slider, gone) : copyTo(m_slider, *m_spinBox, gone);
    if (gone) {
        return {};
    }
    if (m_slider->minimum() != m_minimum || m_slider->maximum() != m_maximum) {
        return Side::Slider;
    }
    if (m_spinBox->minimum() != m_minimum || m_spinBox->maximum() != m_maximum) {
        return Side::SpinBox;
    }
    const int sliderValue = qBound(m_minimum, m_slider->value(), m_maximum);
    if (sliderValue == m_spinBox->value()) {
        return {};
    }
    // A slot has changed one side: that one is copied.
    return sliderValue != value ? Side::Slider : Side::SpinBox;
}

FractionBinding::FractionBinding(OvDoubleSlider* slider, QDoubleSpinBox* spinBox)
    : WidgetBinding(slider, spinBox)
    , m_slider(slider)
    , m_spinBox(spinBox)
{
    const auto onSlider = [this] { synchronise(Side::Slider); };
    connect(slider, &OvDoubleSlider::doubleValueChanged, this, onSlider);
    connect(slider, &OvDoubleSlider::multiplierChanged, this, onSlider);
    connect(slider, &QAbstractSlider::rangeChanged, this, onSlider);
    connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this] { synchronise(Side::SpinBox); });
    if (const auto* announcing = qobject_cast<OvDoubleSpinBox*>(spinBox)) {
        connect(announcing, &OvDoubleSpinBox::decimalsChanged, this, &FractionBinding::watchDecimals);
    }
    // QDoubleSpinBox has no signal for its decimals.
    spinBox->installEventFilter(this);
}

FractionBinding::~FractionBinding() = default;

bool FractionBinding::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Paint:
        if (m_spinBox->decimals() != m_decimals) {
            // Queued, since slots must not run during a paint event.
            QMetaObject::invokeMethod(this, &FractionBinding::watchDecimals, Qt::QueuedConnection);
        }
        break;
    case QEvent::Show:
    case QEvent::FocusIn:
        watchDecimals();
        break;
    default:
        break;
    }
    Q_UNUSED(watched)
    return false;
}

std::optional<WidgetBinding::Side> FractionBinding::copy(Side side, const bool& gone)
{
    return side == Side::Slider ? copyToSpinBox(gone) : copyToSlider(gone);
}

std::optional<WidgetBinding::Side> FractionBinding::copyToSpinBox(const bool& gone)
{
    const bool newRange = sliderRangeChanged();
    if (newRange) {
        rememberSliderRange(m_slider->minimum(), m_slider->maximum());
    }
    const double value = sliderValue();
    if (newRange) {
        const auto setValue = [this, value] { m_spinBox->setValue(value); };
        const bool fits = isWithin(m_spinBox->value(), m_sliderMinimum, m_sliderMaximum);
        rememberSpinBoxRange(m_sliderMinimum, m_sliderMaximum);
        setRangeAndValue(m_spinBox, m_sliderMinimum, m_sliderMaximum, fits, gone, setValue);
    } else {
        noteDecimals();
        if (!m_spinBoxFollows && value == m_sliderValue) {
            return {};
        }
        if (!spinBoxShows(value)) {
            m_spinBox->setValue(value);
        }
    }
    if (gone) {
        return {};
    }
    if (sliderRangeChanged() || sliderValue() != value) {
        return Side::Slider;
    }
    noteDecimals();
    if (spinBoxRangeChanged() || !spinBoxShows(value)) {
        return Side::SpinBox;
    }
    settle(true);
    return {};
}

std::optional<WidgetBinding::Side> FractionBinding::copyToSlider(const bool& gone)
{
    const double value = m_spinBox->value();
    const bool otherDecimals = noteDecimals();
    const bool newRange = spinBoxRangeChanged();
    if (otherDecimals && m_spinBoxFollows) {
        const double reread = StepMapping::rounded(m_spinBoxValue, m_decimals);
        if (value == qBound(m_spinBox->minimum(), reread, m_spinBox->maximum())) {
            // The spin box has only rounded the old value to its new decimals.
            m_spinBoxValue = value;
            return Side::Slider;
        }
    }
    const auto setValue = [this, value] { m_slider->setDoubleValue(value); };
    if (newRange) {
        const double minimum = m_spinBox->minimum();
        const double maximum = m_spinBox->maximum();
        rememberSpinBoxRange(minimum, maximum);
        const StepMapping::Scale scale(m_slider->multiplier());
        const int first = scale.stepOf(minimum);
        const int last = scale.stepOf(maximum);
        rememberSliderRange(first, last);
        const bool fits = isWithin(m_slider->doubleValue(), m_sliderMinimum, m_sliderMaximum);
        // Makes the slider forget a requested value that its range has cut.
        m_slider->setDoubleValue(m_slider->doubleValue());
        setRangeAndValue(m_slider, first, last, fits, gone, setValue);
    } else {
        setValue();
    }
    if (gone) {
        return {};
    }
    if (m_spinBox->value() != value) {
        return Side::SpinBox;
    }
    if (sliderRangeChanged()) {
        return Side::Slider;
    }
    const double taken = m_slider->doubleValue();
    if (taken == value) {
        settle(true);
        return {};
    }
    if (taken != qBound(m_sliderMinimum, value, m_sliderMaximum)) {
        return Side::Slider;
    }
    settle(false);
    return {};
}

bool FractionBinding::sliderRangeChanged() const
{
    return m_slider->minimum() != m_firstStep || m_slider->maximum() != m_lastStep ||
           m_slider->multiplier() != m_multiplier;
}

void FractionBinding::rememberSliderRange(int minimum, int maximum)
{
    m_firstStep = minimum;
    m_lastStep = maximum;
    m_multiplier = m_slider->multiplier();
    const StepMapping::Scale scale(m_multiplier);
    m_sliderMinimum = scale.valueOf(minimum);
    m_sliderMaximum = scale.valueOf(maximum);
}

/// A slider emits rangeChanged() before it clamps its value.
double FractionBinding::sliderValue() const
{
    return qBound(m_sliderMinimum, m_slider->doubleValue(), m_sliderMaximum);
}

/// With other decimals the same range is rounded differently.
bool FractionBinding::noteDecimals()
{
    if (m_spinBox->decimals() == m_decimals) {
        return false;
    }
    rememberSpinBoxRange(m_fullMinimum, m_fullMaximum);
    return true;
}

bool FractionBinding::spinBoxRangeChanged() const
{
    return m_spinBox->minimum() != m_shownMinimum || m_spinBox->maximum() != m_shownMaximum;
}

void FractionBinding::rememberSpinBoxRange(double minimum, double maximum)
{
    m_fullMinimum = minimum;
    m_fullMaximum = maximum;
    m_decimals = m_spinBox->decimals();
    m_lastDigit = std::pow(10.0, -m_decimals);
    m_shownMinimum = StepMapping::rounded(minimum, m_decimals);
    m_shownMaximum = StepMapping::rounded(maximum, m_decimals);
}

bool FractionBinding::spinBoxShows(double value) const
{
    const double shown = m_spinBox->value();
    if (shown == value) {
        return true;
    }
    // Rounding converts to text and back, so it comes last.
    return std::abs(shown - value) < m_lastDigit && shown == StepMapping::rounded(value, m_decimals);
}

void FractionBinding::settle(bool spinBoxFollows)
{
    m_sliderValue = m_slider->doubleValue();
    m_spinBoxValue = m_spinBox->value();
    m_spinBoxFollows = spinBoxFollows;
}

void FractionBinding::watchDecimals()
{
    if (m_spinBox->decimals() != m_decimals) {
        synchronise(Side::Slider);
    }
}

void Util::bindWidgets(QAbstractSlider* slider, QSpinBox* spinBox)
{
    if (slider && spinBox && !WidgetBinding::exists(slider, spinBox)) {
        (new IntegerBinding(slider, spinBox))->synchronise(WidgetBinding::Side::Slider);
    }
}

void Util::bindWidgets(OvDoubleSlider* slider, QDoubleSpinBox* spinBox)
{
    if (slider && spinBox && !WidgetBinding::exists(slider, spinBox)) {
        (new FractionBinding(slider, spinBox))->synchronise(WidgetBinding::Side::Slider);
    }
}
