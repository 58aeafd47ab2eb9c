#include "QmlWindowFocusWorkaround.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace {

bool canTakeFocus(const QWidget* widget)
{
    return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

bool contains(const QWidget* ancestor, const QWidget* widget)
{
    return widget && (widget == ancestor || ancestor->isAncestorOf(widget));
}

/// The dialog owns it.
class FocusKeeper : public QObject
{
    Q_OBJECT

public:
    FocusKeeper(QWidget* dialog, QWidget* host)
        : QObject(dialog)
        , m_dialog(dialog)
        , m_host(host)
    {
        dialog->installEventFilter(this);
        host->installEventFilter(this);
        connect(host, &QObject::destroyed, this, &QObject::deleteLater);
    }

    const QWidget* host() const { return m_host; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Show:
            // A spontaneous event means that the window is no longer minimised.
            if (!event->spontaneous()) {
                takeFocus();
            }
            break;
        case QEvent::WindowActivate:
            // Sent before Qt gives the focus back to the window's last focus widget.
            if (watched == m_dialog && !isFocusElsewhere()) {
                takeFocus();
            }
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool isInDialog() const { return m_host && contains(m_dialog, m_host); }

    bool isFocusElsewhere() const
    {
        const QWidget* const focused = m_dialog->window()->focusWidget();
        return focused && focused->isVisible() && !contains(focused, m_host);
    }

    void takeFocus()
    {
        if (!isInDialog() || contains(m_host, m_host->window()->focusWidget())) {
            return;
        }
        QWidget* candidate = m_host->nextInFocusChain();
        while (candidate != m_host && !(m_host->isAncestorOf(candidate) && canTakeFocus(candidate))) {
            candidate = candidate->nextInFocusChain();
        }
        if (canTakeFocus(candidate)) {
            candidate->setFocus(Qt::OtherFocusReason);
        }
    }

    QWidget* const m_dialog;
    const QPointer<QWidget> m_host;
};

} // namespace

void Orvane::Util::ApplyQmlWindowFocusWorkaround(QWidget* dialog, QWidget* qmlHost)
{
    if (!dialog || !qmlHost) {
        return;
    }
    const auto keepers = dialog->findChildren<FocusKeeper*>(QString(), Qt::FindDirectChildrenOnly);
    for (const FocusKeeper* keeper : keepers) {
        if (keeper->host() == qmlHost) {
            return;
        }
    }
    new FocusKeeper(dialog, qmlHost);
}

#include "QmlWindowFocusWorkaround.moc"
