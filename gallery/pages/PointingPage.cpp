#include "PointingPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "BubbleStage.h"

#include <QGridLayout>

namespace {

using ArrowPosition = PointingWidget::ArrowPosition;
using ArrowSide = PointingWidget::ArrowSide;

constexpr QSize SmallStage(150, 64);
constexpr QSize LargeStage(300, 132);
constexpr int LargestOffset = 200;

struct Corner
{
    const char* text;
    ArrowSide side;
    QPointF spot;
};

/// One stage a side, with the spot where the bubble has room beside it.
QWidget* makeSides(QWidget* parent)
{
    const Corner corners[] = {
        {QT_TRANSLATE_NOOP("PointingPage", "Arrow on top"), ArrowSide::Top, {0.5, 0.1}},
        {QT_TRANSLATE_NOOP("PointingPage", "on the left"), ArrowSide::Left, {0.1, 0.5}},
        {QT_TRANSLATE_NOOP("PointingPage", "on the right"), ArrowSide::Right, {0.9, 0.5}},
        {QT_TRANSLATE_NOOP("PointingPage", "at the bottom"), ArrowSide::Bottom, {0.5, 0.9}},
    };
    auto* sides = new QWidget(parent);
    sides->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* layout = new QGridLayout(sides);
    layout->setContentsMargins(0, 0, 0, 0);
    int cell = 0;
    for (const Corner& corner : corners) {
        auto* stage = new BubbleStage(PointingPage::tr(corner.text), corner.spot, SmallStage, sides);
        stage->bubble()->setArrowSide(corner.side, ArrowPosition::Center);
        layout->addWidget(stage, cell / 2, cell % 2);
        ++cell;
    }
    return sides;
}

} // namespace

PageInfo PointingPage::info()
{
    return {QStringLiteral("pointing-widget"),
            tr("Pointing bubble"),
            PageGroup::Bubbles,
            {tr("bubble"), tr("arrow"), tr("hint"), tr("pop-up")},
            {QStringLiteral("PointingWidget")},
            &createPage<PointingPage>};
}

PointingPage::PointingPage(QWidget* parent)
    : Page(info(),
           tr("A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to "
              "the other side where there is no room, and follows the widget that it annotates."),
           parent)
{
    const auto stages = addTwins<BubbleStage>(tr("Driven by the controls below"), [](QWidget* twinParent) {
        return new BubbleStage(tr("Start here"), QPointF(0.5, 0.5), LargeStage, twinParent);
    });
    addTwins<QWidget>(tr("All sides"), &makeSides);

    const auto onBubbles = [stages](const auto& apply) {
        stages.each([&apply](BubbleStage* stage) { apply(stage->bubble()); });
    };
    properties()->addChoice(tr("Side of the arrow"), {tr("Top"), tr("Right"), tr("Bottom"), tr("Left")}, 0,
                            [onBubbles](int side) {
                                onBubbles([side](PointingWidget* bubble) {
                                    bubble->setArrowSide(static_cast<ArrowSide>(side),
                                                         bubble->arrowPosition());
                                });
                            });
    properties()->addChoice(
        tr("Position"), {tr("Start"), tr("Centre"), tr("End")}, 1, [onBubbles](int position) {
            onBubbles([position](PointingWidget* bubble) {
                bubble->setArrowSide(bubble->arrowSide(), static_cast<ArrowPosition>(position));
            });
        });
    properties()->addNumber(tr("Offset"), -LargestOffset, LargestOffset, 0, [onBubbles](int pixels) {
        onBubbles([pixels](PointingWidget* bubble) { bubble->setArrowOffset(pixels); });
    });
    properties()->addProperties({stages.enabled->bubble(), stages.disabled->bubble()});
    const auto openAs = [stages](Qt::WindowFlags flags) {
        auto* bubble = new PointingWidget(stages.enabled);
        bubble->setWindowFlags(flags);
        bubble->setAttribute(Qt::WA_DeleteOnClose);
        fillBubble(bubble, tr("A bubble of its own. It goes with the window."));
        bubble->setArrowSide(stages.enabled->bubble()->arrowSide(),
                             stages.enabled->bubble()->arrowPosition());
        bubble->pointTo(stages.enabled->spot());
        bubble->show();
    };
    properties()->addAction(tr("Open as a pop-up"),
                            [openAs] { openAs(Qt::Popup | Qt::FramelessWindowHint); });
    signalLog()->watch(stages.enabled->bubble(), QStringLiteral("bubble"));
    describeStyling(stages.enabled->bubble(),
                    tr("Painted by itself: a sheet sets colours and measures through the properties, and "
                       "the content's margins on the frame inside."));
}
