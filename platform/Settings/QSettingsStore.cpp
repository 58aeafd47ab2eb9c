#include "QSettingsStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <algorithm>
#include <memory>

namespace {

// QSettings takes a larger one for an empty one, which it then writes over, or for all of the memory.
constexpr qint64 maxFileSize = qint64(64) * 1024 * 1024;

/// The files of the application and of its organisation, the user's own first. Found without opening
/// them: a QSettings would block on a pipe. Their paths are derived from those of an organisation that does
/// not exist.
QStringList filesOf(const QString& organization, const QString& application, QSettings::Format format)
{
    const QString nobody = QString::fromLatin1("no-organization");
    QStringList folders;
    QString own;
    QString shared;
    for (const QSettings::Scope scope : {QSettings::SystemScope, QSettings::UserScope}) {
        own = QSettings(format, scope, nobody, application).fileName();
        shared = QSettings(format, scope, nobody).fileName();
        folders.prepend(QFileInfo(shared).path());
    }
    folders += QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    QStringList files;
    for (const QString& folder : qAsConst(folders)) {
        const QDir place(folder);
        files += place.filePath(organization + QLatin1Char('/') + QFileInfo(own).fileName());
        files += place.filePath(organization + QLatin1Char('.') + QFileInfo(shared).suffix());
    }
    return files;
}

bool isReadable(const QString& path)
{
    const QFileInfo file(path);
    const bool isGood = !file.exists() || (file.isFile() && file.size() <= maxFileSize);
    if (!isGood) {
        qWarning("This is no file of settings: %s", qUtf8Printable(path));
    }
    return isGood;
}

/// Opened for each call: the host may construct widgets before it sets its organisation and name. Null where
/// something else than a file of settings exists.
std::unique_ptr<QSettings> open()
{
    const QString name = QCoreApplication::organizationName();
    const QString organization = name.isEmpty() ? QCoreApplication::organizationDomain() : name;
    const QString application = QCoreApplication::applicationName();
    const bool isNamed = !organization.isEmpty();
    const QSettings::Format format = isNamed ? QSettings::defaultFormat() : QSettings::NativeFormat;
    const QStringList files = filesOf(isNamed ? organization : application, application, format);
    if (!isReadable(files.constFirst())) {
        return nullptr;
    }
    if (!std::all_of(files.begin(), files.end(), isReadable)) {
        // The user's settings do without those of the organisation and of the system.
        return std::make_unique<QSettings>(files.constFirst(), format);
    }
    return isNamed ? std::make_unique<QSettings>() : std::make_unique<QSettings>(application, application);
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Of all keys but @p key.
QSet<QByteArray> linesOf(const QByteArray& contents, const QString& key)
{
    QSet<QByteArray> lines;
    const QByteArrayList all = contents.split('\n');
    for (const QByteArray& line : all) {
        if (!line.startsWith(key.toLatin1() + '=')) {
            lines.insert(line.trimmed());
        }
    }
    return lines;
}

/// QSettings drops comments, lines that it does not understand and values of types that it does not know.
void keepWhatIsLost(const QByteArray& before, const QString& path, const QString& key)
{
    if (linesOf(contentsOf(path), key).contains(linesOf(before, key))) {
        return;
    }
    QTemporaryFile copy(path + QString::fromLatin1(".before-XXXXXX"));
    copy.setAutoRemove(false);
    const bool isKept = copy.open() && copy.write(before) == before.size();
    qWarning("QSettings dropped lines of %s, now in %s", qUtf8Printable(path),
             isKept ? qUtf8Printable(copy.fileName()) : "no place");
}

} // namespace

QVariant QSettingsStore::read(const QString& key) const
{
    const auto settings = open();
    if (!settings) {
        return {};
    }
    settings->sync(); // reads what other processes wrote, which opening does for files only
    return settings->value(key);
}

bool QSettingsStore::write(const QString& key, const QVariant& value)
{
    const auto settings = open();
    if (!settings) {
        return false;
    }
    const QString path = settings->fileName();
    const QByteArray before = contentsOf(path);
    settings->setValue(key, value);
    settings->sync();
    // A format error is about lines of other programs; this value is written regardless.
    if (settings->status() == QSettings::AccessError) {
        return false;
    }
    keepWhatIsLost(before, path, key);
    return true;
}
