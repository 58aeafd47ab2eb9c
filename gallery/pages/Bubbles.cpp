#include "../BubbleStage.h"
#include "../Page.h"
#include "../PageRegistry.h"

#include <EditorWidgets/Workaround.h>
#include <GuiHelper/HighlightFrame.h>
#include <WidgetToolkit/OvPixmapWidget.h>
#include <WidgetToolkit/Util.h>

#include <QGridLayout>
#include <QLabel>
#include <QMovie>
#include <QVBoxLayout>

using Orvane::Gui::HighlightFrame;

namespace {

using ArrowPosition = PointingWidget::ArrowPosition;
using ArrowSide = PointingWidget::ArrowSide;

BubbleStage* makeStage(const QString& text, const QPointF& spot, const QSize& minimumSize, QWidget* parent)
{
    auto* bubble = new PointingWidget;
    fillBubble(bubble, text);
    return new BubbleStage(bubble, spot, minimumSize, parent);
}

/// One stage a side, with the spot where the bubble has room beside it.
QWidget* makeSides(QWidget* parent)
{
    struct Corner
    {
        QString text;
        ArrowSide side;
        QPointF spot;
    };
    const Corner corners[] = {
        {PageRegistry::tr("Arrow on top"), ArrowSide::Top, {0.5, 0.1}},
        {PageRegistry::tr("on the left"), ArrowSide::Left, {0.1, 0.5}},
        {PageRegistry::tr("on the right"), ArrowSide::Right, {0.9, 0.5}},
        {PageRegistry::tr("at the bottom"), ArrowSide::Bottom, {0.5, 0.9}},
    };
    constexpr QSize stageSize(150, 64);
    auto* sides = new QWidget(parent);
    sides->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* layout = new QGridLayout(sides);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const Corner& corner : corners) {
        BubbleStage* const stage = makeStage(corner.text, corner.spot, stageSize, sides);
        stage->bubble()->setArrowSide(corner.side, ArrowPosition::Center);
        layout->addWidget(stage, layout->count() / 2, layout->count() % 2);
    }
    return sides;
}

QWidget* makeRoundedPanel(QWidget* parent, Qt::WindowFlags flags)
{
    constexpr int padding = 16;
    auto* panel = new QWidget(parent, flags);
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    panel->setObjectName(QStringLiteral("roundedPanel"));
    panel->setProperty("roundedEdges", true);
    Workaround::Ui::apply(panel);
    auto* label = new QLabel(PageRegistry::tr("What lies behind shows through the corners."), panel);
    label->setWordWrap(true);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(label);
    return panel;
}

void setWidth(OvPixmapWidget* widget, int width)
{
    widget->setFixedSize(width, widget->movie() ? widget->heightForWidth(width) : widget->height());
}

void watchMovie(const OvPixmapWidget* widget, SignalLogView* log)
{
    if (const QMovie* const movie = widget->movie()) {
        QObject::connect(movie, &QMovie::stateChanged, log, [log](QMovie::MovieState state) {
            log->addLine(QStringLiteral("movie.stateChanged(%1)").arg(state));
        });
        QObject::connect(movie, &QMovie::finished, log,
                         [log] { log->addLine(QStringLiteral("movie.finished()")); });
    }
}

} // namespace

void PageRegistry::pointingWidget(Page* page)
{
    constexpr QSize stageSize(300, 132);
    constexpr int maxOffset = 200;
    const auto stages = page->addTwins(tr("Driven by the controls below"), [stageSize](QWidget* parent) {
        return makeStage(tr("Start here"), QPointF(0.5, 0.5), stageSize, parent);
    });
    page->addTwins(tr("All sides"), &makeSides);
    const auto bubbles = stages.children<PointingWidget>();

    PropertyPanel* const panel = page->properties();
    panel->addChoice(tr("Side of the arrow"), {tr("Top"), tr("Right"), tr("Bottom"), tr("Left")}, 0,
                     bubbles.setter([](PointingWidget* bubble, int side) {
                         bubble->setArrowSide(static_cast<ArrowSide>(side), bubble->arrowPosition());
                     }));
    panel->addChoice(tr("Position"), {tr("Start"), tr("Centre"), tr("End")}, 1,
                     bubbles.setter([](PointingWidget* bubble, int position) {
                         bubble->setArrowSide(bubble->arrowSide(), static_cast<ArrowPosition>(position));
                     }));
    panel->addNumber(tr("Offset"), -maxOffset, maxOffset, 0, bubbles.setter(&PointingWidget::setArrowOffset));
    panel->addProperties(bubbles);
    panel->addAction(tr("Open as a pop-up"), stages.enabled.data(), [stage = stages.enabled.data()] {
        auto* bubble = new PointingWidget(stage);
        bubble->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
        bubble->setAttribute(Qt::WA_DeleteOnClose);
        fillBubble(bubble, tr("A bubble of its own. It goes with the window."));
        bubble->setArrowSide(stage->bubble()->arrowSide(), stage->bubble()->arrowPosition());
        bubble->pointTo(stage->spot());
        bubble->show();
    });
    page->signalLog()->watch(bubbles.enabled, "bubble");
    page->describeStyling(bubbles.enabled,
                          tr("Painted by itself: a sheet sets colours and measures through the properties, "
                             "and the content's margins on the frame inside."));
}

void PageRegistry::roundedPopup(Page* page)
{
    const auto panels = page->addTwins(tr("As a part of a window"),
                                       [](QWidget* parent) { return makeRoundedPanel(parent, Qt::Widget); });

    PropertyPanel* const panel = page->properties();
    page->describeCode(panels.enabled, [] {
        return QStringList{QStringLiteral("#include <EditorWidgets/Workaround.h>"),
                           QStringLiteral("Workaround::Ui::apply($);")};
    });
    panel->addSwitch(QStringLiteral("roundedEdges"), true, panels.setter([](QWidget* widget, bool on) {
        Util::applyProperty(widget, "roundedEdges", on);
    }));
    panel->addAction(tr("Open a pop-up"), [page, panel] {
        QWidget* const popup = makeRoundedPanel(page, Qt::Popup);
        popup->setAttribute(Qt::WA_DeleteOnClose);
        page->signalLog()->watch(popup, "popup");
        popup->adjustSize();
        popup->move(panel->mapToGlobal(panel->rect().center() - popup->rect().center()));
        popup->show();
    });
    page->signalLog()->watch(panels.enabled, "panel");
    page->describeStyling(panels.enabled,
                          tr("Any widget that Workaround::Ui::apply() prepared: a rule for the property "
                             "gives it background, border and border-radius."),
                          QStringLiteral("Workaround::Ui"));
}

void PageRegistry::highlightFrame(Page* page)
{
    constexpr int minHeight = 60;
    constexpr int maxHeight = 160;
    const auto targets = page->addTwins<QFrame>(QString(), [](QFrame* target) {
        target->setObjectName(QStringLiteral("highlightTarget"));
        target->setFrameShape(QFrame::StyledPanel);
        target->setFixedHeight(minHeight);
        target->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        auto* layout = new QHBoxLayout(target);
        layout->addWidget(new QLabel(tr("The target"), target), 1);
        layout->addWidget(new QPushButton(tr("Still works"), target));
    });
    const auto setHighlighted = [page, targets](bool on) {
        if (on) {
            targets.each([page](QFrame* target) { (new HighlightFrame(target))->setParent(page); });
        } else {
            qDeleteAll(page->findChildren<HighlightFrame*>());
        }
    };
    const auto overlays = [targets] { return targets.children<QWidget>(QStringLiteral("highlightFrame")); };
    setHighlighted(true);

    PropertyPanel* const panel = page->properties();
    panel->addSwitch(tr("Highlighted"), true, [setHighlighted, panel](bool on) {
        setHighlighted(on);
        panel->refresh();
    });
    page->describeCode(targets.enabled, [overlays] {
        return overlays()().isEmpty()
                   ? QStringList()
                   : QStringList{QStringLiteral("#include <GuiHelper/HighlightFrame.h>"),
                                 QStringLiteral("(new Orvane::Gui::HighlightFrame($))->setParent(parent);")};
    });
    panel->addProperties([overlays] { return overlays()(); }, {"borderColor", "borderWidth"});
    panel->addNumber(tr("Height of the target"), minHeight, maxHeight, minHeight,
                     targets.setter(&QWidget::setFixedHeight));
    panel->addSwitch(tr("Visible"), true, targets.setter(&QWidget::setVisible));
    page->signalLog()->watch(targets.enabled->findChild<QPushButton*>(), "button");
    page->describeStyling(overlays().enabled, tr("The outline, a child of the widget that it highlights."));
}

void PageRegistry::pixmapWidget(Page* page)
{
    constexpr int width = 240;
    constexpr int maxWidth = 380;
    const QString animation = QStringLiteral(":/gallery/playhead.gif");
    const auto widgets = page->addTwins<OvPixmapWidget>(QString(), [animation](OvPixmapWidget* widget) {
        widget->setMoviePath(animation);
        setWidth(widget, width);
    });

    PropertyPanel* const panel = page->properties();
    panel->addProperties(widgets);
    panel->addNumber(tr("Width"), 1, maxWidth, width, widgets.setter(&setWidth));
    panel->addSwitch(tr("Paused"), false, widgets.setter([](OvPixmapWidget* widget, bool on) {
        if (widget->movie()) {
            widget->movie()->setPaused(on);
        }
    }));
    panel->addSwitch(tr("Visible"), true, widgets.setter(&QWidget::setVisible));
    const auto load = [page, widgets](const QString& path) {
        widgets.setter (&OvPixmapWidget::setMoviePath)(path);
        page->properties()->refresh();
        watchMovie(widgets.enabled, page->signalLog());
    };
    panel->addAction(tr("The animation"), [load, animation] { load(animation); });
    panel->addAction(tr("A file that is not there"), [load] { load(QStringLiteral("/no/such.gif")); });
    page->signalLog()->watch(widgets.enabled, "widget");
    watchMovie(widgets.enabled, page->signalLog());
    page->describeStyling(widgets.enabled, tr("Border and padding of a sheet surround the picture."));
}
