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
    const QPointer<QUndoStack> alive = stack;
    // What a host's function deletes may be the session or the stack; and a loop in it may begin another
    // edit.
    QObject::connect(session, &EditSession::started, stack, [edit, targets] {
        Edit begun{targets(), {}};
        for (const Target& target : qAsConst(begun.targets)) {
            begun.before.append(target.read());
        }
        *edit = begun;
    });
    QObject::connect(session, &EditSession::previewed, stack, [edit](const QVariant& value) {
        const Edit kept = *edit;
        write(kept.targets, value);
    });
    QObject::connect(session, &EditSession::committed, stack, [edit, alive, text](const QVariant& value) {
        const Edit kept = *edit;
        write(kept.targets, value);
        auto command = std::make_unique<EditCommand>(text(), kept.targets, kept.before, value);
        if (alive) {
            alive->push(command.release());
        }
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
