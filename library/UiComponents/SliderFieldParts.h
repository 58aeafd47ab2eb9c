// Internal: the parts of SliderInputWidget and DoubleSliderInputWidget.

#pragma once

#include "LabelFocus.h"
#include "NamedPart.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QAbstractSpinBox>

/**
 * A slider and a spin box side by side in a field, with their object names, on the same value.
 */
template <typename Slider, typename SpinBox>
class SliderFieldParts
{
public:
    explicit SliderFieldParts(QWidget* field)
        : q(field)
        , slider(named("slider", new Slider(field)))
        , spinBox(named("spinbox", new SpinBox(field)))
    {
        (new OvHBoxLayout(field))->autoFill();
        LabelFocus::lead(field, slider, slider->focusPolicy());
        slider->setOrientation(Qt::Horizontal);
        spinBox->setAlignment(Qt::AlignCenter);
        spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
        spinBox->setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        // Before the field is connected to them: when the host is notified, both parts show the value.
        Util::bindWidgets(slider, spinBox);
    }

    ~SliderFieldParts()
    {
        // ~QWidget() hides a window: its spin box loses the focus, commits the typed text and emits, when the
        // field is only a QWidget.
        slider->disconnect(q);
        spinBox->disconnect(q);
    }

    Q_DISABLE_COPY(SliderFieldParts)

    QWidget* const q;
    Slider* const slider;
    SpinBox* const spinBox;
};
