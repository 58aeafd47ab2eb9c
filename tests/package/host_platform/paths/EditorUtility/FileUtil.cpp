#include "FileUtil.h"

bool FileUtil::isPathValid(const QString& path, QString* error)
{
    const bool isValid = !path.isEmpty();
    if (!isValid && error) {
        *error = QStringLiteral("The studio wants a folder");
    }
    return isValid;
}

QString FileUtil::closestPath(const QString& path)
{
    return path;
}

bool FileUtil::isOperationAllowed(const QString&, Operations)
{
    return true;
}
