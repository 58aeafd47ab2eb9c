#include "ColorFaces.h"

#include <QColor>
#include <QToolButton>

QString ColorFaces::styleSheet(const QColor& color)
{
    return QStringLiteral("background-color: %1;")
        .arg(color.isValid() ? color.name() : QStringLiteral("transparent"));
}

void ColorFaces::paint(QWidget* face, const QColor& color)
{
    const QString sheet = styleSheet(color);
    if (face->styleSheet() != sheet) {
        face->setStyleSheet(sheet);
    }
}

QToolButton* ColorFaces::makeButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setCheckable(true);
    return button;
}
