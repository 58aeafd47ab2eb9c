#include "CustomSliderPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvCustomSlider.h>

namespace {

constexpr int SampleValue = 40;
constexpr int TallSlider = 90;

OvCustomSlider* makeSlider(QWidget* parent, Qt::Orientation orientation)
{
    auto* slider = new OvCustomSlider(orientation, parent);
    slider->setValue(SampleValue);
    return slider;
}

} // namespace

PageInfo CustomSliderPage::info()
{
    return {QStringLiteral("custom-slider"),
            tr("Slider"),
            PageGroup::Inputs,
            {tr("number"), tr("wheel"), tr("groove")},
            {QStringLiteral("OvCustomSlider")},
            &createPage<CustomSliderPage>};
}

CustomSliderPage::CustomSliderPage(QWidget* parent)
    : Page(info(),
           tr("A slider that goes where it is clicked: a press on the groove moves the handle there at "
              "once and the drag goes on from it. The wheel changes it only while it has the focus."),
           parent)
{
    const auto sliders = addTwins<OvCustomSlider>(
        tr("Horizontal"), [](QWidget* twinParent) { return makeSlider(twinParent, Qt::Horizontal); });
    addTwins<OvCustomSlider>(tr("Vertical"), [](QWidget* twinParent) {
        OvCustomSlider* const slider = makeSlider(twinParent, Qt::Vertical);
        slider->setFixedHeight(TallSlider);
        return slider;
    });
    properties()->addHeading(tr("Horizontal"));
    properties()->addProperties(
        sliders.objects(), {QStringLiteral("value"), QStringLiteral("minimum"), QStringLiteral("maximum"),
                            QStringLiteral("singleStep"), QStringLiteral("pageStep"),
                            QStringLiteral("tracking"), QStringLiteral("invertedAppearance"),
                            QStringLiteral("tickPosition"), QStringLiteral("tickInterval")});
    signalLog()->watch(sliders.enabled, QStringLiteral("slider"));
    describeStyling(sliders.enabled, tr("As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or "
                                        "alone by its class name."));
}
