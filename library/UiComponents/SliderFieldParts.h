// Internal: the parts of SliderInputWidget and DoubleSliderInputWidget.

#pragma once

#include "LabelFocus.h"
#include "NamedPart.h"

#include <WidgetToolkit/OvBoxLayout.h>

/**
 * A slider and a spin box side by side in a field, with their object names.
 */
template <typename Slider, typename SpinBox>
class SliderFieldParts
{
public:
    explicit SliderFieldParts(QWidget* field)
        : slider(named("slider", new Slider(field)))
        , spinBox(named("spinbox", new SpinBox(field)))
    {
        (new OvHBoxLayout(field))->autoFill();
        LabelFocus::lead(field, slider, slider->focusPolicy());
    }

    Slider* const slider;
    SpinBox* const spinBox;
};
