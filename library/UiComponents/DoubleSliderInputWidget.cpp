#include "DoubleSliderInputWidget.h"

#include "AccessibleFactory.h"
#include "SliderFieldParts.h"
#include "StepRange.h"

#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>

#include <QPointer>
#include <QSignalBlocker>

#include <cmath>

class DoubleSliderInputWidget::Private : public SliderFieldParts<OvDoubleSlider, OvDoubleSpinBox>
{
public:
    using SliderFieldParts::SliderFieldParts;
};

DoubleSliderInputWidget::DoubleSliderInputWidget(QWidget* parent)
    : DoubleSliderInputWidget(parent, {0.0, 1.0, 2})
{
}

DoubleSliderInputWidget::DoubleSliderInputWidget(QWidget* parent, const Initializer& init)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    d->spinBox->setBothDecimalMarksAccepted(true);
    setRange(init);
    connect(d->slider, &OvDoubleSlider::doubleValueChanged, this, &DoubleSliderInputWidget::valueChanged);
    connect(d->spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &DoubleSliderInputWidget::valueChanged);
}

DoubleSliderInputWidget::~DoubleSliderInputWidget() = default;

double DoubleSliderInputWidget::value() const
{
    return d->spinBox->value();
}

void DoubleSliderInputWidget::setRange(const Initializer& range)
{
    const double before = value();
    {
        const QSignalBlocker blocker(this);
        const double step = StepRange::stepOf(range.decimals);
        d->slider->setMultiplier(step);
        d->slider->setRange(StepRange::nearestStep(range.minimum, range.decimals),
                            StepRange::nearestStep(range.maximum, range.decimals));
        d->spinBox->setSingleStep(step);
        d->spinBox->setDecimals(range.decimals);
        // Until now the range was rounded to the former decimals.
        setValue(before);
    }
    if (value() != before) {
        Q_EMIT valueChanged(value());
    }
}

void DoubleSliderInputWidget::setValue(double value)
{
    if (std::isnan(value)) {
        return; // a spin box would take its maximum
    }
    const QPointer<DoubleSliderInputWidget> self = this;
    d->spinBox->setValue(value);
    if (self) {
        // Not the argument, which may have more decimals; and a slot may have set another value.
        d->slider->setDoubleValue(d->spinBox->value());
    }
}
