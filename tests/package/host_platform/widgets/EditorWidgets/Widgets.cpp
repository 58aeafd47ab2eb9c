#include "ColorHint.h"
#include "Workaround.h"

#include <QWidget>

void ColorHint::applyColorHint(QWidget* widget, const QString& hint)
{
    widget->setWhatsThis(hint);
}

void Workaround::Ui::apply(QWidget*) {}
