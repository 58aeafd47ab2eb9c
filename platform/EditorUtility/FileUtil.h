#pragma once

#include <EditorUtility/EditorUtilityExport.h>

#include <QFlags>
#include <QString>

/**
 * Functions that check the path of a folder that a user typed, before reading or writing there.
 *
 * Paths are local, in Qt's form with "/", absolute or relative to the current folder, and name folders.
 * Nothing is expanded ("~", variables), URLs and resources (":/...") are not paths here, and new lines,
 * markup and other characters are part of the names. A link counts as its target. What the process is not
 * allowed to see is missing for it.
 *
 * Every call reads the disk, which may be slow or asleep: do not call them for every key press.
 * @see FS::exists()
 */
namespace FileUtil {

/// What a process can do with a folder or file. The numbers are fixed.
enum Operation {
    Write = 1, ///< put files into a folder and take them out; change a file
    Read = 4,  ///< list a folder and open what is in it; read a file
};
Q_DECLARE_FLAGS(Operations, Operation)
Q_DECLARE_OPERATORS_FOR_FLAGS(Operations)

/**
 * Returns whether there is a folder at @p path or one could be created, by its form and by what is in the
 * way; permissions do not matter. Not valid are
 *
 * - the empty path and resources;
 * - a path with a NUL in it, or with characters that the file system's encoding cannot store;
 * - a path longer than 4,095 bytes in that encoding, or a name in it longer than 255;
 * - a path with a file, a device, a dangling link or the like in place of a folder, at its end
 *   or on the way.
 *
 * The same holds for a relative path. @p error, unless null, receives a translated message for the user
 * (context "FileUtil") when the path is not valid, and stays unchanged otherwise. The message quotes the path
 * unescaped: show it as plain text.
 */
EDITORUTILITY_EXPORT bool isPathValid(const QString& path, QString* error);

/**
 * Returns the folder at @p path or, where there is none, the nearest one above it, in which the missing rest
 * could be created. Files and links that lead nowhere count as missing.
 *
 * The result is an existing folder without "." parts, doubled or trailing slashes. ".." goes one folder up,
 * also from one that is missing ("/home/none/../x" is "/home/x" if that exists), and from the target of a
 * link. A relative path gives a relative one, "." for the current folder. A name on disk that is no valid
 * text in the file system's encoding cannot be written as a path: what is below it has the folder above it as
 * its closest path. The empty path and a resource give the empty string.
 */
EDITORUTILITY_EXPORT QString closestPath(const QString& path);

/**
 * Returns whether this process can do all of @p operations with the folder or file at @p path now, as the
 * system decides for its effective user and groups: mode bits, access lists, and read-only file systems
 * count, and so do an administrator's rights. A folder must be searchable too. Without operations, returns
 * whether the path exists. Returns false for the empty path, one that does not exist or is not valid in form,
 * and for operations other than those above.
 */
EDITORUTILITY_EXPORT bool isOperationAllowed(const QString& path, Operations operations);

} // namespace FileUtil
