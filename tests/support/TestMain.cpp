#include "TestMain.h"

#include <QStyleFactory>

#include <cstdio>

TestEnvironment::TestEnvironment()
{
    // Not QStandardPaths' test mode: that is one folder for all, and several tests run at once.
    qputenv("HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("config"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("data"))));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home.filePath(QStringLiteral("cache"))));
}

void TestEnvironment::prepareApplication()
{
    QApplication::setOrganizationName(QStringLiteral("UiComponents tests"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
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
