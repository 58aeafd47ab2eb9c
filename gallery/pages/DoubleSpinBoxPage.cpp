#include "DoubleSpinBoxPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvDoubleSpinBox.h>

namespace {

constexpr double SampleValue = 23.976;
constexpr int SampleDecimals = 3;

OvDoubleSpinBox* makeSpinBox(QWidget* parent, bool acceptsBothMarks)
{
    auto* spinBox = new OvDoubleSpinBox(parent);
    spinBox->setDecimals(SampleDecimals);
    spinBox->setValue(SampleValue);
    spinBox->setBothDecimalMarksAccepted(acceptsBothMarks);
    return spinBox;
}

} // namespace

PageInfo DoubleSpinBoxPage::info()
{
    return {QStringLiteral("double-spin-box"),
            tr("Spin box for fractions"),
            PageGroup::Inputs,
            {tr("number"), tr("decimals"), tr("comma"), tr("wheel")},
            {QStringLiteral("OvDoubleSpinBox")},
            &createPage<DoubleSpinBoxPage>};
}

DoubleSpinBoxPage::DoubleSpinBoxPage(QWidget* parent)
    : Page(info(),
           tr("The spin box for fractions. On request it takes both the point and the comma as the decimal "
              "mark, whatever the language, so that nobody has to look for the right key."),
           parent)
{
    const auto plain = addTwins<OvDoubleSpinBox>(tr("The language's decimal mark"), [](QWidget* twinParent) {
        return makeSpinBox(twinParent, false);
    });
    const auto both = addTwins<OvDoubleSpinBox>(
        tr("Point and comma"), [](QWidget* twinParent) { return makeSpinBox(twinParent, true); });
    properties()->addHeading(tr("Point and comma"));
    properties()->addProperties(both.objects(), {QStringLiteral("bothDecimalMarksAccepted"),
                                                 QStringLiteral("value"), QStringLiteral("decimals"),
                                                 QStringLiteral("minimum"), QStringLiteral("maximum"),
                                                 QStringLiteral("singleStep"), QStringLiteral("prefix"),
                                                 QStringLiteral("suffix"), QStringLiteral("readOnly")});
    signalLog()->watch(plain.enabled, QStringLiteral("plain"));
    signalLog()->watch(both.enabled, QStringLiteral("both"));
    describeStyling(both.enabled,
                    tr("As QDoubleSpinBox, with its sub-controls, or alone by its class name."));
}
