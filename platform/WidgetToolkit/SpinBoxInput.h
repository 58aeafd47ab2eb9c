// Internal: the key handling of OvSpinBox and OvDoubleSpinBox.

#pragma once

class QKeyEvent;
class QLineEdit;

namespace SpinBoxInput {

/// True for Enter and Return.
bool isCommit(const QKeyEvent* event);

/// Emits what QAbstractSpinBox emits for a new value. Slots may delete @p box.
template <typename SpinBox>
void announceValue(SpinBox* box);

/// Tells readers of a turn of the wheel that has changed @p before, as Qt does after a key or a click.
template <typename SpinBox, typename Number>
void tellOfWheel(SpinBox* box, Number before);

/// Does what QAbstractSpinBox does on Enter, but emits valueChanged() only if the text changed the value, and
/// slots may delete @p box, a QSpinBox or QDoubleSpinBox. @p edit is its line edit.
template <typename SpinBox>
void commit(SpinBox* box, QLineEdit* edit, QKeyEvent* event);

} // namespace SpinBoxInput
