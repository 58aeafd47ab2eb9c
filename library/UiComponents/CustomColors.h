#pragma once

#include <UiComponents/UiComponentsExport.h>

class QString;

namespace Util {

/**
 * Adds a colour to the user's own, which Settings::userCustomColors() keeps with the newest first.
 *
 * False, and nothing is written, when @p colorName
 * - means a colour of the panel's fixed palette, in whatever way it is written: "#ff0000", "#FF0000" and
 *   "red" are the same colour;
 * - is in the list already, as the same text: "#ABCDEF" and "#abcdef" are two entries. The list keeps its
 *   order.
 *
 * Otherwise the name becomes the first entry, as it is written, the whole list is stored, and the result
 * is true. Names by custom look as QColor::name() gives them, without alpha; a name that is no colour is
 * stored too.
 *
 * A list of eight or more first loses its last entry, the oldest, and only that one: eight are kept, and
 * a longer list that somebody else wrote keeps its length.
 *
 * Nothing is reported when the store cannot be written; see Settings. Read and write are two steps, so two
 * processes may overwrite each other's colour. For the GUI thread only.
 */
UICOMPONENTS_EXPORT bool appendCustomColor(const QString& colorName);

} // namespace Util
