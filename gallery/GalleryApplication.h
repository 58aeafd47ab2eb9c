#pragma once

#include <QStringList>

/**
 * The start of a program that shows gallery pages: the gallery itself or a test.
 */
namespace GalleryApplication {

/// Makes style sheets, translations and pictures available and sets the base style. Call it once, after
/// the QApplication is made.
void prepare();

/// Starts a second process of the gallery with @p arguments at @p scale. Returns false when that fails.
bool startAtScale(double scale, const QStringList& arguments);

} // namespace GalleryApplication
