#include "Canvas.h"

#include "Document.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace TitleCard {

Canvas::Canvas(Document* document, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
{
    setFixedSize(432, 243);
    setFocusPolicy(Qt::StrongFocus);
    connect(document, &Document::changed, this, [this] {
        QVector<int> present;
        for (const Card& card : m_document->cards()) {
            if (m_selection.contains(card.id)) {
                present.append(card.id);
            }
        }
        select(present);
        update();
    });
}

void Canvas::select(const QVector<int>& ids)
{
    if (ids != m_selection) {
        m_selection = ids;
        update();
        Q_EMIT selectionChanged();
    }
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    const int card = m_document->cardAt(event->pos(), size());
    QVector<int> ids;
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        ids = m_selection;
        ids.removeAll(card);
        if (ids.size() < m_selection.size()) {
            select(ids);
            return;
        }
    }
    if (card != 0) {
        ids.append(card);
    }
    select(ids);
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::SelectAll)) {
        QVector<int> ids;
        for (const Card& card : m_document->cards()) {
            ids.append(card.id);
        }
        select(ids);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void Canvas::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawImage(0, 0, m_document->render(size()));
    painter.setPen(QPen(Qt::white, 1, Qt::DashLine));
    for (const int id : m_selection) {
        painter.drawPolygon(m_document->frame(id, size()));
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 4));
        painter.drawRect(rect());
    }
}

} // namespace TitleCard
