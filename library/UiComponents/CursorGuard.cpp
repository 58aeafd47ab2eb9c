#include "CursorGuard.h"

#include <QGuiApplication>

CursorGuard::CursorGuard(QWidget* widget, const QCursor& cursor)
    : m_isForApplication(!widget)
    , m_widget(widget)
    , m_hadOwnCursor(widget && widget->testAttribute(Qt::WA_SetCursor))
    , m_former(widget ? widget->cursor() : QCursor())
{
    if (m_isForApplication) {
        QGuiApplication::setOverrideCursor(cursor);
    } else {
        widget->setCursor(cursor);
    }
}

CursorGuard::~CursorGuard()
{
    if (m_isForApplication) {
        QGuiApplication::restoreOverrideCursor();
    } else if (m_widget && m_hadOwnCursor) {
        m_widget->setCursor(m_former);
    } else if (m_widget) {
        // Setting the inherited one would keep the widget from ever following its parent's again.
        m_widget->unsetCursor();
    }
}
