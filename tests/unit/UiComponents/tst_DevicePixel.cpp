#include "TestMain.h"

#include <UiComponents/DevicePixel.h>

class tst_DevicePixel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void examples_data();
    void examples();
    void everyPixel_data();
    void everyPixel();
};

void tst_DevicePixel::examples_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPoint>("corner");
    QTest::addColumn<int>("extent");
    QTest::addColumn<QPoint>("index");
    QTest::newRow("scale 1") << QPointF(7, 9) << 1.0 << QPoint(7, 9) << 1 << QPoint(0, 0);
    QTest::newRow("scale 2, a whole point") << QPointF(7, 9) << 2.0 << QPoint(7, 9) << 1 << QPoint(0, 0);
    QTest::newRow("scale 2, between two") << QPointF(7.5, 9.5) << 2.0 << QPoint(7, 9) << 1 << QPoint(1, 1);
    QTest::newRow("scale 1.5, a whole point") << QPointF(3, 2) << 1.5 << QPoint(3, 2) << 1 << QPoint(0, 0);
    QTest::newRow("scale 1.5, pixel 4") << QPointF(4 / 1.5, 0) << 1.5 << QPoint(2, 0) << 1 << QPoint(1, 0);
    QTest::newRow("scale 1.25, pixel 1") << QPointF(1 / 1.25, 0) << 1.25 << QPoint(0, 0) << 2 << QPoint(1, 0);
    QTest::newRow("the corner") << QPointF(0, 0) << 3.0 << QPoint(0, 0) << 1 << QPoint(0, 0);
}

void tst_DevicePixel::examples()
{
    QFETCH(QPointF, position);
    QFETCH(double, scale);
    const DevicePixel pixel = devicePixelAt(position, scale);
    QTEST(pixel.corner, "corner");
    QTEST(pixel.extent, "extent");
    QTEST(pixel.index, "index");
}

void tst_DevicePixel::everyPixel_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {0.5, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 3.0, 4.0}) {
        QTest::addRow("scale %g", scale) << scale;
    }
}

// QScreen::grabWindow() rounds the corner and the size to pixels.
void tst_DevicePixel::everyPixel()
{
    QFETCH(double, scale);
    for (int place = 0; place < 3000; ++place) {
        const DevicePixel pixel = devicePixelAt(QPointF(place / scale, 0), scale);
        QCOMPARE(qRound(pixel.corner.x() * scale) + pixel.index.x(), place);
        QVERIFY(pixel.index.x() >= 0);
        QVERIFY(pixel.index.x() < qRound(pixel.extent * scale));
        QCOMPARE(pixel.index.y(), 0);
    }
}

UIC_TEST_MAIN(tst_DevicePixel)
#include "tst_DevicePixel.moc"
