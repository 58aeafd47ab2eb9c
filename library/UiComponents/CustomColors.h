#pragma once

#include <UiComponents/UiComponentsExport.h>

class QString;

namespace Util {

/**
 * Adds a colour to the user's own, which Settings::userCustomColors() keeps with the newest first.
 *
 * Returns false, and writes nothing, when @p colorName
 * - is a colour of ColorPickerWidget's palette, however it is written: "#ff0000", "#FF0000" and "red" are one
 *   colour;
 * - is in the list already as the same text: "#ABCDEF" and "#abcdef" are two entries.
 *
 * Otherwise stores the list with the name as its first entry, as written, and returns true. Names usually are
 * QColor::name()'s, without alpha; a name that is no colour is stored too. A list of eight or more loses its
 * last entry, the oldest, and only that one: a longer list that somebody else wrote keeps its length.
 *
 * Nothing is reported when the store cannot be written (see Settings). Read and write are two steps, so two
 * processes may overwrite each other's colour. For the GUI thread only.
 * @see ColorPickerWidget, Settings
 */
UICOMPONENTS_EXPORT bool appendCustomColor(const QString& colorName);

} // namespace Util
