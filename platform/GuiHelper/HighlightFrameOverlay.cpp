#include "HighlightFrameOverlay.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>

HighlightFrameOverlay::HighlightFrameOverlay()
{
    setObjectName(QStringLiteral("highlightFrame"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

HighlightFrameOverlay::~HighlightFrameOverlay() = default;

QColor HighlightFrameOverlay::borderColor() const
{
    return m_borderColor;
}

void HighlightFrameOverlay::setBorderColor(const QColor& color)
{
    if (m_borderColor == color) {
        return;
    }
    m_borderColor = color;
    update();
}

int HighlightFrameOverlay::borderWidth() const
{
    return m_borderWidth;
}

void HighlightFrameOverlay::setBorderWidth(int width)
{
    width = qMax(0, width);
    if (m_borderWidth == width) {
        return;
    }
    m_borderWidth = width;
    updateMask();
    update();
}

void HighlightFrameOverlay::coverParent()
{
    if (const QWidget* const target = parentWidget()) {
        setGeometry(target->rect());
    }
}

// To repaint the parent is not enough: a QQuickWidget or QOpenGLWidget is put into the window as a picture,
// and what was painted over it stays until something else is painted there.
void HighlightFrameOverlay::erase()
{
    if (!isVisible()) {
        return;
    }
    const QPointer<HighlightFrameOverlay> self = this;
    m_isErasing = true;
    repaint();
    if (self && !m_isErased) {
        // A window with such content is painted no more than once a frame.
        QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
    }
}

bool HighlightFrameOverlay::event(QEvent* event)
{
    // QWidget::scroll() takes all children along, and copies the painted border with the rest.
    if (event->type() == QEvent::Move && parentWidget() && geometry() != parentWidget()->rect()) {
        coverParent();
        QTimer::singleShot(0, parentWidget(), qOverload<>(&QWidget::update));
    }
    return QWidget::event(event);
}

void HighlightFrameOverlay::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (m_isErasing) {
        m_isErased = true;
        return;
    }
    // Not the colour of the current group: the outline also marks disabled targets and inactive windows.
    const QColor color =
        m_borderColor.isValid() ? m_borderColor : palette().color(QPalette::Active, QPalette::Highlight);
    QPainter painter(this);
    for (const QRect& part : mask()) {
        painter.fillRect(part, color);
    }
}

void HighlightFrameOverlay::resizeEvent(QResizeEvent* event)
{
    updateMask();
    QWidget::resizeEvent(event);
}

void HighlightFrameOverlay::updateMask()
{
    const QMargins border(m_borderWidth, m_borderWidth, m_borderWidth, m_borderWidth);
    const QRegion outline = QRegion(rect()) - QRegion(rect().marginsRemoved(border));
    // An empty region would take the mask away.
    setMask(outline.isEmpty() ? QRegion(-1, -1, 1, 1) : outline);
}
