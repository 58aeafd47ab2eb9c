// Internal: how FileUtil follows a path.

#pragma once

#include <QString>

namespace FileUtilWalk {

/// The form of a path, without a look at the disk.
enum class Form {
    Good,
    Empty,
    Resource,
    NotStorable, ///< a NUL, or characters outside the file system's encoding
    PathTooLong,
    NameTooLong,
};
Form form(const QString& path);

struct Result
{
    QString closest;        ///< the nearest existing folder, clean
    bool isBlocked = false; ///< a file or a dangling link is in the way
};

/// Follows @p path on disk, part by part. A part that cannot be stored counts as missing.
Result walk(const QString& path);

} // namespace FileUtilWalk
