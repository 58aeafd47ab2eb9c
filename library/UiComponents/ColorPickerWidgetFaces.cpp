#include "ColorPickerWidgetFaces.h"

#include <QColor>
#include <QWidget>

QString ColorPickerWidgetFaces::styleSheet(const QColor& color)
{
    return QStringLiteral("background-color: %1;")
        .arg(color.isValid() ? color.name() : QStringLiteral("transparent"));
}

void ColorPickerWidgetFaces::paint(QWidget* widget, const QColor& color)
{
    const QString sheet = styleSheet(color);
    if (widget->styleSheet() != sheet) {
        widget->setStyleSheet(sheet);
    }
}
