#include "SliderInputWidget.h"

#include "AccessibleFactory.h"
#include "SliderFieldParts.h"

#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QPointer>
#include <QSignalBlocker>

class SliderInputWidget::Private : public SliderFieldParts<OvCustomSlider, OvSpinBox>
{
public:
    using SliderFieldParts::SliderFieldParts;
};

SliderInputWidget::SliderInputWidget(QWidget* parent)
    : SliderInputWidget(parent, {0, 100})
{
}

SliderInputWidget::SliderInputWidget(QWidget* parent, const Initializer& init)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    setRange(init);
    connect(d->slider, &QAbstractSlider::valueChanged, this, &SliderInputWidget::valueChanged);
    connect(d->spinBox, qOverload<int>(&QSpinBox::valueChanged), this, &SliderInputWidget::valueChanged);
}

SliderInputWidget::~SliderInputWidget() = default;

int SliderInputWidget::value() const
{
    return d->spinBox->value();
}

void SliderInputWidget::setRange(const Initializer& range)
{
    const int before = value();
    {
        const QSignalBlocker blocker(this);
        d->slider->setRange(range.minimum, range.maximum);
    }
    if (value() != before) {
        Q_EMIT valueChanged(value());
    }
}

void SliderInputWidget::setValue(int value)
{
    const QPointer<SliderInputWidget> self = this;
    d->spinBox->setValue(value);
    if (self) {
        // Not the argument: a slot may have set another value.
        d->slider->setValue(d->spinBox->value());
    }
}
