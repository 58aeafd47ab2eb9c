#include "TestMain.h"

#include <EditorWidgets/PointingWidgetPlacement.h>

#include <limits>

using ArrowPosition = PointingWidget::ArrowPosition;
using ArrowSide = PointingWidget::ArrowSide;

Q_DECLARE_METATYPE(BubbleRequest)

namespace {

const ArrowSide allSides[] = {ArrowSide::Top, ArrowSide::Right, ArrowSide::Bottom, ArrowSide::Left};
const ArrowPosition allPositions[] = {ArrowPosition::Start, ArrowPosition::Center, ArrowPosition::End};

/// A 101 x 61 bubble in the middle of a screen. Its arrow's foot keeps 1 + 6 + 8 pixels from the corners.
BubbleRequest request()
{
    BubbleRequest result;
    result.size = QSize(101, 61);
    result.target = QPoint(500, 400);
    result.area = QRect(0, 0, 1000, 800);
    return result;
}

QImage painted(const PointingWidgetPlacement& placement, const BubbleShape& shape, qreal scale)
{
    QImage image(placement.geometry.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::white);
    const qreal width = bubblePenWidth(shape, scale);
    painter.setPen(width > 0 ? QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin) : Qt::NoPen);
    painter.drawPath(bubblePath(placement, shape, scale));
    return image;
}

} // namespace

class tst_PointingWidgetPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sidesAndPositions_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<QPoint>("topLeft");
        // Bubbles on a horizontal side: the foot is 15 pixels from the start, 50 in the middle, 85 at the
        // end.
        QTest::newRow("top start") << 0 << 0 << false << QPoint(485, 400);
        QTest::newRow("top center") << 0 << 1 << false << QPoint(450, 400);
        QTest::newRow("top end") << 0 << 2 << false << QPoint(415, 400);
        QTest::newRow("bottom start") << 2 << 0 << false << QPoint(485, 340);
        QTest::newRow("bottom center") << 2 << 1 << false << QPoint(450, 340);
        QTest::newRow("bottom end") << 2 << 2 << false << QPoint(415, 340);
        QTest::newRow("right start") << 1 << 0 << false << QPoint(400, 385);
        QTest::newRow("right center") << 1 << 1 << false << QPoint(400, 370);
        QTest::newRow("right end") << 1 << 2 << false << QPoint(400, 355);
        QTest::newRow("left start") << 3 << 0 << false << QPoint(500, 385);
        QTest::newRow("left center") << 3 << 1 << false << QPoint(500, 370);
        QTest::newRow("left end") << 3 << 2 << false << QPoint(500, 355);
        // Right to left mirrors along the top and bottom only.
        QTest::newRow("rtl top start") << 0 << 0 << true << QPoint(415, 400);
        QTest::newRow("rtl top center") << 0 << 1 << true << QPoint(450, 400);
        QTest::newRow("rtl top end") << 0 << 2 << true << QPoint(485, 400);
        QTest::newRow("rtl bottom start") << 2 << 0 << true << QPoint(415, 340);
        QTest::newRow("rtl bottom center") << 2 << 1 << true << QPoint(450, 340);
        QTest::newRow("rtl bottom end") << 2 << 2 << true << QPoint(485, 340);
        QTest::newRow("rtl right start") << 1 << 0 << true << QPoint(400, 385);
        QTest::newRow("rtl right end") << 1 << 2 << true << QPoint(400, 355);
        QTest::newRow("rtl left start") << 3 << 0 << true << QPoint(500, 385);
        QTest::newRow("rtl left end") << 3 << 2 << true << QPoint(500, 355);
    }

    void sidesAndPositions()
    {
        QFETCH(const int, side);
        QFETCH(const int, position);
        QFETCH(const bool, rightToLeft);
        QFETCH(const QPoint, topLeft);
        BubbleRequest bubble = request();
        bubble.side = ArrowSide(side);
        bubble.position = ArrowPosition(position);
        bubble.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
        const PointingWidgetPlacement placement = placeBubble(bubble);
        QCOMPARE(placement.geometry, QRect(topLeft, bubble.size));
        QCOMPARE(placement.side, bubble.side);
        QCOMPARE(placement.geometry.topLeft() + placement.tip, bubble.target);
        const bool across = bubble.side == ArrowSide::Top || bubble.side == ArrowSide::Bottom;
        QCOMPARE(placement.base, across ? placement.tip.x() : placement.tip.y());
    }

    void offset_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("offset");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<int>("foot");
        QTest::newRow("right") << 0 << 1 << 10 << false << 60;
        QTest::newRow("left") << 0 << 1 << -10 << false << 40;
        QTest::newRow("mirrored") << 0 << 1 << 10 << true << 40;
        QTest::newRow("mirrored, bottom") << 2 << 1 << -10 << true << 60;
        QTest::newRow("down") << 3 << 1 << 5 << false << 35;
        QTest::newRow("down, right to left") << 1 << 1 << 5 << true << 35;
        QTest::newRow("from the start") << 0 << 0 << 20 << false << 35;
        QTest::newRow("from the end") << 0 << 2 << -20 << false << 65;
        QTest::newRow("no further than the corner") << 0 << 2 << 3 << false << 85;
        QTest::newRow("no further than the other corner") << 0 << 2 << -90 << false << 15;
        QTest::newRow("largest") << 0 << 1 << std::numeric_limits<int>::max() << false << 85;
        QTest::newRow("smallest") << 0 << 1 << std::numeric_limits<int>::min() << false << 15;
        QTest::newRow("smallest, mirrored") << 0 << 1 << std::numeric_limits<int>::min() << true << 85;
    }

    void offset()
    {
        QFETCH(const int, side);
        QFETCH(const int, position);
        QFETCH(const int, offset);
        QFETCH(const bool, rightToLeft);
        QFETCH(const int, foot);
        BubbleRequest bubble = request();
        bubble.side = ArrowSide(side);
        bubble.position = ArrowPosition(position);
        bubble.offset = offset;
        bubble.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
        const PointingWidgetPlacement placement = placeBubble(bubble);
        QCOMPARE(placement.base, foot);
        QCOMPARE(placement.geometry.topLeft() + placement.tip, bubble.target);
    }

    void flips_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QPoint>("target");
        QTest::addColumn<int>("effective");
        QTest::newRow("top: last row with room") << 0 << QPoint(500, 739) << 0;
        QTest::newRow("top: one too low") << 0 << QPoint(500, 740) << 2;
        QTest::newRow("bottom: first row with room") << 2 << QPoint(500, 60) << 2;
        QTest::newRow("bottom: one too high") << 2 << QPoint(500, 59) << 0;
        QTest::newRow("left: last column with room") << 3 << QPoint(899, 400) << 3;
        QTest::newRow("left: one too far") << 3 << QPoint(900, 400) << 1;
        QTest::newRow("right: first column with room") << 1 << QPoint(100, 400) << 1;
        QTest::newRow("right: one too far") << 1 << QPoint(99, 400) << 3;
    }

    void flips()
    {
        QFETCH(const int, side);
        QFETCH(const QPoint, target);
        QFETCH(const int, effective);
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            BubbleRequest bubble = request();
            bubble.side = ArrowSide(side);
            bubble.target = target;
            bubble.direction = direction;
            const PointingWidgetPlacement placement = placeBubble(bubble);
            QCOMPARE(int(placement.side), effective);
            QVERIFY(bubble.area.contains(placement.geometry));
            QCOMPARE(placement.geometry.topLeft() + placement.tip, target);
        }
    }

    void insideAndTouching_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<bool>("rightToLeft");
        for (const ArrowSide side : allSides) {
            QTest::addRow("side %d", int(side)) << int(side) << false;
            QTest::addRow("side %d, right to left", int(side)) << int(side) << true;
        }
    }

    // Every target of an area that has room for the bubble, corners included.
    void insideAndTouching()
    {
        QFETCH(const int, side);
        QFETCH(const bool, rightToLeft);
        BubbleRequest bubble = request();
        bubble.side = ArrowSide(side);
        bubble.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
        bubble.area = QRect(-37, 19, 230, 140);
        for (const ArrowPosition position : allPositions) {
            for (const int offset : {0, -30, 30}) {
                for (int y = bubble.area.top(); y <= bubble.area.bottom(); ++y) {
                    for (int x = bubble.area.left(); x <= bubble.area.right(); x += x % 16 == 0 ? 5 : 1) {
                        bubble.position = position;
                        bubble.offset = offset;
                        bubble.target = QPoint(x, y);
                        const PointingWidgetPlacement placement = placeBubble(bubble);
                        const bool across =
                            placement.side == ArrowSide::Top || placement.side == ArrowSide::Bottom;
                        const int length = across ? 101 : 61;
                        const bool good = bubble.area.contains(placement.geometry) &&
                                          placement.geometry.topLeft() + placement.tip == bubble.target &&
                                          placement.base >= 15 && placement.base <= length - 1 - 15;
                        if (!good) {
                            QFAIL(qPrintable(QStringLiteral("position %1, offset %2, target %3, %4")
                                                 .arg(int(position))
                                                 .arg(offset)
                                                 .arg(x)
                                                 .arg(y)));
                        }
                    }
                }
            }
        }
    }

    void largerThanArea_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("side");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<QPoint>("topLeft");
        const QSize wide(400, 40);
        const QSize high(60, 400);
        QTest::newRow("too wide") << wide << 0 << false << QPoint(10, 70);
        QTest::newRow("too wide, right to left") << wide << 0 << true << QPoint(-190, 70);
        QTest::newRow("too wide, arrow left") << wide << 3 << false << QPoint(10, 51);
        QTest::newRow("too wide, arrow left, right to left") << wide << 3 << true << QPoint(-190, 51);
        QTest::newRow("too high") << high << 0 << false << QPoint(21, 20);
        QTest::newRow("too high, right to left") << high << 2 << true << QPoint(20, 20);
        QTest::newRow("too high, arrow left") << high << 3 << false << QPoint(50, 20);
        QTest::newRow("both") << QSize(400, 400) << 1 << false << QPoint(10, 20);
        QTest::newRow("both, right to left") << QSize(400, 400) << 1 << true << QPoint(-190, 20);
    }

    void largerThanArea()
    {
        QFETCH(const QSize, size);
        QFETCH(const int, side);
        QFETCH(const bool, rightToLeft);
        QFETCH(const QPoint, topLeft);
        BubbleRequest bubble = request();
        bubble.size = size;
        bubble.side = ArrowSide(side);
        bubble.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
        bubble.area = QRect(10, 20, 200, 100);
        bubble.target = QPoint(50, 70);
        const PointingWidgetPlacement placement = placeBubble(bubble);
        QCOMPARE(placement.geometry, QRect(topLeft, size));
        QVERIFY(QRect(QPoint(), size).contains(placement.tip));
    }

    void outsideArea_data()
    {
        QTest::addColumn<QPoint>("target");
        QTest::addColumn<QRect>("geometry");
        QTest::addColumn<QPoint>("tip");
        QTest::newRow("above") << QPoint(500, -50) << QRect(450, 0, 101, 61) << QPoint(50, 0);
        QTest::newRow("below") << QPoint(500, 900) << QRect(450, 739, 101, 61) << QPoint(50, 60);
        QTest::newRow("left of it") << QPoint(-300, 400) << QRect(0, 400, 101, 61) << QPoint(0, 0);
        QTest::newRow("right of it") << QPoint(1300, 400) << QRect(899, 400, 101, 61) << QPoint(100, 0);
    }

    void outsideArea()
    {
        QFETCH(const QPoint, target);
        QFETCH(const QRect, geometry);
        QFETCH(const QPoint, tip);
        BubbleRequest bubble = request();
        bubble.target = target;
        const PointingWidgetPlacement placement = placeBubble(bubble);
        QCOMPARE(placement.geometry, geometry);
        QCOMPARE(placement.tip, tip);
    }

    void extremeNumbers()
    {
        const int max = std::numeric_limits<int>::max();
        const int min = std::numeric_limits<int>::min();
        for (const ArrowSide side : allSides) {
            for (const QPoint& target : {QPoint(max, max), QPoint(min, min), QPoint(min, max)}) {
                BubbleRequest bubble = request();
                bubble.side = side;
                bubble.target = target;
                bubble.offset = max;
                QVERIFY(bubble.area.contains(placeBubble(bubble).geometry));
            }
        }
    }

    void negativeOrigin()
    {
        BubbleRequest bubble = request();
        bubble.area = QRect(-1920, -300, 1920, 1080);
        bubble.target = QPoint(-1920, -300);
        PointingWidgetPlacement placement = placeBubble(bubble);
        QCOMPARE(placement.geometry, QRect(-1920, -300, 101, 61));
        QCOMPARE(placement.tip, QPoint(0, 0));
        bubble.target = QPoint(-1, 779);
        placement = placeBubble(bubble);
        QCOMPARE(placement.geometry, QRect(-101, 719, 101, 61));
        QCOMPARE(placement.tip, QPoint(100, 60));
        QCOMPARE(placement.side, ArrowSide::Bottom);
    }

    void margins()
    {
        const BubbleShape shape; // 1 for the border, 2 for the corners
        QCOMPARE(bubbleMargins(shape, ArrowSide::Top), QMargins(3, 11, 3, 3));
        QCOMPARE(bubbleMargins(shape, ArrowSide::Right), QMargins(3, 3, 11, 3));
        QCOMPARE(bubbleMargins(shape, ArrowSide::Bottom), QMargins(3, 3, 3, 11));
        QCOMPARE(bubbleMargins(shape, ArrowSide::Left), QMargins(11, 3, 3, 3));
        QCOMPARE(bubbleMargins({0, 0, 0, 0}, ArrowSide::Left), QMargins());
    }

    void minimumSize()
    {
        const BubbleShape shape;
        QCOMPARE(minimumBubbleSize(shape, ArrowSide::Top), QSize(30, 22));
        QCOMPARE(minimumBubbleSize(shape, ArrowSide::Left), QSize(22, 30));
        QCOMPARE(minimumBubbleSize({0, 0, 0, 0}, ArrowSide::Left), QSize(0, 0));
    }

    void pathIsCrisp_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<int>("borderWidth");
        for (const int width : {1, 2, 3}) {
            for (const qreal scale : {1.0, 1.5, 2.0, 3.0}) {
                QTest::addRow("%d wide at %g", width, scale) << scale << width;
            }
        }
    }

    // Away from the arrow and the corners, the border is black up to its inner edge and white from there on.
    void pathIsCrisp()
    {
        QFETCH(const qreal, scale);
        QFETCH(const int, borderWidth);
        BubbleShape shape;
        shape.borderWidth = borderWidth;
        BubbleRequest bubble = request();
        bubble.size = QSize(102, 62);
        bubble.shape = shape;
        const int thickness = qRound(borderWidth * scale);
        for (const ArrowSide side : allSides) {
            bubble.side = side;
            const QImage image = painted(placeBubble(bubble), shape, scale);
            // Where the body ends, on each side.
            const int arrow = qRound(shape.arrowLength * scale);
            const QRect body = image.rect().adjusted(
                side == ArrowSide::Left ? arrow : 0, side == ArrowSide::Top ? arrow : 0,
                side == ArrowSide::Right ? -arrow : 0, side == ArrowSide::Bottom ? -arrow : 0);
            const int x = body.left() + qRound(12 * scale);
            const int y = body.top() + qRound(12 * scale);
            for (int i = 0; i < thickness + 2; ++i) {
                const QColor expected = i < thickness ? Qt::black : Qt::white;
                QCOMPARE(image.pixelColor(x, body.top() + i), expected);
                QCOMPARE(image.pixelColor(x, body.bottom() - i), expected);
                QCOMPARE(image.pixelColor(body.left() + i, y), expected);
                QCOMPARE(image.pixelColor(body.right() - i, y), expected);
            }
        }
    }

    void pathStaysInside_data()
    {
        QTest::addColumn<int>("side");
        for (const ArrowSide side : allSides) {
            QTest::addRow("side %d", int(side)) << int(side);
        }
    }

    // Every painted pixel is in the region, and neither leaves the bubble; the tip may lean to a corner.
    void pathStaysInside()
    {
        QFETCH(const int, side);
        const BubbleShape shapes[] = {
            {}, {0, 0, 10, 5}, {4, 12, 24, 10}, {1, 20, 0, 8}, {1, 6, 16, 0}, {3, 0, 60, 30}};
        for (const BubbleShape& shape : shapes) {
            for (int x = 0; x <= 300; x += 20) {
                BubbleRequest bubble = request();
                bubble.side = ArrowSide(side);
                bubble.shape = shape;
                bubble.area = QRect(0, 0, 301, 301);
                bubble.target = QPoint(x, x);
                const PointingWidgetPlacement placement = placeBubble(bubble);
                const QRegion region = bubbleRegion(placement, shape);
                QVERIFY(QRect(QPoint(), bubble.size).contains(region.boundingRect()));
                int inRegion = 0;
                for (const QRect& part : region) {
                    inRegion += part.width() * part.height();
                }
                for (const qreal scale : {1.0, 2.0}) {
                    const QImage image = painted(placement, shape, scale);
                    int opaque = 0;
                    for (int py = 0; py < image.height(); ++py) {
                        for (int px = 0; px < image.width(); ++px) {
                            opaque += qAlpha(image.pixel(px, py)) == 255 ? 1 : 0;
                            if (qAlpha(image.pixel(px, py)) != 0 &&
                                !region.contains(QPoint(int(px / scale), int(py / scale)))) {
                                QFAIL(
                                    qPrintable(QStringLiteral("pixel %1, %2 at scale %3, target %4, arrow %5")
                                                   .arg(px)
                                                   .arg(py)
                                                   .arg(scale)
                                                   .arg(x)
                                                   .arg(shape.arrowWidth)));
                            }
                        }
                    }
                    // Nor is it much more than what is painted: two pixels all around at most.
                    const int outline = 2 * (bubble.size.width() + bubble.size.height());
                    QVERIFY2(inRegion - opaque / (scale * scale) < 2 * outline,
                             qPrintable(QString::number(inRegion)));
                }
            }
        }
    }

    void tinySizes()
    {
        const BubbleShape shapes[] = {{}, {0, 0, 0, 0}, {100, 1000, 1000, 1000}, {2, 30, 5, 5}};
        for (const BubbleShape& shape : shapes) {
            for (const ArrowSide side : allSides) {
                for (int width = 0; width < 20; ++width) {
                    for (int height = 0; height < 20; ++height) {
                        BubbleRequest bubble = request();
                        bubble.size = QSize(width, height);
                        bubble.side = side;
                        bubble.shape = shape;
                        const PointingWidgetPlacement placement = placeBubble(bubble);
                        const QRectF bounds = bubblePath(placement, shape).boundingRect();
                        QVERIFY(bounds.isEmpty() || QRectF(0, 0, width, height).contains(bounds));
                        QVERIFY(QRect(0, 0, width, height)
                                    .contains(bubbleRegion(placement, shape).boundingRect()) ||
                                bubbleRegion(placement, shape).isEmpty());
                    }
                }
            }
        }
    }

    void tipIsPainted_data() { pathStaysInside_data(); }

    void tipIsPainted()
    {
        QFETCH(const int, side);
        for (const QPoint& target :
             {QPoint(150, 150), QPoint(0, 150), QPoint(300, 150), QPoint(150, 0), QPoint(150, 300)}) {
            BubbleRequest bubble = request();
            bubble.side = ArrowSide(side);
            bubble.area = QRect(0, 0, 301, 301);
            bubble.target = target;
            const PointingWidgetPlacement placement = placeBubble(bubble);
            const QImage image = painted(placement, bubble.shape, 1);
            QVERIFY2(qAlpha(image.pixel(placement.tip)) > 100,
                     qPrintable(QString::number(qAlpha(image.pixel(placement.tip)))));
        }
    }

    void noBorderNoArrowNoRadius()
    {
        BubbleRequest bubble = request();
        bubble.shape = {0, 0, 0, 0};
        const PointingWidgetPlacement placement = placeBubble(bubble);
        const QImage image = painted(placement, bubble.shape, 1);
        for (const QPoint& corner : {QPoint(0, 0), QPoint(100, 0), QPoint(0, 60), QPoint(100, 60)}) {
            QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
        }
        QCOMPARE(bubbleRegion(placement, bubble.shape), QRegion(0, 0, 101, 61));
        QCOMPARE(bubblePenWidth(bubble.shape, 2), 0.0);
        // A border is never so thin that it vanishes.
        QCOMPARE(bubblePenWidth({1, 0, 0, 0}, 0.25), 4.0);
        // Nor is a bubble there before it has a place.
        QCOMPARE(bubbleRegion(PointingWidgetPlacement(), request().shape), QRegion());
    }

    void nearest_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<int>("index");
        QTest::newRow("in the first") << QPoint(10, 10) << 0;
        QTest::newRow("in the second") << QPoint(900, 200) << 1;
        QTest::newRow("in the gap, nearer to the first") << QPoint(820, 20) << 0;
        QTest::newRow("in the gap, nearer to the second") << QPoint(890, 100) << 1;
        QTest::newRow("far left") << QPoint(-5000, 0) << 0;
        QTest::newRow("far right") << QPoint(5000, 0) << 1;
        QTest::newRow("farthest") << QPoint(std::numeric_limits<int>::max(), std::numeric_limits<int>::min())
                                  << 1;
    }

    void nearest()
    {
        QFETCH(const QPoint, point);
        QFETCH(const int, index);
        QCOMPARE(nearestArea(point, {QRect(0, 0, 800, 600), QRect(880, 120, 640, 480)}), index);
        QCOMPARE(nearestArea(point, {}), -1);
    }
};

UIC_TEST_MAIN(tst_PointingWidgetPlacement)
#include "tst_PointingWidgetPlacement.moc"
