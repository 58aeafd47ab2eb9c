#include "SliderAccess.h"

#include "OvDoubleSlider.h"

#include <QAccessibleWidget>
#include <QLocale>
#include <QScopeGuard>

#include <cmath>
#include <utility>

namespace {

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
        if (kind != QAccessible::Value) {
            return QAccessibleWidget::text(kind);
        }
        const double value = slider()->doubleValue();
        // Six digits, those of whole numbers all, and never an exponent.
        const double said = qAbs(value) < 1e6 ? QString::number(value).toDouble() : std::round(value);
        return QLocale().toString(said, 'f', QLocale::FloatingPointShortest);
    }

    QVariant currentValue() const override { return slider()->doubleValue(); }
    void setCurrentValue(const QVariant& value) override
    {
        if (slider()->isEnabled()) {
            slider()->setDoubleValue(value.toDouble());
        }
    }
    QVariant minimumValue() const override { return slider()->minimum() * slider()->multiplier(); }
    QVariant maximumValue() const override { return slider()->maximum() * slider()->multiplier(); }
    QVariant minimumStepSize() const override { return slider()->singleStep() * slider()->multiplier(); }

private:
    OvDoubleSlider* slider() const { return qobject_cast<OvDoubleSlider*>(object()); }
};

QAccessibleInterface* interfaceFor(const QString& className, QObject* object)
{
    auto* const slider = qobject_cast<OvDoubleSlider*>(object);
    return slider && className == QLatin1String("OvDoubleSlider") ? new AccessibleDoubleSlider(slider)
                                                                  : nullptr;
}

SliderAccess::Silence* innermost = nullptr;

} // namespace

void SliderAccess::install()
{
    // When the library is unloaded.
    static const auto undo = qScopeGuard([] { QAccessible::removeFactory(interfaceFor); });
    QAccessible::installFactory(interfaceFor);
}

void SliderAccess::announce(QAbstractSlider* slider)
{
    if (!QAccessible::isActive()) {
        return;
    }
    const auto* const fractional = qobject_cast<OvDoubleSlider*>(slider);
    QAccessibleValueChangeEvent event(slider, fractional ? QVariant(fractional->doubleValue())
                                                         : QVariant(slider->value()));
    QAccessible::updateAccessibility(&event);
}

SliderAccess::Silence::Silence(QAbstractSlider* slider)
    : m_slider(slider)
    , m_outer(std::exchange(innermost, this))
    , m_handler(QAccessible::installUpdateHandler(filter))
{
}

SliderAccess::Silence::~Silence()
{
    innermost = m_outer;
    const QAccessible::UpdateHandler last = QAccessible::installUpdateHandler(m_handler);
    if (last != filter) {
        // A slot has installed another one meanwhile.
        QAccessible::installUpdateHandler(last);
    }
}

void SliderAccess::Silence::filter(QAccessibleEvent* event)
{
    const auto isHeldBy = [event](const Silence* one) {
        return event->type() == QAccessible::ValueChanged && event->object() == one->m_slider;
    };
    Silence* one = innermost;
    while (!isHeldBy(one) && one->m_outer) {
        one = one->m_outer;
    }
    if (isHeldBy(one)) {
        one->m_hasHeld = true;
        return;
    }
    QAccessible::installUpdateHandler(one->m_handler);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(filter);
}
