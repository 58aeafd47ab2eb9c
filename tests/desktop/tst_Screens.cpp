#include "NativeScreens.h"
#include "PixelPattern.h"
#include "RealInput.h"
#include "TestMain.h"

/**
 * Several screens, of several sizes, places and scales: what the tests that pick from them take for granted.
 * Each run is on other screens.
 */
class tst_Screens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void screensAreThere()
    {
        // WIDTHxHEIGHT+X+Y@SCALE, the last only where the screen has one of its own.
        const QStringList layout = qEnvironmentVariable("UIC_SCREENS").split(QLatin1Char(' '));
        const auto screens = QGuiApplication::screens();
        QVERIFY(screens.size() > 1);
        QCOMPARE(screens.size(), layout.size());
        const bool isScaledByAll = qEnvironmentVariableIsSet("QT_SCALE_FACTOR");
        for (const QScreen* screen : screens) {
            const QRect place = NativeScreens::geometry(screen);
            const qreal ratio = screen->devicePixelRatio();
            const QString own = isScaledByAll || ratio == 1.0 ? QString() : QStringLiteral("@%1").arg(ratio);
            const QString seen = QStringLiteral("%1x%2+%3+%4")
                                     .arg(place.width())
                                     .arg(place.height())
                                     .arg(place.x())
                                     .arg(place.y());
            QVERIFY2(layout.contains(seen + own), qPrintable(seen + own));
            QCOMPARE(screen->depth(), 24);
            // Qt divides it by a scale that a screen has by itself.
            QCOMPARE(screen->logicalDotsPerInch() * (own.isEmpty() ? 1.0 : ratio), 96.0);
        }
    }

    void mouseReachesEveryCorner()
    {
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            QWidget window(nullptr, Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
            window.setGeometry(screen->geometry());
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QVERIFY(RealInput::moveTo(&window, QPoint(0, 0)));
            QVERIFY(RealInput::moveTo(&window, window.rect().bottomRight()));
            QCOMPARE(QGuiApplication::screenAt(QCursor::pos()), screen);
        }
    }

    void patternIsBelowWindows()
    {
        PixelPattern pattern;
        QVERIFY(pattern.show(NativeScreens::desktop()));
        const auto screens = QGuiApplication::screens();
        for (QScreen* screen : screens) {
            const QPoint middle(screen->size().width() / 2, screen->size().height() / 2);
            const QPoint pixel = NativeScreens::pixelAt(screen->geometry().topLeft() + middle);
            const QRgb expected = PixelPattern::colorAt(pixel.x(), pixel.y());
            const auto seen = [screen, middle] {
                return screen->grabWindow(0, middle.x(), middle.y(), 1, 1).toImage().pixel(0, 0);
            };
            QTRY_COMPARE(seen(), expected);

            QLabel label;
            label.setStyleSheet(QStringLiteral("background: #123456"));
            label.setGeometry(QRect(screen->geometry().topLeft() + middle - QPoint(50, 50), QSize(100, 100)));
            QVERIFY(RealInput::showAndActivate(&label));
            QTRY_COMPARE(seen(), qRgb(0x12, 0x34, 0x56));
        }
    }

    void patternCoversAScreen()
    {
        QScreen* screen = QGuiApplication::screens().constLast();
        const QPoint corner = screen->geometry().topLeft();
        PixelPattern pattern;
        QVERIFY(
            pattern.show(QRect(corner + QPoint(30, 40), QSize(200, 100)), PixelPattern::Window::FullScreen));
        QCOMPARE(screen->grabWindow(0, 0, 0, 1, 1).toImage().pixel(0, 0),
                 PixelPattern::colorAt(corner.x(), corner.y()));
    }
};

UIC_TEST_MAIN(tst_Screens)
#include "tst_Screens.moc"
