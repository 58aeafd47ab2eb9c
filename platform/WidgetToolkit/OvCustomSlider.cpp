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

Span handleSpan(const QSlider* slider, QStyleOptionSlider option, int position)
{
    option.sliderPosition = position;
    return along(slider->orientation(), slider->style()->subControlRect(QStyle::CC_Slider, &option,
                                                                        QStyle::SC_SliderHandle, slider));
}

// What a click beside the handle means.
struct GrooveClick
{
    int position;    // of the slider
    QPoint onHandle; // where on the handle the drag that follows holds it
};

// The handle is measured at both ends of the range, because a style sheet can keep it off the groove's
// ends in ways that QSlider's own mapping does not know.
GrooveClick grooveClick(const QSlider* slider, const QStyleOptionSlider& option, const QRect& handle,
                        const QPoint& click)
{
    const Qt::Orientation orientation = slider->orientation();
    const QRect groove =
        slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, slider);
    const Span first = handleSpan(slider, option, slider->minimum());
    const Span last = handleSpan(slider, option, slider->maximum());
    const double place = (orientation == Qt::Horizontal ? click.x() : click.y()) + 0.5;
    const double firstCentre = first.start + first.length / 2;
    const double travel = last.start + last.length / 2 - firstCentre;
    const double fraction = travel == 0.0 ? 0.0 : qBound(0.0, (place - firstCentre) / travel, 1.0);

    const double range = double(slider->maximum()) - slider->minimum();
    const double target = slider->minimum() + fraction * range;

    // QSlider drags by the distance between the cursor and the handle's start, mapped over the groove.
    const Span track = along(orientation, groove);
    const Span knob = along(orientation, handle);
    const double fromStart = travel < 0.0 ? 1.0 - fraction : fraction;
    const double held = place - track.start - fromStart * (track.length - knob.length);
    const int offset =
        qBound(0, static_cast<int>(std::floor(held)), qMax(0, static_cast<int>(knob.length) - 1));

    QPoint onHandle = handle.center();
    if (orientation == Qt::Horizontal) {
        onHandle.setX(handle.x() + offset);
    } else {
        onHandle.setY(handle.y() + offset);
    }
    return {static_cast<int>(std::floor(target + 0.5)), onHandle};
}

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
        QSlider::mousePressEvent(event);
        return;
    }
    const GrooveClick click = grooveClick(this, option, handle, event->pos());
    QMouseEvent onHandle(event->type(), click.onHandle, event->windowPos(), event->screenPos(),
                         event->button(), event->buttons(), event->modifiers(), event->source());
    const QPointer<OvCustomSlider> guard(this);
    QSlider::mousePressEvent(&onHandle);
    event->setAccepted(onHandle.isAccepted());
    if (guard && isSliderDown()) {
        setSliderPosition(click.position);
    }
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
