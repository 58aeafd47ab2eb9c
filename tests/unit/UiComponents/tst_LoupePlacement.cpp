#include "TestMain.h"

#include <UiComponents/LoupePlacement.h>

using namespace LoupePlacement;

class tst_LoupePlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreFixed();
    void placementAt_data();
    void placementAt();
    void offset_data();
    void offset();
    void loupeStaysOffTheCursor();
};

void tst_LoupePlacement::numbersAreFixed()
{
    QCOMPARE(int(BelowRight), 0);
    QCOMPARE(int(BelowLeft), 1);
    QCOMPARE(int(AboveLeft), 2);
    QCOMPARE(int(AboveRight), 3);
}

void tst_LoupePlacement::placementAt_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QSize>("loupe");
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<int>("placement");

    const QSize loupe(100, 60);
    const auto addScreen = [&loupe](const char* name, const QRect& screen) {
        const auto row = [&](const char* place, const QPoint& fromCorner, Placement placement) {
            QTest::addRow("%s: %s", name, place)
                << screen << loupe << screen.topLeft() + fromCorner << int(placement);
        };
        const int right = screen.width() - 1;
        const int bottom = screen.height() - 1;
        row("middle", {right / 2, bottom / 2}, AboveRight);
        row("left edge", {0, bottom / 2}, AboveRight);
        row("bottom edge", {right / 2, bottom}, AboveRight);
        row("bottom left corner", {0, bottom}, AboveRight);
        row("first row with room above", {200, 60}, AboveRight);
        row("last row without room above", {200, 59}, BelowRight);
        row("top edge", {200, 0}, BelowRight);
        row("top left corner", {0, 0}, BelowRight);
        row("last column with room on the right", {right - 100, 300}, AboveRight);
        row("first column without room on the right", {right - 99, 300}, AboveLeft);
        row("right edge", {right, 300}, AboveLeft);
        row("bottom right corner", {right, bottom}, AboveLeft);
        row("top right corner", {right, 0}, BelowLeft);
        row("top right, at both limits", {right - 100, 60}, AboveRight);
        row("top right, beyond both limits", {right - 99, 59}, BelowLeft);
    };
    addScreen("first screen", {0, 0, 1280, 800});
    addScreen("left and above", {-1024, -768, 1024, 768});
    addScreen("odd corner", {-7, 341, 641, 481});

    // Right and top have their say even where the two exclude each other.
    QTest::newRow("screen narrower than the loupe") << QRect(0, 0, 80, 800) << loupe << QPoint(10, 400) << 2;
    QTest::newRow("screen lower than the loupe") << QRect(0, 0, 800, 50) << loupe << QPoint(10, 40) << 0;
    QTest::newRow("loupe without a size") << QRect(0, 0, 800, 600) << QSize(0, 0) << QPoint(799, 0) << 3;
}

void tst_LoupePlacement::placementAt()
{
    QFETCH(QRect, screen);
    QFETCH(QSize, loupe);
    QFETCH(QPoint, cursor);
    QFETCH(int, placement);
    QCOMPARE(int(LoupePlacement::placementAt(cursor, screen, loupe)), placement);
}

void tst_LoupePlacement::offset_data()
{
    QTest::addColumn<int>("placement");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("below right") << 0 << QSize(0, 0);
    QTest::newRow("below left") << 1 << QSize(-100, 0);
    QTest::newRow("above left") << 2 << QSize(-100, -60);
    QTest::newRow("above right") << 3 << QSize(0, -60);
    QTest::newRow("no placement") << 4 << QSize(0, 0);
    QTest::newRow("negative") << -1 << QSize(0, 0);
}

void tst_LoupePlacement::offset()
{
    QFETCH(int, placement);
    QFETCH(QSize, expected);
    QCOMPARE(LoupePlacement::offset(placement, QSize(100, 60)), expected);
}

// Only below right does the loupe's corner lie on the pixel that is picked.
void tst_LoupePlacement::loupeStaysOffTheCursor()
{
    const QSize size(117, 117);
    const QPoint cursor(400, 300);
    for (const int placement : {1, 2, 3}) {
        const QSize shift = LoupePlacement::offset(placement, size);
        const QRect place(cursor + QPoint(shift.width(), shift.height()), size);
        QVERIFY2(!place.contains(cursor), qPrintable(QString::number(placement)));
    }
}

UIC_TEST_MAIN(tst_LoupePlacement)
#include "tst_LoupePlacement.moc"
