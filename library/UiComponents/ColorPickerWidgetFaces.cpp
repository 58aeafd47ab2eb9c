#include "ColorPickerWidgetFaces.h"

#include <QColor>
#include <QWidget>

QString ColorPickerWidgetFaces::styleSheet(const QColor& color)
{
    return QString::fromLatin1("background-color: %1;")
        .arg(color.isValid() ? color.name() : QString::fromLatin1("transparent"));
}

void ColorPickerWidgetFaces::paint(QWidget* widget, const QColor& color)
{
    const QString sheet = styleSheet(color);
    if (widget->styleSheet() != sheet) {
        widget->setStyleSheet(sheet);
    }
}
