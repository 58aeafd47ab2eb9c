#include "LoupeWidget.h"

#include "NamedPart.h"

#include <EditorWidgets/Workaround.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QCursor>
#include <QGraphicsProxyWidget>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>

class LoupeWidget::Private
{
public:
    int placement = AboveRight;
    QPainterPath clipPath;
    QPixmap pixmap;
    QColor emptyPixelsColor;
    QLabel* colorNameLabel = nullptr;
};

LoupeWidget::LoupeWidget(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->colorNameLabel = named("colorNameLabel", new QLabel(this));
    d->colorNameLabel->setTextFormat(Qt::PlainText);
    (new OvVBoxLayout(this))->autoFill();
    Util::installLayoutController(this);

    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::NoDropShadowWindowHint);
    setProperty("roundedEdges", true);
    Workaround::Ui::apply(this);
}

LoupeWidget::~LoupeWidget() = default;

QColor LoupeWidget::emptyPixelsColor() const
{
    return d->emptyPixelsColor;
}

void LoupeWidget::setEmptyPixelsColor(const QColor& color)
{
    if (color == d->emptyPixelsColor) {
        return;
    }
    d->emptyPixelsColor = color;
    update();
}

void LoupeWidget::setPlacement(int placement)
{
    d->placement = placement;
}

LoupeWidget::Placement LoupeWidget::placementAt(const QPoint& cursor, const QRect& screen, const QSize& loupe)
{
    const QRect inner = screen.adjusted(loupe.width(), loupe.height(), -loupe.width(), -loupe.height());
    const bool isFarRight = cursor.x() > inner.right();
    if (cursor.y() >= inner.top()) {
        return isFarRight ? AboveLeft : AboveRight;
    }
    return isFarRight ? BelowLeft : BelowRight;
}

QSize LoupeWidget::offset() const
{
    const bool isLeft = d->placement == BelowLeft || d->placement == AboveLeft;
    const bool isAbove = d->placement == AboveLeft || d->placement == AboveRight;
    return {isLeft ? -width() : 0, isAbove ? -height() : 0};
}

void LoupeWidget::setPixmap(const QPixmap& pixmap)
{
    d->pixmap = pixmap;
    updatePicture();
}

void LoupeWidget::setColorName(const QColor& color)
{
    QLabel* const label = d->colorNameLabel;
    // updatePicture() replaces the label's own update, which would be too late as well.
    const bool wasDisabled = label->testAttribute(Qt::WA_UpdatesDisabled);
    label->setAttribute(Qt::WA_UpdatesDisabled);
    label->setText(color.name());
    label->setAttribute(Qt::WA_UpdatesDisabled, wasDisabled);
    updatePicture();
}

/// A graphics scene handles a widget's update after painting its move, and would paint twice.
void LoupeWidget::updatePicture()
{
    if (QGraphicsProxyWidget* const proxy = graphicsProxyWidget()) {
        proxy->update();
    } else {
        update();
    }
}

void LoupeWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (d->clipPath.isEmpty()) {
        d->clipPath.addEllipse(QRectF(rect()));
    }
}

void LoupeWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    painter.save();
    painter.setClipPath(d->clipPath, Qt::ReplaceClip);
    if (d->emptyPixelsColor.isValid()) {
        painter.fillRect(rect(), d->emptyPixelsColor);
    }
    const QScreen* const screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen && !d->pixmap.isNull()) {
        const QSizeF shown = QSizeF(pixels, pixels) * screen->devicePixelRatio();
        painter.drawPixmap(QRectF(rect()), d->pixmap, QRectF(QPointF(0.0, 0.0), QSizeF(shown.toSize())));
    }
    painter.restore();
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
