#include "OvDoubleSlider.h"

#include "StepMapping.h"

#include <QAccessibleWidget>
#include <QLocale>
#include <QPointer>

#include <cmath>
#include <optional>

namespace {

/// In units, where Qt's own interface of sliders counts steps.
class AccessibleDoubleSlider : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleDoubleSlider(OvDoubleSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? QLocale().toString(slider()->doubleValue())
                                          : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return slider()->doubleValue(); }
    void setCurrentValue(const QVariant& value) override { slider()->setDoubleValue(value.toDouble()); }
    QVariant minimumValue() const override { return slider()->minimum() * slider()->multiplier(); }
    QVariant maximumValue() const override { return slider()->maximum() * slider()->multiplier(); }
    QVariant minimumStepSize() const override { return slider()->singleStep() * slider()->multiplier(); }

private:
    OvDoubleSlider* slider() const { return qobject_cast<OvDoubleSlider*>(object()); }
};

QAccessibleInterface* makeAccessible(const QString& className, QObject* object)
{
    auto* const slider = qobject_cast<OvDoubleSlider*>(object);
    return slider && className == QLatin1String("OvDoubleSlider") ? new AccessibleDoubleSlider(slider)
                                                                  : nullptr;
}

/// From when the library is loaded until it is unloaded.
struct AccessibleFactory
{
    AccessibleFactory() { QAccessible::installFactory(makeAccessible); }
    ~AccessibleFactory() { QAccessible::removeFactory(makeAccessible); }
    AccessibleFactory(const AccessibleFactory&) = delete;
    AccessibleFactory& operator=(const AccessibleFactory&) = delete;
};

const AccessibleFactory factory;

} // namespace

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
    bool isHeard() const;

    OvDoubleSlider* const q;
    double multiplier = 1.0;
    StepMapping::Scale scale;
    std::optional<double> requested; // by setDoubleValue(), and no step was taken since
    double value = 0.0;
    double announced = 0.0;
};

void OvDoubleSlider::Private::takeStep()
{
    // The step follows from the value, which may lie between two steps: it stays.
    if (scale.stepOf(value) == q->value()) {
        return;
    }
    requested.reset();
    value = scale.valueOf(q->value());
    if (q->signalsBlocked()) {
        announced = value;
    }
}

void OvDoubleSlider::Private::deriveValue()
{
    if (!requested) {
        value = scale.valueOf(q->value());
        announce();
        return;
    }
    value = qBound(scale.valueOf(q->minimum()), *requested, scale.valueOf(q->maximum()));
    const QPointer<OvDoubleSlider> self = q;
    q->setValue(scale.stepOf(value));
    if (self) {
        announce();
    }
}

void OvDoubleSlider::Private::announce()
{
    if (value == announced) {
        return;
    }
    announced = value;
    if (requested && isHeard()) {
        requested = value;
    }
    Q_EMIT q->doubleValueChanged(value);
}

bool OvDoubleSlider::Private::isHeard() const
{
    // The slider's own connection is one receiver of valueChanged().
    return !q->signalsBlocked() && (q->receivers(SIGNAL(doubleValueChanged(double))) > 0 ||
                                    q->receivers(SIGNAL(valueChanged(int))) > 1);
}

OvDoubleSlider::OvDoubleSlider(QWidget* parent)
    : OvCustomSlider(parent)
    , d(std::make_unique<Private>(this))
{
    // Not in sliderChange(), after which QAbstractSlider goes on using the slider.
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
    return d->value;
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
