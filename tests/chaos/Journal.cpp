#include "Journal.h"

#include "Clock.h"
#include "Exceptions.h"
#include "Invariants.h"

#include <QByteArray>
#include <QThread>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <glog/logging.h>
#include <string>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr std::size_t keptLines = 60;
constexpr unsigned secondsPerWindow = 60;
constexpr qint64 maxPerWindow = 30000; // ms of the processor's
constexpr int maxRests = 5;

// Plain text and plain calls: it is read when the process is broken.
std::array<std::array<char, 240>, keptLines> lines;
std::size_t lineCount = 0;
unsigned long long windowSeed = 0;
qint64 windowBegan = 0;
int rests = 0; // without having come to an end
quint64 sum = 0;
bool isVerbose = false;
bool isPrinted = false;

void print(const char* text)
{
    static_cast<void>(!write(STDERR_FILENO, text, strlen(text)));
}

void printAll()
{
    if (isPrinted) {
        return;
    }
    isPrinted = true;
    std::array<char, 120> head = {};
    snprintf(head.data(), head.size(), "\n--- window %llu, %zu lines, the last of them:\n", windowSeed,
             lineCount);
    print(head.data());
    for (std::size_t i = lineCount > keptLines ? lineCount - keptLines : 0; i < lineCount; ++i) {
        print(lines[i % keptLines].data());
        print("\n");
    }
    snprintf(head.data(), head.size(), "--- reproduce with --window %llu\n", windowSeed);
    print(head.data());
}

void onSignal(int signal)
{
    if (signal == SIGALRM && !Invariants::isWaiting() &&
        Clock::cpuMilliseconds() - windowBegan < maxPerWindow && ++rests < maxRests) {
        // The machine is busy, or was stopped.
        alarm(secondsPerWindow);
        return;
    }
    print(signal == SIGALRM ? "\nfailed: a step waits, or a window takes minutes\n" : "\nfailed: a signal\n");
    printAll();
    if (signal == SIGALRM) {
        // The sanitizer then says where.
        std::abort();
    }
    std::signal(signal, SIG_DFL);
    raise(signal);
}

void onMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isProblem = type != QtDebugMsg && type != QtInfoMsg && !Exceptions::isExpected(message);
    if (type == QtFatalMsg || isProblem) {
        Journal::fail(QStringLiteral("logged: %1: %2").arg(QLatin1String(context.category), message));
    }
}

class GlogWatch : public google::LogSink
{
public:
    void send(google::LogSeverity, const char*, const char* file, int, const tm*, const char* message,
              std::size_t length) override
    {
        const QString text = QString::fromUtf8(message, static_cast<int>(length));
        if (!Exceptions::isExpected(text)) {
            Journal::fail(QStringLiteral("logged: %1: %2").arg(QLatin1String(file), text));
        }
    }
};

} // namespace

void Journal::begin()
{
    qInstallMessageHandler(onMessage);
    static GlogWatch glog;
    google::InitGoogleLogging("chaos");
    FLAGS_logtostderr = false;
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    for (int severity = 0; severity < google::NUM_SEVERITIES; ++severity) {
        google::SetLogDestination(severity, "");
    }
    google::AddLogSink(&glog);

    std::signal(SIGALRM, onSignal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(printAll);
#else
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        std::signal(signal, onSignal);
    }
#endif
}

void Journal::beginWindow(quint64 seed)
{
    windowSeed = seed;
    windowBegan = Clock::cpuMilliseconds();
    rests = 0;
    lineCount = 0;
    alarm(secondsPerWindow);
    note(QStringLiteral("window %1").arg(seed));
}

void Journal::note(const QString& line)
{
    const QByteArray text = QByteArray(2 * QThread::currentThread()->loopLevel(), ' ') +
                            line.left(180).toUtf8().replace('\n', "\\n");
    sum = sum * 31 + qHash(text, 0);
    auto& place = lines[lineCount++ % keptLines];
    snprintf(place.data(), place.size(), "%s", text.constData());
    if (isVerbose) {
        print(place.data());
        print("\n");
    }
}

quint64 Journal::checksum()
{
    return sum;
}

void Journal::setVerbose(bool verbose)
{
    isVerbose = verbose;
}

void Journal::fail(const QString& problem)
{
    print(qUtf8Printable(QStringLiteral("\nfailed: ") + problem));
    printAll();
    std::abort();
}
