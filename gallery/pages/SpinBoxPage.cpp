#include "SpinBoxPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvSpinBox.h>

namespace {

constexpr int SampleValue = 24;

OvSpinBox* makeSpinBox(QWidget* parent, const QString& suffix)
{
    auto* spinBox = new OvSpinBox(parent);
    spinBox->setSuffix(suffix);
    spinBox->setValue(SampleValue);
    return spinBox;
}

} // namespace

PageInfo SpinBoxPage::info()
{
    return {QStringLiteral("spin-box"),
            tr("Spin box"),
            PageGroup::Inputs,
            {tr("number"), tr("wheel"), tr("integer")},
            {QStringLiteral("OvSpinBox")},
            &createPage<SpinBoxPage>};
}

SpinBoxPage::SpinBoxPage(QWidget* parent)
    : Page(info(),
           tr("A spin box that is safe to scroll past, since the wheel changes it only while it has the "
              "focus, and quick to type into: Enter commits the number and leaves it selected."),
           parent)
{
    const auto plain = addTwins<OvSpinBox>(
        tr("A number"), [](QWidget* twinParent) { return makeSpinBox(twinParent, QString()); });
    addTwins<OvSpinBox>(tr("With a unit"),
                        [](QWidget* twinParent) { return makeSpinBox(twinParent, QStringLiteral(" px")); });
    properties()->addHeading(tr("A number"));
    properties()->addProperties(
        plain.objects(), {QStringLiteral("value"), QStringLiteral("minimum"), QStringLiteral("maximum"),
                          QStringLiteral("singleStep"), QStringLiteral("prefix"), QStringLiteral("suffix"),
                          QStringLiteral("wrapping"), QStringLiteral("readOnly"),
                          QStringLiteral("buttonSymbols"), QStringLiteral("specialValueText")});
    signalLog()->watch(plain.enabled, QStringLiteral("spinBox"));
    describeStyling(plain.enabled, tr("As QSpinBox, with its sub-controls, or alone by its class name."));
}
