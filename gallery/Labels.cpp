#include "Labels.h"

#include <QApplication>
#include <QLabel>

void alignToLeadingEdge(QLabel* label)
{
    const Qt::Alignment edge = QApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    label->setAlignment(edge | Qt::AlignVCenter | Qt::AlignAbsolute);
}
