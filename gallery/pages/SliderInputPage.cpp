#include "SliderInputPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/SliderInputWidget.h>

namespace {

constexpr int Minimum = -100;
constexpr int Maximum = 100;
constexpr int SampleValue = 25;

SliderInputWidget* makeField(QWidget* parent)
{
    auto* field = new SliderInputWidget(parent, {Minimum, Maximum});
    field->setValue(SampleValue);
    return field;
}

} // namespace

PageInfo SliderInputPage::info()
{
    return {QStringLiteral("slider-input"),
            tr("Slider field"),
            PageGroup::Inputs,
            {tr("number"), tr("integer"), tr("range"), tr("spin box")},
            {QStringLiteral("SliderInputWidget")},
            &createPage<SliderInputPage>};
}

SliderInputPage::SliderInputPage(QWidget* parent)
    : Page(info(),
           tr("A slider and a spin box of one whole number, kept in step. Each change is reported by both, "
              "so the signal arrives twice with the same value."),
           parent)
{
    const auto fields = addTwins<SliderInputWidget>(QString(), &makeField);
    properties()->addHeading(QStringLiteral("setValue()"));
    properties()->addNumber(tr("Value"), 2 * Minimum, 2 * Maximum, SampleValue, [fields](int value) {
        fields.each([value](SliderInputWidget* field) { field->setValue(value); });
    });
    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(fields.objects());
    signalLog()->watch(fields.enabled, QStringLiteral("field"));
    describeStyling(fields.enabled, tr("A frame around a slider and a spin box without arrows."));
}
