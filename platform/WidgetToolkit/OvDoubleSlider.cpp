#include "OvDoubleSlider.h"

#include "SliderAccess.h"
#include "StepMapping.h"

#include <QPointer>

#include <cmath>
#include <optional>
#include <utility>

class OvDoubleSlider::Private
{
public:
    explicit Private(OvDoubleSlider* slider)
        : q(slider)
    {
    }

    void takeStep();
    void deriveValue();
    void announce();
    bool hasReceivers() const;

    OvDoubleSlider* const q;
    double multiplier = 1.0;
    StepMapping::Scale scale;
    std::optional<double> requested; // by setDoubleValue(), and no step was taken since
    double value = 0.0;
    int step = 0; // nearest to the value
    double announced = 0.0;
    int announcedStep = 0;
    bool isReported = false; // what was announced, to a slot
};

void OvDoubleSlider::Private::takeStep()
{
    // The step follows from the value, which may lie between two steps: it stays.
    if (step == q->value()) {
        return;
    }
    requested.reset();
    step = q->value();
    value = scale.valueOf(step);
    if (q->signalsBlocked()) {
        announced = value;
        announcedStep = step;
        isReported = false;
    }
}

void OvDoubleSlider::Private::deriveValue()
{
    if (!requested) {
        step = q->value();
        value = scale.valueOf(step);
        announce();
        return;
    }
    value = qBound(scale.valueOf(q->minimum()), *requested, scale.valueOf(q->maximum()));
    step = scale.stepOf(value);
    const QPointer<OvDoubleSlider> self = q;
    q->setValue(step);
    if (self) {
        announce();
    }
}

void OvDoubleSlider::Private::announce()
{
    // QAbstractSlider sends the event for another step.
    const bool isWithinStep = std::exchange(announcedStep, q->value()) == q->value();
    const bool isNew = std::exchange(announced, value) != value;
    isReported = isNew ? hasReceivers() : isReported;
    if (requested && isReported) {
        requested = value;
    }
    if (!isNew) {
        return;
    }
    if (isWithinStep) {
        SliderAccess::announce(q);
    }
    Q_EMIT q->doubleValueChanged(value);
}

bool OvDoubleSlider::Private::hasReceivers() const
{
    // The slider's own connection is one receiver of valueChanged().
    return !q->signalsBlocked() && (q->receivers(SIGNAL(doubleValueChanged(double))) > 0 ||
                                    q->receivers(SIGNAL(valueChanged(int))) > 1);
}

OvDoubleSlider::OvDoubleSlider(QWidget* parent)
    : OvCustomSlider(parent)
    , d(std::make_unique<Private>(this))
{
    SliderAccess::install();
    // Not in sliderChange(), after which QAbstractSlider still uses the slider.
    connect(this, &QAbstractSlider::valueChanged, this, [this] { d->announce(); });
}

OvDoubleSlider::~OvDoubleSlider() = default;

double OvDoubleSlider::multiplier() const
{
    return d->multiplier;
}

void OvDoubleSlider::setMultiplier(double multiplier)
{
    if (multiplier == d->multiplier || !StepMapping::isMultiplier(multiplier)) {
        return;
    }
    d->multiplier = multiplier;
    d->scale = StepMapping::Scale(multiplier);
    const QPointer<OvDoubleSlider> self = this;
    d->deriveValue();
    if (self && d->multiplier == multiplier) {
        Q_EMIT multiplierChanged(multiplier);
    }
}

double OvDoubleSlider::doubleValue() const
{
    // Queried after QAbstractSlider has changed its value and before it emits.
    return d->step == value() ? d->value : d->scale.valueOf(value());
}

void OvDoubleSlider::setDoubleValue(double value)
{
    if (std::isnan(value)) {
        return;
    }
    d->requested = value + 0.0; // no negative zero
    d->deriveValue();
}

void OvDoubleSlider::sliderChange(SliderChange change)
{
    OvCustomSlider::sliderChange(change);
    if (change == SliderValueChange) {
        d->takeStep();
    } else if (change == SliderRangeChange && d->requested) {
        d->deriveValue();
    }
}
