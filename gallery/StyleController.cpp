#include "StyleController.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace {

// An editor saves in several steps, each of which is announced.
constexpr int ReloadDelayMs = 50;

std::optional<QByteArray> contentsOf(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return file.readAll();
}

// Qt reads a sheet that is named this way itself, and takes its relative urls from the sheet's folder.
QString sheetFromFile(const QString& path)
{
    return QStringLiteral("file:///") + path;
}

} // namespace

StyleController::StyleController(QObject* parent)
    : QObject(parent)
{
    m_reloadTimer.setSingleShot(true);
    m_reloadTimer.setInterval(ReloadDelayMs);
    connect(&m_reloadTimer, &QTimer::timeout, this, &StyleController::reload);
    const auto startTimer = QOverload<>::of(&QTimer::start);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_reloadTimer, startTimer);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_reloadTimer, startTimer);
}

StyleController::~StyleController() = default;

QStringList StyleController::builtInStyles()
{
    return {QStringLiteral("dark"), QStringLiteral("light"), QStringLiteral("none")};
}

bool StyleController::setStyle(const QString& style)
{
    const bool isBuiltIn = builtInStyles().contains(style);
    const QString wanted = isBuiltIn ? style : QFileInfo(style).absoluteFilePath();
    if (wanted == m_style) {
        return true;
    }
    QByteArray contents;
    if (!isBuiltIn) {
        const std::optional<QByteArray> read = contentsOf(wanted);
        if (!read) {
            return false;
        }
        contents = *read;
    }

    m_style = wanted;
    m_contents = contents;
    m_reloadTimer.stop();
    watch();
    if (!isBuiltIn) {
        apply(sheetFromFile(wanted));
    } else if (wanted == QLatin1String("none")) {
        apply(QString());
    } else {
        apply(sheetFromFile(QStringLiteral(":/styles/%1.qss").arg(wanted)));
    }
    return true;
}

void StyleController::watch()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty()) {
        m_watcher.removePaths(watched);
    }
    if (!builtInStyles().contains(m_style)) {
        // The folder too: an editor that replaces the file ends the watch on the old one.
        m_watcher.addPath(QFileInfo(m_style).absolutePath());
        m_watcher.addPath(m_style);
    }
}

void StyleController::reload()
{
    const std::optional<QByteArray> contents = contentsOf(m_style);
    if (!contents) {
        // Between removal and replacement; the folder announces the new file.
        return;
    }
    if (!m_watcher.files().contains(m_style)) {
        m_watcher.addPath(m_style);
    }
    if (*contents == m_contents) {
        return;
    }
    m_contents = *contents;
    apply(sheetFromFile(m_style));
}

void StyleController::apply(const QString& sheet)
{
    qApp->setStyleSheet(sheet);
    Q_EMIT styleApplied(m_style);
}
