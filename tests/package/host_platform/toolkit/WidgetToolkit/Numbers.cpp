#include "OvCustomSlider.h"
#include "OvSpinBox.h"
#include "Util.h"

OvCustomSlider::OvCustomSlider(QWidget* parent)
    : QSlider(parent)
{
}

OvCustomSlider::~OvCustomSlider() = default;

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
