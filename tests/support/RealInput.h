#pragma once

#include <QColor>
#include <QPoint>
#include <QString>
#include <Qt>

class QWidget;

/**
 * A user's mouse, keyboard and eyes for tests that run in desktop-session: input goes through the X server
 * and the window manager or the compositor of Wayland, as real input does, and pixels are read from the
 * screen.
 *
 * Points are in the coordinates of the widget that is given with them, whatever the scale of its screen.
 * Events arrive through the event loop: wait for their effect with QTRY_*.
 */
namespace RealInput {

/// Shows @p window and waits until the window manager has made it the active one.
bool showAndActivate(QWidget* window);

/// Moves the mouse there and waits until Qt sees it there. False when it does not arrive.
bool moveTo(const QWidget* widget, const QPoint& point);

/// Moves to @p point, or to the widget's middle, and clicks.
bool click(const QWidget* widget, const QPoint& point);
bool click(const QWidget* widget);

/// Clicks, and waits for the click and the keyboard: the window manager may hand a click on later than a key.
bool clickInto(const QWidget* widget);

/// Presses the left button at @p from, moves to @p to in small steps, and lets go.
bool drag(const QWidget* widget, const QPoint& from, const QPoint& to);

/// Turns the wheel over @p point by @p notches, away from the user when positive.
bool wheel(const QWidget* widget, const QPoint& point, int notches);

/// Types @p text into whatever has the keyboard.
bool type(const QString& text);

/// Presses and releases a key or a chord under its X name: "Escape", "ctrl+a".
bool key(const QString& name);

/// Has X's tool for input run @p commands, with a space between any two words. Not on Wayland.
bool xdotool(const QString& commands);

/// What the screen shows at @p point, after all windows were composed. Invalid outside of all screens.
QColor pixel(const QWidget* widget, const QPoint& point);

/// Saves the whole primary screen as <name>.png in the folder UIC_SCREENSHOTS, which the build sets, or with
/// the temporary files.
bool saveScreenshot(const QString& name);

} // namespace RealInput
