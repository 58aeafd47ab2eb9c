#include "BindWidgetsPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

namespace {

constexpr int MostDecimals = 9;
constexpr int StartDecimals = 2;
constexpr double StartMultiplier = 0.01;
constexpr int Gap = 8;

template <typename Slider, typename SpinBox>
OvFrame* makePair(QWidget* parent)
{
    auto* frame = new OvFrame(parent);
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* slider = new Slider(frame);
    slider->setOrientation(Qt::Horizontal);
    auto* spinBox = new SpinBox(frame);
    (new OvHBoxLayout(frame))
        ->addItems({{slider, 1}, {LayoutHelpers::SpacerPolicy::Fixed, Gap}, {spinBox, 0}});
    Util::bindWidgets(slider, spinBox);
    return frame;
}

/// Both controls of a pair of fractions, for each of its twins that is alive.
template <typename Function>
void onFractions(const Twins<OvFrame>& pairs, Function function)
{
    pairs.each([&function](OvFrame* pair) {
        function(pair->findChild<OvDoubleSlider*>(), pair->findChild<OvDoubleSpinBox*>());
    });
}

QObjectList slidersOf(const Twins<OvFrame>& pairs)
{
    return {pairs.enabled->findChild<OvCustomSlider*>(), pairs.disabled->findChild<OvCustomSlider*>()};
}

} // namespace

PageInfo BindWidgetsPage::info()
{
    return {QStringLiteral("bind-widgets"),
            tr("Slider and spin box in step"),
            PageGroup::Inputs,
            {tr("binding"), tr("number"), tr("decimals")},
            {QStringLiteral("Util")},
            &createPage<BindWidgetsPage>};
}

BindWidgetsPage::BindWidgetsPage(QWidget* parent)
    : Page(info(),
           tr("Keeps a slider and a spin box on one value, in both directions. What is typed reads back "
              "digit for digit; the handle goes to the nearest step."),
           parent)
{
    const auto numbers = addTwins<OvFrame>(tr("Whole numbers"), &makePair<OvCustomSlider, OvSpinBox>);
    const auto fractions = addTwins<OvFrame>(tr("Fractions"), &makePair<OvDoubleSlider, OvDoubleSpinBox>);
    onFractions(fractions, [](OvDoubleSlider* slider, OvDoubleSpinBox* spinBox) {
        spinBox->setDecimals(StartDecimals);
        slider->setMultiplier(StartMultiplier);
        slider->setDoubleValue(0.5);
    });
    numbers.each([](OvFrame* pair) { pair->findChild<OvCustomSlider*>()->setValue(25); });

    properties()->addHeading(tr("Fractions"));
    properties()->addNumber(
        QStringLiteral("decimals"), 0, MostDecimals, StartDecimals, [fractions](int decimals) {
            onFractions(fractions, [decimals](const OvDoubleSlider*, OvDoubleSpinBox* spinBox) {
                spinBox->setDecimals(decimals);
            });
        });
    const QStringList sliderProperties = {QStringLiteral("minimum"), QStringLiteral("maximum"),
                                          QStringLiteral("singleStep")};
    properties()->addProperties(slidersOf(fractions),
                                QStringList{QStringLiteral("multiplier"), QStringLiteral("doubleValue")} +
                                    sliderProperties);
    properties()->addHeading(tr("Whole numbers"));
    properties()->addProperties(slidersOf(numbers), QStringList{QStringLiteral("value")} + sliderProperties);

    signalLog()->watch(numbers.enabled->findChild<OvCustomSlider*>(), QStringLiteral("slider"));
    signalLog()->watch(numbers.enabled->findChild<OvSpinBox*>(), QStringLiteral("spinBox"));
    signalLog()->watch(fractions.enabled->findChild<OvDoubleSlider*>(), QStringLiteral("doubleSlider"));
    signalLog()->watch(fractions.enabled->findChild<OvDoubleSpinBox*>(), QStringLiteral("doubleSpinBox"));
}
