#pragma once

#include <DesignElements/DesignElementsExport.h>

class OvComboBox;

namespace Orvane::Tessel {

/**
 * Gives @p comboBox the look of the design system.
 *
 * Sets the property "tessel" to true, which a sheet selects, gives the list an item delegate that follows
 * `::item` rules, and names the list's view "tesselComboBoxView" unless it has a name:
 *
 *     OvComboBox[tessel="true"] { border: 1px solid #333333; }
 *     QAbstractItemView#tesselComboBoxView::item { min-height: 24px; }
 *
 * Items, index, signals and a delegate of the host's own stay. A second call changes only a view or a
 * delegate that was replaced meanwhile; null does nothing.
 * @see OvComboBox
 */
DESIGNELEMENTS_EXPORT void convertComboBoxToTessel(OvComboBox* comboBox);

} // namespace Orvane::Tessel
