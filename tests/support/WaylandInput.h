#pragma once

#include <QColor>
#include <QPoint>
#include <QString>

class QWidget;

/**
 * How RealInput moves the mouse, types and looks in a desktop-session of Wayland: with a pointer that the
 * compositor makes for it (wlr-virtual-pointer-unstable-v1), with wtype, and with grim. No program knows
 * there where its windows are, so the compositor is asked: places are pixels of its one screen.
 */
namespace WaylandInput {

bool isRunning();

/// Where @p point of @p widget is. (-1, -1) when the compositor does not show its window.
QPoint placeOf(const QWidget* widget, const QPoint& point);

bool moveTo(const QPoint& place);
bool pressButton(bool down);
bool turnWheel(int notches);
bool type(const QString& text);
bool key(const QString& name);

/// By which protocol the program of the process @p pid has its window, "xdg_shell" on Wayland itself or
/// "xwayland". Empty when the compositor shows none.
QString shellOf(qint64 pid);

QColor pixel(const QPoint& place);
bool saveScreenshot(const QString& fileName);

} // namespace WaylandInput
