#include "Workaround.h"

#include "UiWorkaround.h"

#include <QWidget>

void Workaround::Ui::apply(QWidget* widget)
{
    if (!widget || widget->findChild<UiWorkaround*>(QString(), Qt::FindDirectChildrenOnly)) {
        return;
    }
    new UiWorkaround(widget);
}
