#include "BlendStage.h"

#include "LayerBlending.h"

#include <UiComponents/ColorBlendingComboBox.h>

#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr QSize canvasSize(320, 180);
constexpr QSizeF scene(16, 9);
constexpr double disabledOpacity = 0.4;

/// A picture of @p size for a painter in the coordinates of the scene.
template <typename Paint>
QImage makePicture(const QSize& size, Paint paint)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(size.width() / scene.width(), size.height() / scene.height());
    paint(painter);
    return image;
}

void paintLandscape(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, 7);
    sky.setColorAt(0, QColor(38, 84, 150));
    sky.setColorAt(1, QColor(250, 214, 165));
    painter.fillRect(QRectF(QPointF(), scene), sky);
    painter.setBrush(QColor(255, 244, 214));
    painter.drawEllipse(QPointF(11.5, 3.2), 1.1, 1.1);
    painter.setBrush(QColor(92, 106, 130));
    painter.drawPolygon(
        QPolygonF({{0, 6.4}, {3.2, 3}, {5.4, 5.2}, {8, 3.6}, {12, 6.6}, {16, 4.8}, {16, 9}, {0, 9}}));
    painter.setBrush(QColor(34, 62, 48));
    painter.drawPolygon(QPolygonF({{0, 7.4}, {5, 6.4}, {10, 7.4}, {16, 6.6}, {16, 9}, {0, 9}}));
}

void paintLights(QPainter& painter)
{
    QLinearGradient ramp(0, 0, scene.width(), 0);
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, Qt::white);
    painter.fillRect(QRectF(0, 0, scene.width(), 1.2), ramp);
    const std::pair<QPointF, QColor> lights[] = {
        {QPointF(5, 4), QColor(235, 64, 52)},
        {QPointF(8, 5), QColor(60, 190, 90)},
        {QPointF(11, 4), QColor(52, 104, 235)},
    };
    for (const auto& light : lights) {
        QRadialGradient glow(light.first, 3);
        QColor edge = light.second;
        edge.setAlpha(0);
        glow.setColorAt(0, light.second);
        glow.setColorAt(0.7, light.second);
        glow.setColorAt(1, edge);
        painter.setBrush(glow);
        painter.drawEllipse(light.first, 3, 3);
    }
}

} // namespace

BlendCanvas::BlendCanvas(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("blendCanvas"));
    setFixedSize(canvasSize);
}

BlendCanvas::~BlendCanvas() = default;

void BlendCanvas::setMode(BlendingMode mode)
{
    m_mode = mode;
    discardPicture();
}

void BlendCanvas::setOpacity(double opacity)
{
    m_opacity = qBound(0.0, opacity, 1.0);
    discardPicture();
}

void BlendCanvas::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const double scale = devicePixelRatioF();
    const QSize pixels(qRound(width() * scale), qRound(height() * scale));
    if (m_picture.size() != pixels) {
        m_picture =
            blended(makePicture(pixels, paintLandscape), makePicture(pixels, paintLights), m_mode, m_opacity);
    }
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    painter.drawImage(rect(), m_picture);
}

void BlendCanvas::discardPicture()
{
    m_picture = QImage();
    update();
}

BlendStage::BlendStage(QWidget* parent)
    : QWidget(parent)
    , m_comboBox(new ColorBlendingComboBox(this))
    , m_canvas(new BlendCanvas(this))
{
    setObjectName(QStringLiteral("blendStage"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox);
    layout->addWidget(m_canvas);
    connect(m_comboBox, &ColorBlendingComboBox::blendingModeChanged, m_canvas, &BlendCanvas::setMode);
}

BlendStage::~BlendStage() = default;

void BlendStage::setMode(BlendingMode mode)
{
    m_comboBox->setCurrentIndex(m_comboBox->indexOf(mode));
    m_canvas->setMode(mode);
}
