#pragma once

#include <QStringList>

/**
 * What a program that shows gallery pages, the gallery itself or a test, does once after its QApplication.
 */
namespace GalleryApplication {

/// Makes style sheets, translations and pictures available and sets the base style.
void prepare();

/// Starts a gallery of its own process with @p arguments at @p scale. False when it did not start.
bool startAtScale(double scale, const QStringList& arguments);

} // namespace GalleryApplication
