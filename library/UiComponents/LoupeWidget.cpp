#include "LoupeWidget.h"

#include "LoupePlacement.h"
#include "ScreenSample.h"

#include <EditorWidgets/Workaround.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QCursor>
#include <QEvent>
#include <QFontMetrics>
#include <QGraphicsProxyWidget>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>

#include <algorithm>

namespace {

/// The pixels of @p picture that are not fully transparent.
QRegion paintedPixels(const QImage& picture)
{
    QRegion region;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width();) {
            const int begin = x;
            while (x < picture.width() && qAlpha(line[x]) > 0) {
                ++x;
            }
            if (x > begin) {
                region += QRect(begin, y, x - begin, 1);
            } else {
                ++x;
            }
        }
    }
    return region;
}

} // namespace

class LoupeWidget::Private
{
public:
    int placement = LoupePlacement::AboveRight;
    QPainterPath clipPath;
    QPixmap pixmap;
    QColor emptyPixelsColor;
    mutable QRegion shape;
    mutable QSize shapeSize;
};

class LoupeWidget::Children
{
public:
    explicit Children(LoupeWidget* loupe)
        : owner(loupe)
        , colorNameLabel(new QLabel(loupe))
    {
        colorNameLabel->setObjectName(QStringLiteral("colorNameLabel"));
        colorNameLabel->setTextFormat(Qt::PlainText);
        auto* layout = new OvVBoxLayout(owner);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        layout->autoFill();
        Util::installLayoutController(owner);
    }

    QRect nameArea() const;

    LoupeWidget* const owner;
    QLabel* const colorNameLabel;
};

/// Where any name of a colour may be written. The widest one counts: names come and go with each pixel, and
/// the loupe's shape is not to be found again for each.
QRect LoupeWidget::Children::nameArea() const
{
    const QFontMetrics metrics = colorNameLabel->fontMetrics();
    const QString digits = QStringLiteral("0123456789abcdef");
    const QChar widest =
        *std::max_element(digits.cbegin(), digits.cend(), [&metrics](QChar one, QChar other) {
            return metrics.horizontalAdvance(one) < metrics.horizontalAdvance(other);
        });
    const Qt::Alignment alignment =
        QStyle::visualAlignment(colorNameLabel->layoutDirection(), colorNameLabel->alignment());
    const QRect area = colorNameLabel->style()->itemTextRect(
        metrics, colorNameLabel->contentsRect(), int(alignment), true, QLatin1Char('#') + QString(6, widest));
    // As much as a label may indent its text by.
    const int indent = qMax(metrics.horizontalAdvance(QLatin1Char('x')),
                            colorNameLabel->margin() + qMax(0, colorNameLabel->indent()));
    return area.adjusted(-indent, -indent, indent, indent).translated(colorNameLabel->pos()) & owner->rect();
}

LoupeWidget::LoupeWidget(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
    , m_children(std::make_unique<Children>(this))
{
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

int LoupeWidget::placement() const
{
    return d->placement;
}

QSize LoupeWidget::offset() const
{
    return LoupePlacement::offset(d->placement, size());
}

void LoupeWidget::setPixmap(const QPixmap& pixmap)
{
    d->pixmap = pixmap;
    updatePicture();
}

void LoupeWidget::setColorName(const QColor& color)
{
    QLabel* const label = m_children->colorNameLabel;
    // updatePicture() stands in for the label's own update, which would come too late as well.
    const bool wasDisabled = label->testAttribute(Qt::WA_UpdatesDisabled);
    label->setAttribute(Qt::WA_UpdatesDisabled);
    label->setText(color.name());
    label->setAttribute(Qt::WA_UpdatesDisabled, wasDisabled);
    updatePicture();
}

/// A scene hears of an update of the widget only after it has painted the widget's move, and would then paint
/// it once more.
void LoupeWidget::updatePicture()
{
    if (QGraphicsProxyWidget* const proxy = graphicsProxyWidget()) {
        proxy->update();
    } else {
        update();
    }
}

QRegion LoupeWidget::paintedShape() const
{
    if (d->shapeSize != size()) {
        QImage picture(size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.fillPath(d->clipPath, Qt::black);
        painter.end();
        const_cast<LoupeWidget*>(this)->render(&picture, QPoint(), QRegion(), DrawChildren);
        d->shape = paintedPixels(picture);
        if (!m_children->colorNameLabel->isHidden()) {
            d->shape += m_children->nameArea();
        }
        d->shapeSize = size();
    }
    return d->shape;
}

void LoupeWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (d->clipPath.isEmpty()) {
        d->clipPath.addEllipse(QRectF(rect()));
        d->shapeSize = QSize();
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
        const qreal pixels = ScreenSample::loupePixels * screen->devicePixelRatio();
        painter.drawPixmap(QRectF(rect()), d->pixmap,
                           QRectF(QPointF(0.0, 0.0), QSizeF(QSizeF(pixels, pixels).toSize())));
    }
    painter.restore();
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void LoupeWidget::changeEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
        d->shapeSize = QSize();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}
