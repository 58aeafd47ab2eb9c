#include "../Page.h"
#include "../PageRegistry.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/EditCommand.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SliderInputWidget.h>

#include <QToolBar>
#include <QUndoStack>

#include <examples/titlecard/Canvas.h>
#include <examples/titlecard/Editor.h>
#include <memory>

namespace {

/// Has @p stack undo what the user does to @p field, which is the whole document here.
EditSession* makeSession(Page* page, QWidget* field, QUndoStack* stack)
{
    auto* session = new EditSession(field);
    page->describeCode(field, [] {
        return QStringList{QStringLiteral("#include <UiComponents/EditSession.h>"),
                           QStringLiteral("new EditSession($);")};
    });
    const auto document = std::make_shared<QVariant>(session->value());
    EditCommand::record(
        session, stack, [] { return PageRegistry::tr("Edit"); },
        [document] {
            return EditCommand::Targets{
                {[document] { return *document; }, [document](const QVariant& value) { *document = value; }}};
        });
    QObject::connect(stack, &QUndoStack::indexChanged, session,
                     [session, document] { session->setValue(*document); });
    page->signalLog()->watch(session, "session");
    return session;
}

} // namespace

void PageRegistry::editSession(Page* page)
{
    auto* const stack = new QUndoStack(page);
    const auto sliders =
        page->addTwins(tr("Drag it, hold an arrow key, type, turn the wheel"), [](QWidget* parent) {
            auto* field = new SliderInputWidget(parent, {0, 100});
            field->setValue(40);
            return field;
        });
    page->addTwins(tr("Several values"), [](QWidget* parent) {
        auto* field = new SliderInputWidget(parent, {0, 100});
        field->setValue(40);
        (new EditSession(field))->setMultiValue(true);
        return field;
    });
    const auto points = page->addTwins(tr("Drag the point"), [](QWidget* parent) {
        auto* field = new PointSelectorWidget(parent, {{-1.0, -1.0}, {1.0, 1.0}, 2, 2});
        field->setValue({0.25, -0.5});
        return field;
    });
    const auto colors = page->addTwins(tr("Try colours, then press Escape or Enter"), [](QWidget* parent) {
        auto* field = new ColorInputWidget(parent, QColor(46, 168, 120));
        field->setPicker(new PopupColorPicker);
        return field;
    });
    QVector<EditSession*> sessions;
    for (QWidget* field : {static_cast<QWidget*>(sliders.enabled), static_cast<QWidget*>(points.enabled),
                           static_cast<QWidget*>(colors.enabled)}) {
        sessions.append(makeSession(page, field, stack));
    }
    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("QUndoStack"));
    // What is typed, and not entered yet, becomes a step first.
    panel->addAction(tr("Undo"), [page, stack] {
        const EditSession::Refresh refresh(page);
        stack->undo();
    });
    panel->addAction(tr("Redo"), [page, stack] {
        const EditSession::Refresh refresh(page);
        stack->redo();
    });
    panel->addHeading(QStringLiteral("EditSession"));
    panel->addAction(tr("Several values"), [sessions] {
        for (EditSession* session : sessions) {
            session->setMultiValue(true);
        }
    });
    page->describeStyling(sliders.enabled,
                          tr("A field that stands for several values has multiValue, and a label "
                             "#multiValueCover covers each of its line edits."),
                          tr("Several values"));
}

void PageRegistry::titleCard(Page* page)
{
    page->setMaxSpecimenShare(0.9);
    auto* editor = new TitleCard::Editor(QString());
    editor->setWindowFlags(Qt::Widget);
    // The gallery has switches of its own.
    editor->findChild<QToolBar*>(QStringLiteral("switches"))->hide();
    // The space differs from disk to disk, and the field names its folder after a while: no two pictures of
    // the page would be alike.
    QObject::disconnect(editor->findChild<PathSelectionWidget*>(), &PathSelectionWidget::pathChanged, editor,
                        nullptr);
    editor->addCard(tr("First light"));
    const int first = editor->canvas()->selection().first();
    editor->document()->setValue(first, TitleCard::Position, QPointF(-0.25, -0.25));
    editor->addCard(tr("A film"));
    editor->document()->setValue(editor->canvas()->selection().first(), TitleCard::Position,
                                 QPointF(0.2, 0.3));
    editor->undoStack()->clear();
    page->addDemonstration(QString(), editor);
}
