#include "SpinBoxInput.h"

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

bool SpinBoxInput::isCommit(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

void SpinBoxInput::commit(QAbstractSpinBox* box, QLineEdit* edit, QKeyEvent* event)
{
    const QPointer<QAbstractSpinBox> guard(box);
    const QPointer<QLineEdit> editGuard(edit);
    // Ignored, so that it goes on to the default button of a dialog.
    event->ignore();
    box->interpretText();
    if (!guard) {
        return;
    }
    box->selectAll();
    Q_EMIT box->editingFinished();
    if (editGuard) {
        Q_EMIT edit->returnPressed();
    }
    // A listener may have set another value, whose text is not selected.
    if (guard && box->hasFocus()) {
        box->selectAll();
    }
}
