#include "AccessibleEvents.h"

#include "LibraryObject.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <utility>

namespace {

void send(QWidget* widget, int index)
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    if (interface && index >= 0) {
        interface = interface->child(index);
    }
    if (!interface) {
        return;
    }
    if (const QAccessibleValueInterface* const number = interface->valueInterface()) {
        QAccessibleValueChangeEvent event(interface, number->currentValue());
        QAccessible::updateAccessibility(&event);
        return;
    }
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    QAccessibleValueChangeEvent event(interface, interface->text(QAccessible::Value));
#else
    // AT-SPI has no values in text, and Qt's bridge warns about one. The description has it too.
    QAccessibleEvent event(interface, QAccessible::DescriptionChanged);
#endif
    QAccessible::updateAccessibility(&event);
}

/// Holds back what changes during a drag.
class UntilRelease : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    static UntilRelease* instance()
    {
        static QPointer<UntilRelease> running;
        if (!running) {
            running = new UntilRelease;
        }
        return running;
    }

    /// At once without a drag.
    void say(QWidget* widget, int index)
    {
        const bool isDragging = QGuiApplication::mouseButtons() != Qt::NoButton;
        if (!isDragging && m_changes.isEmpty()) {
            send(widget, index);
            return;
        }
        add(widget, index);
        if (!isDragging) {
            sendAll(); // the release went elsewhere
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (!m_isOver && isUp(*event)) {
            m_isOver = true;
            // What the release itself changes belongs to the drag.
            QMetaObject::invokeMethod(
                this, [this] { sendAll(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    struct Change
    {
        QPointer<QWidget> widget;
        int index;
    };

    UntilRelease()
        : QObject(libraryObject())
    {
    }

    /// Checked on any event: a release over a destroyed window is not delivered. Qt then considers the button
    /// pressed until the next press, but not in the moves before it.
    static bool isUp(const QEvent& event)
    {
        return QGuiApplication::mouseButtons() == Qt::NoButton ||
               (event.type() == QEvent::MouseMove &&
                static_cast<const QMouseEvent&>(event).buttons() == Qt::NoButton);
    }

    void add(QWidget* widget, int index)
    {
        if (m_changes.isEmpty()) {
            QCoreApplication::instance()->installEventFilter(this);
        }
        for (const Change& change : qAsConst(m_changes)) {
            if (change.widget == widget && change.index == index) {
                return;
            }
        }
        m_changes.append({widget, index});
    }

    void sendAll()
    {
        m_isOver = false;
        const auto changes = std::exchange(m_changes, {});
        QCoreApplication::instance()->removeEventFilter(this);
        for (const Change& change : changes) {
            if (change.widget) {
                send(change.widget, change.index);
            }
        }
    }

    QVector<Change> m_changes;
    bool m_isOver = false;
};

} // namespace

void AccessibleEvents::valueChanged(QWidget* widget, int index)
{
    if (QAccessible::isActive()) {
        UntilRelease::instance()->say(widget, index);
    }
}

void AccessibleEvents::alert(QWidget* widget)
{
    if (!QAccessible::isActive()) {
        return;
    }
    for (const auto type : {QAccessible::DescriptionChanged, QAccessible::Alert}) {
        QAccessibleEvent event(widget, type);
        QAccessible::updateAccessibility(&event);
    }
}
