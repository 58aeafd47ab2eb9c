#include "EditSession.h"

#include "AbstractColorPicker.h"
#include "ColorInputWidget.h"
#include "ColorPickerButton.h"
#include "DyingWindow.h"
#include "EditSessionCover.h"
#include "EditSessionField.h"
#include "PointSelectionPlane.h"
#include "WidgetColorPickerButton.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVector>

#include <utility>

namespace {

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr;
}

bool isStep(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

/// A part that changes the value while the mouse is down on it.
bool isDragged(const QObject* part)
{
    return qobject_cast<const QAbstractSlider*>(part) || qobject_cast<const QAbstractSpinBox*>(part) ||
           qobject_cast<const PointSelectionPlane*>(part);
}

/// Where a part that has the keyboard takes text.
QLineEdit* editorOf(QObject* part)
{
    if (auto* edit = qobject_cast<QLineEdit*>(part)) {
        return edit;
    }
    if (const auto* box = qobject_cast<QComboBox*>(part)) {
        return box->lineEdit();
    }
    return qobject_cast<QAbstractSpinBox*>(part) ? part->findChild<QLineEdit*>() : nullptr;
}

/// Whether the text is a value, or becomes one that the user has asked for.
bool isEntered(const QAbstractSpinBox& box)
{
    const bool isNearest = box.correctionMode() == QAbstractSpinBox::CorrectToNearestValue &&
                           !box.property("cleanText").toString().isEmpty();
    return box.hasAcceptableInput() || isNearest;
}

/// Shows the value that the box still has, where interpretText() could take another one.
void takeBack(QAbstractSpinBox* box)
{
    if (auto* const whole = qobject_cast<QSpinBox*>(box)) {
        whole->setValue(whole->value());
    } else if (auto* const fraction = qobject_cast<QDoubleSpinBox*>(box)) {
        fraction->setValue(fraction->value());
    }
}

/// An edit's own undo ends where the host's begins.
void forgetTyping(QLineEdit* editor)
{
    if (editor->isUndoAvailable() || editor->isRedoAvailable()) {
        const int cursor = editor->cursorPosition();
        editor->setText(editor->text());
        editor->setCursorPosition(cursor);
    }
}

ColorPickerButton* colorButtonOf(QWidget* field)
{
    const auto* input = qobject_cast<ColorInputWidget*>(field);
    return qobject_cast<ColorPickerButton*>(input ? input->anchorWidget() : field);
}

} // namespace

class EditSession::Private
{
public:
    /// What the user is doing to the field, and so what ends it.
    enum class Gesture {
        None,
        Mouse,
        Key,
        Wheel,
        Text,
        Pick,
    };
    /// What a slot requests while a value is reported; carried out when all slots have been called.
    enum class Request {
        None,
        Commit,
        Finish,
        Cancel,
    };

    Private(EditSession* session, QWidget* editedField);

    void watchParts();
    void watchPicks();
    bool isAlive() const;

    bool begin(Gesture next, QObject* onPart);
    void beginText(QObject* onPart);
    void replaceText(QObject* onPart);
    void pressMouse(QObject* onPart, const QMouseEvent& event);
    void releaseMouse(const QMouseEvent& event);
    bool pressKey(QObject* onPart, const QKeyEvent& event);
    void releaseKey(const QKeyEvent& event);
    void turnWheel(QObject* onPart, const QWheelEvent& event);
    void loseFocus(const QFocusEvent& event);
    bool overrideShortcut(QObject* onPart, QKeyEvent* event);
    bool isCancelKey(const QKeyEvent& event) const;
    bool overridesUndo(QObject* onPart, const QKeyEvent& event) const;
    bool isTyped() const;
    bool isGone(const QObject* watched, const QEvent& event) const;
    void letGo();
    void writeUnreported(const QVariant& value);

    void onChanged();
    void onChosen();
    void onTyped();
    void onPicked(const QVariant& result, bool isNew);
    void chooseAtEnd(QObject* onPart, const QEvent* event);
    bool isReportable() const { return access.read && holds == 0 && !isReporting && isAlive(); }
    void reportShown();
    void report(const QVariant& value);
    void ask(Request what);
    void answer();
    void finishIfAlone();
    bool takeText();
    void finish();
    void commit();
    void end(bool isKept);
    void cancel();

    EditSession* const q;
    QWidget* const field;
    ColorPickerButton* const colorButton;
    const EditSessionField access;
    EditSessionCover* const cover;
    const QMetaObject* const whole;

    Gesture gesture = Gesture::None;
    QPointer<QObject> part; // that the gesture is on
    int key = 0;
    QPoint mousePosition;
    QVariant start;
    QVariant last;
    bool isActive = false;
    bool wasMulti = false;
    /// The value from before counts as a new one.
    bool isNewInAnyCase = false;
    bool isReleasing = false;
    bool isReporting = false;
    Request request = Request::None;
    /// The pick was cancelled, and has not reported its end yet.
    bool isGivenUp = false;
    /// The result of such a pick, which the button is about to take.
    QVariant refused;
    int holds = 0;
};

EditSession::Private::Private(EditSession* session, QWidget* editedField)
    : q(session)
    , field(editedField)
    , colorButton(colorButtonOf(editedField))
    , access(EditSessionField::of(editedField))
    , cover(new EditSessionCover(editedField, session))
    , whole(editedField->metaObject())
{
}

void EditSession::Private::watchParts()
{
    const auto parts = field->findChildren<QWidget*>() << field;
    for (QWidget* watched : parts) {
        watched->installEventFilter(q);
        if (const auto* edit = qobject_cast<QLineEdit*>(watched)) {
            // Connected after the field, which has taken the text then.
            connect(edit, &QLineEdit::textChanged, q, [this] { onTyped(); });
        }
    }
    access.watch(q, [this] { onChanged(); });
    if (access.watchChoice) {
        access.watchChoice(q, [this] { onChosen(); });
    }
}

void EditSession::Private::watchPicks()
{
    if (colorButton) {
        connect(colorButton, &ColorPickerButton::pickingStarted, q,
                [this] { begin(Gesture::Pick, colorButton); });
        connect(colorButton, &ColorPickerButton::pickingStopped, q, [this] {
            const QPointer<EditSession> self(q);
            AbstractColorPicker* const picker = colorButton->picker();
            const QVariant result = picker ? QVariant::fromValue(picker->color()) : access.read();
            // Asking a picker for its colour may delete the field.
            if (self) {
                onPicked(result, false);
            }
        });
    }
    if (auto* button = qobject_cast<WidgetColorPickerButton*>(field)) {
        connect(button, &WidgetColorPickerButton::pickingStarted, q,
                [this, button] { begin(Gesture::Pick, button); });
        connect(button, &WidgetColorPickerButton::pickingFinished, q, [this, button] {
            const QColor picked = button->pickedColor();
            onPicked(picked.isValid() ? picked : button->color(), picked.isValid());
        });
    }
}

/// False while the field or its window is being destroyed. Its parts lose the focus then, and the slots of a
/// half-destroyed window must not be called.
bool EditSession::Private::isAlive() const
{
    return field->metaObject()->inherits(whole) && !DyingWindow::is(field->window());
}

/// Returns whether the session is still there.
bool EditSession::Private::begin(Gesture next, QObject* onPart)
{
    if (gesture != next) {
        const QPointer<EditSession> self(q);
        finish();
        if (!self) {
            return false;
        }
    }
    if (!isActive) {
        // A value set without an edit is not the user's.
        last = access.read();
    }
    gesture = next;
    part = onPart;
    isReleasing = false;
    isGivenUp = false;
    refused.clear();
    return true;
}

void EditSession::Private::pressMouse(QObject* onPart, const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton && isDragged(onPart)) {
        mousePosition = event.pos();
        begin(Gesture::Mouse, onPart);
    } else if (gesture == Gesture::Wheel || gesture == Gesture::Key) {
        finish();
    }
}

void EditSession::Private::releaseMouse(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || gesture != Gesture::Mouse) {
        return;
    }
    // A plane takes the point on release, and always reports it. No other part changes its value then.
    isReleasing = qobject_cast<PointSelectionPlane*>(part);
    if (isReleasing) {
        return;
    }
    const QPointer<EditSession> self(q);
    const auto* const box = qobject_cast<QAbstractSpinBox*>(part);
    if (!box || box->buttonSymbols() != QAbstractSpinBox::NoButtons) {
        onChosen(); // takes the current value
    }
    if (self) {
        finish();
    }
}

/// A text that is hidden is replaced as a whole.
void EditSession::Private::beginText(QObject* onPart)
{
    QLineEdit* const editor = editorOf(onPart);
    // Text that is no value yet, such as the first digit below a minimum, is still being typed.
    const bool isTyping = gesture == Gesture::Text && part == onPart && isTyped();
    if (editor && begin(Gesture::Text, onPart) && cover->isShown() && !isTyping) {
        editor->selectAll();
    }
}

/// Dropped text is inserted at the mouse position, not at the cursor.
void EditSession::Private::replaceText(QObject* onPart)
{
    auto* const editor = qobject_cast<QLineEdit*>(onPart);
    if (!editor || !cover->isShown()) {
        return;
    }
    const bool isOfAnother = editorOf(editor->parent()) == editor;
    beginText(isOfAnother ? editor->parent() : editor);
    isReleasing = true;
    const QSignalBlocker quiet(editor);
    editor->clear();
}

/// Returns whether the key event is filtered out.
bool EditSession::Private::pressKey(QObject* onPart, const QKeyEvent& event)
{
    if (isCancelKey(event)) {
        cancel();
        return true;
    }
    if (isModifier(event.key())) {
        return false;
    }
    const bool isStepping = !editorOf(onPart) || (!qobject_cast<QLineEdit*>(onPart) && isStep(event.key()));
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        finish();
    } else if (!isStepping) {
        beginText(onPart);
    } else if (gesture != Gesture::Text || !isTyped()) {
        key = event.key();
        begin(Gesture::Key, onPart);
    }
    return false;
}

void EditSession::Private::releaseKey(const QKeyEvent& event)
{
    if (event.isAutoRepeat()) {
        return;
    }
    if (gesture == Gesture::Key && event.key() == key) {
        finish();
    } else if (gesture == Gesture::Text && !isActive && !isTyped()) {
        gesture = Gesture::None;
    }
}

void EditSession::Private::turnWheel(QObject* onPart, const QWheelEvent& event)
{
    if (event.phase() == Qt::ScrollEnd) {
        if (gesture == Gesture::Wheel) {
            finish();
        }
    } else {
        begin(Gesture::Wheel, onPart);
    }
}

void EditSession::Private::loseFocus(const QFocusEvent& event)
{
    const bool isText = gesture == Gesture::Text;
    if ((isText && event.reason() != Qt::PopupFocusReason) || gesture == Gesture::Key ||
        gesture == Gesture::Wheel) {
        finish();
    } else if (event.reason() != Qt::PopupFocusReason) {
        cover->coverTexts(); // of what was pasted or inserted
    }
}

bool EditSession::Private::overrideShortcut(QObject* onPart, QKeyEvent* event)
{
    if (isCancelKey(*event)) {
        event->accept();
        return true;
    }
    const QPointer<EditSession> self(q);
    if (gesture == Gesture::Wheel) {
        finish();
    }
    if (self && overridesUndo(onPart, *event)) {
        event->ignore();
        return true;
    }
    return false;
}

bool EditSession::Private::isCancelKey(const QKeyEvent& event) const
{
    const bool canCancel = gesture != Gesture::Pick && (isActive || (gesture == Gesture::Text && isTyped()));
    return event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier && canCancel;
}

/// Whether Undo and Redo are the host's. A line edit would accept them in any case, and undo what has
/// been committed.
bool EditSession::Private::overridesUndo(QObject* onPart, const QKeyEvent& event) const
{
    const QLineEdit* const editor = editorOf(onPart);
    const bool isUndo = event.matches(QKeySequence::Undo);
    if (!editor || (!isUndo && !event.matches(QKeySequence::Redo))) {
        return false;
    }
    return gesture != Gesture::Text || !(isUndo ? editor->isUndoAvailable() : editor->isRedoAvailable());
}

/// Whether there is a text that a spin box may not have taken yet. Other fields take each at once.
bool EditSession::Private::isTyped() const
{
    return qobject_cast<QAbstractSpinBox*>(part) && editorOf(part)->isModified();
}

/// Parts appear and hide with the value, so only that of the session counts, unless it hides with the field:
/// then Qt continues with the field's next child, which may be this session.
bool EditSession::Private::isGone(const QObject* watched, const QEvent& event) const
{
    const bool isWithField = event.spontaneous() || !field->isVisible() || !field->isEnabled();
    return watched == field || (watched == part && !isWithField);
}

/// Ends a cancelled drag or pick for the part too.
void EditSession::Private::letGo()
{
    const Gesture ended = std::exchange(gesture, Gesture::None);
    if (auto* const widget = ended == Gesture::Mouse ? qobject_cast<QWidget*>(part) : nullptr) {
        QMouseEvent release(QEvent::MouseButtonRelease, mousePosition, widget->mapToGlobal(mousePosition),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &release);
    }
    if (ended == Gesture::Pick) {
        isGivenUp = true;
        if (colorButton) {
            colorButton->stopPicking();
        } else {
            qobject_cast<WidgetColorPickerButton*>(field)->stopPicking();
        }
    }
}

void EditSession::Private::writeUnreported(const QVariant& value)
{
    const QPointer<EditSession> self(q);
    ++holds;
    access.write(value);
    if (self) {
        --holds;
    }
}

void EditSession::Private::onChanged()
{
    if (!isReportable()) {
        return;
    }
    const bool isRefused = refused.isValid() && EditSessionField::isSame(access.read(), refused);
    refused.clear();
    if (isRefused) {
        writeUnreported(last);
        return;
    }
    const QPointer<EditSession> self(q);
    if (!EditSessionField::isSame(access.read(), last)) {
        reportShown();
    }
    if (self) {
        finishIfAlone();
    }
}

/// The user has chosen what the field holds already.
void EditSession::Private::onChosen()
{
    if (!isReportable() || !cover->isShown()) {
        return;
    }
    const QPointer<EditSession> self(q);
    reportShown();
    if (self) {
        finishIfAlone();
    }
}

/// The same for a text.
void EditSession::Private::onTyped()
{
    const QLineEdit* const editor = gesture == Gesture::Text ? editorOf(part) : nullptr;
    if (editor && cover->isShown() && !editor->isModified()) {
        cover->coverTexts(); // all that was typed is undone
    } else if (editor && editor->hasAcceptableInput()) {
        onChosen();
    }
}

/// A step beyond the end chooses the value that the field has already.
void EditSession::Private::chooseAtEnd(QObject* onPart, const QEvent* event)
{
    if (cover->isShown() && !isTyped() && EditSessionField::isAtEnd(onPart, event)) {
        onChosen();
    }
}

void EditSession::Private::onPicked(const QVariant& result, bool isNew)
{
    const auto refuse = [this, &result] {
        isGivenUp = false;
        refused = EditSessionField::isSame(result, last) ? QVariant() : result;
    };
    if (isGivenUp) {
        refuse();
        return;
    }
    if (gesture != Gesture::Pick || !isReportable()) {
        return;
    }
    const QPointer<EditSession> self(q);
    // The button takes it only after this, but has to show what is committed.
    writeUnreported(result);
    if (!self) {
        return;
    }
    const bool isTakenBack = isActive && !isNew && EditSessionField::isSame(result, start);
    if (isNew || (!isTakenBack && !EditSessionField::isSame(result, last))) {
        report(result);
    }
    if (self && request == Request::Cancel) {
        answer();
        if (self) {
            refuse();
        }
    } else if (self) {
        request = Request::None;
        last = result;
        isNewInAnyCase = isNewInAnyCase || isNew;
        finish();
    }
}

void EditSession::Private::reportShown()
{
    const QPointer<EditSession> self(q);
    report(access.read());
    if (self && isAlive()) {
        // A slot may have set another value.
        last = access.read();
        answer();
    }
}

void EditSession::Private::report(const QVariant& value)
{
    const QPointer<EditSession> self(q);
    const QVariant before = last;
    last = value;
    isReporting = true;
    if (!isActive) {
        isActive = true;
        start = before;
        wasMulti = cover->isShown();
        // Several colours are a value of their own.
        isNewInAnyCase = wasMulti && !colorButton;
        cover->setShown(false);
        Q_EMIT q->started();
    }
    if (self) {
        Q_EMIT q->previewed(value);
    }
    if (self) {
        isReporting = false;
    }
}

void EditSession::Private::ask(Request what)
{
    // The first one ends the session; the gesture ends in any case.
    if (request == Request::None || (request == Request::Commit && what == Request::Finish)) {
        request = what;
    }
}

void EditSession::Private::answer()
{
    switch (std::exchange(request, Request::None)) {
    case Request::None:
        break;
    case Request::Commit:
        commit();
        break;
    case Request::Finish:
        finish();
        break;
    case Request::Cancel:
        cancel();
        break;
    }
}

/// Ends the session, unless a held button or key, or a pick, will.
void EditSession::Private::finishIfAlone()
{
    const bool isPickOver = gesture == Gesture::Pick && colorButton &&
                            !(colorButton->picker() && colorButton->isPickingInProgress());
    if (gesture == Gesture::None || isReleasing || isPickOver) {
        finish();
    }
}

/// Has a spin box take the text that is being typed, as losing the focus would. Returns whether the session
/// is still there.
bool EditSession::Private::takeText()
{
    if (gesture != Gesture::Text) {
        return true;
    }
    const QPointer<EditSession> self(q);
    if (isTyped()) {
        auto* const box = qobject_cast<QAbstractSpinBox*>(part);
        if (cover->isShown() && !isEntered(*box)) {
            takeBack(box); // the text is no value
        } else {
            box->interpretText();
            if (self && cover->isShown()) {
                reportShown();
            }
        }
    }
    QLineEdit* const editor = self ? editorOf(part) : nullptr;
    if (editor) {
        forgetTyping(editor);
        cover->coverTexts();
    }
    return self;
}

/// The gesture is over.
void EditSession::Private::finish()
{
    if (isReporting) {
        ask(Request::Finish);
    } else if (holds > 0) {
        gesture = Gesture::None;
    } else if (isReportable() && takeText()) {
        gesture = Gesture::None;
        isReleasing = false;
        end(isNewInAnyCase || !EditSessionField::isSame(last, start));
    }
}

/// Ends the session; the gesture continues and may start another one.
void EditSession::Private::commit()
{
    if (isReportable() && takeText()) {
        end(isNewInAnyCase || !EditSessionField::isSame(last, start));
    }
}

void EditSession::Private::end(bool isKept)
{
    if (!isActive) {
        return;
    }
    isActive = false;
    isNewInAnyCase = false;
    if (isKept) {
        // A copy: a slot may delete the session.
        const QVariant value = last;
        Q_EMIT q->committed(value);
    } else {
        cover->setShown(wasMulti);
        Q_EMIT q->cancelled();
    }
}

void EditSession::Private::cancel()
{
    if (isReporting) {
        ask(Request::Cancel);
        return;
    }
    if (!isReportable() || (!isActive && gesture == Gesture::None)) {
        return;
    }
    const QPointer<EditSession> self(q);
    const QVariant old = isActive ? start : access.read();
    ++holds;
    letGo();
    if (self) {
        access.write(old);
    }
    if (self) {
        --holds;
        refused.clear();
        last = access.read();
        cover->coverTexts();
        end(false);
    }
}

class EditSession::Refresh::Private
{
public:
    QVector<QPointer<EditSession>> sessions;
};

EditSession::Refresh::Refresh(QWidget* panel)
    : d(std::make_unique<Private>())
{
    const auto sessions = panel->findChildren<EditSession*>();
    for (EditSession* session : sessions) {
        d->sessions.append(session);
    }
    for (const QPointer<EditSession>& session : qAsConst(d->sessions)) {
        if (session) {
            session->d->commit();
        }
        if (session) {
            ++session->d->holds;
        }
    }
}

EditSession::Refresh::~Refresh()
{
    for (const QPointer<EditSession>& session : qAsConst(d->sessions)) {
        if (session && --session->d->holds == 0) {
            session->d->last = session->value();
        }
    }
}

EditSession::EditSession(QWidget* field)
    : QObject(field)
    , d(std::make_unique<Private>(this, field))
{
    if (d->access.read) {
        d->last = d->access.read();
        d->start = d->last;
        d->watchParts();
        d->watchPicks();
    }
}

EditSession::~EditSession()
{
    if (d->isAlive()) {
        d->cover->setShown(false);
    }
}

QWidget* EditSession::field() const
{
    return d->field;
}

QVariant EditSession::value() const
{
    return d->access.read ? d->access.read() : QVariant();
}

void EditSession::setValue(const QVariant& value)
{
    const QPointer<EditSession> self(this);
    const Refresh refresh(d->field);
    if (self && d->access.write) {
        d->access.write(value);
    }
    if (self) {
        d->cover->setShown(false);
    }
}

bool EditSession::isSame(const QVariant& one, const QVariant& other)
{
    return EditSessionField::isSame(one, other);
}

QVariant EditSession::startValue() const
{
    return d->start;
}

bool EditSession::isActive() const
{
    return d->isActive;
}

bool EditSession::isMultiValue() const
{
    return d->cover->isShown();
}

void EditSession::setMultiValue(bool isMulti)
{
    const QPointer<EditSession> self(this);
    d->commit();
    if (!self || isMulti == isMultiValue()) {
        return;
    }
    d->cover->setShown(isMulti);
    if (isMulti && d->colorButton) {
        d->colorButton->setColor(std::nullopt);
        d->last = d->access.read();
    }
}

bool EditSession::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        d->mousePosition = static_cast<QMouseEvent*>(event)->pos();
        return false;
    }
    // Only the picker ends a pick.
    if (d->gesture == Private::Gesture::Pick || !d->isAlive()) {
        return false;
    }
    const QPointer<EditSession> self(this);
    const QPointer<QObject> receiver(watched);
    bool isTaken = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        d->pressMouse(watched, *static_cast<QMouseEvent*>(event));
        break;
    case QEvent::MouseButtonRelease:
        d->releaseMouse(*static_cast<QMouseEvent*>(event));
        break;
    case QEvent::ShortcutOverride:
        isTaken = d->overrideShortcut(watched, static_cast<QKeyEvent*>(event));
        break;
    case QEvent::KeyPress:
        isTaken = d->pressKey(watched, *static_cast<QKeyEvent*>(event));
        if (self && !isTaken) {
            d->chooseAtEnd(watched, event);
        }
        break;
    case QEvent::KeyRelease:
        d->releaseKey(*static_cast<QKeyEvent*>(event));
        break;
    case QEvent::InputMethod:
        d->beginText(watched);
        break;
    case QEvent::ContextMenu:
        // It may paste.
        if (d->cover->isShown()) {
            d->beginText(watched);
        }
        break;
    case QEvent::Drop:
        d->replaceText(watched);
        break;
    case QEvent::Wheel:
        d->turnWheel(watched, *static_cast<QWheelEvent*>(event));
        if (self) {
            d->chooseAtEnd(watched, event);
        }
        break;
    case QEvent::Leave:
        if (d->gesture == Private::Gesture::Wheel) {
            d->finish();
        }
        break;
    case QEvent::FocusOut:
        d->loseFocus(*static_cast<QFocusEvent*>(event));
        break;
    case QEvent::EnabledChange:
    case QEvent::Hide:
        if (d->isGone(watched, *event)) {
            d->finish();
        }
        break;
    default:
        break;
    }
    if (!receiver && event->type() == QEvent::Wheel) {
        // Qt sends it ignored, and asks a receiver that has not accepted it for its parent.
        event->accept();
    }
    return isTaken || !receiver;
}

void EditSession::commit()
{
    if (d->isReporting) {
        d->ask(Private::Request::Commit);
    } else {
        d->commit();
    }
}

void EditSession::cancel()
{
    d->cancel();
}
