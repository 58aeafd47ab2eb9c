// Internal: the key handling of OvSpinBox and OvDoubleSpinBox.

#pragma once

class QKeyEvent;
class QLineEdit;

namespace SpinBoxInput {

/// True for Enter and Return.
bool isCommit(const QKeyEvent* event);

/// Does what QAbstractSpinBox does on Enter, but emits valueChanged() only if the text changed the value, and
/// slots may delete @p box, a QSpinBox or QDoubleSpinBox. @p edit is its line edit.
template <typename SpinBox>
void commit(SpinBox* box, QLineEdit* edit, QKeyEvent* event);

} // namespace SpinBoxInput
