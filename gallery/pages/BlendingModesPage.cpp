#include "BlendingModesPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "BlendCanvas.h"
#include "BlendStage.h"

#include <UiComponents/ColorBlendingComboBox.h>

namespace {

constexpr int ModeCount = 14;

/// The mode with the number @p number, as code sets it.
void setMode(BlendStage* stage, int number)
{
    const auto mode = static_cast<BlendingMode>(number);
    stage->comboBox()->setCurrentIndex(stage->comboBox()->indexOf(mode));
    stage->canvas()->setMode(mode);
}

} // namespace

PageInfo BlendingModesPage::info()
{
    return {QStringLiteral("blending-modes"),
            tr("Blending modes"),
            PageGroup::Colour,
            {tr("layer"), tr("combo box"), tr("composition"), QStringLiteral("Multiply")},
            {QStringLiteral("ColorBlendingComboBox"), QStringLiteral("BlendingMode")},
            &createPage<BlendingModesPage>};
}

BlendingModesPage::BlendingModesPage(QWidget* parent)
    : Page(info(),
           tr("How the colour of a layer is combined with what lies under it. The names are sorted in the "
              "user's language, behind the first, which is no blending at all. Here the layer is a grey ramp "
              "and three lights, on a landscape."),
           parent)
{
    const auto stages = addTwins<BlendStage>(tr("Choose a mode"));

    properties()->addNumber(
        tr("Mode by its number"), 0, ModeCount - 1, static_cast<int>(BlendingMode::SourceOver),
        [stages](int number) { stages.each([number](BlendStage* stage) { setMode(stage, number); }); });
    properties()->addFraction(tr("Opacity of the layer"), 0, 1, 1, [stages](double opacity) {
        stages.each([opacity](BlendStage* stage) { stage->canvas()->setOpacity(opacity); });
    });
    properties()->addAction(QStringLiteral("showPopup()"), [stages] {
        if (stages.enabled) {
            stages.enabled->comboBox()->showPopup();
        }
    });
    signalLog()->watch(stages.enabled->comboBox(), QStringLiteral("blendingModes"));
    describeStyling(stages.enabled->comboBox(),
                    tr("As OvComboBox in the look of the design system, or alone by its class name; its list "
                       "is #tesselComboBoxView."));
}
