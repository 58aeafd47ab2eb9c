#include "SwallowedPress.h"

#include <QCoreApplication>
#include <QEvent>

SwallowedPress::SwallowedPress()
    : QObject(QCoreApplication::instance())
{
    QCoreApplication::instance()->installEventFilter(this);
}

SwallowedPress::~SwallowedPress() = default;

bool SwallowedPress::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        QCoreApplication::instance()->removeEventFilter(this);
        deleteLater();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
