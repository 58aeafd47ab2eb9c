#include "TestMain.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>

namespace {

std::map<QByteArray, TestFactory>& classes()
{
    static std::map<QByteArray, TestFactory> instance;
    return instance;
}

} // namespace

bool addTestClass(const char* name, TestFactory make)
{
    return classes().emplace(name, make).second;
}

/// The first argument names the class, the others are Qt Test's.
int main(int argc, char** argv)
{
    const auto found = argc > 1 ? classes().find(QByteArray("tst_").append(argv[1])) : classes().end();
    if (found == classes().end()) {
        std::fprintf(stderr, "usage: %s CLASS [FUNCTION...], of the classes\n", argv[0]);
        for (const auto& entry : classes()) {
            std::fprintf(stderr, "  %s\n", entry.first.constData() + qstrlen("tst_"));
        }
        return 2;
    }
    argv[1] = argv[0];
    --argc;
    ++argv;

    std::optional<TestEnvironment> environment(std::in_place);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QString::fromLatin1(found->first));
    TestEnvironment::prepareApplication();
    const int result = TestEnvironment::run(found->second().get(), argc, argv);
    const int status = TestEnvironment::reportLeftovers(result);
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        // As it goes, Qt's platform plugin now and then waits for ever for one of its threads.
        environment.reset();
        std::fflush(nullptr);
        std::_Exit(status);
    }
    return status;
}
