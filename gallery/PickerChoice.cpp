#include "PickerChoice.h"

#include "DialogColorPicker.h"
#include "Page.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/Pipette.h>

PickerChoice::PickerChoice(const QVector<ColorPickerButton*>& fields, Page* page)
    : QObject(page)
    , m_page(page)
    , m_pipette(new Pipette(this))
{
    connect(m_pipette, &Pipette::colorSelected, this, &PickerChoice::applyScreenColor);
    connect(m_pipette, &Pipette::pickingStopped, this, [this] { m_pipetteField = nullptr; });
    page->signalLog()->watch(m_pipette, "pipette");
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
        if (m_pipetteField) {
            m_pipette->stopPicking();
        }
        installPickers();
    }
}

void PickerChoice::pickFromScreen(ColorPickerButton* field)
{
    m_pipetteField = field;
    m_pipette->startPicking();
}

void PickerChoice::applyScreenColor(const QColor& color)
{
    if (m_pipetteField) {
        // The field tells its picker, and the panel opens with the colour next time.
        m_pipetteField->setColor(color);
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
            connect(panelPicker, &PanelColorPicker::pipetteRequested, this,
                    [this, field] { pickFromScreen(field); });
            picker = panelPicker;
        } else {
            picker = new DialogColorPicker(field);
        }
        field->setPicker(picker);
        // The field tells its picker only of changes.
        picker->setColor(field->color());
        if (isFirst) {
            m_page->signalLog()->watch(picker, "picker");
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
