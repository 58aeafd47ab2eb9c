#pragma once

#include <QStringList>

/// What the studio remembers, until it ends.
class Settings
{
public:
    static QStringList userCustomColors();
    static void setUserCustomColors(const QStringList& names);
};
