#pragma once

// Internal: which pixel WidgetColorPicker reads on a screen of any scale.

#include <QPoint>
#include <QPointF>

/// The part of a screen to grab for one of its pixels, as QScreen::grabWindow() wants it, and where that
/// pixel is in the picture.
struct DevicePixel
{
    /// The top left corner, in the screen's own coordinates.
    QPoint corner;
    /// The width and the height.
    int extent = 1;
    /// In pixels of the picture.
    QPoint index;
};

/// The pixel at @p position, a place in the coordinates of a screen with @p scale pixels a point. Mouse
/// events have a fraction where the mouse is between two points; QCursor::pos() rounds it.
DevicePixel devicePixelAt(const QPointF& position, double scale);
