#include "CursorGuard.h"

#include <QGuiApplication>
#include <QVector>

#include <algorithm>

namespace {

/// Those that have a widget, in the order in which they began.
QVector<CursorGuard*>& guards()
{
    static QVector<CursorGuard*> all;
    return all;
}

} // namespace

CursorGuard::CursorGuard(QWidget* widget, const QCursor& cursor)
    : m_isForApplication(!widget)
    , m_widget(widget)
    , m_hadOwnCursor(widget && widget->testAttribute(Qt::WA_SetCursor))
    , m_former(widget ? widget->cursor() : QCursor())
{
    if (m_isForApplication) {
        QGuiApplication::setOverrideCursor(cursor);
    } else {
        guards().append(this);
        widget->setCursor(cursor);
    }
}

CursorGuard::~CursorGuard()
{
    if (m_isForApplication) {
        QGuiApplication::restoreOverrideCursor();
        return;
    }
    auto& all = guards();
    const auto next = all.erase(std::find(all.begin(), all.end(), this));
    if (!m_widget) {
        return;
    }
    const auto heir = std::find_if(next, all.end(),
                                   [this](const CursorGuard* other) { return other->m_widget == m_widget; });
    if (heir != all.end()) {
        // It took this one's cursor for the widget's own.
        (*heir)->m_hadOwnCursor = m_hadOwnCursor;
        (*heir)->m_former = m_former;
    } else if (m_hadOwnCursor) {
        m_widget->setCursor(m_former);
    } else {
        // Setting the inherited one would keep the widget from ever following its parent's again.
        m_widget->unsetCursor();
    }
}

void CursorGuard::leaveAlone()
{
    m_widget.clear();
}
