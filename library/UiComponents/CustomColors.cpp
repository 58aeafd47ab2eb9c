#include "CustomColors.h"

#include "ColorPalette.h"

#include <Settings/Settings.h>

bool Util::appendCustomColor(const QString& colorName)
{
    if (ColorPalette::contains(QColor(colorName))) {
        return false;
    }
    QStringList names = Settings::userCustomColors();
    if (names.contains(colorName, Qt::CaseSensitive)) {
        return false;
    }
    if (names.size() >= ColorPalette::maxOwnColors) {
        names.removeLast();
    }
    names.prepend(colorName);
    Settings::setUserCustomColors(names);
    return true;
}
