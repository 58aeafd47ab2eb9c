#include "AccessibleEars.h"
#include "TestMain.h"

#include <QLibrary>

namespace {

bool isLoaded()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return !maps.open(QIODevice::ReadOnly) || maps.readAll().contains("libUiComponents");
}

} // namespace

/**
 * A host that loads the components in a plugin may unload it when they are gone and the event loop has run:
 * nothing of the library is left in the application, or Qt would call code that is no longer there. This
 * program itself is not linked to the library.
 */
class tst_Unloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLeft_data()
    {
        QTest::addColumn<QByteArray>("use");

        for (const char* use : {"pickFromTheScreen", "pickFromAWidget", "loadALanguage", "changeAColor",
                                "typeASearch", "keepAColor", "showAScene"}) {
            QTest::newRow(use) << QByteArray(use);
        }
        // The same code once more, at another place perhaps.
        QTest::newRow("again") << QByteArray("changeAColor");
        QTest::newRow("another scene") << QByteArray("showAScene");
    }

    void nothingIsLeft()
    {
        QFETCH(const QByteArray, use);
        QVERIFY(!isLoaded());
        const AccessibleEars ears;
        const QObjectList before = qApp->children();

        QLibrary module(QStringLiteral(UIC_HOST_MODULE));
        auto* const run = reinterpret_cast<void (*)()>(module.resolve(use.constData()));
        QVERIFY2(run, qPrintable(module.errorString()));
        run();
        QCoreApplication::processEvents();
        QVERIFY(isLoaded());
        QVERIFY(module.unload());
        QVERIFY(!isLoaded());
        QCOMPARE(qApp->children(), before);

        // What filters the application's events would see these.
        QWidget window;
        window.show();
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(QCoreApplication::translate("blendingModes", "SourceOver"), QStringLiteral("SourceOver"));
        // What Qt has cached is looked up by its text.
        QVERIFY(QRegExp(QStringLiteral("^\\S.*")).exactMatch(QStringLiteral("a")));
        QSettings settings;
        QVERIFY(settings.value(QStringLiteral("userCustomColors")).toStringList().size() <= 1);
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }
};

UIC_TEST_MAIN(tst_Unloading)
#include "tst_Unloading.moc"
