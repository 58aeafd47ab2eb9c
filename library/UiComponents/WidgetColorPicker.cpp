#include "WidgetColorPicker.h"

#include "CursorGuard.h"
#include "ScreenReader.h"
#include "SwallowedPress.h"
#include "WidgetColorPickerStylingObject.h"

#include <GuiHelper/HighlightFrame.h>

#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <optional>

using Orvane::Gui::HighlightFrame;

namespace {

// No outline is wider.
constexpr int outlineWidth = 8;

QRect onDesktop(const QWidget& widget)
{
    const QRect area = widget.rect();
    return {widget.mapToGlobal(area.topLeft()), widget.mapToGlobal(area.bottomRight())};
}

// A window manager may place a window between two points, which Qt knows nothing of.
constexpr int displacement = 2;

QRect displaced(const QRect& area)
{
    return area.adjusted(-displacement, -displacement, displacement, displacement);
}

/// Where a widget at @p area may have its outline.
QRegion outlineOf(const QRect& area)
{
    return QRegion(displaced(area)) - area.adjusted(outlineWidth, outlineWidth, -outlineWidth, -outlineWidth);
}

/// @p position, which is rounded, as the last event of the mouse has it, if that was there.
QPointF unrounded(const QPoint& position, const QPointF& lastEvent)
{
    constexpr double most = 0.501;
    const QPointF distance = lastEvent - position;
    return qAbs(distance.x()) < most && qAbs(distance.y()) < most ? lastEvent : position;
}

/// A target and its place on the desktop, with the screen as it was before the outline.
struct Outlined
{
    explicit Outlined(QWidget* widget)
        : target(widget)
        , place(onDesktop(*widget))
        , reader(displaced(place), ScreenReader::Cover::Nothing)
    {
        reader.paint(*widget->window(), outlineOf(place));
    }

    QPointer<QWidget> target;
    QRect place;
    ScreenReader reader;
};

/// The same as long as the screen may show the outline of a former pick, which would be taken for the target.
std::shared_ptr<Outlined> sharedOutlined(QWidget* target)
{
    static std::weak_ptr<Outlined> present;
    auto outlined = present.lock();
    if (!outlined || outlined->target != target || outlined->place != onDesktop(*target)) {
        // Not std::make_shared(): see the constructor of WidgetColorPicker.
        outlined.reset(new Outlined(target));
        present = outlined;
    }
    return outlined;
}

} // namespace

/// Belongs to the picker, and to each pick() on the stack, which returns into it after the picker has died.
class WidgetColorPicker::Private
{
public:
    /// A pick(), on its frame.
    struct Run
    {
        struct Sample
        {
            QPointF position;
            QColor color;
        };

        QEventLoop loop;
        std::shared_ptr<Outlined> outlined;
        /// Where the cursor was when stop() ended it, and the color there; empty until then.
        std::optional<Sample> end;
    };

    Private(WidgetColorPicker* picker, const QSet<QWidget*>& set);

    bool isInProgress() const { return run && run->loop.isRunning(); }
    void watchTarget();
    void targetDies();
    void takeCursor();
    void applyCursor();
    void applyTarget();
    void removeOutline();
    void pick();
    void stop();
    void noteMouse(const QObject* watched, const QMouseEvent& event);
    QPointF positionFor(const QWidget& widget, const QPointF& position) const;
    bool isActiveAt(const QPointF& position) const;

    QPointF cursorPosition() const { return unrounded(QCursor::pos(), mouse); }
    bool isOverTarget(const QPointF& position) const;
    QColor colorAt(const QPointF& position, Run& of) const;
    void report(const QColor& picked);

    /// Null when the picker has died.
    WidgetColorPicker* owner;
    QVector<QPointer<QWidget>> widgets;
    QVector<QPointer<QWidget>> activeWidgets;
    /// The one that began last.
    Run* run = nullptr;
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
        run->loop.quit();
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
    removeOutline();
    run->outlined = sharedOutlined(target);
    highlightFrame = std::make_unique<HighlightFrame>(target);
}

void WidgetColorPicker::Private::removeOutline()
{
    if (highlightFrame) {
        highlightFrame.reset();
        QTimer::singleShot(ScreenReader::settleTime, qApp, [kept = run->outlined] {});
    }
}

void WidgetColorPicker::Private::pick()
{
    Run thisRun;
    run = &thisRun;
    qGuiApp->installEventFilter(owner);
    // The host's code runs in both of these.
    const auto mayGoOn = [this, &thisRun] { return run == &thisRun && owner && target; };
    takeCursor();
    if (mayGoOn()) {
        applyTarget();
    }
    if (mayGoOn()) {
        thisRun.loop.exec();
    }

    run = nullptr;
    // These two are still there when the application quits, which ends all loops.
    highlightFrame.reset();
    cursorGuard.reset();
    activeWidgets.clear();
    if (owner) {
        qGuiApp->removeEventFilter(owner);
    }
    const QPointF position = cursorPosition();
    // Without a stop() the user has chosen nothing, as when the application quits.
    if (!thisRun.end || !owner || !target || !isOverTarget(position)) {
        return;
    }
    const QColor picked = thisRun.end->position == position ? thisRun.end->color : colorAt(position, thisRun);
    if (owner) {
        report(picked);
    }
}

void WidgetColorPicker::Private::stop()
{
    if (!isInProgress()) {
        return;
    }
    Run& ending = *run;
    ending.loop.quit();
    removeOutline();
    cursorGuard.reset();
    // Now: what ends the pick may close or change the target before the loop returns.
    const QPointF position = cursorPosition();
    ending.end = {position, target && isOverTarget(position) ? colorAt(position, ending) : QColor()};
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
    return onDesktop(*target).contains(pointAt(positionFor(*target, position)));
}

/// What the screen shows there, or what the target paints where the screen does not tell: the target has
/// taken its outline along, or the platform gives no picture.
QColor WidgetColorPicker::Private::colorAt(const QPointF& position, Run& of) const
{
    const QPoint point = pointAt(positionFor(*target, position));
    const QRect area = onDesktop(*target);
    QColor seen;
    if (area == of.outlined->place) {
        seen = of.outlined->reader.colorAt(position);
    } else if (!outlineOf(area).contains(point)) {
        seen = ScreenReader(QRegion(), ScreenReader::Cover::Nothing).colorAt(position);
    }
    if (seen.isValid()) {
        return seen;
    }
    const QRect pixel(point - area.topLeft(), QSize(1, 1));
    return QColor(target->grab(pixel).toImage().pixel(0, 0));
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
