#include "EditCommand.h"

#include "EditSession.h"

#include <QPointer>
#include <QUndoStack>

namespace {

/// What a session edits, and what it was before.
struct Edit
{
    EditCommand::Targets targets;
    QVector<QVariant> before;
};

void write(const EditCommand::Targets& targets, const QVariant& value)
{
    for (const EditCommand::Target& target : targets) {
        target.write(value);
    }
}

void bringBack(const EditCommand::Targets& targets, const QVector<QVariant>& before)
{
    for (int i = 0; i < targets.size(); ++i) {
        targets.at(i).write(before.at(i));
    }
}

} // namespace

class EditCommand::Private
{
public:
    const Targets targets;
    const QVector<QVariant> before;
    const QVariant value;
    bool isDone = true;
};

void EditCommand::record(EditSession* session, QUndoStack* stack, const std::function<QString()>& text,
                         const std::function<Targets()>& targets)
{
    const auto edit = std::make_shared<Edit>();
    // What a target's function deletes may be the session, and with it the slot that is running.
    QObject::connect(session, &EditSession::started, stack, [edit, targets] {
        edit->targets = targets();
        edit->before.clear();
        for (const Target& target : qAsConst(edit->targets)) {
            edit->before.append(target.read());
        }
    });
    QObject::connect(session, &EditSession::previewed, stack, [edit](const QVariant& value) {
        const Edit kept = *edit;
        write(kept.targets, value);
    });
    QObject::connect(session, &EditSession::committed, stack, [edit, stack, text](const QVariant& value) {
        const Edit kept = *edit;
        write(kept.targets, value);
        stack->push(new EditCommand(text(), kept.targets, kept.before, value));
    });
    QObject::connect(session, &EditSession::cancelled, stack, [edit] {
        const Edit kept = *edit;
        bringBack(kept.targets, kept.before);
    });
}

EditCommand::EditCommand(const QString& text, const Targets& targets, const QVector<QVariant>& before,
                         const QVariant& value)
    : QUndoCommand(text)
    , d(new Private{targets, before, value})
{
}

EditCommand::~EditCommand() = default;

void EditCommand::undo()
{
    d->isDone = false;
    bringBack(d->targets, d->before);
}

void EditCommand::redo()
{
    if (!d->isDone) {
        d->isDone = true;
        write(d->targets, d->value);
    }
}
