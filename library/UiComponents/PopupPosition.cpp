#include "PopupPosition.h"

#include "SelectorPlacement.h"

#include <QWidget>

namespace {

// Between the field and the pop-up.
constexpr int Gap = 6;

} // namespace

QPoint popupPosition(const QRect& field, const QSize& size, const QRect& screen,
                     Qt::LayoutDirection direction)
{
    const bool isRightToLeft = direction == Qt::RightToLeft;
    const int x = isRightToLeft ? field.x() + field.width() - size.width() : field.x();
    const int below = field.y() + field.height() + Gap;
    const bool hasRoomBelow = below + size.height() <= screen.y() + screen.height();
    const int y = hasRoomBelow ? below : field.y() - Gap - size.height();
    const int lastX = qMax(screen.x(), screen.x() + screen.width() - size.width());
    const int lastY = qMax(screen.y(), screen.y() + screen.height() - size.height());
    return {qBound(screen.x(), x, lastX), qBound(screen.y(), y, lastY)};
}

QPoint popupPosition(const QWidget* field, const QSize& size)
{
    const QRect area(field->mapToGlobal(QPoint()), field->size());
    return popupPosition(area, size, SelectorPlacement::areaFor(*field), field->layoutDirection());
}
