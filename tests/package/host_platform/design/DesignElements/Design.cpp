#include "TesselComboBox.h"
#include "TesselElegantSlider.h"

#include <WidgetToolkit/OvComboBox.h>

void Orvane::Tessel::convertComboBoxToTessel(OvComboBox* comboBox)
{
    comboBox->setFrame(false);
}

Orvane::Tessel::TesselElegantSlider::TesselElegantSlider(QWidget* parent)
    : QSlider(parent)
{
}

Orvane::Tessel::TesselElegantSlider::~TesselElegantSlider() = default;
