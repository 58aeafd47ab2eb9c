#include "FakePlatform.h"
#include "TestMain.h"

#include <UiComponents/PopupPosition.h>

class tst_PopupPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void position_data()
    {
        QTest::addColumn<QRect>("field");
        QTest::addColumn<QRect>("screen");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QPoint>("expected");
        const QRect screen(0, 0, 1000, 800);
        QTest::newRow("below") << QRect(100, 100, 50, 20) << screen << Qt::LeftToRight << QPoint(100, 126);
        QTest::newRow("below, right to left")
            << QRect(600, 100, 50, 20) << screen << Qt::RightToLeft << QPoint(250, 126);
        QTest::newRow("above where there is no room below")
            << QRect(100, 600, 50, 20) << screen << Qt::LeftToRight << QPoint(100, 294);
        QTest::newRow("inside on the right")
            << QRect(980, 100, 50, 20) << screen << Qt::LeftToRight << QPoint(600, 126);
        QTest::newRow("inside on the left")
            << QRect(10, 100, 50, 20) << screen << Qt::RightToLeft << QPoint(0, 126);
        QTest::newRow("a screen of negative origin")
            << QRect(-900, 100, 50, 20) << QRect(-1000, 0, 1000, 800) << Qt::LeftToRight << QPoint(-900, 126);
        // What does not fit below or above a field does not cover it either.
        QTest::newRow("after it in a flat window")
            << QRect(100, 40, 50, 20) << QRect(0, 0, 1000, 320) << Qt::LeftToRight << QPoint(156, 20);
        QTest::newRow("before it in a flat window")
            << QRect(600, 40, 50, 20) << QRect(0, 0, 1000, 320) << Qt::LeftToRight << QPoint(194, 20);
        QTest::newRow("after it in a flat window, right to left")
            << QRect(500, 40, 50, 20) << QRect(0, 0, 1000, 320) << Qt::RightToLeft << QPoint(94, 20);
        QTest::newRow("larger than the screen")
            << QRect(10, 10, 5, 5) << QRect(0, 0, 200, 200) << Qt::LeftToRight << QPoint(0, 0);
    }

    void position()
    {
        QFETCH(QRect, field);
        QFETCH(QRect, screen);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(popupPosition(field, QSize(400, 300), screen, direction), "expected");
    }

    void ofAWidget()
    {
        QWidget window;
        window.setGeometry(100, 50, 300, 200);
        QWidget field(&window);
        field.setGeometry(10, 20, 40, 24);
        window.show();
        const QPoint corner = field.mapToGlobal(QPoint());
        QCOMPARE(popupPosition(&field, QSize(200, 100)), corner + QPoint(0, 24 + 6));
        window.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(popupPosition(&field, QSize(100, 100)), corner + QPoint(40 - 100, 24 + 6));
    }

    void area_data()
    {
        QTest::addColumn<QString>("platform");
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<int>("popups"); // between the window and the field
        QTest::addColumn<bool>("isOfWindow");
        const QPoint onScreen(100, 50);
        QTest::newRow("the screen's") << QStringLiteral("xcb") << onScreen << 0 << false;
        QTest::newRow("the screen's, on no screen")
            << QStringLiteral("xcb") << QPoint(-5000, -5000) << 0 << false;
        const QString wayland = QStringLiteral("wayland");
        QTest::newRow("the window's on Wayland") << wayland << onScreen << 0 << true;
        QTest::newRow("in a pop-up there") << wayland << onScreen << 1 << true;
        QTest::newRow("in a pop-up of a pop-up") << wayland << onScreen << 2 << true;
    }

    void area()
    {
        QFETCH(const QString, platform);
        QFETCH(const QPoint, corner);
        QFETCH(const int, popups);
        QFETCH(const bool, isOfWindow);
        const PlatformName name(platform);
        QWidget window;
        window.setGeometry(QRect(corner, QSize(300, 200)));
        QWidget* parent = &window;
        for (int i = 0; i < popups; ++i) {
            parent = new QWidget(parent, Qt::Popup);
            parent->setGeometry(10, 20, 400, 500);
        }
        const QWidget field(parent);
        QCOMPARE(popupArea(field),
                 isOfWindow ? window.geometry() : QGuiApplication::primaryScreen()->availableGeometry());
    }

    void ofTheSelector_data()
    {
        QTest::addColumn<QRect>("button");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QRect>("area");
        QTest::addColumn<QPoint>("place");

        const QRect screen(0, 0, 1000, 800);
        const QRect button(400, 500, 20, 10);
        const QSize size(200, 300);
        QTest::newRow("room on all sides") << button << size << 0 << screen << QPoint(420, 210);
        QTest::newRow("shifted to the right") << button << size << 7 << screen << QPoint(427, 210);
        QTest::newRow("shifted to the left") << button << size << -7 << screen << QPoint(413, 210);
        QTest::newRow("lower than the button") << button << QSize(200, 4) << 0 << screen << QPoint(420, 506);
        QTest::newRow("just fits at the right")
            << QRect(780, 500, 20, 10) << size << 0 << screen << QPoint(800, 210);
        QTest::newRow("sticks out at the right")
            << QRect(781, 500, 20, 10) << size << 0 << screen << QPoint(581, 210);
        QTest::newRow("sticks out at the right, shifted")
            << QRect(781, 500, 20, 10) << size << 7 << screen << QPoint(574, 210);
        QTest::newRow("just fits at the left")
            << QRect(200, 500, 20, 10) << size << 0 << QRect(0, 0, 400, 800) << QPoint(0, 210);
        QTest::newRow("fits on neither side")
            << QRect(199, 500, 20, 10) << size << 0 << QRect(0, 0, 400, 800) << QPoint(200, 210);
        QTest::newRow("button right of the screen")
            << QRect(1300, 500, 20, 10) << size << 0 << screen << QPoint(800, 210);
        QTest::newRow("just fits at the top")
            << QRect(400, 290, 20, 10) << size << 0 << screen << QPoint(420, 0);
        QTest::newRow("sticks out at the top")
            << QRect(400, 289, 20, 10) << size << 0 << screen << QPoint(420, 0);
        QTest::newRow("button below the screen")
            << QRect(400, 900, 20, 10) << size << 0 << screen << QPoint(420, 500);
        QTest::newRow("button left of the screen")
            << QRect(-90, 500, 20, 10) << size << 0 << screen << QPoint(0, 210);
        QTest::newRow("another screen, at negative places")
            << QRect(-60, -300, 20, 10) << size << 0 << QRect(-1000, -800, 1000, 800) << QPoint(-260, -590);
        QTest::newRow("a panel at the left of the screen takes room")
            << QRect(10, 500, 20, 10) << size << 0 << QRect(64, 32, 936, 768) << QPoint(64, 210);
        QTest::newRow("wider than the screen") << button << QSize(1200, 300) << 0 << screen << QPoint(0, 210);
        QTest::newRow("higher than the screen") << button << QSize(200, 900) << 0 << screen << QPoint(420, 0);
        QTest::newRow("no screen") << QRect(-90, 500, 20, 10) << size << 0 << QRect() << QPoint(-70, 210);
    }

    void ofTheSelector()
    {
        QFETCH(QRect, button);
        QFETCH(QSize, size);
        QFETCH(int, offset);
        QFETCH(QRect, area);
        QTEST(selectorPosition(button, size, offset, area), "place");
    }
};

UIC_TEST_MAIN(tst_PopupPosition)
#include "tst_PopupPosition.moc"
