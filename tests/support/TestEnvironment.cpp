#include "TestEnvironment.h"

#include <QApplication>
#include <QStyleFactory>
#include <QtTest>

#include <cstdio>

namespace {

QtMessageHandler testHandler = nullptr;

void dropPlatformLimits(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        testHandler(type, context, message);
    }
}

} // namespace

TestEnvironment::TestEnvironment()
{
    // Not QStandardPaths' test mode: that is one folder for all, and several tests run at once.
    qputenv("HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("config"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("data"))));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("cache"))));
    if (qEnvironmentVariable("QT_QPA_PLATFORM") == QLatin1String("offscreen")) {
        // The platform has no OpenGL, and Qt ends a program that shows a QML scene there.
        qputenv("QT_QUICK_BACKEND", "software");
        // Or a test could ask the user's own desktop for a colour.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
}

void TestEnvironment::prepareApplication()
{
    QApplication::setOrganizationName(QStringLiteral("UiComponents tests"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
}

int TestEnvironment::run(QObject* test, int argc, char** argv)
{
    // What QTest::qExec() does, in the steps of which the first installs the handler that the tests have.
    QTest::qInit(test, argc, argv);
    testHandler = qInstallMessageHandler(dropPlatformLimits);
    const int result = QTest::qRun();
    qInstallMessageHandler(testHandler);
    QTest::qCleanup();
    return result;
}

int TestEnvironment::reportLeftovers(int result)
{
    // Deferred deletions of the last test are due, not leaked.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->testAttribute(Qt::WA_DontShowOnScreen) || widget->inherits("QTipLabel")) {
            continue;
        }
        std::fprintf(stderr, "leaked top-level widget: %s \"%s\"\n", widget->metaObject()->className(),
                     qPrintable(widget->objectName()));
        result = qMax(result, 1);
    }
    return result;
}
