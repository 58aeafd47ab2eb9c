#include "PreviewScreen.h"

#include <QPainter>
#include <QPainterPath>
#include <QTimerEvent>
#include <QtMath>

#include <cmath>

namespace {

constexpr int frameTime = 40;
constexpr double filmLength = 12000;
constexpr QSize normalSize(320, 150);

// Relative to the height.
constexpr double barsHeight = 0.22;
constexpr double sunRadius = 0.11;

const QColor night(16, 22, 62);
const QColor noon(98, 178, 240);
const QColor dusk(238, 122, 70);

QColor mixed(const QColor& one, const QColor& other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

QPainterPath hills(const QRectF& area, double phase, double height)
{
    QPainterPath path(area.bottomLeft());
    constexpr int step = 2;
    for (int x = 0; x <= qCeil(area.width()); x += step) {
        const double swing = std::sin(x / area.width() * 9 + phase);
        path.lineTo(area.left() + x, area.bottom() - height * (1 + 0.45 * swing));
    }
    path.lineTo(area.bottomRight());
    return path;
}

void paintDay(QPainter* painter, const QRectF& area, double progress)
{
    const double sun = std::sin(progress * M_PI);
    QLinearGradient sky(area.topLeft(), area.bottomLeft());
    sky.setColorAt(0, mixed(night, noon, sun));
    sky.setColorAt(1, mixed(dusk, noon.lighter(130), sun));
    painter->fillRect(area, sky);

    const QPointF middle(area.left() + area.width() * progress,
                         area.bottom() - area.height() * (0.2 + 0.6 * sun));
    painter->setPen(Qt::NoPen);
    painter->setBrush(mixed(QColor(255, 96, 56), QColor(255, 244, 190), sun));
    painter->drawEllipse(middle, area.height() * sunRadius, area.height() * sunRadius);
    painter->setBrush(mixed(QColor(24, 46, 66), QColor(70, 134, 92), sun));
    painter->drawPath(hills(area, 0.6, area.height() * 0.3));
    painter->setBrush(mixed(QColor(14, 30, 34), QColor(38, 96, 54), sun));
    painter->drawPath(hills(area, 3.1, area.height() * 0.17));
}

void paintBars(QPainter* painter, const QRectF& area)
{
    static const QRgb bars[] = {0xffc0c0c0, 0xffc0c000, 0xff00c0c0, 0xff00c000,
                                0xffc000c0, 0xffc00000, 0xff0000c0, 0xff101010};
    constexpr int count = sizeof bars / sizeof bars[0];
    for (int i = 0; i < count; ++i) {
        const double left = std::round(area.width() * i / count);
        const double right = std::round(area.width() * (i + 1) / count);
        painter->fillRect(QRectF(area.left() + left, area.top(), right - left, area.height()),
                          QColor(bars[i]));
    }
}

} // namespace

PreviewScreen::PreviewScreen(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("previewScreen"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

PreviewScreen::~PreviewScreen() = default;

void PreviewScreen::setRunning(bool on)
{
    m_isRunning = on;
    updateTimer();
}

void PreviewScreen::stopAt(double progress)
{
    m_progress = progress;
    setRunning(false);
    update();
}

QSize PreviewScreen::sizeHint() const
{
    return normalSize;
}

void PreviewScreen::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const int bars = qRound(height() * barsHeight);
    painter.setRenderHint(QPainter::Antialiasing);
    paintDay(&painter, QRectF(0, 0, width(), height() - bars), m_progress);
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintBars(&painter, QRectF(0, height() - bars, width(), bars));
}

void PreviewScreen::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QFrame::timerEvent(event);
        return;
    }
    m_progress = std::fmod(m_progress + static_cast<double>(m_sinceFrame.restart()) / filmLength, 1.0);
    update();
}

void PreviewScreen::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    updateTimer();
}

void PreviewScreen::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    m_timer.stop();
}

void PreviewScreen::updateTimer()
{
    if (m_isRunning && isVisible()) {
        m_sinceFrame.start();
        m_timer.start(frameTime, this);
    } else {
        m_timer.stop();
    }
}
