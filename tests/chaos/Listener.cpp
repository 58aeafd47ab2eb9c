#include "Listener.h"

#include "Actions.h"
#include "Exceptions.h"
#include "Journal.h"

#include <QMessageBox>
#include <QMetaMethod>
#include <QTimer>

#include <optional>

Listener::Listener(World& world, QObject* sender)
    : m_world(world)
    , m_sender(sender)
    , m_type(sender->metaObject())
{
    Random& random = world.random;
    const int first =
        (sender->isWidgetType() ? QWidget::staticMetaObject : QObject::staticMetaObject).methodCount();
    for (int i = first; i < m_type->methodCount(); ++i) {
        const QMetaMethod method = m_type->method(i);
        if (method.methodType() != QMetaMethod::Signal) {
            continue;
        }
        Slot slot;
        slot.signal = method.methodSignature();
        if (random.oneIn(4)) {
            slot.deed = static_cast<Deed>(random.below(static_cast<int>(Deed::Make) + 1));
            slot.at = random.between(1, 4);
            slot.now = !random.oneIn(4);
            slot.inLoop = random.oneIn(4);
        }
        QMetaObject::connect(sender, i, this, QObject::staticMetaObject.methodCount() + m_slots.size());
        m_slots.append(slot);
    }
}

Listener::~Listener() = default;

int Listener::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (call == QMetaObject::InvokeMetaMethod && id >= 0) {
        hear(id);
        return -1;
    }
    return id;
}

void Listener::hear(int index)
{
    const QByteArray signal = m_slots[index].signal;
    if (!m_sender || m_sender->metaObject() != m_type) {
        Journal::fail(QStringLiteral("%1 of a %2 that is no more")
                          .arg(QLatin1String(signal), QLatin1String(m_type->className())));
    }
    Journal::note(QStringLiteral("- %1 of %2").arg(QLatin1String(signal), World::nameOf(m_sender)));
    if (++m_slots[index].heard != m_slots[index].at) {
        return;
    }
    std::optional<Under> cause;
    if (m_world.isLeftToEvents()) {
        // A change of the active window, say.
        cause.emplace(m_world, Doing::Other, m_sender, "loop");
    }
    // A session tells what its field is about to tell.
    std::optional<Under> field;
    if (m_sender->inherits("EditSession")) {
        field.emplace(m_world, Doing::Signal, m_sender->parent(), signal);
    }
    const Under under(m_world, Doing::Signal, m_sender, signal);
    perform(m_slots[index]);
}

void Listener::perform(Slot slot)
{
    auto* widget = qobject_cast<QWidget*>(m_sender);
    const bool runsLoop = slot.inLoop || slot.deed == Deed::Loop || slot.deed == Deed::MessageBox;
    if (runsLoop && Exceptions::forbidsLoop(m_world)) {
        return;
    }
    const bool makesNew =
        runsLoop || slot.deed == Deed::Move || slot.deed == Deed::Call || slot.deed == Deed::Make;
    if (makesNew && m_world.isDeleting()) {
        return; // Qt does not survive it: dyingWindowGetsAChild
    }
    switch (slot.deed) {
    case Deed::Nothing:
        return;
    case Deed::Loop:
        m_world.runLoop();
        return;
    case Deed::MessageBox: {
        const QPointer<QMessageBox> box = new QMessageBox(m_world.random.oneIn(2) ? widget : nullptr);
        box->setText(m_world.random.text());
        box->exec();
        if (box) {
            m_world.removeAtTheEnd(box);
        }
        return;
    }
    case Deed::Hide:
        if (widget) {
            const Under under(m_world, Doing::Showing, widget, "hide");
            widget->hide();
        }
        return;
    case Deed::Disable:
        Actions::enable(m_world, widget, false);
        return;
    case Deed::Move:
        Actions::move(m_world, widget);
        return;
    case Deed::Call:
        Actions::call(m_world, m_sender);
        return;
    case Deed::Make:
        Actions::make(m_world);
        return;
    default:
        break;
    }
    const QPointer<QObject> object = victim(slot.deed);
    if (!slot.inLoop) {
        m_world.remove(object, slot.now);
        return;
    }
    QTimer::singleShot(2, this, [this, object, now = slot.now] { m_world.remove(object, now); });
    m_world.runLoop();
}

QObject* Listener::victim(Deed deed) const
{
    auto* widget = qobject_cast<QWidget*>(m_sender);
    switch (deed) {
    case Deed::DeleteSender:
        return m_sender;
    case Deed::DeleteParent:
        return m_world.partAround(widget ? widget->parentWidget() : m_sender->parent());
    case Deed::DeleteWindow:
        widget = widget ? widget : qobject_cast<QWidget*>(m_sender->parent());
        return widget ? widget->window() : nullptr;
    case Deed::DeleteSibling:
        return m_world.anyPart().object;
    case Deed::DeleteOther:
        return m_world.others.isEmpty() ? nullptr
                                        : m_world.others[m_world.random.below(m_world.others.size())];
    default:
        return nullptr;
    }
}
