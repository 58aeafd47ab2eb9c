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
#include <QWindow>
#include <QtMath>

#include <algorithm>
#include <functional>

using Orvane::Gui::HighlightFrame;

namespace {

Q_LOGGING_CATEGORY(pickerLog, "uicomponents.widgetpicker")

// How long the outline may still be seen after it was taken away: a window with a QQuickWidget may be
// painted in the next frame only, and a compositor shows that in the one after it.
constexpr int framesToWait = 3;
constexpr int longestWait = 100;
constexpr int pollInterval = 4;

// Screens that no monitor is connected to report anything, and a window is painted at a pace of its own.
constexpr double slowestRefresh = 30;
constexpr double fastestRefresh = 60;

// Of all pickers, so that a pick can tell whether another one was begun since it was ended.
int latestPick = 0;

/// One compositor serves all screens, and may follow any of them.
int shortestWait()
{
    double refresh = fastestRefresh;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        refresh = qMin(refresh, screen->refreshRate());
    }
    return qRound(framesToWait * 1000 / qMax(slowestRefresh, refresh));
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

/// The one that the pixel at @p position belongs to. Rounding would give half of a point's pixels to the
/// next.
QPoint pointAt(const QPointF& position)
{
    // A place on a scaled screen is a quotient, and may be a little less than it should.
    constexpr double tolerance = 0.001;
    return {qFloor(position.x() + tolerance), qFloor(position.y() + tolerance)};
}

} // namespace

/// Belongs to the picker, and to each pick() on the stack: that one returns into it after the picker died.
class WidgetColorPicker::Private
{
public:
    Private(WidgetColorPicker* picker, const QSet<QWidget*>& set);

    bool isInProgress() const { return loop && loop->isRunning(); }
    void watchTarget();
    void targetDies();
    void takeCursor();
    void applyCursor();
    void applyTarget();
    void pick();
    void stop();
    void noteMouse(const QObject* watched, const QMouseEvent& event);
    QPointF positionFor(const QWidget& widget, const QPointF& position) const;
    bool isActiveAt(const QPointF& position) const;

    bool isOverTarget(const QPointF& position) const;
    QColor settledColor(const QPointF& position, const std::function<bool()>& isWanted) const;
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
    /// The window that it was in, and how far from where Qt says that is.
    QPointer<const QWindow> mouseWindow;
    QPointF windowShift;
    /// Since the outline was taken away.
    QElapsedTimer sinceStop;
    /// The latest pick of all when this one was stopped.
    int latestAtStop = 0;
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
        targetWatch = connect(target, &QObject::destroyed, owner, [this] { targetDies(); });
    }
}

/// It is no more than a QWidget already. Its outline dies with it.
void WidgetColorPicker::Private::targetDies()
{
    if (cursorGuard) {
        cursorGuard->leaveAlone();
    }
    if (isInProgress()) {
        loop->quit();
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
    ++latestPick;
    qGuiApp->installEventFilter(owner);
    // The host's code runs in both of these.
    const auto mayGoOn = [this, &nestedLoop] { return loop == &nestedLoop && owner && target; };
    takeCursor();
    if (mayGoOn()) {
        applyTarget();
    }
    if (mayGoOn()) {
        nestedLoop.exec();
    }

    // Not the latest one when another was begun, and is over, before this one ran or on its way out.
    const bool isLatest = loop == &nestedLoop;
    loop = nullptr;
    // These two are still there when the application quits, which ends all loops.
    highlightFrame.reset();
    cursorGuard.reset();
    activeWidgets.clear();
    if (owner) {
        qGuiApp->removeEventFilter(owner);
    }
    const QPointF position = unrounded(QCursor::pos(), mouse);
    // What ends a pick may begin another, inside the loop that is on its way out: nothing is reported then.
    // Nor is it without a stop(), as when the application quits.
    const auto mayReport = [this, latest = latestAtStop] {
        return owner && latest == latestPick && target && target->isVisible();
    };
    if (!isLatest || !mayReport() || !isOverTarget(position)) {
        return;
    }
    const QColor picked = settledColor(position, mayReport);
    if (picked.isValid() && mayReport()) {
        report(picked);
    }
}

void WidgetColorPicker::Private::stop()
{
    if (!isInProgress()) {
        return;
    }
    latestAtStop = latestPick;
    highlightFrame.reset();
    sinceStop.start();
    loop->quit();
    cursorGuard.reset();
}

void WidgetColorPicker::Private::noteMouse(const QObject* watched, const QMouseEvent& event)
{
    mouse = event.screenPos();
    if (const auto* window = qobject_cast<const QWindow*>(watched)) {
        const QPointF shift = mouse - event.windowPos() - window->mapToGlobal(QPoint(0, 0));
        const bool isOfRounding = qAbs(shift.x()) < 1 && qAbs(shift.y()) < 1;
        mouseWindow = window;
        // More than that is a move that Qt has not heard of yet.
        windowShift = isOfRounding ? shift : QPointF();
    }
}

/// @p position as the widget's own conversions take it: on a scaled screen a window may begin between two
/// points, which these know nothing of.
QPointF WidgetColorPicker::Private::positionFor(const QWidget& widget, const QPointF& position) const
{
    const bool isShifted = mouseWindow && mouseWindow == widget.window()->windowHandle();
    return isShifted ? position - windowShift : position;
}

bool WidgetColorPicker::Private::isActiveAt(const QPointF& position) const
{
    return std::any_of(activeWidgets.begin(), activeWidgets.end(), [&](const QWidget* widget) {
        if (!widget) {
            return false;
        }
        const QPointF place = positionFor(*widget, position);
        const auto holds = [widget](const QPoint& point) {
            return widget->rect().contains(widget->mapFromGlobal(point));
        };
        // Qt rounds when it looks for the receiver.
        return holds(pointAt(place)) || holds(place.toPoint());
    });
}

bool WidgetColorPicker::Private::isOverTarget(const QPointF& position) const
{
    const QPoint point = pointAt(positionFor(*target, position));
    const QRect area = target->rect();
    return QRect(target->mapToGlobal(area.topLeft()), target->mapToGlobal(area.bottomRight()))
        .contains(point);
}

/// The colour there once the outline has left the screen, and none when @p isWanted no longer holds by then.
/// Anything may have died when it returns.
QColor WidgetColorPicker::Private::settledColor(const QPointF& position,
                                                const std::function<bool()>& isWanted) const
{
    const QPoint point = pointAt(position);
    const QPointer<QScreen> screen = QGuiApplication::screenAt(point);
    if (!screen) {
        qCWarning(pickerLog, "No colour was picked: there is no screen at (%d, %d)", point.x(), point.y());
        return {};
    }
    QColor latest = grabColor(screen, position);
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
        latest = isWanted() && screen ? grabColor(screen, position) : QColor();
        const bool isSettled = sinceStop.hasExpired(shortestWait()) && latest == before;
        isDone = !latest.isValid() || isSettled || sinceStop.hasExpired(longestWait);
        if (isDone) {
            wait.quit();
        }
    });
    poll.start(pollInterval);
    // The last window that is closed ends the pick, and then has the application quit. A loop that begins
    // with that still pending throws it away.
    QCoreApplication::sendPostedEvents(qGuiApp, QEvent::Quit);
    wait.exec(QEventLoop::ExcludeUserInputEvents);
    if (!isDone) {
        // The application quits.
        return {};
    }
    if (!latest.isValid() && isWanted()) {
        qCWarning(pickerLog, "No colour was picked: %s",
                  screen ? "this platform cannot grab the screen any more" : "the screen was removed");
    }
    return latest;
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
    // A slot of destroyed(), which comes after this, may delete the target.
    QObject::disconnect(state->targetWatch);
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
    // The object may do anything when it is asked.
    const std::shared_ptr<Private> state = d;
    state->stylingObject = object;
    if (!state->cursorGuard) {
        return;
    }
    state->cursorGuard.reset();
    state->takeCursor();
    if (state->isInProgress() && state->owner && state->target) {
        state->applyCursor();
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
            state->noteMouse(watched, *static_cast<QMouseEvent*>(event));
            break;
        case QEvent::MouseButtonPress:
            state->noteMouse(watched, *static_cast<QMouseEvent*>(event));
            state->stop();
            if (state->isActiveAt(state->mouse)) {
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
