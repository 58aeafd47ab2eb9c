#include "PickerChoice.h"

#include "DialogColorPicker.h"
#include "Page.h"

#include <UiComponents/ColorPickerButton.h>

PickerChoice::PickerChoice(const QVector<ColorPickerButton*>& fields, Page* page)
    : QObject(page)
    , m_page(page)
{
    m_options.nullColor = true;
    for (ColorPickerButton* field : fields) {
        m_fields.append(field);
    }
    installPickers();
    addControls();
}

PickerChoice::~PickerChoice() = default;

void PickerChoice::addControls()
{
    PropertyPanel* const properties = m_page->properties();
    properties->addHeading(tr("Picker"));
    properties->addChoice(tr("Kind"), {tr("Colour panel"), tr("Qt's colour dialog")},
                          static_cast<int>(m_kind), [this](int kind) { setKind(static_cast<Kind>(kind)); });
    const auto addOption = [this, properties](const QString& text, bool PopupColorPicker::Options::*option) {
        properties->addSwitch(text, m_options.*option, [this, option](bool isOn) {
            m_options.*option = isOn;
            applyOptions();
        });
    };
    addOption(tr("Panel: no colour allowed"), &PopupColorPicker::Options::nullColor);
    addOption(tr("Panel: with opacity"), &PopupColorPicker::Options::opacity);
    addOption(tr("Panel: with own colours"), &PopupColorPicker::Options::customColors);
}

void PickerChoice::setKind(Kind kind)
{
    if (m_kind != kind) {
        m_kind = kind;
        installPickers();
    }
}

void PickerChoice::installPickers()
{
    m_panelPickers.clear();
    bool isFirst = true;
    for (const QPointer<ColorPickerButton>& field : qAsConst(m_fields)) {
        if (!field) {
            continue;
        }
        AbstractColorPicker* picker = nullptr;
        if (m_kind == Kind::Panel) {
            auto* panelPicker = new PopupColorPicker(m_options);
            m_panelPickers.append(panelPicker);
            picker = panelPicker;
        } else {
            picker = new DialogColorPicker(field);
            // The field only passes changes to its picker.
            picker->setColor(field->color());
        }
        field->setPicker(picker);
        if (isFirst) {
            m_page->signalLog()->watch(picker, "picker");
        }
        isFirst = false;
    }
}

void PickerChoice::applyOptions()
{
    for (const QPointer<PopupColorPicker>& picker : qAsConst(m_panelPickers)) {
        if (picker) {
            picker->setOptions(m_options);
        }
    }
}
