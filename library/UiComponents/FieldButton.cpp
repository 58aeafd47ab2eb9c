#include "FieldButton.h"

void FieldButton::mouseReleaseEvent(QMouseEvent* event)
{
    // QToolButton would then write into itself to forget which of its parts was pressed, which only a
    // split button ever asks.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractButton::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
}
