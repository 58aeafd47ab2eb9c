#include "ColorPickerButtonPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "PickerChoice.h"

#include <UiComponents/ColorPickerButton.h>

namespace {

const QColor SampleColor(47, 111, 222);

ColorPickerButton* makeButton(QWidget* parent, const std::optional<QColor>& color)
{
    auto* button = new ColorPickerButton(parent);
    button->setColor(color);
    return button;
}

} // namespace

PageInfo ColorPickerButtonPage::info()
{
    return {QStringLiteral("color-picker-button"),
            tr("Colour button"),
            PageGroup::Colour,
            {tr("colour"), tr("picker"), tr("dialog")},
            {QStringLiteral("ColorPickerButton"), QStringLiteral("AbstractColorPicker")},
            &createPage<ColorPickerButtonPage>};
}

ColorPickerButtonPage::ColorPickerButtonPage(QWidget* parent)
    : Page(info(),
           tr("A button whose face is a colour. A click hands over to an exchangeable picker, here the "
              "colour panel or Qt's colour dialog: every colour that is tried is on the button at once."),
           parent)
{
    const auto buttons = addTwins<ColorPickerButton>(
        tr("A colour"), [](QWidget* twinParent) { return makeButton(twinParent, SampleColor); });
    const auto empty = addTwins<ColorPickerButton>(
        tr("No colour"), [](QWidget* twinParent) { return makeButton(twinParent, QColor()); });
    const auto mixed = addTwins<ColorPickerButton>(
        tr("Several colours"), [](QWidget* twinParent) { return makeButton(twinParent, std::nullopt); });

    const auto set = [buttons](const std::optional<QColor>& color) {
        buttons.each([&color](ColorPickerButton* button) { button->setColor(color); });
    };
    properties()->addHeading(QStringLiteral("setColor()"));
    properties()->addColor(tr("Colour"), SampleColor, set);
    properties()->addAction(tr("No colour"), [set] { set(QColor()); });
    properties()->addAction(tr("Several colours"), [set] { set(std::nullopt); });
    auto* choice = new PickerChoice(
        {buttons.enabled, empty.enabled, mixed.enabled, buttons.disabled, empty.disabled, mixed.disabled},
        signalLog(), this);
    choice->addControls(properties());
    properties()->addHeading(tr("Picking"));
    properties()->addAction(QStringLiteral("startPicking()"), [buttons] {
        if (buttons.enabled) {
            buttons.enabled->startPicking();
        }
    });
    properties()->addAction(QStringLiteral("stopPicking()"), [buttons] {
        if (buttons.enabled) {
            buttons.enabled->stopPicking();
        }
    });
    signalLog()->watch(buttons.enabled, QStringLiteral("button"));
    describeStyling(buttons.enabled,
                    tr("The face is a child of its own; the button says by dynamic properties when it has "
                       "no colour, or several."));
}
