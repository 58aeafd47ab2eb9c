#include "TesselComboBox.h"

#include <WidgetToolkit/OvComboBox.h>

void Orvane::Tessel::convertComboBoxToTessel(OvComboBox* comboBox)
{
    comboBox->setFrame(false);
}
