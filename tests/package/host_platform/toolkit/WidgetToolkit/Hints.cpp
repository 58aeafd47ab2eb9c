#include "Util.h"

#include <QVariant>

void Util::applyStyleHint(QWidget* widget, const QString& hint)
{
    applyProperty(widget, "studioHint", hint);
}
