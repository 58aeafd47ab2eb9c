#include "MouseEvents.h"
#include "PaintCount.h"
#include "TestMain.h"

#include <UiComponents/ColorPlaneWidget.h>
#include <UiComponents/PlaneDrag.h>

#include <random>
#include <utility>

namespace {

using Colors = QVector<QColor>;

QColor formula(double hue, const QSize& size, const QPoint& at)
{
    return QColor::fromHsvF(hue, static_cast<double>(at.x()) / (size.width() - 1),
                            1.0 - static_cast<double>(at.y()) / (size.height() - 1), 1.0)
        .rgb();
}

QImage planeImage(double hue, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixelColor(x, y, formula(hue, size, {x, y}));
        }
    }
    return image;
}

void drawRing(QPainter& painter, const QPoint& centre, const QColor& color, int radius, int width)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius, radius);
}

/// The plane of a hue with a ring upon it.
QImage picture(double hue, const QSize& size, const QPoint& marker, const QColor& ring, int radius = 8,
               int width = 2)
{
    QImage image = planeImage(hue, size);
    QPainter painter(&image);
    drawRing(painter, marker, ring, radius, width);
    return image;
}

/// A plane of 101 × 51 pixels that records what it reports.
class Plane : public ColorPlaneWidget
{
public:
    explicit Plane(QWidget* parent = nullptr)
        : ColorPlaneWidget(parent)
    {
        resize(101, 51);
        connect(this, &ColorPlaneWidget::hsvColorChanged, this,
                [this](const QColor& color) { m_reports += color; });
    }

    /// What was reported since the last call.
    Colors reports() { return std::exchange(m_reports, {}); }

    QColor at(double hue, int x, int y) const { return formula(hue, size(), {x, y}); }

private:
    Colors m_reports;
};

/// The same widget in its simplest form, which renders at once whenever anything changes.
class EagerPlane : public QWidget
{
public:
    using QWidget::QWidget;

    QColor color() const { return colorAt(m_marker); }
    Colors reports;

    void setColor(const QColor& color)
    {
        if (!color.isValid()) {
            return;
        }
        m_hue = qBound(0, color.hue(), 360) / 360.0;
        render();
        place({qRound(color.saturationF() * (m_plane.width() - 1)),
               qRound((1.0 - color.valueF()) * (m_plane.height() - 1))});
        update();
    }

    void setHue(int degrees)
    {
        const double hue = qBound(0, degrees, 360) / 360.0;
        if (qFuzzyCompare(hue, m_hue)) {
            return;
        }
        m_hue = hue;
        render();
        update();
        if (rect().contains(m_marker)) {
            reports += color();
        }
    }

    void pressAt(const QPoint& point)
    {
        place(point);
        m_dragged = true;
        update();
        reports += color();
    }

    void dragTo(QPoint point)
    {
        point = clamped(point);
        if (m_dragged && point != m_marker) {
            place(point);
            update();
            reports += color();
        }
    }

    void releaseAt(QPoint point)
    {
        if (!m_dragged) {
            return;
        }
        point = clamped(point);
        if (point != m_marker) {
            place(point);
        }
        update();
        m_dragged = false;
        reports += color();
    }

protected:
    void resizeEvent(QResizeEvent*) override { render(); }

    void hideEvent(QHideEvent*) override { m_dragged = false; }

    void paintEvent(QPaintEvent*) override
    {
        if (m_plane.isNull()) {
            return;
        }
        QPainter painter(this);
        painter.drawPixmap(rect(), m_plane);
        if (rect().contains(m_marker) && m_ring.isValid()) {
            drawRing(painter, m_marker, m_ring, 8, 2);
        }
    }

private:
    void render()
    {
        if (!qFuzzyCompare(m_hue, -2.0)) {
            m_plane = QPixmap::fromImage(planeImage(m_hue, size()));
        }
    }

    QColor colorAt(const QPoint& point) const
    {
        return m_plane.rect().contains(point) ? m_plane.toImage().pixelColor(point) : QColor();
    }

    void place(const QPoint& point)
    {
        const QColor color = colorAt(point);
        m_marker = point;
        m_ring = QColor(255 - color.red(), 255 - color.green(), 255 - color.blue());
    }

    QPoint clamped(const QPoint& point) const
    {
        return {qMax(0, qMin(point.x(), width() - 1)), qMax(0, qMin(point.y(), height() - 1))};
    }

    double m_hue = -2.0;
    QPoint m_marker = {-1, -1};
    QPixmap m_plane;
    QColor m_ring;
    bool m_dragged = false;
};

} // namespace

class tst_ColorPlaneWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QVERIFY(!QWidget::mouseGrabber());
        QVERIFY(qApp->layoutDirection() == Qt::LeftToRight);
    }

    void startsEmpty()
    {
        QWidget parent;
        const auto* plane = new ColorPlaneWidget(&parent);
        QCOMPARE(plane->parentWidget(), &parent);
        QCOMPARE(plane->markerRadius(), 8);
        QCOMPARE(plane->markerBorderWidth(), 2);
        QVERIFY(!plane->hsvColor().isValid());
    }

    void nothingIsPaintedWithoutAHue()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QWidget { background: #123456; }"));
        window.resize(101, 51);
        Plane plane(&window);
        QImage empty(window.size(), QImage::Format_RGB32);
        empty.fill(QColor(0x12, 0x34, 0x56));
        window.show();
        QCOMPARE(pictureOf(window), empty);
        plane.resize(60, 40);
        QCOMPARE(pictureOf(window), empty);
        plane.setHsvColor(QColor());
        QCOMPARE(pictureOf(window), empty);
        // Once there is a plane, it covers the widget.
        plane.setHue(0);
        QCOMPARE(pictureOf(window).pixelColor(0, 0), QColor(Qt::white));
        plane.resize(0, 40);
        QCOMPARE(pictureOf(window), empty);
    }

    void pressWithoutAHue()
    {
        Plane plane;
        press(plane, {50, 10});
        QCOMPARE(plane.reports(), Colors{QColor()});
        QCOMPARE(QWidget::mouseGrabber(), &plane);
        drag(plane, {51, 10});
        QCOMPARE(plane.reports(), Colors{QColor()});
        release(plane, {51, 10});
        QCOMPARE(plane.reports(), Colors{QColor()});
        QVERIFY(!QWidget::mouseGrabber());
        // The marker is there, in the inverse of no colour.
        plane.setHue(120);
        QCOMPARE(plane.reports(), Colors{plane.at(120 / 360.0, 51, 10)});
        QCOMPARE(pictureOf(plane), picture(120 / 360.0, plane.size(), {51, 10}, Qt::white));
    }

    void sameHueDoesNothing()
    {
        Plane plane;
        plane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plane));
        plane.setHsvColor(QColor::fromHsv(120, 200, 100));
        pictureOf(plane);
        QCOMPARE(paintsOf(plane, [&] { plane.setHue(120); }), 0);
        pictureOf(plane);
        QCOMPARE(plane.reports(), Colors());
        QCOMPARE(paintsOf(plane, [&] { plane.setHue(0); }), 1);
        plane.setHue(0);
        QCOMPARE(plane.reports().size(), 1);
    }

    void hueIsClamped_data()
    {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<double>("hue");
        QTest::newRow("-1") << -1 << 0.0;
        QTest::newRow("min int") << std::numeric_limits<int>::min() << 0.0;
        QTest::newRow("1") << 1 << 1 / 360.0;
        QTest::newRow("359") << 359 << 359 / 360.0;
        QTest::newRow("360") << 360 << 1.0;
        QTest::newRow("361") << 361 << 1.0;
        QTest::newRow("max int") << std::numeric_limits<int>::max() << 1.0;
    }

    void hueIsClamped()
    {
        QFETCH(int, degrees);
        QFETCH(double, hue);
        Plane plane;
        plane.setHue(degrees);
        QCOMPARE(pictureOf(plane), planeImage(hue, plane.size()));
        plane.setHue(qRound(hue * 360));
        pictureOf(plane);
    }

    void colorsOfEverySpec_data()
    {
        QTest::addColumn<QColor>("color");
        const QColor color(255, 0, 255);
        QTest::newRow("RGB") << color;
        QTest::newRow("HSV") << color.toHsv();
        QTest::newRow("HSL") << color.toHsl();
        QTest::newRow("CMYK") << color.toCmyk();
        QTest::newRow("extended RGB") << color.toExtendedRgb();
        QTest::newRow("with alpha") << QColor(255, 0, 255, 12);
    }

    void colorsOfEverySpec()
    {
        QFETCH(QColor, color);
        Plane plane;
        plane.setHsvColor(color);
        QCOMPARE(plane.hsvColor(), QColor(255, 0, 255));
    }

    void reportsRgb()
    {
        Plane plane;
        plane.setHsvColor(QColor::fromHsv(10, 100, 100, 50));
        plane.setHue(90);
        const Colors reports = plane.reports();
        QCOMPARE(reports.size(), 1);
        QCOMPARE(reports.front().spec(), QColor::Rgb);
        QCOMPARE(reports.front().alpha(), 255);
        QCOMPARE(plane.hsvColor().spec(), QColor::Rgb);
    }

    void removedMarker()
    {
        Plane plane;
        plane.show();
        plane.setHsvColor(QColor::fromHsvF(0.25, 0.5, 0.5));
        QVERIFY(pictureOf(plane) != planeImage(0.25, plane.size()));
        plane.removeMarker();
        QVERIFY(!plane.hsvColor().isValid());
        QCOMPARE(pictureOf(plane), planeImage(0.25, plane.size()));
        plane.setHue(180);
        QCOMPARE(plane.reports(), Colors());
        plane.setHsvColor(QColor::fromHsvF(0.5, 1.0, 1.0));
        QCOMPARE(plane.hsvColor(), plane.at(0.5, 100, 0));
    }

    // In numbers, as readers do.
    void movedByLessThanAPixel()
    {
        Plane plane;
        plane.setHsvColor(QColor::fromHsvF(0.5, 0.5, 0.5));
        PlaneDrag* const drag = PlaneDrag::of(&plane);
        drag->setValue(0, 50.3);
        QCOMPARE(plane.reports(), Colors());
        drag->setValue(0, 50.6);
        QCOMPARE(plane.reports(), Colors{plane.at(0.5, 51, 25)});
        // Without a marker both numbers are 0, which is a place, too.
        plane.removeMarker();
        drag->setValue(0, 0.3);
        QCOMPARE(plane.reports(), Colors{plane.at(0.5, 0, 50)});
    }

    void markerProperties()
    {
        Plane plane;
        plane.setHsvColor(QColor::fromHsvF(0.5, 0.5, 0.5));
        plane.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plane));
        QVERIFY(paintsOf(plane, [&] { plane.setMarkerRadius(12); }) > 0);
        QCOMPARE(paintsOf(plane, [&] { plane.setMarkerRadius(12); }), 0);
        QVERIFY(paintsOf(plane, [&] { QVERIFY(plane.setProperty("markerBorderWidth", 5)); }) > 0);
        QCOMPARE(paintsOf(plane, [&] { plane.setMarkerBorderWidth(5); }), 0);
        QCOMPARE(plane.markerRadius(), 12);
        QCOMPARE(plane.markerBorderWidth(), 5);
        QCOMPARE(plane.property("markerRadius"), QVariant(12));
        const QColor below = plane.hsvColor();
        QCOMPARE(pictureOf(plane),
                 picture(0.5, plane.size(), {50, 25},
                         QColor(255 - below.red(), 255 - below.green(), 255 - below.blue()), 12, 5));
        plane.setStyleSheet(QStringLiteral("ColorPlaneWidget { qproperty-markerRadius: 3; }"));
        plane.ensurePolished();
        QCOMPARE(plane.markerRadius(), 3);
        QCOMPARE(plane.reports(), Colors());
    }

    void oddMarkers_data()
    {
        QTest::addColumn<int>("radius");
        QTest::addColumn<int>("width");
        QTest::newRow("no radius") << 0 << 2;
        QTest::newRow("no width") << 8 << 0;
        QTest::newRow("negative radius") << -8 << 2;
        QTest::newRow("negative width") << 8 << -2;
        QTest::newRow("huge") << 1000000 << 1000000;
    }

    void oddMarkers()
    {
        QFETCH(int, radius);
        QFETCH(int, width);
        Plane plane;
        plane.setMarkerRadius(radius);
        plane.setMarkerBorderWidth(width);
        plane.setHsvColor(QColor(Qt::green));
        QCOMPARE(pictureOf(plane).size(), plane.size());
        QCOMPARE(plane.hsvColor(), QColor(Qt::green));
    }

    void sameAsTheEagerPlane_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 0; seed < 30; ++seed) {
            QTest::addRow("seed %d", seed) << seed;
        }
    }

    // Nothing that can be asked or seen tells that the plane is rendered late.
    void sameAsTheEagerPlane()
    {
        QFETCH(int, seed);
        std::mt19937 generator{static_cast<unsigned>(seed)};
        const auto random = [&generator](int from, int to) {
            return std::uniform_int_distribution<int>(from, to)(generator);
        };
        QWidget oneWindow;
        QWidget otherWindow;
        Plane plane(&oneWindow);
        EagerPlane eager(&otherWindow);
        eager.resize(plane.size());
        for (int step = 0; step < 120; ++step) {
            const QPoint point(random(-20, 120), random(-20, 70));
            const QPoint inside(random(0, 60), random(0, 40));
            switch (random(0, 11)) {
            case 0:
            case 1: {
                const int degrees = random(-10, 370);
                plane.setHue(degrees);
                eager.setHue(degrees);
                break;
            }
            case 2: {
                const QColor color = random(0, 9) == 0 ? QColor() : QColor::fromRgba(generator());
                plane.setHsvColor(color);
                eager.setColor(color);
                break;
            }
            case 3: {
                const int value = random(0, 255);
                const QColor grey =
                    value % 2 == 0 ? QColor(value, value, value) : QColor::fromHsv(-1, 0, value);
                plane.setHsvColor(grey);
                eager.setColor(grey);
                break;
            }
            case 4: {
                const bool isTiny = random(0, 3) == 0;
                const QSize size =
                    isTiny ? QSize(random(0, 2), random(0, 2)) : QSize(random(0, 90), random(0, 60));
                plane.resize(size);
                eager.resize(size);
                break;
            }
            case 5:
                oneWindow.setVisible(!oneWindow.isVisible());
                otherWindow.setVisible(oneWindow.isVisible());
                break;
            case 6:
                press(plane, inside);
                eager.pressAt(inside);
                break;
            case 7:
            case 8:
                drag(plane, point);
                eager.dragTo(point);
                break;
            case 9:
                release(plane, point);
                eager.releaseAt(point);
                break;
            case 10:
                QCoreApplication::processEvents();
                break;
            default:
                QCOMPARE(pictureOf(oneWindow), pictureOf(otherWindow));
            }
            QCOMPARE(plane.hsvColor(), eager.color());
            QCOMPARE(plane.reports(), std::exchange(eager.reports, {}));
        }
        QCOMPARE(pictureOf(oneWindow), pictureOf(otherWindow));
    }

    void keysWithoutAPlane()
    {
        Plane plane;
        QTest::keyClick(&plane, Qt::Key_Left);
        QCOMPARE(plane.reports(), Colors());
        plane.setHue(180);
        QTest::keyClick(&plane, Qt::Key_Right);
        QCOMPARE(plane.reports(), Colors{QColor(Qt::white)});
    }

    void deletedBySettingTheHue()
    {
        const QPointer<Plane> plane = new Plane;
        plane->setHsvColor(QColor::fromHsvF(0.5, 0.5, 0.5));
        connect(plane, &ColorPlaneWidget::hsvColorChanged, this, [&plane] { delete plane; });
        plane->setHue(7);
        QVERIFY(!plane);
    }
};

UIC_TEST_MAIN(tst_ColorPlaneWidget)
#include "tst_ColorPlaneWidget.moc"
