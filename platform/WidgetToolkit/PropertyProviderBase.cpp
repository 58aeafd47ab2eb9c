#include "PropertyProviderBase.h"

#include <QEvent>

PropertyProviderBase::PropertyProviderBase(QWidget* owner)
    : QWidget(owner)
{
    // Hidden explicitly, so that showing the owner does not show it.
    QWidget::setVisible(false);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    if (owner) {
        owner->installEventFilter(this);
    }
}

PropertyProviderBase::~PropertyProviderBase() = default;

void PropertyProviderBase::setVisible(bool visible)
{
    Q_UNUSED(visible)
}

bool PropertyProviderBase::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::Paint:
        if (watched == parent()) {
            ensurePolished();
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool PropertyProviderBase::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange && parent()) {
        // The former one keeps its filter, which does nothing there.
        parent()->installEventFilter(this);
    }
    return QWidget::event(event);
}
