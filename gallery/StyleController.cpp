#include "StyleController.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <optional>

namespace {

// An editor saves in several steps, and the watcher reports each.
constexpr int reloadDelayMs = 50;

/// The path of the sheet of @p style; empty for none.
QString pathOf(const QString& style)
{
    if (style == QLatin1String("none")) {
        return {};
    }
    const bool isBuiltIn = StyleController::builtInStyles().contains(style);
    return isBuiltIn ? QStringLiteral(":/styles/%1.qss").arg(style) : style;
}

std::optional<QByteArray> contentsOf(const QString& style)
{
    const QString path = pathOf(style);
    if (path.isEmpty()) {
        return QByteArray();
    }
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

/// The rules for the gallery's own window, which a built-in style adds.
QByteArray windowSheet(const QString& style)
{
    QFile file(QStringLiteral(":/gallery/%1.qss").arg(style));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString withAbsoluteUrls(const QString& sheet, const QString& folder)
{
    static const QRegularExpression url(QStringLiteral("url\\(\\s*([\"']?)([^\"')]+)\\1\\s*\\)"));
    QString result;
    int end = 0;
    QRegularExpressionMatchIterator urls = url.globalMatch(sheet);
    while (urls.hasNext()) {
        const QRegularExpressionMatch match = urls.next();
        const QString path = match.captured(2).trimmed();
        result += sheet.midRef(end, match.capturedStart() - end);
        // With a colon: a resource or a search path.
        const bool isRelative = QDir::isRelativePath(path) && !path.contains(QLatin1Char(':'));
        result += isRelative ? QStringLiteral("url(\"%1/%2\")").arg(folder, path) : match.captured();
        end = match.capturedEnd();
    }
    return result + sheet.midRef(end);
}

StyleController::StyleController(QObject* parent)
    : QObject(parent)
{
    m_reloadTimer.setSingleShot(true);
    m_reloadTimer.setInterval(reloadDelayMs);
    connect(&m_reloadTimer, &QTimer::timeout, this, &StyleController::reload);
    const auto startTimer = QOverload<>::of(&QTimer::start);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_reloadTimer, startTimer);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_reloadTimer, startTimer);
}

StyleController::~StyleController() = default;

QStringList StyleController::builtInStyles()
{
    return {QStringLiteral("dark"), QStringLiteral("light"), QStringLiteral("high-contrast"),
            QStringLiteral("none")};
}

bool StyleController::setStyle(const QString& style)
{
    const QString wanted = builtInStyles().contains(style) ? style : QFileInfo(style).absoluteFilePath();
    if (wanted == m_style) {
        return true;
    }
    const std::optional<QByteArray> contents = style.isEmpty() ? std::nullopt : contentsOf(wanted);
    if (!contents) {
        return false;
    }
    m_style = wanted;
    m_reloadTimer.stop();
    watch();
    apply(*contents);
    return true;
}

bool StyleController::isFile() const
{
    return !m_style.isEmpty() && !builtInStyles().contains(m_style);
}

bool StyleController::save()
{
    QSaveFile file(m_style);
    return isFile() && file.open(QIODevice::WriteOnly) && file.write(m_contents) == m_contents.size() &&
           file.commit();
}

void StyleController::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty()) {
        m_watcher.removePaths(watched);
    }
    if (isFile()) {
        // The folder too: the watch ends when an editor replaces the file.
        m_watcher.addPath(QFileInfo(m_style).absolutePath());
        m_watcher.addPath(m_style);
    }
}

void StyleController::reload()
{
    const std::optional<QByteArray> contents = contentsOf(m_style);
    if (!contents) {
        // Between removal and replacement: the folder reports the new file.
        return;
    }
    if (!m_watcher.files().contains(m_style)) {
        m_watcher.addPath(m_style);
    }
    if (*contents != m_contents) {
        apply(*contents);
    }
}

void StyleController::apply(const QByteArray& contents)
{
    m_contents = contents;
    const QString sheet =
        withAbsoluteUrls(QString::fromUtf8(contents), QFileInfo(pathOf(m_style)).absolutePath());
    qApp->setStyleSheet(sheet + QString::fromUtf8(windowSheet(m_style)));
    Q_EMIT styleApplied(m_style);
}
