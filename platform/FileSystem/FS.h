#pragma once

#include <FileSystem/FileSystemExport.h>

#include <QString>

/**
 * Questions to the file system.
 */
namespace FS {

/// Whether there is something at @p path: a file, a folder, a device, or an entry of the program's
/// resources (":/..."). Paths are those that QFile takes, so what exists here can be opened there;
/// relative ones start at the current folder, and URLs ("file:", "qrc:") are not paths. Links are
/// followed: one that leads nowhere, or in a circle, does not exist. What the process may not look at
/// does not exist for it either. The empty path, and one with a NUL character in it, do not exist.
/// Nothing is kept: each call asks the disk.
FILESYSTEM_EXPORT bool exists(const QString& path);

} // namespace FS
