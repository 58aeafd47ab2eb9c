#include "Actions.h"
#include "Clock.h"
#include "Exceptions.h"
#include "Invariants.h"
#include "Journal.h"
#include "Plants.h"
#include "RealUser.h"
#include "TestMain.h"
#include "World.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDesktopWidget>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <sys/personality.h>
#include <unistd.h>
#include <utility>

namespace {

/// Starts the program anew, with the addresses and the hashes that it always has: Qt orders widgets by both.
void fixOrder(char** argv)
{
    const char* const hashSeed = "QT_HASH_SEED";
    if (qgetenv(hashSeed) == "0") {
        return;
    }
    qputenv(hashSeed, "0"); // libraries of Qt's take it before main()
    constexpr unsigned long question = 0xffffffff;
    const int present = personality(question);
    if (present >= 0) {
        personality(static_cast<unsigned long>(present) | ADDR_NO_RANDOMIZE);
    }
    execv("/proc/self/exe", argv);
}

/// One window after the other, each step a turn of the event loop, as events are.
class Driver : public QObject
{
public:
    Driver(Application& application, quint64 seed, quint64 window, QString fault, int events)
        : m_application(application)
        , m_seeds(seed)
        , m_window(window)
        , m_fault(std::move(fault))
        , m_left(events)
    {
        connect(&m_timer, &QTimer::timeout, this, &Driver::turn);
        m_timer.start(0);
    }

    bool isDone() const { return m_isDone; }

private:
    static constexpr int stepsBetweenRests = 20;
    static constexpr int stepsInLoop = 5;

    void turn()
    {
        if (!m_isBegun) {
            m_isBegun = true;
            // Qt makes these when they are first needed.
            QWidget().createWinId();
            QApplication::desktop();
            Actions::resetApplication();
            Invariants::rememberObjects();
        }
        if (QThread::currentThread()->loopLevel() > 1) {
            // In a loop that a slot began, of an event that nobody waited for.
            m_world->stepInLoop(m_budget);
            return;
        }
        m_budget = stepsInLoop;
        if (!m_world) {
            begin();
        } else if (m_step++ < m_world->steps()) {
            m_world->step();
            --m_left;
            if (m_step % stepsBetweenRests == 0) {
                m_world->rest();
            }
        } else {
            end(m_step - m_world->steps());
        }
    }

    void begin()
    {
        if (m_left <= 0) {
            m_isDone = true;
            QCoreApplication::quit();
            return;
        }
        const quint64 seed = m_window != 0 ? m_window : m_seeds.next() >> 16;
        Clock::align();
        Journal::beginWindow(seed);
        Invariants::beginWindow();
        m_world = std::make_unique<World>(seed, nullptr);
        m_application.world = m_world.get();
        m_step = 0;
        ++m_windows;
    }

    /// In a later window, so that a fault is seen to come back in a window by itself.
    void plant()
    {
        constexpr int planted = 3;
        const bool isPlanted = !m_fault.isEmpty() && (m_windows == planted || m_window != 0);
        if (isPlanted && !Plants::plant(m_fault, *m_world)) {
            Journal::fail(QStringLiteral("there is no fault ") + m_fault);
        }
    }

    /// Turn by turn, so that what was put off comes to pass.
    void end(int turn)
    {
        constexpr int maxDelay = 20000;
        switch (turn) {
        case 1:
            plant();
            Clock::advance(Actions::maxClick);
            break;
        case 3:
            m_world->settle();
            break;
        case 5:
            m_world->rest();
            Invariants::checkSettled();
            m_world->clear();
            break;
        case 7:
            Actions::resetApplication();
            Clock::advance(maxDelay);
            break;
        case 9:
            // Qt deletes what was put off outside of any loop when the outermost one ends.
            QCoreApplication::quit();
            break;
        case 10:
            m_application.world = nullptr;
            m_world.reset();
            Invariants::checkEmpty();
            m_left = m_window != 0 ? 0 : m_left;
            break;
        default:
            break;
        }
    }

    Application& m_application;
    QTimer m_timer;
    Random m_seeds;
    const quint64 m_window;
    const QString m_fault;
    int m_left;
    int m_windows = 0;
    int m_budget = 0;
    std::unique_ptr<World> m_world;
    int m_step = 0;
    bool m_isBegun = false;
    bool m_isDone = false;
};

} // namespace

#ifdef __SANITIZE_ADDRESS__
/// Freed memory is filled, so that Qt, which is not instrumented, does not get far with it either.
extern "C" Q_DECL_EXPORT const char* __asan_default_options()
{
    return "max_free_fill_size=65536:free_fill_byte=219:handle_abort=1:allow_user_segv_handler=0";
}
/// What this finds is then told of by the other.
extern "C" Q_DECL_EXPORT const char* __ubsan_default_options()
{
    return "abort_on_error=1:print_stacktrace=1";
}
#endif

int main(int argc, char** argv)
{
    fixOrder(argv);
    Invariants::begin();
    qputenv("QT_NO_GLIB", "1");
    const TestEnvironment environment;
    Application application(argc, argv);
    TestEnvironment::prepareApplication();
    QGuiApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser options;
    options.addOptions({
        {QStringLiteral("events"), QStringLiteral("How many steps."), QStringLiteral("N"),
         QStringLiteral("1000")},
        {QStringLiteral("seed"), QStringLiteral("Of all windows."), QStringLiteral("S"), QStringLiteral("1")},
        {QStringLiteral("window"), QStringLiteral("Only the window of this seed."), QStringLiteral("W")},
        {QStringLiteral("verbose"), QStringLiteral("Prints all lines of the journal.")},
        {QStringLiteral("real"), QStringLiteral("Mouse and keyboard are the X server's.")},
        {QStringLiteral("plant"), QStringLiteral("A fault to be found."), QStringLiteral("FAULT")},
        {QStringLiteral("citations"), QStringLiteral("Only looks for what is cited."),
         QStringLiteral("ROOT")},
    });
    options.addHelpOption();
    options.process(application);
    if (options.isSet(QStringLiteral("citations"))) {
        return qMin(Exceptions::checkCitations(options.value(QStringLiteral("citations"))), 1);
    }

    Journal::begin();
    Journal::setVerbose(options.isSet(QStringLiteral("verbose")));
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        Clock::makeVirtual();
    }
    if (options.isSet(QStringLiteral("real"))) {
        RealUser::begin();
    }
    {
        Driver driver(application, options.value(QStringLiteral("seed")).toULongLong(),
                      options.value(QStringLiteral("window")).toULongLong(),
                      options.value(QStringLiteral("plant")),
                      options.value(QStringLiteral("events")).toInt());
        // An action ends the application's loop, too.
        while (!driver.isDone()) {
            Application::exec();
        }
    }
    if (RealUser::isThere()) {
        std::printf("%d times the mouse or the keyboard reached a component\n", RealUser::count());
        return RealUser::count() > 0 ? 0 : 1;
    }
    std::printf("%016llx\n", static_cast<unsigned long long>(Journal::checksum()));
    return 0;
}
