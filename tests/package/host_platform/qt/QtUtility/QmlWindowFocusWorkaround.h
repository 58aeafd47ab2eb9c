#pragma once

class QWidget;

namespace Orvane::Util {

/// The studio's own, which marks the dialog with the property "studioKeepsFocus".
void ApplyQmlWindowFocusWorkaround(QWidget* dialog, QWidget* qmlHost);

} // namespace Orvane::Util
