#include "WidgetColorPickerStylingObject.h"

WidgetColorPickerStylingObject::~WidgetColorPickerStylingObject() = default;
