#include "CodeText.h"
#include "CommandLine.h"
#include "GalleryApplication.h"
#include "MainWindow.h"
#include "Page.h"
#include "PageRegistry.h"
#include "StyleController.h"
#include "StylingManual.h"
#include "Tour.h"

#include <QApplication>
#include <QTextStream>

namespace {

constexpr int badArguments = 2;

bool isDisplayMissing()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

int showWindow(const CommandLine& line)
{
    MainWindow window(line);
    QObject::connect(&window, &MainWindow::restartRequested, &window, [&window](double scale) {
        if (GalleryApplication::startAtScale(scale, window.state().arguments())) {
            window.close();
        }
    });
    window.show();
    return QApplication::exec();
}

int makeTour(const CommandLine& line)
{
    Tour tour(line);
    const bool isComplete = tour.run();
    const QStringList failures = tour.failures();
    for (const QString& failure : failures) {
        QTextStream(stderr) << failure << '\n';
    }
    QTextStream(stdout) << line.tourFolder << '\n';
    return isComplete ? EXIT_SUCCESS : EXIT_FAILURE;
}

void printList()
{
    QTextStream out(stdout);
    const QVector<PageInfo> pages = PageRegistry::pages();
    for (const PageInfo& page : pages) {
        out << page.id << '\t' << page.title << '\t' << page.covers.join(QLatin1Char(',')) << '\n';
    }
}

void printCode(const CommandLine& line)
{
    StyleController style;
    style.setStyle(line.style);
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    const QVector<PageInfo> pages = PageRegistry::pages();
    for (const PageInfo& info : pages) {
        if (line.page.isEmpty() || line.page == info.id) {
            const Page page(info);
            out << codeText(&page) << '\n';
        }
    }
}

int run(const CommandLine& line, bool hasDisplay)
{
    switch (line.action) {
    case CommandLine::Action::Help:
        QTextStream(stdout) << CommandLine::helpText();
        return EXIT_SUCCESS;
    case CommandLine::Action::List:
        printList();
        return EXIT_SUCCESS;
    case CommandLine::Action::StylingManual:
        QTextStream(stdout) << stylingManual();
        return EXIT_SUCCESS;
    case CommandLine::Action::Code:
        printCode(line);
        return EXIT_SUCCESS;
    case CommandLine::Action::Tour:
        return makeTour(line);
    case CommandLine::Action::Show:
        break;
    }
    if (!hasDisplay) {
        QTextStream(stderr) << "There is no display. --tour DIR renders the pages to pictures.\n";
        return EXIT_FAILURE;
    }
    return showWindow(line);
}

} // namespace

int main(int argc, char** argv)
{
    const bool hasDisplay = !isDisplayMissing();
    if (!hasDisplay) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    // QApplication would take and remove "--style".
    int ownNameOnly = 1;
    const QApplication application(ownNameOnly, argv);
    QApplication::setOrganizationName(QStringLiteral("UiComponents"));
    QApplication::setApplicationName(QStringLiteral("Gallery"));
    GalleryApplication::prepare();

    const CommandLine line = CommandLine::parse(arguments);
    if (!line.error.isEmpty()) {
        QTextStream(stderr) << line.error << '\n';
        return badArguments;
    }
    return run(line, hasDisplay);
}
