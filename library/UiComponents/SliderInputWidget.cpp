#include "SliderInputWidget.h"

#include "AccessibleFactory.h"
#include "SliderFieldParts.h"

#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

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
    Util::bindWidgets(d->slider, d->spinBox);
    setRange(init);
    d->slider->setOrientation(Qt::Horizontal);
    d->spinBox->setAlignment(Qt::AlignCenter);
    d->spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
    d->spinBox->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);

    // After the binding, whose slots are called first: when the host is notified, both parts show the value.
    connect(d->slider, &QAbstractSlider::valueChanged, this, &SliderInputWidget::valueChanged);
    connect(d->spinBox, qOverload<int>(&QSpinBox::valueChanged), this, &SliderInputWidget::valueChanged);
}

SliderInputWidget::~SliderInputWidget()
{
    // ~QWidget() hides a window: its spin box loses the focus, commits the typed text and emits, when the
    // field is only a QWidget.
    d->slider->disconnect(this);
    d->spinBox->disconnect(this);
}

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
