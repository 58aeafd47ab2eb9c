#include "FS.h"

#include <QFileInfo>

namespace {

QString& last()
{
    static QString path;
    return path;
}

} // namespace

bool FS::exists(const QString& path)
{
    last() = path;
    return QFileInfo::exists(path);
}

QString FS::lastAsked()
{
    return last();
}
