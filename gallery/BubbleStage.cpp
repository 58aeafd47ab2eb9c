#include "BubbleStage.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>

#include <QLabel>
#include <QPainter>

namespace {

constexpr int markRadius = 4;
constexpr int textMargin = 8;

} // namespace

void fillBubble(PointingWidget* bubble, const QString& text)
{
    auto* layout = new OvVBoxLayout(bubble->contentFrame());
    layout->addWidget(new QLabel(text, bubble->contentFrame()));
    bubble->contentFrame()->setLayoutMargin(textMargin);
}

BubbleStage::BubbleStage(PointingWidget* bubble, const QPointF& spot, const QSize& minimumSize,
                         QWidget* parent)
    : QFrame(parent)
    , m_spot(spot)
    , m_bubble(bubble)
{
    setObjectName(QStringLiteral("bubbleStage"));
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(minimumSize);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_bubble->setParent(this, Qt::Widget);
    m_bubble->show();
}

BubbleStage::~BubbleStage() = default;

QPoint BubbleStage::spot() const
{
    return mapToGlobal(QPoint(qRound(width() * m_spot.x()), qRound(height() * m_spot.y())));
}

void BubbleStage::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(mapFromGlobal(spot())) + QPointF(0.5, 0.5), markRadius, markRadius);
}

void BubbleStage::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    m_bubble->pointTo(spot());
}
