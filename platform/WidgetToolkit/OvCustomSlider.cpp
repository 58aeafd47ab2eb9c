#include "OvCustomSlider.h"

#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionSlider>

#include <cmath>

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

// Where the handle is at an end of the range: one of two steps, for QStyle loses its way in one of more
// than 31 bits.
Span handleSpan(const QSlider* slider, QStyleOptionSlider option, bool atMaximum)
{
    option.minimum = 0;
    option.maximum = 1;
    option.sliderPosition = atMaximum ? 1 : 0;
    return along(slider->orientation(), slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                                        QStyle::SC_SliderHandle, slider));
}

double placeOf(const QSlider* slider, const QPoint& point)
{
    return (slider->orientation() == Qt::Horizontal ? point.x() : point.y()) + 0.5;
}

// The path that the middle of the handle takes, from minimum to maximum. It is measured at both ends of
// the range, because a style sheet can keep the handle off the groove's ends in ways that QSlider's own
// mapping does not know.
class Track
{
public:
    explicit Track(const QSlider* slider, const QStyleOptionSlider& option)
        : m_minimum(slider->minimum())
        , m_maximum(slider->maximum())
    {
        const Span first = handleSpan(slider, option, false);
        const Span last = handleSpan(slider, option, true);
        m_start = first.start + first.length / 2;
        m_travel = last.start + last.length / 2 - m_start;
    }

    int positionAt(double place) const
    {
        const double fraction = m_travel == 0.0 ? 0.0 : qBound(0.0, (place - m_start) / m_travel, 1.0);
        return static_cast<int>(std::floor(m_minimum + fraction * (m_maximum - m_minimum) + 0.5));
    }

    // The place on the track nearest to @p place.
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

} // namespace

OvCustomSlider::OvCustomSlider(QWidget* parent)
    : QSlider(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

OvCustomSlider::OvCustomSlider(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

OvCustomSlider::~OvCustomSlider() = default;

void OvCustomSlider::mousePressEvent(QMouseEvent* event)
{
    const bool isPlainLeft = event->button() == Qt::LeftButton && event->buttons() == Qt::LeftButton;
    if (!isPlainLeft || minimum() == maximum()) {
        QSlider::mousePressEvent(event);
        return;
    }
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    if (handle.contains(event->pos())) {
        const Span span = along(orientation(), handle);
        m_grip = placeOf(this, event->pos()) - (span.start + span.length / 2);
        QSlider::mousePressEvent(event);
        return;
    }
    const Track track(this, option);
    const double place = placeOf(this, event->pos());
    m_grip = place - track.bounded(place);
    // QSlider takes a press for the beginning of a drag if it is on the handle.
    QMouseEvent onHandle(event->type(), handle.center(), event->windowPos(), event->screenPos(),
                         event->button(), event->buttons(), event->modifiers(), event->source());
    const QPointer<OvCustomSlider> guard(this);
    QSlider::mousePressEvent(&onHandle);
    event->setAccepted(onHandle.isAccepted());
    if (guard && isSliderDown()) {
        setSliderPosition(track.positionAt(place));
    }
}

void OvCustomSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!isSliderDown() || !(event->buttons() & Qt::LeftButton)) {
        QSlider::mouseMoveEvent(event);
        return;
    }
    event->accept();
    QStyleOptionSlider option;
    initStyleOption(&option);
    setSliderPosition(Track(this, option).positionAt(placeOf(this, event->pos()) - m_grip));
}

void OvCustomSlider::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    QSlider::wheelEvent(event);
    event->accept();
}
