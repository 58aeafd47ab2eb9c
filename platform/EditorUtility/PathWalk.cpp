#include "PathWalk.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int longestPath = 4095; // the system's 4096 include the closing zero
constexpr int longestName = 255;

// Compared in one normal form, because some systems store names in another one than they are given.
bool isStorable(const QString& text)
{
    return !text.contains(QChar::Null) &&
           QFile::decodeName(QFile::encodeName(text)).normalized(QString::NormalizationForm_C) ==
               text.normalized(QString::NormalizationForm_C);
}

QString rootOf(const QString& path)
{
    if (path.startsWith(QLatin1Char('/'))) {
        return QStringLiteral("/");
    }
    // Only where paths begin with a drive is one without a slash absolute.
    return QDir::isAbsolutePath(path) ? path.left(path.indexOf(QLatin1Char(':')) + 1) + QLatin1Char('/')
                                      : QString();
}

QString below(const QString& folder, const QString& name)
{
    if (folder.isEmpty()) {
        // By itself, a name with a colon in front would be a resource to Qt.
        return name.startsWith(QLatin1Char(':')) ? QLatin1String("./") + name : name;
    }
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

// The folder above one that exists.
QString above(const QString& folder)
{
    const QString name = folder.section(QLatin1Char('/'), -1);
    const bool isRoot = name.isEmpty() && !folder.isEmpty();
    if (isRoot) {
        return folder;
    }
    // What is above the target of a link is not what is above the link.
    if (folder.isEmpty() || name == QLatin1String("..") || QFileInfo(folder).isSymLink()) {
        return below(folder, QStringLiteral(".."));
    }
    const int slash = folder.size() - name.size() - 1;
    return slash < 0 ? QString() : folder.left(qMax(slash, rootOf(folder).size()));
}

} // namespace

PathWalk::Form PathWalk::form(const QString& path)
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
        if (name.size() > longestName) {
            return Form::NameTooLong;
        }
    }
    return encoded.size() > longestPath ? Form::PathTooLong : Form::Good;
}

PathWalk::Result PathWalk::walk(const QString& path)
{
    const QString root = rootOf(path);
    Result result;
    result.closest = root;
    int missing = 0; // how many parts of the way are below the closest folder
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
            // A link that leads nowhere does not exist for Qt, and no folder can be made in its place.
            result.isBlocked = result.isBlocked || entry.exists() || entry.isSymLink();
        }
        ++missing;
    }
    if (result.closest.isEmpty()) {
        result.closest = QStringLiteral(".");
    }
    return result;
}
