#include "LoupePlacement.h"

LoupePlacement::Placement LoupePlacement::placementAt(const QPoint& cursor, const QRect& screen,
                                                      const QSize& loupe)
{
    const QRect inner = screen.adjusted(loupe.width(), loupe.height(), -loupe.width(), -loupe.height());
    const bool isFarRight = cursor.x() > inner.right();
    if (cursor.y() >= inner.top()) {
        return isFarRight ? AboveLeft : AboveRight;
    }
    return isFarRight ? BelowLeft : BelowRight;
}

QSize LoupePlacement::offset(int placement, const QSize& loupe)
{
    switch (placement) {
    case BelowLeft:
        return {-loupe.width(), 0};
    case AboveLeft:
        return {-loupe.width(), -loupe.height()};
    case AboveRight:
        return {0, -loupe.height()};
    default:
        return {0, 0};
    }
}
