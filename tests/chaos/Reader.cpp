#include "Reader.h"

#include "Journal.h"
#include "World.h"

#include <QAccessible>
#include <QApplication>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <private/qguiapplication_p.h>

namespace {

constexpr int maxIds = 100;

/// What was met, and may be gone by now.
QVector<QAccessible::Id> ids;

/// As a reader asks for it, one level deep.
void read(QAccessibleInterface& reader)
{
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value,
                            QAccessible::Help, QAccessible::Accelerator}) {
        reader.text(kind);
    }
    reader.role();
    reader.state();
    reader.rect();
    reader.window();
    reader.relations();
    if (const QAccessibleInterface* const parent = reader.parent()) {
        parent->text(QAccessible::Name);
    }
    for (int i = 0; i < reader.childCount(); ++i) {
        if (const QAccessibleInterface* const child = reader.child(i)) {
            child->text(QAccessible::Name);
        }
    }
    if (ids.size() < maxIds) {
        ids.append(QAccessible::uniqueId(&reader));
    }
}

const World* present = nullptr;

void hear(QAccessibleEvent* event)
{
    // What is there may be half destroyed: dyingButtonIsRead.
    QAccessibleInterface* const reader = present->isDeleting() ? nullptr : event->accessibleInterface();
    if (reader && reader->isValid()) {
        read(*reader);
    }
}

QAccessibleInterface* anyReader(World& world)
{
    if (!ids.isEmpty() && world.random.oneIn(2)) {
        return QAccessible::accessibleInterface(ids[world.random.below(ids.size())]);
    }
    QWidget* const widget = world.anyWidget();
    return widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
}

void changeText(World& world, QAccessibleInterface& reader)
{
    Random& random = world.random;
    QAccessibleTextInterface* const text = reader.textInterface();
    QAccessibleEditableTextInterface* const editable = reader.editableTextInterface();
    const int first = random.between(0, 5);
    if (editable && random.oneIn(2)) {
        switch (random.below(3)) {
        case 0:
            editable->insertText(first, random.text());
            break;
        case 1:
            editable->deleteText(first, first + random.below(5));
            break;
        default:
            editable->replaceText(first, first + random.below(5), random.text());
            break;
        }
    } else if (text && random.oneIn(2)) {
        text->setSelection(0, first, first + random.below(5));
    } else if (text) {
        text->setCursorPosition(first);
    }
}

void change(World& world, QAccessibleInterface& reader)
{
    Random& random = world.random;
    QAccessibleActionInterface* const actions = reader.actionInterface();
    QAccessibleValueInterface* const value = reader.valueInterface();
    if (value && random.oneIn(2)) {
        value->setCurrentValue(random.oneIn(2) ? QVariant(random.real()) : QVariant(random.integer()));
    } else if (actions && random.oneIn(2)) {
        const QStringList names = actions->actionNames();
        if (!names.isEmpty()) {
            actions->doAction(random.oneOf(std::vector<QString>(names.begin(), names.end())));
        }
    } else if (QAccessibleTableInterface* const table = reader.tableInterface()) {
        table->selectRow(random.below(4));
    } else {
        changeText(world, reader);
    }
}

} // namespace

void Reader::listen(const World* world)
{
    ids.clear();
    present = world;
    QAccessible::installUpdateHandler(world ? hear : nullptr);
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(world);
}

void Reader::act(World& world)
{
    QAccessibleInterface* const reader = anyReader(world);
    if (!reader || !reader->isValid()) {
        return;
    }
    QObject* const object = reader->object();
    Journal::note(QStringLiteral("read %1 aloud").arg(World::nameOf(object)));
    // Qt presses buttons with animateClick(), and types in a text.
    const Under under(world, Doing::Forcing | Doing::Typing, object, "reader");
    read(*reader);
    if (world.random.oneIn(2)) {
        change(world, *reader);
    }
}
