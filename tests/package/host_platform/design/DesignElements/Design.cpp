#include "TesselComboBox.h"
#include "TesselElegantSlider.h"
#include "TesselLineEdit.h"

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

Orvane::Tessel::TesselLineEdit::TesselLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
}

Orvane::Tessel::TesselLineEdit::~TesselLineEdit() = default;
