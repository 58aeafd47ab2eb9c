#include "Plants.h"

#include "Clock.h"
#include "World.h"

#include <GuiHelper/HighlightFrame.h>

#include <QApplication>
#include <QPaintEvent>
#include <QThread>
#include <QTimer>
#include <QToolButton>

#include <map>

namespace {

class Repainter : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        update();
    }
};

QWidget* anyTop(World& world)
{
    if (!world.anyTop()) {
        world.addTop(new QWidget);
    }
    return world.anyTop();
}

void writeToTheDead(World& world)
{
    Q_UNUSED(world)
    auto* const widget = new QWidget;
    delete widget;
    *reinterpret_cast<volatile char*>(widget) = 1; // NOLINT(clang-analyzer-cplusplus.NewDelete)
}

void leakFilter(World& world)
{
    Q_UNUSED(world)
    qApp->installEventFilter(new QObject);
}

void grab(World& world)
{
    QWidget* const top = anyTop(world);
    top->show();
    top->grabMouse();
}

void highlight(World& world)
{
    new Orvane::Gui::HighlightFrame(anyTop(world));
}

void leakWindow(World& world)
{
    Q_UNUSED(world)
    new QWidget;
}

void leakTimer(World& world)
{
    Q_UNUSED(world)
    qApp->startTimer(60000);
}

void warn(World& world)
{
    Q_UNUSED(world)
    qWarning("a warning");
}

void press(World& world)
{
    QWidget* const top = anyTop(world);
    auto* const button = new QToolButton(top);
    button->show();
    top->show();
    button->setDown(true);
}

void repaint(World& world)
{
    // One of its own: the others may have no size by now.
    auto* const top = new QWidget;
    world.addTop(top);
    (new Repainter(top))->show();
    top->resize(100, 100);
    top->show();
}

void takeLong(World& world)
{
    Q_UNUSED(world)
    const qint64 end = Clock::cpuMilliseconds() + 1100;
    while (Clock::cpuMilliseconds() < end) {
    }
}

void wait(World& world)
{
    Q_UNUSED(world)
    QThread::msleep(4000);
}

void overrideCursor(World& world)
{
    Q_UNUSED(world)
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

} // namespace

bool Plants::plant(const QString& name, World& world)
{
    static const std::map<QString, void (*)(World&)> faults{
        {QStringLiteral("write"), writeToTheDead},
        {QStringLiteral("filter"), leakFilter},
        {QStringLiteral("grab"), grab},
        {QStringLiteral("highlight"), highlight},
        {QStringLiteral("window"), leakWindow},
        {QStringLiteral("timer"), leakTimer},
        {QStringLiteral("warning"), warn},
        {QStringLiteral("press"), press},
        {QStringLiteral("repaint"), repaint},
        {QStringLiteral("slow"), takeLong},
        {QStringLiteral("wait"), wait},
        {QStringLiteral("cursor"), overrideCursor},
    };
    const auto fault = faults.find(name);
    if (fault != faults.end()) {
        fault->second(world);
    }
    return fault != faults.end();
}
