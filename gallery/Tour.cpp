#include "Tour.h"

#include "MainWindow.h"
#include "MessageWatch.h"
#include "Page.h"
#include "PageRegistry.h"
#include "SignalLogView.h"
#include "StyleController.h"

#include <UiComponents/PathSelectionWidget.h>

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <utility>

namespace {

constexpr QSize pictureSize(1100, 760);
constexpr int fontPixels = 13;

/// Polishing requests a layout, and a layout that changes heights requests another one.
void settle()
{
    constexpr int rounds = 4;
    for (int i = 0; i < rounds; ++i) {
        QCoreApplication::processEvents();
    }
}

/// A folder field reports what it was given a tenth of a second later, and takes back the mark of an error.
void awaitFolders(const MainWindow& window)
{
    int reports = 0;
    const QObject untilThen;
    const auto folders = window.findChildren<PathSelectionWidget*>();
    for (const PathSelectionWidget* folder : folders) {
        if (!folder->path().isEmpty()) {
            ++reports;
            QObject::connect(folder, &PathSelectionWidget::pathChanged, &untilThen,
                             [&reports] { --reports; });
        }
    }
    while (reports > 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

} // namespace

Tour::Tour(CommandLine request)
    : m_request(std::move(request))
{
}

bool Tour::run()
{
    if (!QDir().mkpath(m_request.tourFolder)) {
        m_failures.append(QStringLiteral("%1: the folder cannot be made").arg(m_request.tourFolder));
        return false;
    }
    // A blinking cursor and the platform's font size would make pictures differ.
    QApplication::setCursorFlashTime(0);
    QFont font = QApplication::font();
    font.setPixelSize(fontPixels);
    QApplication::setFont(font);
    const QVector<PageInfo> pages = PageRegistry::pages();
    const QStringList styles = StyleController::builtInStyles();
    for (const QString& style : styles) {
        for (const PageInfo& page : pages) {
            if (m_request.page.isEmpty() || m_request.page == page.id) {
                render(page.id, style);
            }
        }
    }
    return m_failures.isEmpty();
}

QImage Tour::picture(MainWindow* window)
{
    QPixmap picture = window->grab();
    QPainter painter(&picture);
    const auto others = QApplication::topLevelWidgets();
    for (QWidget* other : others) {
        if (other != window && other->isVisible() && window->isAncestorOf(other->parentWidget())) {
            painter.drawPixmap(window->mapFromGlobal(other->pos()), other->grab());
        }
    }
    painter.end();
    return picture.toImage();
}

void Tour::render(const QString& page, const QString& style)
{
    const QString name = QStringLiteral("%1-%2.png").arg(page, style);
    MessageWatch messages;
    CommandLine start = m_request;
    start.page = page;
    start.style = style;
    {
        MainWindow window(start);
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.resize(pictureSize);
        window.show();
        awaitFolders(window);
        settle();
        if (!window.page()) {
            m_failures.append(QStringLiteral("%1: the page cannot be built").arg(name));
            return;
        }
        // The paths in it are this machine's.
        window.page()->signalLog()->clear();
        window.page()->prepareForPicture();
        settle();
        if (!picture(&window).save(QDir(m_request.tourFolder).filePath(name))) {
            m_failures.append(QStringLiteral("%1: the picture cannot be written").arg(name));
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList warnings = messages.takeWarnings();
    for (const QString& warning : warnings) {
        m_failures.append(QStringLiteral("%1: %2").arg(name, warning));
    }
}
