#include "OvCustomSlider.h"
#include "OvDoubleSlider.h"
#include "OvDoubleSpinBox.h"
#include "OvSpinBox.h"
#include "Util.h"

OvCustomSlider::OvCustomSlider(QWidget* parent)
    : QSlider(parent)
{
}

OvCustomSlider::~OvCustomSlider() = default;

OvDoubleSlider::OvDoubleSlider(QWidget* parent)
    : OvCustomSlider(parent)
{
    connect(this, &QAbstractSlider::valueChanged, this, [this] { Q_EMIT doubleValueChanged(doubleValue()); });
}

OvDoubleSlider::~OvDoubleSlider() = default;

void OvDoubleSlider::setMultiplier(double multiplier)
{
    m_multiplier = multiplier;
}

double OvDoubleSlider::doubleValue() const
{
    return value() * m_multiplier;
}

void OvDoubleSlider::setDoubleValue(double value)
{
    setValue(qRound(value / m_multiplier));
}

OvDoubleSpinBox::OvDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
}

OvDoubleSpinBox::~OvDoubleSpinBox() = default;

void OvDoubleSpinBox::setBothDecimalMarksAccepted(bool) {}

OvSpinBox::OvSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
}

OvSpinBox::~OvSpinBox() = default;

void Util::bindWidgets(QAbstractSlider* slider, QSpinBox* spinBox)
{
    const auto takeRange = [=](int minimum, int maximum) { spinBox->setRange(minimum, maximum); };
    QObject::connect(slider, &QAbstractSlider::rangeChanged, spinBox, takeRange);
    QObject::connect(slider, &QAbstractSlider::valueChanged, spinBox, &QSpinBox::setValue);
    QObject::connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), slider, &QAbstractSlider::setValue);
}

void Util::bindWidgets(OvDoubleSlider* slider, QDoubleSpinBox* spinBox)
{
    const auto takeRange = [=](int minimum, int maximum) {
        slider->setValue(minimum);
        const double first = slider->doubleValue();
        slider->setValue(maximum);
        spinBox->setRange(first, slider->doubleValue());
        slider->setDoubleValue(spinBox->value());
    };
    QObject::connect(slider, &QAbstractSlider::rangeChanged, spinBox, takeRange);
    QObject::connect(slider, &OvDoubleSlider::doubleValueChanged, spinBox, &QDoubleSpinBox::setValue);
    QObject::connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), slider,
                     &OvDoubleSlider::setDoubleValue);
}
