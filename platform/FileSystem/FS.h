#pragma once

#include <FileSystem/FileSystemExport.h>

#include <QString>

/**
 * Queries to the file system.
 * @see FileUtil
 */
namespace FS {

/// Returns whether @p path exists: a file, a folder, a device, or an entry of the program's resources
/// (":/..."). Paths are those that QFile takes; relative ones start at the current folder, and URLs ("file:",
/// "qrc:") are not paths. Links are followed: one that leads nowhere, or in a circle, does not exist. Neither
/// does what the process may not see, the empty path, or a path with a NUL character. Each call reads the
/// disk.
FILESYSTEM_EXPORT bool exists(const QString& path);

} // namespace FS
