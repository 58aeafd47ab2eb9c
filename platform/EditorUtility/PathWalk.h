// Internal: how FileUtil takes a path apart.
#pragma once

#include <QString>

namespace PathWalk {

/// What is wrong with the form of a path, before the disk is asked.
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
    bool isBlocked = false; ///< something that is no folder, maybe a link to nowhere, stands on the way
};

/// Follows @p path on disk, part by part. A part that cannot be stored is missing.
Result walk(const QString& path);

} // namespace PathWalk
