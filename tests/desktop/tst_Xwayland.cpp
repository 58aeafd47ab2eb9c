#include "RealInput.h"
#include "RunScript.h"
#include "TestMain.h"
#include "WaylandInput.h"

#include <UiComponents/Pipette.h>
#include <UiComponents/ScreenColorPortal.h>

/**
 * A program of X11 on a desktop of Wayland: the pipette may cover the screen, but sees nothing of what
 * Wayland's own programs show. What counts is that a pick comes to its end.
 */
class tst_Xwayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowsHaveNamesForAPortal()
    {
        QWidget window;
        QCOMPARE(portalHandle(window.windowHandle()), QString());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        bool isNumber = false;
        const QString name = portalHandle(window.windowHandle());
        QVERIFY(name.startsWith(QLatin1String("x11:")));
        QCOMPARE(WId(name.mid(4).toULongLong(&isNumber, 16)), window.winId());
        QVERIFY(isNumber);
    }

    void runTakesXwayland_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<QString>("shell");

        QTest::newRow("by itself") << QString() << QStringLiteral("xwayland");
        QTest::newRow("unless it is told") << QStringLiteral("wayland") << QStringLiteral("xdg_shell");
    }

    void runTakesXwayland()
    {
        QFETCH(const QString, platform);
        QFETCH(const QString, shell);
        RunScript script;
        QVERIFY(script.start({}, platform));
        constexpr int patience = 60000; // ms
        QTRY_COMPARE_WITH_TIMEOUT(script.shell(), shell, patience);
    }

    void picksEnd_data()
    {
        QTest::addColumn<bool>("isPicked");

        QTest::newRow("with a click") << true;
        QTest::newRow("with Escape") << false;
    }

    void picksEnd()
    {
        QFETCH(const bool, isPicked);
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        QVERIFY(qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
        QWidget window;
        window.resize(400, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        Pipette pipette;
        QStringList log;
        connect(&pipette, &Pipette::pickingStarted, this, [&log] { log += QStringLiteral("started"); });
        connect(&pipette, &Pipette::pickingStopped, this, [&log] { log += QStringLiteral("stopped"); });
        connect(&pipette, &Pipette::colorSelected, this, [&log](const QColor& color) {
            QCOMPARE(color, QColor(Qt::black));
            log += QStringLiteral("color");
        });
        pipette.startPicking();
        QCOMPARE(log, QStringList{QStringLiteral("started")});
        const auto windows = QGuiApplication::topLevelWindows();
        for (QWindow* view : windows) {
            QVERIFY(!view->isVisible() || QTest::qWaitForWindowExposed(view));
        }
        QTRY_VERIFY(QGuiApplication::focusWindow());
        if (isPicked) {
            const QPoint center = QGuiApplication::primaryScreen()->geometry().center();
            QVERIFY(QTest::qWaitFor(
                [center] { return WaylandInput::moveTo(center) && QCursor::pos() == center; }));
            QVERIFY(WaylandInput::pressButton(true) && WaylandInput::pressButton(false));
        } else {
            QVERIFY(WaylandInput::key(QStringLiteral("Escape")));
        }
        QTRY_COMPARE(log.constLast(), QStringLiteral("stopped"));
        QCOMPARE(log.contains(QStringLiteral("color")), isPicked);
        QCOMPARE(log.size(), isPicked ? 3 : 2);
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), 1);
        QTRY_VERIFY(window.isActiveWindow());
    }
};

UIC_TEST_MAIN(tst_Xwayland)
#include "tst_Xwayland.moc"
