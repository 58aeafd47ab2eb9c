#include "ComboBoxPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvComboBox.h>

namespace {

constexpr int NarrowWidth = 110;
constexpr int NarrowestWidth = 40;
constexpr int WidestWidth = 360;

OvComboBox* makeComboBox(QWidget* parent)
{
    auto* comboBox = new OvComboBox(parent);
    comboBox->addItems({ComboBoxPage::tr("Full HD, 1920 × 1080, 25 frames"),
                        ComboBoxPage::tr("Ultra HD, 3840 × 2160, 60 frames"), ComboBoxPage::tr("Square"),
                        ComboBoxPage::tr("As the source")});
    return comboBox;
}

} // namespace

PageInfo ComboBoxPage::info()
{
    return {QStringLiteral("combo-box"),
            tr("Combo box"),
            PageGroup::Inputs,
            {tr("list"), tr("choice"), tr("pop-up"), tr("wheel")},
            {QStringLiteral("OvComboBox")},
            &createPage<ComboBoxPage>};
}

ComboBoxPage::ComboBoxPage(QWidget* parent)
    : Page(info(),
           tr("A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while "
              "the pop-up is as wide as its widest item. The wheel changes it only while it has the focus."),
           parent)
{
    const auto wide = addTwins<OvComboBox>(tr("With room"), &makeComboBox);
    const auto narrow = addTwins<OvComboBox>(tr("In a narrow panel"), &makeComboBox);
    narrow.each([](OvComboBox* comboBox) { comboBox->setFixedWidth(NarrowWidth); });

    properties()->addNumber(
        tr("Width of the narrow one"), NarrowestWidth, WidestWidth, NarrowWidth, [narrow](int width) {
            narrow.each([width](OvComboBox* comboBox) { comboBox->setFixedWidth(width); });
        });
    properties()->addHeading(tr("With room"));
    properties()->addProperties(wide.objects(),
                                {QStringLiteral("currentIndex"), QStringLiteral("maxVisibleItems"),
                                 QStringLiteral("minimumContentsLength"), QStringLiteral("editable"),
                                 QStringLiteral("frame")});
    properties()->addAction(QStringLiteral("showPopup()"), [wide] {
        if (wide.enabled) {
            wide.enabled->showPopup();
        }
    });
    signalLog()->watch(wide.enabled, QStringLiteral("wide"));
    signalLog()->watch(narrow.enabled, QStringLiteral("narrow"));
    describeStyling(wide.enabled,
                    tr("As QComboBox, with its sub-controls and its view, or alone by its class "
                       "name; the pop-up's state is a dynamic property."));
}
