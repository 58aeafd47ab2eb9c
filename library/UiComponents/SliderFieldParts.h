// Internal: what SliderInputWidget and DoubleSliderInputWidget are made of.

#pragma once

#include <WidgetToolkit/OvBoxLayout.h>

#include <QAbstractSpinBox>
#include <QSlider>

/**
 * A slider and a spin box side by side in their owner, with the object names and looks of both fields.
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

        // A label asks its buddy's own policy whether there is anything to focus.
        field->setFocusPolicy(slider->focusPolicy());
        field->setFocusProxy(slider);
    }

    Slider* const slider;
    SpinBox* const spinBox;
};
