#pragma once

#include <EditorUtility/EditorUtilityExport.h>

#include <QFlags>
#include <QString>

/**
 * What an editor asks about a folder's path that a user typed, before it reads or writes there.
 *
 * Paths are local, in Qt's form with "/", absolute or relative to the current folder, and name folders.
 * Nothing is expanded ("~", variables), URLs and resources (":/...") are not paths here, and new lines,
 * markup and other odd characters are part of the names. A link counts as what it leads to. What the
 * process is not allowed to see is missing for it.
 *
 * Every call asks the disk anew, and a slow or sleeping disk takes its time: do not call from code that
 * runs at every key press.
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
 * Whether @p path is one at which there is a folder or one could be made, going by its form and by what
 * stands in the way; permissions do not matter here. Not valid are
 *
 * - the empty path and resources;
 * - a path with a NUL in it, or with characters that the file system's encoding cannot store;
 * - a path longer than 4,095 bytes in that encoding, or a name in it longer than 255;
 * - a path with a file, a device, a link that leads nowhere or the like in place of a folder, at its end
 *   or on the way.
 *
 * A relative path is valid on the same terms. @p error, unless it is null, receives a translated message
 * for the user (context "FileUtil") when the path is not valid, and is left as it is otherwise. The
 * message is plain text and holds the path as it stands: show it as such, never as markup.
 */
EDITORUTILITY_EXPORT bool isPathValid(const QString& path, QString* error);

/**
 * The folder that is at @p path or, where there is none, the nearest one above it: the folder in which
 * the missing rest could be made. Files and links that lead nowhere are skipped as if they were missing.
 *
 * The result is an existing folder without "." parts, doubled or closing slashes. ".." goes one folder
 * up, also from one that is missing ("/home/none/../x" is "/home/x" if that exists), and from a link to
 * where the link leads. A relative path gives a relative one, "." when it comes down to the current
 * folder. A name on disk that is no valid text in the file system's encoding cannot be written as a
 * path, so what is below it has the folder above it as its closest path. The empty path and a resource
 * give the empty string.
 */
EDITORUTILITY_EXPORT QString closestPath(const QString& path);

/**
 * Whether this process can do all of @p operations with the folder or file that exists at @p path now,
 * as the system decides for the process's effective user and groups: mode bits, access lists, and read-
 * only file systems count, and an administrator is allowed what the system lets an administrator do. A
 * folder must be searchable too, as nothing in it can be reached otherwise. With no operation the answer
 * is whether the path exists. Nothing is allowed for the empty path, for one that does not exist or is
 * not valid in form, and for operations other than those above.
 */
EDITORUTILITY_EXPORT bool isOperationAllowed(const QString& path, Operations operations);

} // namespace FileUtil
