#include "DoubleSliderPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvDoubleSlider.h>

namespace {

constexpr double SampleMultiplier = 0.1;
constexpr double SampleValue = 3.75;

OvDoubleSlider* makeSlider(QWidget* parent)
{
    auto* slider = new OvDoubleSlider(parent);
    slider->setOrientation(Qt::Horizontal);
    slider->setMultiplier(SampleMultiplier);
    slider->setDoubleValue(SampleValue);
    return slider;
}

} // namespace

PageInfo DoubleSliderPage::info()
{
    return {QStringLiteral("double-slider"),
            tr("Slider for fractions"),
            PageGroup::Inputs,
            {tr("number"), tr("multiplier"), tr("step")},
            {QStringLiteral("OvDoubleSlider")},
            &createPage<DoubleSliderPage>};
}

DoubleSliderPage::DoubleSliderPage(QWidget* parent)
    : Page(info(),
           tr("A slider with a fractional value: its steps times a multiplier. A value that code sets is "
              "kept exactly, also between two steps, in whatever order multiplier, range and value come."),
           parent)
{
    const auto sliders = addTwins<OvDoubleSlider>(QString(), &makeSlider);
    properties()->addProperties(
        sliders.objects(), {QStringLiteral("doubleValue"), QStringLiteral("multiplier"),
                            QStringLiteral("value"), QStringLiteral("minimum"), QStringLiteral("maximum"),
                            QStringLiteral("singleStep"), QStringLiteral("pageStep")});
    signalLog()->watch(sliders.enabled, QStringLiteral("slider"));
    describeStyling(sliders.enabled, tr("As OvCustomSlider and QSlider, or alone by its class name."));
}
