// Makes and unmakes what a day of work does, thousands of times, and fails when anything grows on.

#include "Clock.h"
#include "QmlFiles.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/QuickDialog.h>

#include <QAbstractEventDispatcher>
#include <QCommandLineParser>
#include <QMutex>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <malloc.h>
#include <unordered_set>

// What Qt offers to debuggers: functions to be called for every object that is made and that dies.
extern Q_CORE_EXPORT quintptr qtHookData[]; // NOLINT(modernize-avoid-c-arrays)

namespace {

constexpr int addObjectHook = 3;
constexpr int removeObjectHook = 4;
// Never destroyed: objects die after main(), too.
std::unordered_set<QObject*>& objects = *new std::unordered_set<QObject*>;
QMutex mutex;

void added(QObject* object)
{
    const QMutexLocker lock(&mutex);
    objects.insert(object);
}

void removed(QObject* object)
{
    const QMutexLocker lock(&mutex);
    objects.erase(object);
}

/// A round that does nothing leaves nothing behind either.
void require(bool isDone, const char* what)
{
    if (!isDone) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(2);
    }
}

bool isShown(const char* type)
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [type](const QWidget* window) {
        return window->isVisible() && window->inherits(type);
    });
}

void letEventsRun()
{
    constexpr int maxDelay = 20000; // of anything that is put off
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Clock::advance(maxDelay);
    }
}

struct Sample
{
    qint64 kilobytes = 0;
    int objects = 0;
    int timers = 0;
    int windows = 0;
    int files = 0;
};

Sample sample()
{
    // Qt's cache of pictures forgets in steps of half a minute.
    constexpr int enough = 20;
    for (int i = 0; i < enough; ++i) {
        letEventsRun();
    }
    malloc_trim(0);
    Sample result;
    QFile memory(QStringLiteral("/proc/self/smaps_rollup"));
    if (memory.open(QIODevice::ReadOnly)) {
        const QString text = QString::fromLatin1(memory.readAll());
        const QRegularExpression resident(QStringLiteral("Rss: +(\\d+)"));
        result.kilobytes = resident.match(text).captured(1).toLongLong();
    }
    const auto* const dispatcher = QAbstractEventDispatcher::instance();
    const QMutexLocker lock(&mutex);
    result.objects = static_cast<int>(objects.size());
    for (QObject* object : objects) {
        if (object->thread() == QThread::currentThread()) {
            result.timers += dispatcher->registeredTimers(object).size();
        }
    }
    result.windows = QApplication::allWidgets().size() + QGuiApplication::allWindows().size();
    result.files =
        QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size();
    return result;
}

void print(int round, const Sample& now)
{
    std::printf("%d rounds: %lld kB, %d objects, %d timers, %d widgets and windows, %d files\n", round,
                static_cast<long long>(now.kilobytes), now.objects, now.timers, now.windows, now.files);
    std::fflush(stdout);
}

/// The panel, and its selector on top of it.
void panel()
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const colors = new ColorPickerWidget(&window, true);
    layout->addWidget(colors);
    window.show();
    letEventsRun();
    colors->setCurrentColor(QColor(Qt::red));
    colors->findChild<QAbstractButton*>(QStringLiteral("addCustomColorButton"))->click();
    letEventsRun();
    require(isShown("QDialog"), "no selector");
}

/// As many buttons as the panel has, which are Qt's.
void buttons()
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    constexpr int many = 90;
    for (int i = 0; i < many; ++i) {
        layout->addWidget(new QPushButton);
    }
    window.show();
    letEventsRun();
}

void guide()
{
    QWidget window;
    GuideButton button(&window);
    auto info = std::make_unique<GuideInfo>();
    info->title = QStringLiteral("Trim");
    info->description = QStringLiteral("Drag an edge.");
    info->moviePath = QStringLiteral(UIC_SOURCE "/gallery/resources/guides/trim.gif");
    button.setGuideInfo(std::move(info));
    window.show();
    letEventsRun();
    button.click();
    letEventsRun();
    require(isShown("PointingWidget"), "no guide");
}

void dialog()
{
    static const QmlFiles files;
    static const QString scene = files.item(QStringLiteral("width: 90; height: 60; focus: true"));
    QWidget window;
    window.show();
    class Dialog : public Qml::QuickDialog
    {
    public:
        using QuickDialog::QuickDialog;
    };
    Dialog dialog(&window);
    dialog.setQmlPath(scene);
    QTimer::singleShot(1, &dialog, [&dialog] {
        require(dialog.isVisible(), "no dialog");
        dialog.accept();
    });
    require(dialog.exec() == QDialog::Accepted, "no scene");
}

void pipette()
{
    Pipette pipette;
    pipette.startPicking();
    letEventsRun();
    require(isShown("PipetteScreenView"), "no pipette");
    pipette.stopPicking();
}

bool isSame(const Sample& earlier, const Sample& later)
{
#ifdef __SANITIZE_ADDRESS__
    constexpr qint64 slack = std::numeric_limits<int>::max(); // it keeps what is freed
#else
    constexpr qint64 slack = 2048; // an allocator does not give everything back at the same time
#endif
    return later.kilobytes <= earlier.kilobytes + slack && later.objects == earlier.objects &&
           later.timers == earlier.timers && later.windows == earlier.windows && later.files == earlier.files;
}

} // namespace

int main(int argc, char** argv)
{
    qtHookData[addObjectHook] = reinterpret_cast<quintptr>(&added);
    qtHookData[removeObjectHook] = reinterpret_cast<quintptr>(&removed);
    // Its timers would wait in real time.
    qputenv("QT_NO_GLIB", "1");
    const TestEnvironment environment;
    const QApplication application(argc, argv);
    TestEnvironment::prepareApplication();
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser options;
    options.addOptions({
        {QStringLiteral("rounds"), QStringLiteral("How many."), QStringLiteral("N"), QStringLiteral("200")},
        {QStringLiteral("only"), QStringLiteral("One part: panel, buttons, guide, dialog or pipette."),
         QStringLiteral("PART")},
    });
    options.addHelpOption();
    options.process(application);
    const QString only = options.value(QStringLiteral("only"));
    const int rounds = options.value(QStringLiteral("rounds")).toInt();
    Q_INIT_RESOURCE(styles);
    qApp->setStyleSheet(QStringLiteral("file:///:/styles/dark.qss"));
    Clock::makeVirtual();

    const std::vector<std::pair<const char*, void (*)()>> parts{
        {"panel", panel}, {"guide", guide}, {"dialog", dialog}, {"pipette", pipette}, {"buttons", buttons}};
    Sample settled;
    for (int round = 1; round <= rounds; ++round) {
        for (const auto& [name, run] : parts) {
            const bool isChosen = only.isEmpty() ? run != buttons : only == QLatin1String(name);
            if (isChosen) {
                run();
            }
        }
        if (round % qMax(1, rounds / 10) != 0) {
            continue;
        }
        const Sample now = sample();
        print(round, now);
        if (settled.objects == 0) {
            settled = now;
        } else if (!isSame(settled, now)) {
            std::fprintf(stderr, "It grows.\n");
            return 1;
        }
    }
    return 0;
}
