#include "TestMain.h"

#include <UiComponents/PointMapping.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();

} // namespace

class tst_PointMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scales_data()
    {
        QTest::addColumn<QRectF>("limits");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::newRow("plain") << QRectF(0, 0, 200, 25) << QSize(101, 51) << 2.0 << 0.5;
        QTest::newRow("upside down") << QRectF(100, 50, -200, -25) << QSize(101, 51) << -2.0 << -0.5;
        QTest::newRow("no limits") << QRectF() << QSize(101, 51) << 0.0 << 0.0;
        QTest::newRow("2 pixels") << QRectF(0, 0, 3, 5) << QSize(2, 2) << 3.0 << 5.0;
        QTest::newRow("1 pixel") << QRectF(0, 0, 3, -5) << QSize(1, 1) << infinite << -infinite;
        QTest::newRow("1 pixel, no limits") << QRectF() << QSize(1, 1) << noNumber << noNumber;
        QTest::newRow("0 pixels") << QRectF(0, 0, 3, 5) << QSize(0, 0) << -3.0 << -5.0;
        QTest::newRow("infinite") << QRectF(0, 0, infinite, -infinite) << QSize(2, 2) << infinite
                                  << -infinite;
        QTest::newRow("largest") << QRectF(0, 0, largest, -largest) << QSize(2, 2) << largest << -largest;
    }

    void scales()
    {
        QFETCH(QRectF, limits);
        QFETCH(QSize, size);
        QFETCH(double, x);
        QFETCH(double, y);
        const PointMapping::Scale scale = PointMapping::scaleOf(limits, size);
        QCOMPARE(scale.x, x);
        QCOMPARE(scale.y, y);
    }

    void edgesAreTheLimits_data()
    {
        QTest::addColumn<QRectF>("limits");
        QTest::newRow("whole") << QRectF(-50, 7, 300, 100);
        QTest::newRow("thirds") << QRectF(1.0 / 3, -2.0 / 3, 1.0 / 7, 0.1);
        QTest::newRow("tiny") << QRectF(1e-9, -1e-9, 1e-12, 3e-13);
        QTest::newRow("huge") << QRectF(-1e300, 1e250, 3e300, 1e251);
        QTest::newRow("upside down") << QRectF(0.3, 0.7, -0.9, -1.1);
    }

    // To the last bit, at every size.
    void edgesAreTheLimits()
    {
        QFETCH(QRectF, limits);
        for (int pixels = 2; pixels < 1500; ++pixels) {
            const QSize size(pixels, 1501 - pixels);
            const PointMapping::Scale scale = PointMapping::scaleOf(limits, size);
            const QPointF first = PointMapping::toPoint({0, 0}, limits, scale, size);
            const QPointF last =
                PointMapping::toPoint({size.width() - 1.0, size.height() - 1.0}, limits, scale, size);
            QVERIFY(first.x() == limits.left());
            QVERIFY(first.y() == limits.top());
            QVERIFY(last.x() == limits.right());
            QVERIFY(last.y() == limits.bottom());
        }
    }

    void thereAndBack()
    {
        std::mt19937 generator(7);
        std::uniform_real_distribution<double> coordinate(-1000.0, 1000.0);
        for (int i = 0; i < 2000; ++i) {
            const QRectF limits(coordinate(generator), coordinate(generator), coordinate(generator),
                                coordinate(generator));
            const QSize size(2 + int(generator() % 2000), 2 + int(generator() % 2000));
            const PointMapping::Scale scale = PointMapping::scaleOf(limits, size);
            const QPoint pixel(int(generator() % unsigned(size.width())),
                               int(generator() % unsigned(size.height())));
            const QPointF back =
                PointMapping::toPixel(PointMapping::toPoint(pixel, limits, scale, size), limits, scale);
            QVERIFY(std::abs(back.x() - pixel.x()) < 1e-6);
            QVERIFY(std::abs(back.y() - pixel.y()) < 1e-6);
        }
    }

    void pointsOutside()
    {
        const QRectF limits(0, 0, 10, 10);
        const PointMapping::Scale scale = PointMapping::scaleOf(limits, {101, 101});
        QCOMPARE(PointMapping::toPixel({-1, 12.34}, limits, scale), QPointF(-10, 123.4));
        QCOMPARE(PointMapping::toPoint({-10, 200}, limits, scale, {101, 101}), QPointF(-1, 20));
        const QPointF nowhere = PointMapping::toPixel({0, 1}, {}, {0.0, 0.0});
        QVERIFY(std::isnan(nowhere.x()));
        QVERIFY(std::isinf(nowhere.y()));
    }

    void pinned_data()
    {
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("pinned");
        QTest::newRow("inside") << QPoint(3, 4) << QSize(10, 10) << QPoint(3, 4);
        QTest::newRow("left and below") << QPoint(-3, 40) << QSize(10, 10) << QPoint(0, 9);
        QTest::newRow("right and above") << QPoint(10, -1) << QSize(10, 10) << QPoint(9, 0);
        QTest::newRow("one pixel") << QPoint(5, 5) << QSize(1, 1) << QPoint(0, 0);
        QTest::newRow("no pixel") << QPoint(5, 5) << QSize(0, 0) << QPoint(0, 0);
    }

    void pinned()
    {
        QFETCH(QPoint, pixel);
        QFETCH(QSize, size);
        QTEST(PointMapping::pinned(pixel, QRect(QPoint(), size)), "pinned");
    }

    void stepped_data()
    {
        QTest::addColumn<QPointF>("pixel");
        QTest::addColumn<QPoint>("step");
        QTest::addColumn<QPointF>("stepped");
        QTest::newRow("right") << QPointF(3, 4) << QPoint(1, 0) << QPointF(4, 4);
        QTest::newRow("between pixels") << QPointF(3.25, 4.5) << QPoint(0, -1) << QPointF(3.25, 3.5);
        QTest::newRow("at the edge") << QPointF(9, 4) << QPoint(10, 0) << QPointF(9, 4);
        QTest::newRow("towards the edge") << QPointF(8.5, 4) << QPoint(1, 0) << QPointF(9, 4);
        QTest::newRow("no point yet") << QPointF(-1, -1) << QPoint(1, 0) << QPointF(0, 0);
        QTest::newRow("from outside") << QPointF(500, -500) << QPoint(-10, 0) << QPointF(9, 0);
        QTest::newRow("infinite") << QPointF(infinite, -infinite) << QPoint(1, 0) << QPointF(9, 0);
        QTest::newRow("NaN") << QPointF(noNumber, noNumber) << QPoint(0, 1) << QPointF(0, 0);
    }

    void stepped()
    {
        QFETCH(QPointF, pixel);
        QFETCH(QPoint, step);
        QTEST(PointMapping::stepped(pixel, step, QRect(0, 0, 10, 10)), "stepped");
    }

    void isInside_data()
    {
        QTest::addColumn<QPointF>("pixel");
        QTest::addColumn<bool>("inside");
        QTest::newRow("middle") << QPointF(5, 5) << true;
        QTest::newRow("first") << QPointF(0, 0) << true;
        QTest::newRow("last") << QPointF(9, 9) << true;
        QTest::newRow("rounded to the first") << QPointF(-0.4, -0.4) << true;
        QTest::newRow("rounded to the last") << QPointF(9.4, 9.4) << true;
        QTest::newRow("rounded to the left") << QPointF(-0.6, 5) << false;
        QTest::newRow("rounded to the right") << QPointF(9.5, 5) << false;
        QTest::newRow("above") << QPointF(5, -1) << false;
        QTest::newRow("below") << QPointF(5, 10) << false;
        QTest::newRow("beyond an int") << QPointF(5, 3e9) << false;
        QTest::newRow("wraps round") << QPointF(4294967301.0, 5) << false;
        QTest::newRow("largest") << QPointF(-largest, largest) << false;
        QTest::newRow("infinite") << QPointF(infinite, 5) << false;
        QTest::newRow("NaN") << QPointF(5, noNumber) << false;
    }

    void isInside()
    {
        QFETCH(QPointF, pixel);
        QTEST(PointMapping::isInside(pixel, QRect(0, 0, 10, 10)), "inside");
        QVERIFY(!PointMapping::isInside(pixel, QRect()));
    }
};

UIC_TEST_MAIN(tst_PointMapping)
#include "tst_PointMapping.moc"
