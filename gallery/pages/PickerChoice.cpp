#include "PickerChoice.h"

#include "../DialogColorPicker.h"
#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/ColorPickerButton.h>

PickerChoice::PickerChoice(const QVector<ColorPickerButton*>& fields, SignalLogView* log, QObject* parent)
    : QObject(parent)
    , m_log(log)
{
    for (ColorPickerButton* field : fields) {
        m_fields.append(field);
    }
    installPickers();
}

PickerChoice::~PickerChoice() = default;

void PickerChoice::addControls(PropertyPanel* properties)
{
    properties->addHeading(tr("Picker"));
    properties->addChoice(tr("Kind"), {tr("Colour panel"), tr("Qt's colour dialog")},
                          static_cast<int>(m_kind), [this](int kind) { setKind(static_cast<Kind>(kind)); });
    properties->addSwitch(tr("Panel: no colour allowed"), m_isNullColorAllowed, [this](bool allowed) {
        m_isNullColorAllowed = allowed;
        applyOptions();
    });
    properties->addSwitch(tr("Panel: with opacity"), m_isOpacityAvailable, [this](bool available) {
        m_isOpacityAvailable = available;
        applyOptions();
    });
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
            auto* panelPicker = new PanelColorPicker(field);
            m_panelPickers.append(panelPicker);
            picker = panelPicker;
        } else {
            picker = new DialogColorPicker(field);
        }
        field->setPicker(picker);
        // As the field would have told it, had it been there.
        picker->setColor(field->color());
        if (isFirst && m_log) {
            m_log->watch(picker, QStringLiteral("picker"));
        }
        isFirst = false;
    }
    applyOptions();
}

void PickerChoice::applyOptions()
{
    for (const QPointer<PanelColorPicker>& picker : qAsConst(m_panelPickers)) {
        if (picker) {
            picker->setNullColorAllowed(m_isNullColorAllowed);
            picker->setOpacityAvailable(m_isOpacityAvailable);
        }
    }
}
