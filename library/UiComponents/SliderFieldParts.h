// Internal: the parts of SliderInputWidget and DoubleSliderInputWidget.

#pragma once

#include "LabelFocus.h"
#include "NamedPart.h"

#include <WidgetToolkit/OvBoxLayout.h>

#include <QAbstractSpinBox>
#include <QSlider>

/**
 * A slider and a spin box side by side in a field, with their object names.
 */
template <typename Slider, typename SpinBox>
class SliderFieldParts
{
public:
    explicit SliderFieldParts(QWidget* field)
        : slider(new Slider(field))
        , spinBox(new SpinBox(field))
    {
        slider->setObjectName(QStringLiteral("slider"));
        spinBox->setObjectName(QStringLiteral("spinbox"));

        (new OvHBoxLayout(field))->autoFill();
        LabelFocus::lead(field, slider, slider->focusPolicy());
    }

    Slider* const slider;
    SpinBox* const spinBox;
};
