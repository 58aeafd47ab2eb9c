#include "Labels.h"

#include <QApplication>

QLabel* makeLabel(const char* name, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    const Qt::Alignment edge = QApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    label->setAlignment(edge | Qt::AlignVCenter | Qt::AlignAbsolute);
    return label;
}
