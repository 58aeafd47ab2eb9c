// Internal: the input habits that OvSpinBox and OvDoubleSpinBox share.

#pragma once

class QKeyEvent;
class QLineEdit;

namespace SpinBoxInput {

/// True for Enter and Return.
bool isCommit(const QKeyEvent* event);

/// Does what QAbstractSpinBox does on Enter, with two differences: the value is announced only if the
/// text changed it, and @p box, a QSpinBox or QDoubleSpinBox, may be deleted by any listener. @p edit is
/// its line edit.
template <typename SpinBox>
void commit(SpinBox* box, QLineEdit* edit, QKeyEvent* event);

} // namespace SpinBoxInput
