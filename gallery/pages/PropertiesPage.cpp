#include "PropertiesPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "ParameterPanel.h"

#include <UiComponents/PathSelectionWidget.h>

PageInfo PropertiesPage::info()
{
    return {QStringLiteral("properties"),
            tr("Properties of a clip"),
            PageGroup::Inputs,
            {tr("panel"), tr("inspector"), tr("form"), tr("editor")},
            {QStringLiteral("SliderInputWidget"), QStringLiteral("DoubleSliderInputWidget"),
             QStringLiteral("PointSelectorWidget"), QStringLiteral("ColorBlendingComboBox"),
             QStringLiteral("ColorInputWidget"), QStringLiteral("PathSelectionWidget"),
             QStringLiteral("SearchWidget"), QStringLiteral("AdjustingListView")},
            &createPage<PropertiesPage>};
}

PropertiesPage::PropertiesPage(QWidget* parent)
    : Page(info(),
           tr("The value inputs in one panel, as an editor shows the properties of a clip. The panel can be "
              "scrolled past every field: the wheel changes only the one that has the keyboard."),
           parent)
    , m_panels(addTwins<ParameterPanel>(QString()))
{
    const auto panels = m_panels;
    properties()->addText(tr("Search parameters"), QString(), [panels](const QString& text) {
        panels.each([&text](ParameterPanel* panel) { panel->filter(text); });
    });
    signalLog()->watch(m_panels.enabled, QStringLiteral("panel"));
}

void PropertiesPage::prepareForPicture()
{
    // What is free on this disk would make pictures differ.
    m_panels.each([](ParameterPanel* panel) { panel->folder()->showAvailableSpace(false, -1); });
}
