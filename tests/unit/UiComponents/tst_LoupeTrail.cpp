#include "TestMain.h"

#include <UiComponents/LoupeTrail.h>

namespace {

constexpr int lag = 60;
const QRegion square(QRect(0, 0, 100, 100));

LoupeTrail::Place placeAt(int x, int y, const QRect& keptFree = {})
{
    return {QPoint(x, y), keptFree};
}

} // namespace

class tst_LoupeTrail : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingWasPainted();
    void presentPlaceIsNeverFree();
    void besideTheLoupeIsFree();
    void leftPlaceIsFreeAfterTheLag();
    void hiddenLoupeLeavesItsPlace();
    void newestPlaceCounts();
    void returnStartsAnew();
    void unchangedPaintingChangesNothing();
    void shapeCounts();
    void keptAreaIsFree();
    void withoutLagALeftPlaceIsFreeAtOnce();
    void longPathIsForgotten();
};

void tst_LoupeTrail::nothingWasPainted()
{
    const LoupeTrail trail(lag);
    QVERIFY(trail.untilFree({0, 0, 1000, 1000}, square, 0) == 0);
}

void tst_LoupeTrail::presentPlaceIsNeverFree()
{
    LoupeTrail trail(lag);
    trail.paint(placeAt(10, 10), 0);
    QVERIFY(!trail.untilFree({50, 50, 1, 1}, square, 0));
    QVERIFY(!trail.untilFree({50, 50, 1, 1}, square, 10 * lag));
}

void tst_LoupeTrail::besideTheLoupeIsFree()
{
    LoupeTrail trail(lag);
    trail.paint(placeAt(-200, -100), 0);
    QVERIFY(!trail.untilFree({-101, -1, 5, 5}, square, 0));
    QVERIFY(trail.untilFree({-100, -1, 5, 5}, square, 0) == 0);
    QVERIFY(trail.untilFree({-101, 0, 5, 5}, square, 0) == 0);
    QVERIFY(trail.untilFree({-205, -105, 5, 5}, square, 0) == 0);
    QVERIFY(!trail.untilFree({-204, -104, 5, 5}, square, 0));
}

void tst_LoupeTrail::leftPlaceIsFreeAfterTheLag()
{
    LoupeTrail trail(lag);
    const QRect area(20, 20, 13, 13);
    trail.paint(placeAt(0, 0), 0);
    trail.paint(placeAt(500, 0), 1000);
    QVERIFY(trail.untilFree(area, square, 1000) == lag);
    QVERIFY(trail.untilFree(area, square, 1000 + lag - 1) == 1);
    QVERIFY(trail.untilFree(area, square, 1000 + lag) == 0);
}

void tst_LoupeTrail::hiddenLoupeLeavesItsPlace()
{
    LoupeTrail trail(lag);
    trail.paint(placeAt(0, 0), 0);
    trail.paint(std::nullopt, 100);
    QVERIFY(trail.untilFree({20, 20, 1, 1}, square, 130) == lag - 30);
    QVERIFY(trail.untilFree({20, 20, 1, 1}, square, 100 + lag) == 0);
}

void tst_LoupeTrail::newestPlaceCounts()
{
    LoupeTrail trail(lag);
    trail.paint(placeAt(0, 0), 0);
    trail.paint(placeAt(30, 0), 10);
    trail.paint(placeAt(60, 0), 20);
    trail.paint(placeAt(500, 0), 30);
    // The first was left at 10, the second at 20.
    QVERIFY(trail.untilFree({70, 0, 5, 5}, square, 30) == lag);
    QVERIFY(trail.untilFree({40, 0, 5, 5}, square, 30) == lag - 10);
    QVERIFY(trail.untilFree({3, 0, 5, 5}, square, 30) == lag - 20);
}

void tst_LoupeTrail::returnStartsAnew()
{
    LoupeTrail trail(lag);
    const QRect area(20, 20, 1, 1);
    trail.paint(placeAt(0, 0), 0);
    trail.paint(placeAt(500, 0), 10);
    trail.paint(placeAt(0, 0), 20);
    QVERIFY(!trail.untilFree(area, square, 20 + 2 * lag));
    trail.paint(placeAt(500, 0), 200);
    QVERIFY(trail.untilFree(area, square, 200) == lag);
}

// A window is painted for other reasons too.
void tst_LoupeTrail::unchangedPaintingChangesNothing()
{
    LoupeTrail trail(lag);
    trail.paint(placeAt(0, 0), 0);
    trail.paint(placeAt(500, 0), 10);
    trail.paint(placeAt(500, 0), 50);
    QVERIFY(trail.untilFree({20, 20, 1, 1}, square, 10 + lag) == 0);
}

void tst_LoupeTrail::shapeCounts()
{
    LoupeTrail trail(lag);
    const QRegion disc(QRect(0, 0, 100, 100), QRegion::Ellipse);
    trail.paint(placeAt(0, 0), 0);
    QVERIFY(trail.untilFree({0, 0, 7, 7}, disc, 0) == 0);
    QVERIFY(!trail.untilFree({0, 0, 30, 30}, disc, 0));
    QVERIFY(trail.untilFree({0, 0, 30, 30}, QRegion(), 0) == 0);
}

void tst_LoupeTrail::keptAreaIsFree()
{
    LoupeTrail trail(lag);
    const QRect kept(10, 10, 15, 15);
    trail.paint(placeAt(0, 0, kept), 0);
    QVERIFY(trail.untilFree(kept, square, 0) == 0);
    QVERIFY(trail.untilFree({12, 12, 3, 3}, square, 0) == 0);
    QVERIFY(!trail.untilFree(kept.translated(1, 0), square, 0));
    // It belongs to its place: elsewhere the loupe covered those pixels.
    trail.paint(placeAt(1, 0, kept.translated(100, 0)), 10);
    QVERIFY(!trail.untilFree(kept, square, 10));
}

void tst_LoupeTrail::withoutLagALeftPlaceIsFreeAtOnce()
{
    LoupeTrail trail(0);
    trail.paint(placeAt(0, 0), 0);
    QVERIFY(!trail.untilFree({20, 20, 1, 1}, square, 0));
    trail.paint(placeAt(500, 0), 0);
    QVERIFY(trail.untilFree({20, 20, 1, 1}, square, 0) == 0);
}

void tst_LoupeTrail::longPathIsForgotten()
{
    LoupeTrail trail(lag);
    for (int i = 0; i < 10000; ++i) {
        trail.paint(placeAt(i, 0), i);
    }
    QVERIFY(trail.untilFree({9999 - lag - 1, 0, 1, 1}, square, 9999) == 0);
    QVERIFY(trail.untilFree({9998, 0, 1, 1}, square, 9999) == lag);
}

UIC_TEST_MAIN(tst_LoupeTrail)
#include "tst_LoupeTrail.moc"
