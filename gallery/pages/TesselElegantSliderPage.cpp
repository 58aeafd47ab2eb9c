#include "TesselElegantSliderPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <DesignElements/TesselElegantSlider.h>

using Orvane::Tessel::TesselElegantSlider;

namespace {

constexpr int SampleValue = 60;
constexpr int TallSlider = 90;

TesselElegantSlider* makeSlider(QWidget* parent, Qt::Orientation orientation)
{
    auto* slider = new TesselElegantSlider(parent);
    slider->setOrientation(orientation);
    slider->setValue(SampleValue);
    return slider;
}

} // namespace

PageInfo TesselElegantSliderPage::info()
{
    return {QStringLiteral("tessel-elegant-slider"),
            tr("Elegant slider"),
            PageGroup::Inputs,
            {tr("number"), tr("hue"), tr("groove")},
            {QStringLiteral("TesselElegantSlider")},
            &createPage<TesselElegantSliderPage>};
}

TesselElegantSliderPage::TesselElegantSliderPage(QWidget* parent)
    : Page(info(),
           tr("The design system's slider: a slim groove and a round handle. Where no style sheet speaks "
              "of its parts it draws them in the colours of its palette."),
           parent)
{
    const auto sliders = addTwins<TesselElegantSlider>(
        tr("Horizontal"), [](QWidget* twinParent) { return makeSlider(twinParent, Qt::Horizontal); });
    addTwins<TesselElegantSlider>(tr("Vertical"), [](QWidget* twinParent) {
        TesselElegantSlider* const slider = makeSlider(twinParent, Qt::Vertical);
        slider->setFixedHeight(TallSlider);
        return slider;
    });
    properties()->addHeading(tr("Horizontal"));
    properties()->addProperties(sliders.objects(),
                                {QStringLiteral("value"), QStringLiteral("minimum"),
                                 QStringLiteral("maximum"), QStringLiteral("singleStep"),
                                 QStringLiteral("tracking"), QStringLiteral("invertedAppearance")});
    signalLog()->watch(sliders.enabled, QStringLiteral("slider"));
    describeStyling(sliders.enabled, tr("As OvCustomSlider, with ::groove, ::handle, ::add-page and "
                                        "::sub-page, or alone by its class name."));
}
