#pragma once

#include <QPoint>
#include <QRect>
#include <QStringList>

class QScreen;

/// Screens in the X server's own pixels. Qt scales the size of a screen, and leaves its corner where it is.
namespace NativeScreens {

/// The pixel that Qt's global @p point is the top left of; the same numbers beside all screens.
QPoint pixelAt(const QPoint& point);

QRect geometry(const QScreen* screen);

/// All screens together.
QRect desktop();

/// Plugs in, moves and removes the screens of a desktop-session.
bool xrandr(const QStringList& arguments);

} // namespace NativeScreens
