// Internal: the key handling of OvSpinBox and OvDoubleSpinBox.

#pragma once

#include <QPointer>
#include <QVariant>
#include <QWheelEvent>

class QKeyEvent;
class QLineEdit;

namespace SpinBoxInput {

/// True for Enter and Return.
bool isCommit(const QKeyEvent* event);

/// Emits what QAbstractSpinBox emits for a new value. Slots may delete @p box.
template <typename SpinBox>
void announceValue(SpinBox* box);

/// Sends a ValueChanged event, as Qt does after a key or a click.
void tellReaders(QObject* box, const QVariant& value);

/// Calls @p turn, Qt's handler of the wheel, for a @p box with the focus, and sends a ValueChanged event for
/// a change. Slots may delete an OvDoubleSpinBox.
template <typename SpinBox, typename Turn>
void turnWheel(SpinBox* box, QWheelEvent* event, Turn turn)
{
    if (!box->hasFocus()) {
        event->ignore();
        return;
    }
    const auto before = box->value();
    const QPointer<SpinBox> self = box;
    turn();
    if (self && box->value() != before) {
        tellReaders(box, box->value());
    }
}

/// Does what QAbstractSpinBox does on Enter, but emits valueChanged() only if the text changed the value, and
/// slots may delete @p box, a QSpinBox or QDoubleSpinBox. @p edit is its line edit.
template <typename SpinBox>
void commit(SpinBox* box, QLineEdit* edit, QKeyEvent* event);

} // namespace SpinBoxInput
