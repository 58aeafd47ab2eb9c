#pragma once

#include <QFlags>
#include <QString>

/// The studio's folders are all on one server, which takes every name.
namespace FileUtil {

enum Operation { Write = 1, Read = 4 };
Q_DECLARE_FLAGS(Operations, Operation)
Q_DECLARE_OPERATORS_FOR_FLAGS(Operations)

bool isPathValid(const QString& path, QString* error);
QString closestPath(const QString& path);
bool isOperationAllowed(const QString& path, Operations operations);

} // namespace FileUtil
