#include "OvSpinBox.h"

#include "SpinBoxInput.h"

#include <QWheelEvent>

OvSpinBox::OvSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

OvSpinBox::~OvSpinBox() = default;

void OvSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (SpinBoxInput::isCommit(event)) {
        SpinBoxInput::commit<QSpinBox>(this, lineEdit(), event);
    } else {
        QSpinBox::keyPressEvent(event);
    }
}

void OvSpinBox::wheelEvent(QWheelEvent* event)
{
    SpinBoxInput::turnWheel(this, event, [this, event] { QSpinBox::wheelEvent(event); });
}
