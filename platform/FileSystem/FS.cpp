#include "FS.h"

#include <QFileInfo>

bool FS::exists(const QString& path)
{
    // Qt warns of a NUL, naming QFileInfo instead of the caller's path.
    return !path.contains(QChar::Null) && QFileInfo::exists(path);
}
