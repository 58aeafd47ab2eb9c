#pragma once

class LayoutController;
class QAbstractSlider;
class QSpinBox;
class QString;
class QVariant;
class QWidget;

namespace Util {

void applyProperty(QWidget* widget, const char* name, const QVariant& value);

/// The studio has no layout controllers: margins come from its own style. Always null.
LayoutController* installLayoutController(QWidget* widget);

void bindWidgets(QAbstractSlider* slider, QSpinBox* spinBox);

} // namespace Util
