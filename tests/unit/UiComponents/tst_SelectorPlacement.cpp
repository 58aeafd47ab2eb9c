#include "TestMain.h"

#include <UiComponents/SelectorPlacement.h>

class tst_SelectorPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void besideButton_data()
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

    void besideButton()
    {
        QFETCH(QRect, button);
        QFETCH(QSize, size);
        QFETCH(int, offset);
        QFETCH(QRect, area);
        QTEST(SelectorPlacement::besideButton(button, size, offset, area), "place");
    }
};

UIC_TEST_MAIN(tst_SelectorPlacement)
#include "tst_SelectorPlacement.moc"
