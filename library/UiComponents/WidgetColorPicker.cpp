#include "WidgetColorPicker.h"

#include "CursorGuard.h"
#include "DevicePixel.h"
#include "SwallowedPress.h"
#include "WidgetColorPickerStylingObject.h"

#include <GuiHelper/HighlightFrame.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <algorithm>

using Orvane::Gui::HighlightFrame;

namespace {

Q_LOGGING_CATEGORY(pickerLog, "uicomponents.widgetpicker")

// How long the outline may still be seen after it was taken away.
constexpr int framesToWait = 2;
constexpr int longestWait = 100;
constexpr int pollInterval = 4;

// Screens that no monitor is connected to report anything.
constexpr double slowestRefresh = 25;
constexpr double fastestRefresh = 240;

// Of all pickers, so that a pick can tell whether another one was begun since it was ended.
int latestPick = 0;

int shortestWait(const QScreen& screen)
{
    return qRound(framesToWait * 1000 / qBound(slowestRefresh, screen.refreshRate(), fastestRefresh));
}

/// What the screen shows there; invalid where it cannot be grabbed.
QColor grabColor(QScreen* screen, const QPointF& position)
{
    const DevicePixel pixel =
        devicePixelAt(position - screen->geometry().topLeft(), screen->devicePixelRatio());
    const QImage image =
        screen->grabWindow(0, pixel.corner.x(), pixel.corner.y(), pixel.extent, pixel.extent).toImage();
    return image.valid(pixel.index) ? QColor(image.pixel(pixel.index)) : QColor();
}

/// @p position, which is rounded, as the last event of the mouse has it, if that was there.
QPointF unrounded(const QPoint& position, const QPointF& lastEvent)
{
    constexpr double most = 0.501;
    const QPointF distance = lastEvent - position;
    return qAbs(distance.x()) < most && qAbs(distance.y()) < most ? lastEvent : position;
}

} // namespace

/// Belongs to the picker, and to each pick() on the stack: that one returns into it after the picker died.
class WidgetColorPicker::Private
{
public:
    Private(WidgetColorPicker* picker, const QSet<QWidget*>& set);

    bool isInProgress() const { return loop && loop->isRunning(); }
    void watchTarget();
    void takeCursor();
    void applyCursor();
    void applyTarget();
    void pick();
    void stop();
    bool isActiveAt(const QPoint& position) const;

    bool isOverTarget(const QPoint& position) const;
    QColor settledColor(const QPoint& position) const;
    void report(const QColor& picked);

    /// Null when the picker has died.
    WidgetColorPicker* owner;
    QVector<QPointer<QWidget>> widgets;
    QVector<QPointer<QWidget>> activeWidgets;
    /// The loop of the pick() that began last, on its frame.
    QEventLoop* loop = nullptr;
    QPointer<QWidget> target;
    QMetaObject::Connection targetWatch;
    std::unique_ptr<CursorGuard> cursorGuard;
    QCursor cursor;
    WidgetColorPickerStylingObject* stylingObject = nullptr;
    std::unique_ptr<HighlightFrame> highlightFrame;
    QColor color;

    /// Where the mouse was in its last event, in global coordinates.
    QPointF mouse;
    /// Since the outline was taken away.
    QElapsedTimer sinceStop;
    /// The latest pick of all when this one was stopped.
    int latestAtStop = 0;
    bool isStopped = false;
};

WidgetColorPicker::Private::Private(WidgetColorPicker* picker, const QSet<QWidget*>& set)
    : owner(picker)
{
    for (QWidget* widget : set) {
        if (widget) {
            widgets.append(widget);
        }
    }
}

void WidgetColorPicker::Private::watchTarget()
{
    QObject::disconnect(targetWatch);
    if (target) {
        targetWatch = connect(target, &QObject::destroyed, owner, &WidgetColorPicker::stop);
    }
}

void WidgetColorPicker::Private::takeCursor()
{
    cursor = stylingObject ? stylingObject->pickingCursor() : QCursor(Qt::CrossCursor);
}

void WidgetColorPicker::Private::applyCursor()
{
    // Two at once would each take the other's cursor for the target's own.
    cursorGuard.reset();
    cursorGuard = std::make_unique<CursorGuard>(target, cursor);
}

void WidgetColorPicker::Private::applyTarget()
{
    applyCursor();
    activeWidgets = widgets;
    activeWidgets.append(target);
    highlightFrame = std::make_unique<HighlightFrame>(target);
}

void WidgetColorPicker::Private::pick()
{
    QEventLoop nestedLoop;
    loop = &nestedLoop;
    isStopped = false;
    ++latestPick;
    qGuiApp->installEventFilter(owner);
    takeCursor();
    if (owner && target) {
        applyTarget();
    }
    if (owner && target) {
        nestedLoop.exec();
    }
    if (loop != &nestedLoop) {
        // Begun anew while this one was on its way out.
        return;
    }

    loop = nullptr;
    // These two are still there when the application quits, which ends all loops.
    highlightFrame.reset();
    cursorGuard.reset();
    activeWidgets.clear();
    if (owner) {
        qGuiApp->removeEventFilter(owner);
    }
    const QPoint position = QCursor::pos();
    // What ends a pick may begin another, inside the loop that is on its way out: nothing is reported then.
    const auto mayReport = [this, position, latest = latestAtStop] {
        return owner && latest == latestPick && isOverTarget(position);
    };
    if (!isStopped || !mayReport()) {
        return;
    }
    const QColor picked = settledColor(position);
    if (picked.isValid() && mayReport()) {
        report(picked);
    }
}

void WidgetColorPicker::Private::stop()
{
    if (!isInProgress()) {
        return;
    }
    isStopped = true;
    latestAtStop = latestPick;
    highlightFrame.reset();
    sinceStop.start();
    loop->quit();
    cursorGuard.reset();
}

bool WidgetColorPicker::Private::isActiveAt(const QPoint& position) const
{
    return std::any_of(activeWidgets.begin(), activeWidgets.end(), [&position](const QWidget* widget) {
        return widget && widget->rect().contains(widget->mapFromGlobal(position));
    });
}

bool WidgetColorPicker::Private::isOverTarget(const QPoint& position) const
{
    if (!target || !target->isVisible()) {
        return false;
    }
    const QRect area = target->rect();
    return QRect(target->mapToGlobal(area.topLeft()), target->mapToGlobal(area.bottomRight()))
        .contains(position);
}

/// The colour there once the outline has left the screen. Anything may have died when it returns.
QColor WidgetColorPicker::Private::settledColor(const QPoint& position) const
{
    const QPointer<QScreen> screen = QGuiApplication::screenAt(position);
    if (!screen) {
        qCWarning(pickerLog, "No colour was picked: there is no screen at (%d, %d)", position.x(),
                  position.y());
        return {};
    }
    const QPointF exact = unrounded(position, mouse);
    QColor latest = grabColor(screen, exact);
    if (!latest.isValid()) {
        qCWarning(pickerLog, "No colour was picked: this platform cannot grab the screen");
        return {};
    }

    QEventLoop wait;
    bool isDone = false;
    QTimer poll;
    poll.setTimerType(Qt::PreciseTimer);
    connect(&poll, &QTimer::timeout, &wait, [&] {
        const QColor before = latest;
        latest = screen ? grabColor(screen, exact) : QColor();
        const bool isSettled = screen && sinceStop.hasExpired(shortestWait(*screen)) && latest == before;
        isDone = !latest.isValid() || isSettled || sinceStop.hasExpired(longestWait);
        if (isDone) {
            wait.quit();
        }
    });
    poll.start(pollInterval);
    wait.exec(QEventLoop::ExcludeUserInputEvents);
    // Not done when the application quits meanwhile.
    return isDone ? latest : QColor();
}

void WidgetColorPicker::Private::report(const QColor& picked)
{
    color = picked;
    const QPointer<WidgetColorPicker> picker = owner;
    Q_EMIT owner->colorChanged(color);
    if (picker) {
        Q_EMIT picker->pickingStopped();
    }
}

WidgetColorPicker::WidgetColorPicker(const QSet<QWidget*>& widgets)
    // Not std::make_shared(): it has an object that is one in the whole program, and a library with such an
    // object is never unloaded.
    // NOLINTNEXTLINE(modernize-make-shared)
    : d(std::shared_ptr<Private>(new Private(this, widgets)))
{
    connect(qGuiApp, &QGuiApplication::lastWindowClosed, this, &WidgetColorPicker::stop);
}

WidgetColorPicker::~WidgetColorPicker()
{
    const std::shared_ptr<Private> state = d;
    state->owner = nullptr;
    state->stop();
}

void WidgetColorPicker::setTarget(QWidget* target)
{
    if (target == d->target) {
        return;
    }
    d->target = target;
    d->watchTarget();
    if (!isInProgress()) {
        return;
    }
    if (target) {
        d->applyTarget();
    } else {
        stop();
    }
}

QWidget* WidgetColorPicker::target() const
{
    return d->target;
}

void WidgetColorPicker::setStylingObject(WidgetColorPickerStylingObject* object)
{
    d->stylingObject = object;
    if (d->cursorGuard) {
        d->takeCursor();
        d->applyCursor();
    }
}

bool WidgetColorPicker::isInProgress() const
{
    return d->isInProgress();
}

void WidgetColorPicker::pick()
{
    d->color = QColor();
    if (isInProgress() || !d->target) {
        return;
    }
    // Kept alive here: the picker may die before the loop returns.
    const std::shared_ptr<Private> state = d;
    state->pick();
}

void WidgetColorPicker::stop()
{
    const std::shared_ptr<Private> state = d;
    state->stop();
}

std::optional<QColor> WidgetColorPicker::color()
{
    return d->color;
}

void WidgetColorPicker::setColor(const std::optional<QColor>& color)
{
    Q_UNUSED(color)
}

bool WidgetColorPicker::eventFilter(QObject* watched, QEvent* event)
{
    // Painting the target without its outline is in the hands of the host, and may end in any way.
    const std::shared_ptr<Private> state = d;
    if (state->isInProgress()) {
        switch (event->type()) {
        case QEvent::MouseMove:
            state->mouse = static_cast<QMouseEvent*>(event)->screenPos();
            break;
        case QEvent::MouseButtonPress:
            state->mouse = static_cast<QMouseEvent*>(event)->screenPos();
            state->stop();
            if (state->isActiveAt(static_cast<QMouseEvent*>(event)->globalPos())) {
                new SwallowedPress;
                return true;
            }
            return false;
        case QEvent::KeyPress:
            state->stop();
            return false;
        default:
            break;
        }
    }
    return AbstractColorPicker::eventFilter(watched, event);
}
