#include "ColorInputPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "PickerChoice.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>

namespace {

const QColor SampleColor(226, 92, 60);

ColorInputWidget* makeField(QWidget* parent)
{
    return new ColorInputWidget(parent, SampleColor);
}

ColorPickerButton* buttonOf(const ColorInputWidget* field)
{
    return qobject_cast<ColorPickerButton*>(field->anchorWidget());
}

} // namespace

PageInfo ColorInputPage::info()
{
    return {QStringLiteral("color-input"),
            tr("Colour field"),
            PageGroup::Colour,
            {tr("colour"), tr("form"), tr("row"), tr("picker")},
            {QStringLiteral("ColorInputWidget"), QStringLiteral("AbstractColorPicker")},
            &createPage<ColorInputPage>};
}

ColorInputPage::ColorInputPage(QWidget* parent)
    : Page(info(),
           tr("A colour button in a frame, ready for a row of a form. The frame's margins belong to the "
              "style sheet; the button inside is the anchor for a pop-up picker."),
           parent)
{
    const auto fields = addTwins<ColorInputWidget>(tr("Click it to pick a colour"), &makeField);
    properties()->addHeading(QStringLiteral("setColor()"));
    properties()->addColor(tr("Colour"), SampleColor, [fields](const QColor& color) {
        fields.each([&color](ColorInputWidget* field) { field->setColor(color); });
    });
    properties()->addAction(tr("No colour"), [fields] {
        fields.each([](ColorInputWidget* field) { field->setColor(QColor()); });
    });
    auto* choice = new PickerChoice({buttonOf(fields.enabled), buttonOf(fields.disabled)}, signalLog(), this);
    choice->addControls(properties());
    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(fields.objects());
    signalLog()->watch(fields.enabled, QStringLiteral("field"));
    signalLog()->watch(fields.enabled->anchorWidget(), QStringLiteral("anchorWidget"));
    describeStyling(fields.enabled, tr("A frame around one colour button."));
}
