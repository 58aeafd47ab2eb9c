#pragma once

#include <QString>

/// The studio's files. It remembers what it was asked for.
namespace FS {

bool exists(const QString& path);
QString lastAsked();

} // namespace FS
