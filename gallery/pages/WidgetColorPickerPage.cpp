#include "WidgetColorPickerPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "PreviewScreen.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

namespace {

const QColor SampleColor(98, 178, 240);
constexpr double PictureProgress = 0.35;

WidgetColorPicker* pickerOf(const ColorPickerButton* field)
{
    return field->findChild<WidgetColorPicker*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

PageInfo WidgetColorPickerPage::info()
{
    return {QStringLiteral("widget-color-picker"),
            tr("Colour from a widget"),
            PageGroup::Colour,
            {tr("colour"), tr("pick"), tr("preview"), tr("cursor")},
            {QStringLiteral("WidgetColorPickerButton"), QStringLiteral("WidgetColorPicker"),
             QStringLiteral("WidgetColorPickerStylingObject")},
            &createPage<WidgetColorPickerPage>};
}

WidgetColorPickerPage::WidgetColorPickerPage(QWidget* parent)
    : Page(info(),
           tr("Click a button, then into the film: the colour of that pixel is picked. Any other click or "
              "key ends it too; with the cursor elsewhere nothing is picked."),
           parent)
    , m_preview(new PreviewScreen(this))
{
    addDemonstration(tr("The target"), m_preview);
    m_buttons = addTwins<WidgetColorPickerButton>(
        tr("A button that wears its colour"), [this](QWidget* twinParent) { return makeButton(twinParent); });
    m_fields = addTwins<ColorPickerButton>(tr("A colour button with this picker"),
                                           [this](QWidget* twinParent) { return makeField(twinParent); });
    addPickingControls();
    addLookControls();
    signalLog()->watch(m_buttons.enabled, QStringLiteral("button"));
    signalLog()->watch(m_fields.enabled, QStringLiteral("field"));
    signalLog()->watch(pickerOf(m_fields.enabled), QStringLiteral("picker"));
    describeStyling(m_buttons.enabled,
                    tr("Its background is its colour, written into its own sheet; size and border are the "
                       "application's."));
}

WidgetColorPickerPage::~WidgetColorPickerPage()
{
    // The look dies before the children do.
    m_buttons.each([](WidgetColorPickerButton* button) { button->setPickerStylingObject(nullptr); });
    m_fields.each([](ColorPickerButton* field) { pickerOf(field)->setStylingObject(nullptr); });
}

void WidgetColorPickerPage::prepareForPicture()
{
    m_preview->stopAt(PictureProgress);
}

WidgetColorPickerButton* WidgetColorPickerPage::makeButton(QWidget* parent)
{
    auto* button = new WidgetColorPickerButton(parent);
    button->setAccessibleName(tr("Pick a colour from the film"));
    button->setTargetWidget(m_preview);
    button->setPickerStylingObject(&m_look);
    button->setColor(SampleColor);
    return button;
}

ColorPickerButton* WidgetColorPickerPage::makeField(QWidget* parent)
{
    auto* field = new ColorPickerButton(parent);
    field->setAccessibleName(tr("Pick a colour from the film"));
    auto* picker = new WidgetColorPicker({field});
    picker->setTarget(m_preview);
    picker->setStylingObject(&m_look);
    field->setPicker(picker);
    field->setColor(SampleColor);
    return field;
}

void WidgetColorPickerPage::setTarget(QWidget* target)
{
    if (m_buttons.enabled) {
        m_buttons.enabled->setTargetWidget(target);
    }
    if (m_fields.enabled) {
        pickerOf(m_fields.enabled)->setTarget(target);
    }
}

void WidgetColorPickerPage::addPickingControls()
{
    properties()->addHeading(QStringLiteral("WidgetColorPickerButton"));
    properties()->addProperties(m_buttons.objects(), {QStringLiteral("changeSelfColor")});
    properties()->addColor(QStringLiteral("setColor()"), SampleColor, [this](const QColor& color) {
        m_buttons.each([&color](WidgetColorPickerButton* button) { button->setColor(color); });
    });
    properties()->addAction(QStringLiteral("startPicking()"), [this] {
        if (m_buttons.enabled) {
            m_buttons.enabled->startPicking();
        }
    });
    properties()->addAction(QStringLiteral("stopPicking()"), [this] {
        if (m_buttons.enabled) {
            m_buttons.enabled->stopPicking();
        }
    });
}

void WidgetColorPickerPage::addLookControls()
{
    properties()->addHeading(tr("Target and cursor"));
    properties()->addChoice(tr("Target"), {tr("The film"), tr("The whole page"), tr("None")}, 0,
                            [this](int choice) {
                                QWidget* const targets[] = {m_preview, this, nullptr};
                                setTarget(targets[choice]);
                            });
    properties()->addChoice(tr("Picking cursor"), {tr("Cross"), tr("Pointing hand"), tr("Question mark")}, 0,
                            [this](int choice) {
                                constexpr Qt::CursorShape shapes[] = {Qt::CrossCursor, Qt::PointingHandCursor,
                                                                      Qt::WhatsThisCursor};
                                m_look.cursor = shapes[choice];
                            });
    properties()->addSwitch(tr("The film runs"), m_preview->isRunning(),
                            [this](bool on) { m_preview->setRunning(on); });
}
