#pragma once

#include <QString>

class LayoutController;
class OvDoubleSlider;
class QAbstractSlider;
class QDoubleSpinBox;
class QSpinBox;
class QVariant;
class QWidget;

namespace Util {

void repolishWidget(QWidget* widget);
void applyStyleHint(QWidget* widget, const QString& hint);
void applyProperty(QWidget* widget, const char* name, const QVariant& value);
void applyStyleHint(QWidget* widget, const QString& hint);

/// The studio has no layout controllers: margins come from its own style. Always null.
LayoutController* installLayoutController(QWidget* widget);

void bindWidgets(QAbstractSlider* slider, QSpinBox* spinBox);
void bindWidgets(OvDoubleSlider* slider, QDoubleSpinBox* spinBox);

namespace Details {

QString removeClassMemberPrefix(const char* memberName);

} // namespace Details

} // namespace Util
