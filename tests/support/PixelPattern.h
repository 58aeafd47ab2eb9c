#pragma once

#include <QColor>
#include <QProcess>
#include <QRect>

/**
 * Another application, in a process of its own, whose window has another colour in every pixel: what a test
 * that picks from the screen compares with.
 *
 * It has no scale factor: places and sizes are in X's own pixels. It needs a desktop-session.
 */
class PixelPattern
{
public:
    enum class Window {
        /// Below all others, over as many screens as it is large: like a wallpaper.
        Backmost,
        /// The size of the screen on which it starts, as the window manager does it.
        FullScreen,
        /// As any application's, at its place.
        Ordinary,
    };

    /// The colour of the pixel at @p x and @p y of the X screen; both are less than 4,096.
    static QRgb colorAt(int x, int y);

    ~PixelPattern();

    /// Starts the application; true as soon as its picture is on the screen.
    bool show(const QRect& place, Window window = Window::Backmost);

    /// Makes the only one that is not backmost the active window, as a click on it in a task bar does.
    static bool activate();

    /// Gives it the keyboard without asking the window manager.
    static bool focus();

private:
    QProcess m_application;
};
