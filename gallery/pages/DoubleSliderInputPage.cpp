#include "DoubleSliderInputPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/DoubleSliderInputWidget.h>

namespace {

constexpr double Minimum = -1.0;
constexpr double Maximum = 1.0;
constexpr double SampleValue = 0.29;

template <int decimals>
DoubleSliderInputWidget* makeField(QWidget* parent)
{
    auto* field = new DoubleSliderInputWidget(parent, {Minimum, Maximum, decimals});
    field->setValue(SampleValue);
    return field;
}

} // namespace

PageInfo DoubleSliderInputPage::info()
{
    return {QStringLiteral("double-slider-input"),
            tr("Slider field for fractions"),
            PageGroup::Inputs,
            {tr("number"), tr("decimals"), tr("range"), tr("spin box")},
            {QStringLiteral("DoubleSliderInputWidget")},
            &createPage<DoubleSliderInputPage>};
}

DoubleSliderInputPage::DoubleSliderInputPage(QWidget* parent)
    : Page(info(),
           tr("A slider and a spin box of one number with a fixed count of decimals, exact to the last "
              "digit. Both the point and the comma are decimal marks while typing."),
           parent)
{
    const auto fields = addTwins<DoubleSliderInputWidget>(tr("Two decimals"), &makeField<2>);
    const auto fine = addTwins<DoubleSliderInputWidget>(tr("Six decimals"), &makeField<6>);
    properties()->addHeading(QStringLiteral("setValue()"));
    properties()->addFraction(
        tr("Value"), 2 * Minimum, 2 * Maximum, SampleValue, [fields, fine](double value) {
            const auto setValue = [value](DoubleSliderInputWidget* field) { field->setValue(value); };
            fields.each(setValue);
            fine.each(setValue);
        });
    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(fields.objects());
    signalLog()->watch(fields.enabled, QStringLiteral("field"));
    signalLog()->watch(fine.enabled, QStringLiteral("fineField"));
    describeStyling(fields.enabled, tr("A frame around a slider and a spin box without arrows."));
}
