#include "OvComboBoxPopup.h"

QRect OvComboBoxPopup::widened(const QRect& popup, int width, const QRect& box, Qt::LayoutDirection direction,
                               const QRect& screen)
{
    QRect result = popup;
    result.setSize(popup.size().expandedTo(QSize(width, 0)).boundedTo(screen.size()));
    if (direction == Qt::RightToLeft) {
        result.moveRight(box.right());
    }
    result.moveLeft(qBound(screen.left(), result.left(), screen.left() + screen.width() - result.width()));
    result.moveTop(qBound(screen.top(), result.top(), screen.top() + screen.height() - result.height()));
    return result;
}
