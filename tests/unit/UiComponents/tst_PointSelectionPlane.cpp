#include "MouseEvents.h"
#include "PaintCount.h"
#include "TestMain.h"

#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectionPlanePropertyHelper.h>

#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace {

using Points = QVector<QPointF>;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();

const QRectF limits(-50.0, 100.0, 100.0, 25.0);
const QColor fillColor(32, 32, 40);
const QColor linesColor(120, 130, 140);
const QColor markerColor(250, 240, 90);
constexpr double markerRadius = 5.0;
constexpr int linesWidth = 3;

PointSelectionPlanePropertyHelper* styleOf(const QWidget& plane)
{
    return plane.findChild<PointSelectionPlanePropertyHelper*>(QString(), Qt::FindDirectChildrenOnly);
}

/// What a plane of this size looks like with the marker at a pixel, in the colours above.
QImage picture(const QSize& size, const std::optional<QPointF>& at)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(fillColor);
    QPainter painter(&image);
    const QRect rect(QPoint(), size);
    painter.setPen(QPen(QBrush(linesColor), linesWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawLine(rect.center().x(), rect.top(), rect.center().x(), rect.bottom());
    painter.drawLine(rect.left(), rect.center().y(), rect.right(), rect.center().y());
    if (at) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(markerColor);
        painter.drawEllipse(*at, markerRadius, markerRadius);
    }
    return image;
}

/// A plane of 101 × 51 pixels, one unit a pixel to the right and half a unit down, that records what it
/// reports.
class Plane : public PointSelectionPlane
{
public:
    explicit Plane(QWidget* parent = nullptr)
        : PointSelectionPlane(parent)
    {
        style->setFillColor(fillColor);
        style->setCoordLinesColor(linesColor);
        style->setCoordLinesWidth(linesWidth);
        style->setMarkerColor(markerColor);
        style->setMarkerRadius(markerRadius);
        resize(101, 51);
        setLimits(limits);
        connect(this, &PointSelectionPlane::pointChanged, this,
                [this](const QPointF& point) { m_reports += point; });
    }

    /// What was reported since the last call.
    Points reports() { return std::exchange(m_reports, {}); }

    PointSelectionPlanePropertyHelper* const style = styleOf(*this);

private:
    Points m_reports;
};

/// The point under a pixel of a Plane of its first size.
QPointF at(int x, int y)
{
    return {x - 50.0, y * 0.5 + 100.0};
}

} // namespace

class tst_PointSelectionPlane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(!QWidget::mouseGrabber()); }

    void construction()
    {
        QWidget parent;
        auto* plane = new PointSelectionPlane(&parent);
        QCOMPARE(plane->parentWidget(), &parent);
        QCOMPARE(plane->point(), QPointF(-1, -1));
        const PointSelectionPlanePropertyHelper* style = styleOf(*plane);
        QVERIFY(style);
        QVERIFY(!style->isVisible());
        QVERIFY(!plane->layout());
        QCOMPARE(plane->frameShape(), QFrame::NoFrame);
    }

    void startsWithoutLimits()
    {
        PointSelectionPlane plane(nullptr);
        plane.resize(101, 51);
        plane.show();
        QSignalSpy changed(&plane, &PointSelectionPlane::pointChanged);
        press(plane, {30, 40});
        release(plane, {90, 50});
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.at(0).front().toPointF(), QPointF(0, 0));
        QCOMPARE(changed.at(1).front().toPointF(), QPointF(0, 0));
        QCOMPARE(plane.point(), QPointF(0, 0));
    }

    void startsWithoutAMarker()
    {
        Plane plane;
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
    }

    void initialPointInsideTheLimitsHasNoMarker()
    {
        Plane plane;
        plane.setLimits({-10, -10, 20, 20});
        plane.resize(61, 61);
        QCOMPARE(plane.point(), QPointF(-1, -1));
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
        plane.setPoint({-1, -1});
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(27, 27)));
    }

    void setPointIsSilent()
    {
        Plane plane;
        plane.setPoint({10, 110});
        plane.setPoint({10, 110});
        plane.setPoint({20, 120});
        QCOMPARE(plane.reports(), Points());
        QCOMPARE(plane.point(), QPointF(20, 120));
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(70, 40)));
    }

    void setPointRepaints()
    {
        Plane plane;
        plane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plane));
        QCOMPARE(paintsOf(plane, [&] { plane.setPoint({1, 101}); }), 1);
        QCOMPARE(paintsOf(plane, [&] { plane.setLimits({0, 0, 10, 10}); }), 1);
    }

    void setPointOutside_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::newRow("left") << QPointF(-60, 110);
        QTest::newRow("below") << QPointF(0, 126);
        QTest::newRow("far") << QPointF(1e9, -1e9);
        QTest::newRow("beyond an int") << QPointF(1e12, -1e12);
        QTest::newRow("largest") << QPointF(largest, -largest);
    }

    void setPointOutside()
    {
        QFETCH(QPointF, point);
        Plane plane;
        plane.setPoint(point);
        QVERIFY(plane.point().x() == point.x());
        QVERIFY(plane.point().y() == point.y());
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
        QCOMPARE(plane.reports(), Points());
    }

    void setPointWithoutANumber_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::newRow("infinite") << QPointF(infinite, -infinite);
        QTest::newRow("NaN") << QPointF(noNumber, noNumber);
        QTest::newRow("one NaN") << QPointF(0, noNumber);
    }

    void setPointWithoutANumber()
    {
        QFETCH(QPointF, point);
        Plane plane;
        plane.setPoint(point);
        QCOMPARE(plane.point().x(), point.x());
        QCOMPARE(plane.point().y(), point.y());
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
        press(plane, {30, 20});
        drag(plane, {31, 20});
        release(plane, {31, 20});
        QCOMPARE(plane.reports(), Points({at(30, 20), at(31, 20), at(31, 20)}));
    }

    void setLimitsKeepsThePoint()
    {
        Plane plane;
        plane.setPoint({10, 110});
        plane.setLimits({0, 100, 50, 100});
        QCOMPARE(plane.point(), QPointF(10, 110));
        QCOMPARE(plane.reports(), Points());
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(20, 5)));
        plane.setLimits({20, 100, 50, 100});
        QCOMPARE(plane.point(), QPointF(10, 110));
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
        plane.setLimits(QRectF());
        QCOMPARE(plane.point(), QPointF(10, 110));
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
    }

    void upsideDownLimits()
    {
        Plane plane;
        plane.setLimits({50, 125, -100, -25});
        press(plane, {0, 0});
        release(plane, {100, 50});
        QCOMPARE(plane.reports(), Points({{50, 125}, {-50, 100}}));
        plane.setPoint({40, 120});
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(10, 10)));
    }

    void infiniteLimits_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<bool>("drawn");
        QTest::addColumn<QPointF>("marker");
        QTest::newRow("infinite size") << QRectF(0, 0, infinite, infinite) << true << QPointF(0, 0);
        QTest::newRow("infinite corner")
            << QRectF(-infinite, -infinite, infinite, infinite) << false << QPointF();
        QTest::newRow("NaN") << QRectF(noNumber, noNumber, noNumber, noNumber) << false << QPointF();
        QTest::newRow("largest") << QRectF(-largest, -largest, largest, largest) << true << QPointF(100, 50);
    }

    void infiniteLimits()
    {
        QFETCH(QRectF, rect);
        QFETCH(bool, drawn);
        QFETCH(QPointF, marker);
        Plane plane;
        plane.setPoint({10, 110});
        plane.setLimits(rect);
        QCOMPARE(plane.point(), QPointF(10, 110));
        QCOMPARE(pictureOf(plane),
                 picture(plane.size(), drawn ? std::optional<QPointF>(marker) : std::nullopt));
        press(plane, {30, 20});
        drag(plane, {40, 20});
        release(plane, {40, 20});
        QCOMPARE(plane.reports().size(), 3);
        QTest::keyClick(&plane, Qt::Key_Left);
        pictureOf(plane);
    }

    void pressAtTheEdges_data()
    {
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QPointF>("point");
        const QRectF sevenths(1.0 / 7, -2.0 / 7, 3.0 / 7, 1.1);
        QTest::newRow("top left") << QPoint(0, 0) << sevenths.topLeft();
        QTest::newRow("top right") << QPoint(100, 0) << sevenths.topRight();
        QTest::newRow("bottom left") << QPoint(0, 50) << sevenths.bottomLeft();
        QTest::newRow("bottom right") << QPoint(100, 50) << sevenths.bottomRight();
    }

    void pressAtTheEdges()
    {
        QFETCH(QPoint, pixel);
        QFETCH(QPointF, point);
        Plane plane;
        plane.setLimits({1.0 / 7, -2.0 / 7, 3.0 / 7, 1.1});
        press(plane, pixel);
        QVERIFY(plane.point().x() == point.x());
        QVERIFY(plane.point().y() == point.y());
        release(plane, pixel);
    }

    void pressOutsideIsTakenAsItIs()
    {
        Plane plane;
        press(plane, {200, -20});
        QCOMPARE(plane.reports(), Points{at(200, -20)});
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
        release(plane, {200, -20});
        QCOMPARE(plane.reports(), Points{at(100, 0)});
    }

    // The next move is compared with where the point then is, not with where the mouse was.
    void setPointDuringADrag()
    {
        Plane plane;
        press(plane, {20, 20});
        plane.reports();
        plane.setPoint(at(60, 30));
        drag(plane, {20, 20});
        QCOMPARE(plane.reports(), Points{at(20, 20)});
        release(plane, {20, 20});
    }

    void setLimitsDuringADrag()
    {
        Plane plane;
        press(plane, {20, 20});
        plane.setLimits({0, 0, 200, 100});
        QCOMPARE(plane.point(), at(20, 20));
        plane.reports();
        drag(plane, {30, 30});
        QCOMPARE(plane.reports(), Points{QPointF(60, 60)});
        release(plane, {30, 30});
        QCOMPARE(plane.reports(), Points{QPointF(60, 60)});
    }

    void resizedDuringADrag()
    {
        Plane plane;
        plane.show();
        press(plane, {20, 20});
        plane.reports();
        plane.resize(201, 101);
        QCOMPARE(QWidget::mouseGrabber(), &plane);
        QCOMPARE(plane.point(), at(20, 20));
        QCOMPARE(plane.reports(), Points());
        // The point's pixel has moved from below the mouse.
        drag(plane, {20, 20});
        QCOMPARE(plane.reports(), Points{at(10, 10)});
        drag(plane, {200, 100});
        release(plane, {500, 500});
        QCOMPARE(plane.reports(), Points({at(100, 50), at(100, 50)}));
        press(plane, {200, 100});
        plane.resize(1, 1);
        drag(plane, {50, 50});
        release(plane, {50, 50});
        // Every place is on the only pixel, so that no move leaves it.
        QCOMPARE(plane.reports(), Points({limits.bottomRight(), limits.bottomRight()}));
    }

    void resizeKeepsThePoint()
    {
        Plane plane;
        plane.show();
        plane.setPoint({10, 110});
        QCOMPARE(pictureOf(plane), picture({101, 51}, QPointF(60, 20)));
        plane.resize(201, 151);
        QCOMPARE(plane.point(), QPointF(10, 110));
        QCOMPARE(plane.reports(), Points());
        QCOMPARE(pictureOf(plane), picture({201, 151}, QPointF(120, 60)));
    }

    void resizeOfAHiddenPlane()
    {
        Plane plane;
        plane.resize(201, 151);
        plane.setLimits(limits);
        plane.setPoint({10, 110});
        QCOMPARE(pictureOf(plane), picture({201, 151}, QPointF(120, 60)));
        plane.resize(51, 51);
        plane.show();
        QCOMPARE(pictureOf(plane), picture({51, 51}, QPointF(30, 20)));
    }

    void tinyPlanes_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize& size : {QSize(0, 0), QSize(0, 40), QSize(40, 0), QSize(1, 1), QSize(1, 40),
                                  QSize(40, 1), QSize(2, 2), QSize(2, 1), QSize(3, 3)}) {
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
        }
    }

    void tinyPlanes()
    {
        QFETCH(QSize, size);
        QWidget window;
        Plane plane(&window);
        plane.resize(size);
        window.show();
        plane.setPoint({10, 110});
        pictureOf(window);
        press(plane, {0, 0});
        const QPointF point = plane.reports().constFirst();
        // An only pixel is no place.
        QVERIFY(size.width() == 1 ? std::isnan(point.x()) : point.x() == limits.left());
        QVERIFY(size.height() == 1 ? std::isnan(point.y()) : point.y() == limits.top());
        pictureOf(window);
        drag(plane, {50, 50});
        release(plane, {50, 50});
        const QPointF last = plane.reports().constLast();
        if (size.width() > 1) {
            QVERIFY(last.x() == limits.right());
        }
        if (size.height() > 1) {
            QVERIFY(last.y() == limits.bottom());
        }
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            QTest::keyClick(&plane, key);
        }
        pictureOf(window);
        plane.resize(101, 51);
        plane.setPoint({10, 110});
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(60, 20)));
    }

    void hugePlane()
    {
        Plane plane;
        // As large as a splitter may drag it. A picture of that size would take terabytes.
        plane.resize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        QImage image(50, 50, QImage::Format_RGB32);
        plane.render(&image, QPoint(), QRegion(30, 30, 50, 50));
        QCOMPARE(image.pixelColor(25, 25), fillColor);
    }

    void paintsItsItemsOnly()
    {
        Plane plane;
        plane.setFrameStyle(QFrame::Box | QFrame::Plain);
        plane.setLineWidth(5);
        plane.setPoint({10, 110});
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(60, 20)));
    }

    void axesDoNotFollowThePoint()
    {
        Plane plane;
        plane.style->setMarkerColor(QColor());
        const QImage before = pictureOf(plane);
        plane.setPoint({-40, 120});
        plane.setLimits({0, 0, 3, 3});
        QCOMPARE(pictureOf(plane), before);
        plane.resize(100, 50);
        QCOMPARE(pictureOf(plane), picture({100, 50}, {}));
    }

    void onlyTheMarkerIsSmooth()
    {
        Plane plane;
        const auto colors = [&plane] {
            QSet<QRgb> found;
            const QImage image = pictureOf(plane);
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    found += image.pixel(x, y);
                }
            }
            return found.size();
        };
        QCOMPARE(colors(), 2);
        plane.setPoint({10, 110});
        QVERIFY(colors() > 6);
    }

    void markerAtTheEdges_data()
    {
        QTest::addColumn<QPointF>("pixel");
        QTest::addColumn<bool>("drawn");
        QTest::newRow("top left") << QPointF(0, 0) << true;
        QTest::newRow("bottom right") << QPointF(100, 50) << true;
        QTest::newRow("rounded to the edge") << QPointF(-0.4, 50.4) << true;
        QTest::newRow("rounded outside") << QPointF(-0.6, 25) << false;
        QTest::newRow("one pixel below") << QPointF(50, 51) << false;
    }

    void markerAtTheEdges()
    {
        QFETCH(QPointF, pixel);
        QFETCH(bool, drawn);
        Plane plane;
        plane.setLimits({0, 0, 100, 50});
        plane.setPoint(pixel);
        QCOMPARE(pictureOf(plane),
                 picture(plane.size(), drawn ? std::optional<QPointF>(pixel) : std::nullopt));
    }

    void markerBetweenPixels()
    {
        Plane plane;
        plane.setLimits({0, 0, 100, 50});
        plane.setPoint({30.25, 10.5});
        QCOMPARE(pictureOf(plane), picture(plane.size(), QPointF(30.25, 10.5)));
    }

    void invalidMarkerColorHidesIt()
    {
        Plane plane;
        plane.setPoint({10, 110});
        plane.style->setMarkerColor(QColor());
        QCOMPARE(pictureOf(plane), picture(plane.size(), {}));
    }

    void invalidColorsAreThePalettes_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("text");
        QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::black);
        QTest::newRow("white on black") << QColor(Qt::black) << QColor(Qt::white);
    }

    void invalidColorsAreThePalettes()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        PointSelectionPlane plane(nullptr);
        plane.resize(21, 21);
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        plane.setPalette(palette);
        const QImage shown = pictureOf(plane);
        QCOMPARE(shown.pixelColor(3, 3), base);
        QCOMPARE(shown.pixelColor(10, 3), text);
        QCOMPARE(shown.pixelColor(3, 10), text);
    }

    void oddStyles_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("width");
        QTest::newRow("nothing") << 0.0 << 0;
        QTest::newRow("negative") << -5.0 << -3;
        QTest::newRow("huge") << 1e6 << 1000000;
        QTest::newRow("largest") << largest << std::numeric_limits<int>::max();
        QTest::newRow("infinite") << infinite << 1;
        QTest::newRow("negative infinite") << -infinite << std::numeric_limits<int>::min();
        QTest::newRow("NaN") << noNumber << 1;
    }

    void oddStyles()
    {
        QFETCH(double, radius);
        QFETCH(int, width);
        Plane plane;
        plane.style->setMarkerRadius(radius);
        plane.style->setCoordLinesWidth(width);
        plane.setPoint({10, 110});
        QCOMPARE(pictureOf(plane).size(), plane.size());
    }

    void fillColorWaitsForAResize()
    {
        Plane plane;
        plane.show();
        const QImage before = pictureOf(plane);
        QVERIFY(QTest::qWaitForWindowExposed(&plane));
        QCOMPARE(paintsOf(plane, [&] { plane.style->setFillColor(Qt::red); }), 0);
        QCOMPARE(pictureOf(plane), before);
        plane.setEnabled(false);
        QCOMPARE(pictureOf(plane), before);
        plane.resize(120, 60);
        QCOMPARE(pictureOf(plane).pixelColor(3, 3), QColor(Qt::red));
        plane.style->setFillColor(Qt::green);
        QResizeEvent again(plane.size(), plane.size());
        QCoreApplication::sendEvent(&plane, &again);
        QCOMPARE(pictureOf(plane).pixelColor(3, 3), QColor(Qt::green));
    }

    void translucentFill()
    {
        QWidget window;
        window.setPalette(QPalette(Qt::white));
        Plane plane(&window);
        plane.style->setFillColor(QColor(255, 0, 0, 0));
        window.resize(plane.size());
        window.show();
        QCOMPARE(pictureOf(window).pixelColor(3, 3), QColor(Qt::white));
    }

    void firstPictureHasTheSheetsValues()
    {
        QWidget window;
        window.setStyleSheet(
            QStringLiteral("PointSelectionPlane { min-width: 101px; min-height: 51px; }"
                           "PointSelectionPlanePropertyHelper {"
                           "  qproperty-MarkerRadius: 5; qproperty-MarkerColor: rgb(250, 240, 90);"
                           "  qproperty-FillColor: rgb(32, 32, 40);"
                           "  qproperty-CoordLinesWidth: 3;"
                           "  qproperty-CoordLinesColor: rgb(120, 130, 140); }"));
        auto* plane = new PointSelectionPlane(&window);
        plane->resize(101, 51);
        plane->setLimits(limits);
        plane->setPoint({10, 110});
        window.show();
        QCOMPARE(pictureOf(*plane), picture({101, 51}, QPointF(60, 20)));
        QCOMPARE(plane->minimumSize(), QSize(101, 51));
    }

    void helperStartsWithoutALook()
    {
        QWidget plane;
        const auto* helper = new PointSelectionPlanePropertyHelper(&plane);
        QCOMPARE(helper->parentWidget(), &plane);
        QVERIFY(!helper->isVisible());
        QCOMPARE(helper->markerRadius(), 0.0);
        QVERIFY(!helper->markerColor().isValid());
        QVERIFY(!helper->fillColor().isValid());
        QCOMPARE(helper->coordLinesWidth(), 0);
        QVERIFY(!helper->coordLinesColor().isValid());
    }

    // In another order than Plane above: whatever writes more than its own value is seen here or there.
    void sheetWritesTheHelper()
    {
        QWidget plane;
        auto* helper = new PointSelectionPlanePropertyHelper(&plane);
        plane.setStyleSheet(
            QStringLiteral("PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5.5;"
                           "qproperty-MarkerColor: rgba(1, 2, 3, 4); qproperty-CoordLinesWidth: 2;"
                           "qproperty-CoordLinesColor: red; qproperty-FillColor: #0a0b0c; }"));
        plane.show();
        QCOMPARE(helper->property("MarkerRadius"), QVariant(5.5));
        QCOMPARE(helper->property("MarkerColor"), QVariant(QColor(1, 2, 3, 4)));
        QCOMPARE(helper->property("FillColor"), QVariant(QColor(10, 11, 12)));
        QCOMPARE(helper->property("CoordLinesWidth"), QVariant(2));
        QCOMPARE(helper->property("CoordLinesColor"), QVariant(QColor(Qt::red)));
    }

    void sheetOfTheDisabledPlane()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral(
            "PointSelectionPlanePropertyHelper { qproperty-MarkerColor: red; qproperty-FillColor: white; }"
            "PointSelectionPlanePropertyHelper[enabled=\"false\"] { qproperty-MarkerColor: blue;"
            " qproperty-FillColor: yellow; }"));
        Plane plane(&window);
        plane.setPoint({10, 110});
        window.show();
        const auto shows = [&plane](Qt::GlobalColor marker, Qt::GlobalColor fill) {
            const QImage picture = pictureOf(plane);
            return picture.pixelColor(60, 20) == QColor(marker) && picture.pixelColor(2, 2) == QColor(fill);
        };
        QVERIFY(shows(Qt::red, Qt::white));
        window.setEnabled(false);
        QVERIFY(shows(Qt::blue, Qt::yellow));
        window.setEnabled(true);
        QVERIFY(shows(Qt::red, Qt::white));
    }

    void twiceTheScale()
    {
        Plane plane;
        plane.setPoint({10, 110});
        plane.show();
        QPixmap pixmap(plane.size() * 2);
        pixmap.setDevicePixelRatio(2.0);
        plane.render(&pixmap);
        const QImage image = pixmap.toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(image.pixelColor(0, 0), fillColor);
        QCOMPARE(image.pixelColor(201, 101), fillColor);
        QCOMPARE(image.pixelColor(120, 40), markerColor);
    }

    void keyKeepsTheOtherCoordinate()
    {
        Plane plane;
        plane.setLimits({0, 0, 1, 1});
        plane.setPoint({0.1234567890123, 0.7});
        QTest::keyClick(&plane, Qt::Key_Right);
        QVERIFY(plane.point().y() == 0.7);
        QCOMPARE(plane.point().x(), 0.1334567890123);
        plane.setPoint({0.1234567890123, 0.7});
        QTest::keyClick(&plane, Qt::Key_Down);
        QVERIFY(plane.point().x() == 0.1234567890123);
    }

    void keysWithoutAPoint()
    {
        Plane plane;
        QTest::keyClick(&plane, Qt::Key_Left);
        QCOMPARE(plane.reports(), Points{at(0, 0)});
        QTest::keyClick(&plane, Qt::Key_Left);
        QCOMPARE(plane.reports(), Points());
    }

    void keysFromOutside()
    {
        Plane plane;
        plane.setPoint({1000, 110});
        QTest::keyClick(&plane, Qt::Key_Left);
        QCOMPARE(plane.reports(), Points{at(100, 20)});
    }

    void slotSetsAnotherPoint()
    {
        Plane plane;
        connect(&plane, &PointSelectionPlane::pointChanged, this, [&plane](const QPointF& point) {
            plane.setPoint({std::floor(point.x() / 10) * 10, 110});
        });
        press(plane, {27, 5});
        drag(plane, {48, 5});
        release(plane, {48, 5});
        QCOMPARE(plane.point(), QPointF(-10, 110));
        QCOMPARE(plane.reports(), Points({at(27, 5), at(48, 5), at(48, 5)}));
        QVERIFY(!QWidget::mouseGrabber());
    }
};

UIC_TEST_MAIN(tst_PointSelectionPlane)
#include "tst_PointSelectionPlane.moc"
