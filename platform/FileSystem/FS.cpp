#include "FS.h"

#include <QFileInfo>

bool FS::exists(const QString& path)
{
    // Qt logs a warning for a NUL, which would blame the wrong place.
    return !path.contains(QChar::Null) && QFileInfo::exists(path);
}
