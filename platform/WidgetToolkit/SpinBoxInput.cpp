#include "SpinBoxInput.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QSpinBox>

bool SpinBoxInput::isCommit(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

/// Emits in the order of QSpinBox, which would use the box after each signal.
template <typename SpinBox>
void SpinBoxInput::announceValue(SpinBox* box)
{
    const QPointer<SpinBox> self = box;
#if QT_DEPRECATED_SINCE(5, 14)
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    Q_EMIT box->valueChanged(box->text());
    QT_WARNING_POP
#endif
    if (self) {
        Q_EMIT box->textChanged(box->text());
    }
    if (self) {
        Q_EMIT box->valueChanged(box->value());
    }
}

void SpinBoxInput::tellReaders(QObject* box, const QVariant& value)
{
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(box, value);
        QAccessible::updateAccessibility(&event);
    }
}

template <typename SpinBox>
void SpinBoxInput::commit(SpinBox* box, QLineEdit* edit, QKeyEvent* event)
{
    const QPointer<SpinBox> self = box;
    const QPointer<QLineEdit> editGuard(edit);
    // Ignored, so that it reaches the default button of a dialog.
    event->ignore();
    const auto before = box->value();
    {
        const QSignalBlocker quiet(box);
        box->interpretText();
    }
    if (box->value() != before) {
        announceValue(box);
    }
    if (!self) {
        return;
    }
    box->selectAll();
    Q_EMIT box->editingFinished();
    if (editGuard) {
        Q_EMIT edit->returnPressed();
    }
    // A slot may have set another value, whose text is not selected.
    if (self && box->hasFocus()) {
        box->selectAll();
    }
}

template void SpinBoxInput::announceValue(QDoubleSpinBox*);
template void SpinBoxInput::commit(QSpinBox*, QLineEdit*, QKeyEvent*);
template void SpinBoxInput::commit(QDoubleSpinBox*, QLineEdit*, QKeyEvent*);
