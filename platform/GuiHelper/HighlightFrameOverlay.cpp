#include "HighlightFrameOverlay.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>

HighlightFrameOverlay::HighlightFrameOverlay()
{
    setObjectName(QString::fromLatin1("highlightFrame"));
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

/// Repainting the parent is not enough: Qt composes a QQuickWidget or QOpenGLWidget into the window, and what
/// was painted over it stays until something else is painted there.
void HighlightFrameOverlay::erase()
{
    if (!isVisible()) {
        return;
    }
    const QPointer<HighlightFrameOverlay> self = this;
    m_isErasing = true;
    repaint();
    if (self && !m_isErased) {
        // Qt paints a window with such content once a frame at most.
        QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
    }
}

bool HighlightFrameOverlay::event(QEvent* event)
{
    // QWidget::scroll() moves all children and copies the painted border.
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
    // Of the active group, since targets may be disabled or in an inactive window.
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
    // An empty region would remove the mask.
    setMask(outline.isEmpty() ? QRegion(-1, -1, 1, 1) : outline);
}
