#include "Settings.h"

namespace {

QStringList& colors()
{
    static QStringList names;
    return names;
}

} // namespace

QStringList Settings::userCustomColors()
{
    return colors();
}

void Settings::setUserCustomColors(const QStringList& names)
{
    colors() = names;
}
