#pragma once

class LayoutController;
class QString;
class QVariant;
class QWidget;

namespace Util {

void applyProperty(QWidget* widget, const char* name, const QVariant& value);

/// The studio has no layout controllers: margins come from its own style. Always null.
LayoutController* installLayoutController(QWidget* widget);

} // namespace Util
