#include "CursorGuard.h"

#include <QVector>

#include <algorithm>

namespace {

/// In the order in which they began.
QVector<CursorGuard*>& guards()
{
    static QVector<CursorGuard*> all;
    return all;
}

} // namespace

CursorGuard::CursorGuard(QWidget* widget, const QCursor& cursor)
    : m_widget(widget)
{
    if (widget->testAttribute(Qt::WA_SetCursor)) {
        m_former = widget->cursor();
    }
    guards().append(this);
    widget->setCursor(cursor);
}

CursorGuard::~CursorGuard()
{
    auto& all = guards();
    const auto next = all.erase(std::find(all.begin(), all.end(), this));
    if (!m_widget) {
        return;
    }
    const auto heir = std::find_if(next, all.end(),
                                   [this](const CursorGuard* other) { return other->m_widget == m_widget; });
    if (heir != all.end()) {
        // It took this one's cursor for the widget's own.
        (*heir)->m_former = m_former;
    } else if (m_former) {
        m_widget->setCursor(*m_former);
    } else {
        // Setting the inherited one would keep the widget from ever following its parent's again.
        m_widget->unsetCursor();
    }
}
