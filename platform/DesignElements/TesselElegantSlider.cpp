#include "TesselElegantSlider.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace {

constexpr qreal grooveThickness = 4.0;
constexpr qreal handleDiameter = 14.0;
constexpr qreal ringWidth = 2.0;

/// A sheet may style the slider's parts, or only its background and font, as a rule for all widgets does. The
/// style does not tell which, but lets the sheet place the parts only where it has a rule for the groove. In
/// a large rectangle the two placements differ.
bool hasPartsFromSheet(const QSlider* slider, QStyleOptionSlider option)
{
    option.rect = QRect(0, 0, 1000, 1000);
    const auto isPlacedBySheet = [&](QStyle::SubControl part) {
        const QStyle* const style = slider->style();
        return style->subControlRect(QStyle::CC_Slider, &option, part, slider) !=
               style->subControlRect(QStyle::CC_Slider, &option, part, nullptr);
    };
    return slider->testAttribute(Qt::WA_StyleSheet) &&
           (isPlacedBySheet(QStyle::SC_SliderGroove) || isPlacedBySheet(QStyle::SC_SliderHandle));
}

QRectF centredIn(const QRectF& room, const QSizeF& size)
{
    return {room.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

void drawGroove(QPainter& painter, const QStyleOptionSlider& option, const QRectF& room,
                const QPointF& handle)
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const QRectF groove = centredIn(room, horizontal ? QSizeF(room.width(), grooveThickness)
                                                     : QSizeF(grooveThickness, room.height()));
    QRectF below = groove;
    // Upside down, the minimum is at the right or at the bottom.
    if (horizontal) {
        option.upsideDown ? below.setLeft(handle.x()) : below.setRight(handle.x());
    } else {
        option.upsideDown ? below.setTop(handle.y()) : below.setBottom(handle.y());
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Mid));
    painter.drawRoundedRect(groove, grooveThickness / 2, grooveThickness / 2);
    if (option.state.testFlag(QStyle::State_Enabled)) {
        painter.setBrush(option.palette.color(QPalette::Highlight));
        painter.drawRoundedRect(below, grooveThickness / 2, grooveThickness / 2);
    }
}

/// In the middle between surface and text. In a black palette, `Dark` and `Light` are black too.
QColor edgeColor(const QPalette& palette)
{
    const QColor surface = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    return {(surface.red() + text.red()) / 2, (surface.green() + text.green()) / 2,
            (surface.blue() + text.blue()) / 2};
}

void drawHandle(QPainter& painter, const QStyleOptionSlider& option, const QRectF& room)
{
    const qreal diameter = qMin(handleDiameter, qMin(room.width(), room.height()) - 1);
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    const bool pressed = option.state.testFlag(QStyle::State_Sunken);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    const QColor fill = option.palette.color(QPalette::Light);
    const qreal pen = focused ? ringWidth : 1.0;
    painter.setPen(
        QPen(focused ? option.palette.color(QPalette::Highlight) : edgeColor(option.palette), pen));
    painter.setBrush(pressed ? fill.darker(115) : hovered ? fill.lighter(110) : fill);
    painter.drawEllipse(centredIn(room, QSizeF(diameter - pen, diameter - pen)));
}

} // namespace

namespace Orvane::Tessel {

TesselElegantSlider::TesselElegantSlider(QWidget* parent)
    : OvCustomSlider(parent)
{
    setAttribute(Qt::WA_Hover);
}

TesselElegantSlider::~TesselElegantSlider() = default;

void TesselElegantSlider::paintEvent(QPaintEvent* event)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (hasPartsFromSheet(this, option)) {
        OvCustomSlider::paintEvent(event);
        return;
    }
    if (isSliderDown()) {
        option.state |= QStyle::State_Sunken;
    }
    QPainter painter(this);
    // Draws the sheet's background too, if there is one.
    option.subControls = tickPosition() == NoTicks ? QStyle::SC_None : QStyle::SC_SliderTickmarks;
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
    // Where the style has the parts, since QSlider hit-tests them there.
    const auto part = [&](QStyle::SubControl control) {
        return QRectF(style()->subControlRect(QStyle::CC_Slider, &option, control, this));
    };
    const QRectF handle = part(QStyle::SC_SliderHandle);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGroove(painter, option, part(QStyle::SC_SliderGroove), handle.center());
    drawHandle(painter, option, handle);
}

} // namespace Orvane::Tessel
