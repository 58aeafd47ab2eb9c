#include "ColorHint.h"
#include "Workaround.h"

#include <QVariant>
#include <QWidget>

void ColorHint::applyColorHint(QWidget* widget, const QString& hint)
{
    widget->setProperty(hint.toLatin1().constData(), true);
}

void Workaround::Ui::apply(QWidget*) {}
