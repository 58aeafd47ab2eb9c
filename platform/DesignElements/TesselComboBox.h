#pragma once

#include <DesignElements/DesignElementsExport.h>

class OvComboBox;

namespace Orvane::Tessel {

/**
 * Gives @p comboBox the look of the design system, in place.
 *
 * It sets the property "tessel" to true, which a sheet selects, gives the list an item delegate that
 * obeys `::item` rules, and gives the list's view the object name "tesselComboBoxView" unless it has a
 * name already:
 *
 *     OvComboBox[tessel="true"] { border: 1px solid #333333; }
 *     QAbstractItemView#tesselComboBoxView::item { min-height: 24px; }
 *
 * Items, index and signals stay as they are, and so does a delegate of the host's own. Calling it again
 * changes nothing, except for a view or a delegate that was replaced since; null does nothing.
 */
DESIGNELEMENTS_EXPORT void convertComboBoxToTessel(OvComboBox* comboBox);

} // namespace Orvane::Tessel
