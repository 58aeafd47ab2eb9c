// Internal: the parts of SliderInputWidget and DoubleSliderInputWidget.

#pragma once

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

        // QLabel checks the focus policy of its buddy, not of the focus proxy.
        field->setFocusPolicy(slider->focusPolicy());
        field->setFocusProxy(slider);
    }

    Slider* const slider;
    SpinBox* const spinBox;
};
