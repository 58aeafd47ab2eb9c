#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QString>
#include <QUndoCommand>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>

class EditSession;
class QUndoStack;

/**
 * One step of undo: the session of one field, whatever it edits.
 *
 *     EditCommand::record(new EditSession(opacityField), &undoStack, [] { return tr("Opacity"); }, [this] {
 *         EditCommand::Targets targets;
 *         for (Card* card : selectedCards()) {
 *             targets.append({[card] { return card->opacity(); },
 *                             [card](const QVariant& value) { card->setOpacity(value.toInt()); }});
 *         }
 *         return targets;
 *     });
 *
 * Each target gets every value that the session previews. When it is committed, a command is pushed that
 * brings back what each target had, and again gives all of them the new value; when it is cancelled, each
 * target gets back what it had.
 *
 * A text that is typed, and not entered yet, is an edit under way. Hold a Refresh while you undo or redo,
 * which makes a step of it first:
 *
 *     const EditSession::Refresh refresh(inspector);
 *     undoStack.undo();
 * @see EditSession
 */
class UICOMPONENTS_EXPORT EditCommand : public QUndoCommand
{
public:
    /// What is edited. Both functions are kept as long as the command: they may only use what outlives the
    /// stack, such as a document and the number of a card.
    struct Target
    {
        std::function<QVariant()> read;
        std::function<void(const QVariant&)> write;
    };
    using Targets = QVector<Target>;

    /// Makes a command on @p stack of each session of @p session, until one of the two is deleted. @p text
    /// returns the name of each command; @p targets, called at the start of each session, what is selected.
    static void record(EditSession* session, QUndoStack* stack, const std::function<QString()>& text,
                       const std::function<Targets()>& targets);

    /// Of a value that each of @p targets has already; @p before are those that they had. record() makes it.
    EditCommand(const QString& text, const Targets& targets, const QVector<QVariant>& before,
                const QVariant& value);
    ~EditCommand() override;

    void undo() override;
    /// Does nothing the first time, when the command is pushed.
    void redo() override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
