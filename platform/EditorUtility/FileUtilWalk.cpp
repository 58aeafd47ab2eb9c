#include "FileUtilWalk.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int maxPathBytes = 4095; // PATH_MAX without the closing zero
constexpr int maxNameBytes = 255;

/// Compared in one normal form: some systems store names in another one.
bool isStorable(const QString& text)
{
    return !text.contains(QChar::Null) &&
           QFile::decodeName(QFile::encodeName(text)).normalized(QString::NormalizationForm_C) ==
               text.normalized(QString::NormalizationForm_C);
}

QString rootOf(const QString& path)
{
    if (path.startsWith(QLatin1Char('/'))) {
        return QString::fromLatin1("/");
    }
    // A path without a slash is absolute only where paths begin with a drive.
    return QDir::isAbsolutePath(path) ? path.left(path.indexOf(QLatin1Char(':')) + 1) + QLatin1Char('/')
                                      : QString();
}

QString below(const QString& folder, const QString& name)
{
    if (folder.isEmpty()) {
        // Qt would take a name that begins with a colon for a resource.
        return name.startsWith(QLatin1Char(':')) ? QLatin1String("./") + name : name;
    }
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

/// The parent of a folder that exists.
QString above(const QString& folder)
{
    const QString name = folder.section(QLatin1Char('/'), -1);
    const bool isRoot = name.isEmpty() && !folder.isEmpty();
    if (isRoot) {
        return folder;
    }
    // The parent of a link's target is not the parent of the link.
    if (folder.isEmpty() || name == QLatin1String("..") || QFileInfo(folder).isSymLink()) {
        return below(folder, QString::fromLatin1(".."));
    }
    const int slash = folder.size() - name.size() - 1;
    return slash < 0 ? QString() : folder.left(qMax(slash, rootOf(folder).size()));
}

} // namespace

FileUtilWalk::Form FileUtilWalk::form(const QString& path)
{
    if (path.isEmpty()) {
        return Form::Empty;
    }
    if (path.startsWith(QLatin1Char(':'))) {
        return Form::Resource;
    }
    if (!isStorable(path)) {
        return Form::NotStorable;
    }
    const QByteArray encoded = QFile::encodeName(path);
    const auto names = encoded.split('/');
    for (const QByteArray& name : names) {
        if (name.size() > maxNameBytes) {
            return Form::NameTooLong;
        }
    }
    return encoded.size() > maxPathBytes ? Form::PathTooLong : Form::Good;
}

FileUtilWalk::Result FileUtilWalk::walk(const QString& path)
{
    const QString root = rootOf(path);
    Result result;
    result.closest = root;
    int missing = 0; // parts below the closest folder
    const auto parts = path.mid(root.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part == QLatin1String(".")) {
            continue;
        }
        if (part == QLatin1String("..")) {
            if (missing > 0) {
                --missing;
            } else {
                result.closest = above(result.closest);
            }
            continue;
        }
        const QString next = below(result.closest, part);
        if (missing == 0 && isStorable(part)) {
            const QFileInfo entry(next);
            if (entry.isDir()) {
                result.closest = next;
                continue;
            }
            // Qt says that a dangling link does not exist, but no folder can be created in its place.
            result.isBlocked = result.isBlocked || entry.exists() || entry.isSymLink();
        }
        ++missing;
    }
    if (result.closest.isEmpty()) {
        result.closest = QString::fromLatin1(".");
    }
    return result;
}
