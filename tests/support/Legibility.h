#pragma once

#include <QRgb>
#include <QStringList>

class QWidget;

/**
 * What everybody can see of a window: texts, borders, marks, the focus, and whether what is clicked is large
 * enough.
 */
namespace Legibility {

/// Of WCAG 2, from 1 (the same) to 21 (black and white).
double contrast(QRgb one, QRgb other);

/// Without a sheet, borders, sizes and most marks are those of Qt's style.
QStringList failures(QWidget* window, bool hasSheet = true);

/// Those that do not show the keyboard's focus.
QStringList focusFailures(QWidget* window);

} // namespace Legibility
