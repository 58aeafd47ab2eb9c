#include "QmlWindowFocusWorkaround.h"

#include <QVariant>
#include <QWidget>

void Orvane::Util::ApplyQmlWindowFocusWorkaround(QWidget* dialog, QWidget* qmlHost)
{
    dialog->setProperty("studioKeepsFocus", qmlHost != nullptr);
}
