#include "TesselComboBoxPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <DesignElements/TesselComboBox.h>
#include <WidgetToolkit/OvComboBox.h>

namespace {

OvComboBox* makeComboBox(QWidget* parent, bool isConverted)
{
    auto* comboBox = new OvComboBox(parent);
    comboBox->addItems({TesselComboBoxPage::tr("Normal"), TesselComboBoxPage::tr("Multiply"),
                        TesselComboBoxPage::tr("Screen")});
    if (isConverted) {
        Orvane::Tessel::convertComboBoxToTessel(comboBox);
    }
    return comboBox;
}

} // namespace

PageInfo TesselComboBoxPage::info()
{
    return {QStringLiteral("tessel-combo-box"),
            tr("Combo box of the design system"),
            PageGroup::Inputs,
            {tr("list"), tr("choice"), QStringLiteral("convertComboBoxToTessel")},
            {QStringLiteral("TesselComboBox")},
            &createPage<TesselComboBoxPage>};
}

TesselComboBoxPage::TesselComboBoxPage(QWidget* parent)
    : Page(info(),
           tr("Gives a combo box the look of the design system in place: items, index and signals stay as "
              "they are."),
           parent)
{
    const auto plain = addTwins<OvComboBox>(
        tr("As it was"), [](QWidget* twinParent) { return makeComboBox(twinParent, false); });
    const auto converted = addTwins<OvComboBox>(
        tr("Converted"), [](QWidget* twinParent) { return makeComboBox(twinParent, true); });
    properties()->addAction(tr("Convert the first one too"),
                            [plain] { plain.each(&Orvane::Tessel::convertComboBoxToTessel); });
    properties()->addHeading(tr("Converted"));
    properties()->addProperties(converted.objects(),
                                {QStringLiteral("currentIndex"), QStringLiteral("maxVisibleItems")});
    properties()->addAction(QStringLiteral("showPopup()"), [converted] {
        if (converted.enabled) {
            converted.enabled->showPopup();
        }
    });
    signalLog()->watch(plain.enabled, QStringLiteral("plain"));
    signalLog()->watch(converted.enabled, QStringLiteral("converted"));
    describeStyling({converted.enabled.data(),
                     tr("A combo box with the property; the view of its list has the object name "
                        "tesselComboBoxView."),
                     {},
                     QStringLiteral("convertComboBoxToTessel()")});
}
