// Internal: how Pipette and its loupe read the screen.

#pragma once

#include <QColor>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

#include <optional>

class QScreen;

/**
 * Pixels of the screen around a point of the desktop, and what the pipette's own overlay does to them.
 */
namespace ScreenSample {

/// What the loupe magnifies: so many pixels of the desktop in each direction.
constexpr int loupePixels = 13;

/// What the pipette's windows cover the screens with: black, as thin as it can be. Without any colour a
/// window would let the mouse through.
QColor overlayColor();

/// Whether a translucent window shows what lies below it. An X server without a compositor shows its colours
/// as they are, here black.
bool areWindowsBlended();

/// The area of @p size around @p point on a screen at @p screen, relative to the screen.
QRect grabArea(const QPoint& point, const QSize& size, const QRect& screen);

/// Which pixel of a picture of @p size around @p point is the one that a picture of 1 by 1 would show.
/// @p ratio is how many pixels of the picture are one of the desktop; Qt rounds the corner of each picture
/// for itself, so that at 1.25 it is not always the same one.
QPoint centerPixel(const QPoint& point, const QSize& size, const QRect& screen, qreal ratio);

/// The picture of @p size around @p point. Null where the platform cannot or may not read the screen.
QPixmap grab(QScreen& screen, const QPoint& point, const QSize& size);

/// A screen as far as grabs know it.
struct ScreenArea
{
    QRect geometry; ///< of the desktop
    qreal ratio;    ///< physical pixels for one of the desktop, from the top-left corner on
};

/// The picture of an area that is not all of it on its screen, transparent where it is beyond all screens:
/// what an X server leaves there is arbitrary. @p screen is the index of the screen that was grabbed.
QPixmap withoutOutside(const QPixmap& picture, const QPoint& point, const QSize& size,
                       const QVector<ScreenArea>& screens, int screen);

/// @p seen as it is below the overlay, which takes one part in 255 away from each channel. Always opaque. A
/// channel that the overlay cannot have left behind (255) gives one brighter than white: QColor's extended
/// RGB, whose name() and rgb() are those of the nearest displayable colour.
QColor withoutOverlay(const QColor& seen);

/// The colour of the screen at @p point below the overlay; none where there is no picture.
std::optional<QColor> colorAt(QScreen& screen, const QPoint& point);

} // namespace ScreenSample
