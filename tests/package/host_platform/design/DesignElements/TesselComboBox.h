#pragma once

class OvComboBox;

namespace Orvane::Tessel {

/// The studio's look for combo boxes is a box without a frame.
void convertComboBoxToTessel(OvComboBox* comboBox);

} // namespace Orvane::Tessel
