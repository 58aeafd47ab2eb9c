#include "PointingWidget.h"

#include <WidgetToolkit/OvFrame.h>

#include <QVBoxLayout>

PointingWidget::PointingWidget(QWidget* parent)
    : QWidget(parent, Qt::Tool)
    , m_content(new OvFrame(this))
{
    m_content->setObjectName(QStringLiteral("studioBubble"));
    (new QVBoxLayout(this))->addWidget(m_content);
}

PointingWidget::~PointingWidget() = default;

void PointingWidget::pointTo(const QPoint& globalPos)
{
    m_target = globalPos;
    move(globalPos);
}

QPoint PointingWidget::targetPoint() const
{
    return m_target;
}

void PointingWidget::setArrowSide(ArrowSide, ArrowPosition) {}

void PointingWidget::setArrowOffset(int) {}

OvFrame* PointingWidget::contentFrame() const
{
    return m_content;
}

void PointingWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
}

void PointingWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
}
