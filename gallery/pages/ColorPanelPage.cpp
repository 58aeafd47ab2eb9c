#include "ColorPanelPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/ColorPickerWidget.h>

namespace {

const QColor SampleColor(255, 93, 0);
// A panel that is scrolled cannot be judged.
constexpr double LargestPanelShare = 0.72;

ColorPickerWidget* makePanel(QWidget* parent)
{
    auto* panel = new ColorPickerWidget(parent, true);
    panel->setCurrentColor(SampleColor);
    return panel;
}

} // namespace

PageInfo ColorPanelPage::info()
{
    return {QStringLiteral("color-panel"),
            tr("Colour panel"),
            PageGroup::Colour,
            {tr("colour"), tr("palette"), tr("opacity"), tr("picker")},
            {QStringLiteral("ColorPickerWidget"), QStringLiteral("CustomColors")},
            &createPage<ColorPanelPage>};
}

ColorPanelPage::ColorPanelPage(QWidget* parent)
    : Page(
          info(),
          tr("The panel that a colour field opens: a palette, a hexadecimal value, the user's own colours, a "
             "chooser of any colour, and opacity."),
          parent)
{
    setLargestSpecimenShare(LargestPanelShare);
    const auto panels = addTwins<ColorPickerWidget>(tr("Choose a colour"), &makePanel);
    properties()->addHeading(QStringLiteral("setCurrentColor()"));
    properties()->addColor(tr("Colour"), SampleColor, [panels](const QColor& color) {
        panels.each([&color](ColorPickerWidget* panel) { panel->setCurrentColor(color); });
    });
    properties()->addAction(tr("No colour"), [panels] {
        panels.each([](ColorPickerWidget* panel) { panel->setCurrentColor(QColor()); });
    });
    properties()->addAction(tr("Several colours"), [panels] {
        panels.each([](ColorPickerWidget* panel) { panel->setCurrentColor(std::nullopt); });
    });
    properties()->addSwitch(tr("Opacity can be adjusted"), true, [panels](bool available) {
        panels.each(
            [available](ColorPickerWidget* panel) { panel->setOpacityAdjustmentAvailable(available); });
    });
    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(panels.objects());
    signalLog()->watch(panels.enabled, QStringLiteral("panel"));
    describeStyling(
        panels.enabled,
        tr("The parts are selected by their names, and the buttons of colours as children of "
           "#colorMatrixPanel "
           "and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the "
           "background-color of these and of the preview, opaque: a sheet shapes it with background-clip, "
           "and lays a background-image over it. The chooser is a QDialog with roundedEdges."));
}
