#include "FileUtil.h"

#include "FileUtilWalk.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

class Messages
{
    Q_DECLARE_TR_FUNCTIONS(FileUtil)

public:
    /// What is wrong with @p path, in whose place is a "%1"; empty where nothing is.
    static QString about(const QString& path)
    {
        switch (FileUtilWalk::form(path)) {
        case FileUtilWalk::Form::Empty:
            return tr("No path is given");
        case FileUtilWalk::Form::Resource:
            return tr("Not a path on a disk: %1");
        case FileUtilWalk::Form::NotStorable:
            return tr("The path has characters that names on this disk cannot have: %1");
        case FileUtilWalk::Form::PathTooLong:
            return tr("The path is too long: %1");
        case FileUtilWalk::Form::NameTooLong:
            return tr("A name in the path is too long: %1");
        case FileUtilWalk::Form::Good:
            break;
        }
        return FileUtilWalk::walk(path).isBlocked ? tr("There is something else in the place of a folder: %1")
                                                  : QString();
    }
};

} // namespace

bool FileUtil::isPathValid(const QString& path, QString* error)
{
    QString message = Messages::about(path);
    const bool isValid = message.isEmpty();
    if (error && !isValid) {
        *error = message.replace(QLatin1String("%1"), path);
    }
    return isValid;
}

QString FileUtil::closestPath(const QString& path)
{
    const FileUtilWalk::Form form = FileUtilWalk::form(path);
    if (form == FileUtilWalk::Form::Empty || form == FileUtilWalk::Form::Resource) {
        return {};
    }
    return FileUtilWalk::walk(path).closest;
}

bool FileUtil::isOperationAllowed(const QString& path, Operations operations)
{
    const Operations known = Read | Write;
    if (FileUtilWalk::form(path) != FileUtilWalk::Form::Good || (operations & ~known) != 0) {
        return false;
    }
    const QFileInfo entry(path);
    if (!entry.exists()) {
        return false;
    }
    if (operations == 0) {
        return true;
    }
#ifdef Q_OS_UNIX
    // QFileInfo answers for the real user, not the effective one.
    const int mode = (operations.testFlag(Read) ? R_OK : 0) | (operations.testFlag(Write) ? W_OK : 0) |
                     (entry.isDir() ? X_OK : 0);
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), mode, AT_EACCESS) == 0;
#else
    return (!operations.testFlag(Read) || entry.isReadable()) &&
           (!operations.testFlag(Write) || entry.isWritable());
#endif
}
