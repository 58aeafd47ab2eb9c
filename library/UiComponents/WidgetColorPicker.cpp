#include "WidgetColorPicker.h"

#include "LibraryObject.h"
#include "ScreenGrabber.h"
#include "WidgetColorPickerCursor.h"
#include "WidgetColorPickerStylingObject.h"

#include <GuiHelper/HighlightFrame.h>

#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <optional>

using Orvane::Gui::HighlightFrame;

namespace {

QRect onDesktop(const QWidget& widget)
{
    const QRect area = widget.rect();
    return {widget.mapToGlobal(area.topLeft()), widget.mapToGlobal(area.bottomRight())};
}

/// Where a widget at @p area may have its outline.
QRegion outlineOf(const QRect& area)
{
    // A window manager may place a window at fractional positions, which Qt does not report.
    constexpr int displacement = 2;
    constexpr int maxOutlineWidth = 8;
    return QRegion(area.adjusted(-displacement, -displacement, displacement, displacement)) -
           area.adjusted(maxOutlineWidth, maxOutlineWidth, -maxOutlineWidth, -maxOutlineWidth);
}

/// Swallows the double click that Qt makes of a swallowed press: a button would stay down, since it gets no
/// release. Deletes itself with the next press or release.
class SwallowedPress : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    SwallowedPress()
        : QObject(libraryObject())
    {
        qGuiApp->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease) {
            qGuiApp->removeEventFilter(this);
            deleteLater();
        }
        return type == QEvent::MouseButtonDblClick;
    }
};

} // namespace

/// Shared by the picker and each pick() on the stack, which still uses it after the picker is deleted.
class WidgetColorPicker::Private
{
public:
    /// A pick(), on its frame.
    struct Run
    {
        QEventLoop loop;
        /// Where the target got its outline, and the screen before that.
        QRect place;
        std::optional<ScreenGrabber> grabber;
        /// Where the cursor was when stop() ended it; empty until then, and without a target.
        std::optional<QPointF> end;
        /// The colour there; invalid beside the target.
        QColor color;
    };

    bool isInProgress() const { return run && run->loop.isRunning(); }
    void takeCursor();
    void applyTarget();
    void removeOutline(Run& of);
    void pick();
    void stop();
    void noteMouse(const QObject* watched, const QMouseEvent& event);
    bool isActiveAt(const QPointF& position) const;
    QPointF cursorPosition() const;
    bool isOverTarget(const QPointF& position) const;
    QColor colorAt(const QPointF& position, Run& of) const;

    /// Null after the picker is deleted.
    WidgetColorPicker* q = nullptr;
    QVector<QPointer<QWidget>> widgets;
    /// The one that began last.
    Run* run = nullptr;
    QPointer<QWidget> target;
    QMetaObject::Connection targetWatch;
    std::unique_ptr<WidgetColorPickerCursor> cursorGuard;
    QCursor cursor;
    WidgetColorPickerStylingObject* stylingObject = nullptr;
    std::unique_ptr<HighlightFrame> highlightFrame;
    QColor color;

    /// Where the mouse was in its last event, in global coordinates.
    QPointF mouse;
    /// The offset from Qt's position of the window to its real one, fractional on scaled screens.
    QPointF windowShift;
};

void WidgetColorPicker::Private::takeCursor()
{
    cursor = stylingObject ? stylingObject->pickingCursor() : QCursor(Qt::CrossCursor);
}

void WidgetColorPicker::Private::applyTarget()
{
    cursorGuard = std::make_unique<WidgetColorPickerCursor>(target, cursor);
    removeOutline(*run);
    // The former target may have painted itself, which runs the host's code.
    if (!target) {
        return;
    }
    run->place = onDesktop(*target);
    const QRegion outline = outlineOf(run->place);
    run->grabber.emplace(outline, ScreenGrabber::Cover::Nothing);
    run->grabber->paint(this, outline);
    highlightFrame = std::make_unique<HighlightFrame>(target);
}

void WidgetColorPicker::Private::removeOutline(Run& of)
{
    if (highlightFrame) {
        highlightFrame.reset();
        of.grabber->remove(this);
        of.grabber->settle();
    }
}

void WidgetColorPicker::Private::pick()
{
    Run thisRun;
    run = &thisRun;
    qGuiApp->installEventFilter(q);
    // The host's code runs in both of these.
    const auto mayGoOn = [this, &thisRun] { return run == &thisRun && q && target; };
    takeCursor();
    if (mayGoOn()) {
        applyTarget();
    }
    if (mayGoOn()) {
        thisRun.loop.exec();
    }

    run = nullptr;
    // These two are still there when the application quits, which ends all loops.
    removeOutline(thisRun);
    cursorGuard.reset();
    if (q) {
        qGuiApp->removeEventFilter(q);
    }
    const QPointF position = cursorPosition();
    // Without a stop() the user has chosen nothing, as when the application quits.
    if (!thisRun.end || !q || !target || !isOverTarget(position)) {
        return;
    }
    // The target may have moved to the cursor since.
    const bool isKnown = thisRun.end == position && thisRun.color.isValid();
    const QColor picked = isKnown ? thisRun.color : colorAt(position, thisRun);
    const QPointer<WidgetColorPicker> self = q;
    if (self) {
        color = picked;
        Q_EMIT self->colorChanged(color);
    }
    if (self) {
        Q_EMIT self->pickingStopped();
    }
}

void WidgetColorPicker::Private::stop()
{
    if (!isInProgress()) {
        return;
    }
    Run& ending = *run;
    ending.loop.quit();
    removeOutline(ending);
    cursorGuard.reset();
    // Now: what ends the pick may close or change the target before the loop returns. Not while the
    // picker is deleted: the target may be half-destroyed. Without a target the pick brings no colour, also
    // if it has one again when the loop returns.
    if (q && target) {
        ending.end = cursorPosition();
        ending.color = isOverTarget(*ending.end) ? colorAt(*ending.end, ending) : QColor();
    }
}

void WidgetColorPicker::Private::noteMouse(const QObject* watched, const QMouseEvent& event)
{
    mouse = event.screenPos();
    if (const auto* window = qobject_cast<const QWindow*>(watched)) {
        const QPointF shift = mouse - event.windowPos() - window->mapToGlobal(QPoint(0, 0));
        const bool isOfRounding = qAbs(shift.x()) < 1 && qAbs(shift.y()) < 1;
        // A larger offset is a move that Qt has not processed yet.
        windowShift = isOfRounding ? shift : QPointF();
    }
}

bool WidgetColorPicker::Private::isActiveAt(const QPointF& position) const
{
    const auto holds = [place = position - windowShift](const QWidget* widget) {
        // Qt rounds when it looks for the receiver.
        return widget && (widget->rect().contains(widget->mapFromGlobal(pointAt(place))) ||
                          widget->rect().contains(widget->mapFromGlobal(place.toPoint())));
    };
    return holds(target) || std::any_of(widgets.begin(), widgets.end(), holds);
}

/// Not rounded, when the mouse is where its last event was.
QPointF WidgetColorPicker::Private::cursorPosition() const
{
    constexpr double maxRounding = 0.501;
    const QPoint rounded = QCursor::pos();
    const QPointF distance = mouse - rounded;
    return qAbs(distance.x()) < maxRounding && qAbs(distance.y()) < maxRounding ? mouse : rounded;
}

bool WidgetColorPicker::Private::isOverTarget(const QPointF& position) const
{
    return onDesktop(*target).contains(pointAt(position - windowShift));
}

/// The colour that the screen shows there; or the one that the target paints, where the target has moved with
/// its outline or the platform gives no picture.
QColor WidgetColorPicker::Private::colorAt(const QPointF& position, Run& of) const
{
    const QPoint point = pointAt(position - windowShift);
    const QRect area = onDesktop(*target);
    QColor seen;
    if (area == of.place) {
        seen = of.grabber->colorAt(position);
    } else if (!outlineOf(area).contains(point)) {
        seen = ScreenGrabber(QRegion(), ScreenGrabber::Cover::Nothing).colorAt(position);
    }
    if (seen.isValid()) {
        return seen;
    }
    const QRect pixel(point - area.topLeft(), QSize(1, 1));
    // Null where a hidden target's layout has shrunk it for that.
    const QImage image = target->grab(pixel).toImage();
    return image.isNull() ? QColor() : QColor(image.pixel(0, 0));
}

WidgetColorPicker::WidgetColorPicker(const QSet<QWidget*>& widgets)
    : d(std::make_shared<Private>())
{
    d->q = this;
    d->widgets = {widgets.begin(), widgets.end()};
    connect(qGuiApp, &QGuiApplication::lastWindowClosed, this, &WidgetColorPicker::stop);
}

WidgetColorPicker::~WidgetColorPicker()
{
    const std::shared_ptr<Private> state = d;
    // A slot of destroyed(), which comes after this, may delete the target.
    QObject::disconnect(state->targetWatch);
    state->q = nullptr;
    state->stop();
}

void WidgetColorPicker::setTarget(QWidget* target)
{
    if (target == d->target) {
        return;
    }
    d->target = target;
    disconnect(d->targetWatch);
    if (target) {
        d->targetWatch = connect(target, &QObject::destroyed, this, [this] {
            if (isInProgress()) {
                d->run->loop.quit();
            }
        });
    }
    if (isInProgress() && target) {
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
    // The object's functions may do anything.
    const std::shared_ptr<Private> state = d;
    state->stylingObject = object;
    if (!state->cursorGuard) {
        return;
    }
    state->cursorGuard.reset();
    state->takeCursor();
    if (state->isInProgress() && state->q && state->target) {
        state->cursorGuard = std::make_unique<WidgetColorPickerCursor>(state->target, state->cursor);
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
    // Kept here: the picker may be deleted before the loop returns.
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
    // The target's paint event may run any code of the host, which may delete the picker.
    const std::shared_ptr<Private> state = d;
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress;
    if (!state->isInProgress() || (!isPress && type != QEvent::MouseMove && type != QEvent::KeyPress)) {
        return AbstractColorPicker::eventFilter(watched, event);
    }
    if (type != QEvent::KeyPress) {
        state->noteMouse(watched, *static_cast<QMouseEvent*>(event));
    }
    if (type != QEvent::MouseMove) {
        state->stop();
    }
    const bool isSwallowed = isPress && state->isActiveAt(state->mouse);
    if (isSwallowed) {
        new SwallowedPress;
    }
    return isSwallowed;
}
