#include "OvCustomSlider.h"

#include "SliderAccess.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyleOptionSlider>

#include <cmath>
#include <utility>

namespace {

struct Span
{
    double start = 0.0;
    double length = 0.0;
};

Span along(Qt::Orientation orientation, const QRect& rect)
{
    return orientation == Qt::Horizontal ? Span{double(rect.x()), double(rect.width())}
                                         : Span{double(rect.y()), double(rect.height())};
}

Span handleSpan(const QSlider* slider, QStyleOptionSlider option, int position)
{
    option.sliderPosition = position;
    return along(slider->orientation(), slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                                        QStyle::SC_SliderHandle, slider));
}

double placeOf(const QSlider* slider, const QPoint& point)
{
    return (slider->orientation() == Qt::Horizontal ? point.x() : point.y()) + 0.5;
}

/// The path of the handle's centre from minimum to maximum. It is measured at both ends of the range, because
/// QSlider's own mapping does not know how far a style sheet keeps the handle off the groove's ends.
class Track
{
public:
    explicit Track(const QSlider* slider, const QStyleOptionSlider& option)
        : m_minimum(slider->minimum())
        , m_maximum(slider->maximum())
    {
        const Span first = handleSpan(slider, option, option.minimum);
        const Span last = handleSpan(slider, option, option.maximum);
        m_start = first.start + first.length / 2;
        m_travel = last.start + last.length / 2 - m_start;
    }

    int positionAt(double place) const
    {
        const double fraction = m_travel == 0.0 ? 0.0 : qBound(0.0, (place - m_start) / m_travel, 1.0);
        return static_cast<int>(std::floor(m_minimum + fraction * (m_maximum - m_minimum) + 0.5));
    }

    /// The point of the track nearest to @p place.
    double bounded(double place) const
    {
        return qBound(qMin(m_start, m_start + m_travel), place, qMax(m_start, m_start + m_travel));
    }

private:
    double m_minimum;
    double m_maximum;
    double m_start;
    double m_travel;
};

/// QStyle divides by the number of steps, which has to fit into an int. And styles count ticks from the
/// minimum to the first one behind the maximum, which has to as well, and draw every one of them.
void makePaintable(QStyleOptionSlider& option)
{
    constexpr int maxSteps = 1 << 30;
    qint64 steps = qint64(option.maximum) - option.minimum;
    if (steps > maxSteps || option.maximum > maxSteps) {
        const qint64 origin = option.minimum;
        const int unit = steps > maxSteps ? 4 : 1;
        for (int* number : {&option.minimum, &option.maximum, &option.sliderPosition, &option.sliderValue}) {
            *number = static_cast<int>((*number - origin) / unit);
        }
        for (int* length : {&option.singleStep, &option.pageStep, &option.tickInterval}) {
            *length /= unit;
        }
        steps /= unit;
    }
    const int behindAll = static_cast<int>(steps) + 2;
    for (int* length : {&option.singleStep, &option.pageStep, &option.tickInterval}) {
        *length = qMin(*length, behindAll);
    }
    const int room = option.orientation == Qt::Horizontal ? option.rect.width() : option.rect.height();
    const int finest = static_cast<int>(steps / qMax(1, room));
    const int interval =
        option.tickInterval > 0 ? option.tickInterval : qMax(option.singleStep, option.pageStep);
    if (interval < finest) {
        option.tickInterval = finest;
    }
}

int bounded(const QSlider& slider, qint64 position)
{
    return static_cast<int>(qBound<qint64>(slider.minimum(), position, slider.maximum()));
}

QAbstractSlider::SliderAction actionOf(int key, const QSlider& slider)
{
    const bool inverted = slider.invertedControls();
    const bool mirrored = slider.isRightToLeft() != inverted;
    switch (key) {
    case Qt::Key_Left:
        return mirrored ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Right:
        return mirrored ? QAbstractSlider::SliderSingleStepSub : QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_Up:
        return inverted ? QAbstractSlider::SliderSingleStepSub : QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_Down:
        return inverted ? QAbstractSlider::SliderSingleStepAdd : QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_PageUp:
        return inverted ? QAbstractSlider::SliderPageStepSub : QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_PageDown:
        return inverted ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderPageStepSub;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

int positionAfter(QAbstractSlider::SliderAction action, const QSlider& slider)
{
    const qint64 position = slider.sliderPosition();
    switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
        return bounded(slider, position + slider.singleStep());
    case QAbstractSlider::SliderSingleStepSub:
        return bounded(slider, position - slider.singleStep());
    case QAbstractSlider::SliderPageStepAdd:
        return bounded(slider, position + slider.pageStep());
    case QAbstractSlider::SliderPageStepSub:
        return bounded(slider, position - slider.pageStep());
    case QAbstractSlider::SliderToMinimum:
        return slider.minimum();
    default: // SliderToMaximum
        return slider.maximum();
    }
}

/// The steps of a wheel event; with Ctrl or Shift a notch is a page. As in QAbstractSlider, whose own
/// calculation cannot be called without emitting.
qint64 wheelSteps(const QWheelEvent& event, const QSlider& slider, double& remainder)
{
    const QPoint turned = event.angleDelta();
    const double notches = (turned.y() != 0 ? turned.y() : -turned.x()) / 120.0;
    // Qt leaves INT_MIN negative.
    const double page = qAbs(double(slider.pageStep()));
    if (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) {
        remainder = 0.0;
        return static_cast<qint64>(qBound(-page, notches * page, page));
    }
    if (notches * remainder < 0.0) {
        remainder = 0.0;
    }
    const double steps = remainder + notches * QApplication::wheelScrollLines() * slider.singleStep();
    remainder = steps - std::trunc(steps);
    return static_cast<qint64>(qBound(-page, steps, page));
}

} // namespace

class OvCustomSlider::Private
{
public:
    double grip = 0.0;           // during a drag: distance of cursor and handle's middle, in pixels
    double wheelRemainder = 0.0; // the wheel's turn that is less than a step yet
    QStyle::SubControl hovered = QStyle::SC_None;
    bool isUnsaid = false; // during a drag: no event has been sent for the value yet
};

OvCustomSlider::OvCustomSlider(QWidget* parent)
    : QSlider(parent)
    , d(std::make_unique<Private>())
{
    setFocusPolicy(Qt::StrongFocus);
}

OvCustomSlider::OvCustomSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
    , d(std::make_unique<Private>())
{
    setFocusPolicy(Qt::StrongFocus);
}

OvCustomSlider::~OvCustomSlider() = default;

void OvCustomSlider::initStyleOption(QStyleOptionSlider* option) const
{
    QSlider::initStyleOption(option);
    makePaintable(*option);
}

bool OvCustomSlider::event(QEvent* event)
{
    const bool isHover = event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove ||
                         event->type() == QEvent::HoverLeave;
    if (!isHover) {
        return QSlider::event(event);
    }
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_All;
    const auto part = style()->hitTestComplexControl(QStyle::CC_Slider, &option,
                                                     static_cast<QHoverEvent*>(event)->pos(), this);
    if (part != d->hovered) {
        d->hovered = part;
        update();
    }
    // QSlider hit-tests with its own style option.
    return QAbstractSlider::event(event); // NOLINT(bugprone-parent-virtual-call)
}

void OvCustomSlider::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    if (tickPosition() != NoTicks) {
        option.subControls |= QStyle::SC_SliderTickmarks;
    }
    if (isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    } else {
        option.activeSubControls = d->hovered;
    }
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}

void OvCustomSlider::mousePressEvent(QMouseEvent* event)
{
    const int buttons =
        Qt::LeftButton | style()->styleHint(QStyle::SH_Slider_AbsoluteSetButtons, nullptr, this);
    if (!(event->button() & buttons) || event->buttons() != event->button() || minimum() == maximum()) {
        event->ignore();
        return;
    }
    event->accept();
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const bool isOnHandle = handle.contains(event->pos());
    const Track track(this, option);
    const double place = placeOf(this, event->pos());
    const Span span = along(orientation(), handle);
    d->grip = place - (isOnHandle ? span.start + span.length / 2 : track.bounded(place));
    update();
    const QPointer<OvCustomSlider> self = this;
    setSliderDown(true);
    if (self && isSliderDown() && !isOnHandle) {
        dragHandle(track.positionAt(place));
    }
}

void OvCustomSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!isSliderDown() || !event->buttons()) {
        event->ignore();
        return;
    }
    event->accept();
    QStyleOptionSlider option;
    initStyleOption(&option);
    dragHandle(Track(this, option).positionAt(placeOf(this, event->pos()) - d->grip));
}

void OvCustomSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isSliderDown() || event->buttons()) {
        event->ignore();
        return;
    }
    event->accept();
    update();
    const int position = sliderPosition();
    {
        // setSliderDown(false) would use the slider after its signal, to set the value to the handle's
        // position.
        const QSignalBlocker quiet(this);
        placeHandle(value());
        setSliderDown(false);
        placeHandle(position);
    }
    if (std::exchange(d->isUnsaid, false)) {
        SliderAccess::announce(this);
    }
    const QPointer<OvCustomSlider> self = this;
    Q_EMIT sliderReleased();
    if (self && sliderPosition() != value()) {
        perform(SliderMove);
    }
}

void OvCustomSlider::keyPressEvent(QKeyEvent* event)
{
    const SliderAction action = actionOf(event->key(), *this);
    if (action == SliderNoAction) {
        QSlider::keyPressEvent(event);
    } else if (moveHandle(positionAfter(action, *this))) {
        perform(action);
    }
}

void OvCustomSlider::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    event->accept();
    const qint64 steps = wheelSteps(*event, *this, d->wheelRemainder);
    if (steps == 0) {
        return;
    }
    placeHandle(bounded(*this, qint64(sliderPosition()) + (invertedControls() ? -steps : steps)));
    perform(SliderMove);
}

/// Moves the handle without changing the value.
void OvCustomSlider::placeHandle(int position)
{
    const bool tracks = hasTracking();
    const QSignalBlocker quiet(this);
    setTracking(false);
    setSliderPosition(position);
    setTracking(tracks);
}

/// The first half of QAbstractSlider::triggerAction(). Returns false if a slot deleted the slider.
bool OvCustomSlider::moveHandle(int position)
{
    const QPointer<OvCustomSlider> self = this;
    if (position != sliderPosition()) {
        placeHandle(position);
        if (isSliderDown()) {
            Q_EMIT sliderMoved(position);
        }
    }
    return self;
}

void OvCustomSlider::dragHandle(int position)
{
    if (position == sliderPosition() || !moveHandle(position) || !hasTracking()) {
        return;
    }
    const QPointer<OvCustomSlider> self = this;
    const SliderAccess::Silence silence(this);
    perform(SliderMove);
    if (self) {
        d->isUnsaid |= silence.hasHeld();
    }
}

/// The second half of QAbstractSlider::triggerAction(), which does not use the slider after its signals.
void OvCustomSlider::perform(SliderAction action)
{
    const QPointer<OvCustomSlider> self = this;
    const bool tracks = hasTracking();
    setTracking(false); // a slot that moves the handle triggers no other action
    Q_EMIT actionTriggered(action);
    if (self) {
        setTracking(tracks);
        setValue(sliderPosition());
    }
}
