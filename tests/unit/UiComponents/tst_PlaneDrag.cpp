#include "MouseEvents.h"
#include "PaintCount.h"
#include "TestMain.h"

#include <UiComponents/ColorPlaneWidget.h>
#include <UiComponents/PointSelectionPlane.h>

#include <memory>
#include <utility>

namespace {

/// A plane of colours or of points, of 101 × 51 pixels, that records what it reports.
class Plane : public QObject
{
public:
    enum class Kind { Colors, Points };

    /// The plane is @p parent's, or this object's.
    Plane(Kind kind, QWidget* parent)
        : m_kind(kind)
    {
        if (kind == Kind::Colors) {
            auto* plane = new ColorPlaneWidget(parent);
            plane->resize(101, 51);
            plane->setHue(180);
            connect(plane, &ColorPlaneWidget::hsvColorChanged, this, &Plane::record);
            widget = plane;
        } else {
            auto* plane = new PointSelectionPlane(parent);
            plane->resize(101, 51);
            plane->setLimits({-50.0, 100.0, 100.0, 25.0});
            connect(plane, &PointSelectionPlane::pointChanged, this, &Plane::record);
            widget = plane;
        }
    }
    ~Plane() override
    {
        if (widget && !widget->parent()) {
            delete widget;
        }
    }
    Q_DISABLE_COPY(Plane)

    /// What the plane has and reports with the marker on this pixel.
    QVariant at(int x, int y) const
    {
        if (m_kind == Kind::Colors) {
            return QColor(QColor::fromHsvF(0.5, x / 100.0, 1.0 - y / 50.0).rgb());
        }
        return QPointF(x - 50.0, y * 0.5 + 100.0);
    }

    QVariant value() const
    {
        if (m_kind == Kind::Colors) {
            return qobject_cast<ColorPlaneWidget*>(widget)->hsvColor();
        }
        return qobject_cast<PointSelectionPlane*>(widget)->point();
    }

    void placeMarker(int x, int y) const
    {
        if (m_kind == Kind::Colors) {
            qobject_cast<ColorPlaneWidget*>(widget)->setHsvColor(
                QColor::fromHsvF(0.5, x / 100.0, 1.0 - y / 50.0));
        } else {
            qobject_cast<PointSelectionPlane*>(widget)->setPoint(at(x, y).toPointF());
        }
    }

    /// What was reported since the last call.
    QVariantList reports() { return std::exchange(m_reports, {}); }

    QPointer<QWidget> widget;

private:
    void record(const QVariant& value) { m_reports += value; }

    const Kind m_kind;
    QVariantList m_reports;
};

} // namespace

Q_DECLARE_METATYPE(Plane::Kind)

/**
 * How the mouse and the keys move the marker of a plane, and how it shows its focus. Every test runs with
 * both planes, whose own suites have what a marker means to each.
 */
class tst_PlaneDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<Plane::Kind>("kind");
        QTest::newRow("colors") << Plane::Kind::Colors;
        QTest::newRow("points") << Plane::Kind::Points;
    }

    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_plane = makePlane(m_window.get());
        m_widget = m_plane->widget;
    }

    void cleanup()
    {
        m_plane.reset();
        m_window.reset();
        QVERIFY(!QWidget::mouseGrabber());
    }

    void clickWithoutMoving()
    {
        press(*m_widget, {40, 25});
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(40, 25)});
        QCOMPARE(QWidget::mouseGrabber(), m_widget);
        release(*m_widget, {40, 25});
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(40, 25)});
        QVERIFY(!QWidget::mouseGrabber());
        QCOMPARE(m_plane->value(), m_plane->at(40, 25));
    }

    void dragReportsEachPixel()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        press(*m_widget, {10, 10});
        drag(*m_widget, {11, 10});
        QCOMPARE(paintsOf(*m_widget, [&] { drag(*m_widget, {11, 10}); }), 0);
        QCOMPARE(paintsOf(*m_widget, [&] { drag(*m_widget, {30, 40}); }), 1);
        release(*m_widget, {30, 40});
        QCOMPARE(m_plane->reports(), QVariantList({m_plane->at(10, 10), m_plane->at(11, 10),
                                                   m_plane->at(30, 40), m_plane->at(30, 40)}));
    }

    void dragLeavesTheWindow_data()
    {
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QPoint>("pinned");
        QTest::newRow("left") << QPoint(-40, 20) << QPoint(0, 20);
        QTest::newRow("right") << QPoint(101, 20) << QPoint(100, 20);
        QTest::newRow("above") << QPoint(20, -1) << QPoint(20, 0);
        QTest::newRow("below") << QPoint(20, 51) << QPoint(20, 50);
        QTest::newRow("far off a corner") << QPoint(100000, -100000) << QPoint(100, 0);
    }

    void dragLeavesTheWindow()
    {
        QFETCH(QPoint, to);
        QFETCH(QPoint, pinned);
        press(*m_widget, {20, 20});
        m_plane->reports();
        drag(*m_widget, to);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(pinned.x(), pinned.y())});
        release(*m_widget, to);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(pinned.x(), pinned.y())});
        QVERIFY(!QWidget::mouseGrabber());
    }

    void dragStaysOnTheClampedPixel()
    {
        press(*m_widget, {100, 20});
        drag(*m_widget, {101, 20});
        drag(*m_widget, {5000, 20});
        QCOMPARE(m_plane->reports().size(), 1);
        drag(*m_widget, {5000, 21});
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(100, 21)});
        release(*m_widget, {5000, 21});
    }

    void releaseReportsAgain()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        press(*m_widget, {20, 20});
        drag(*m_widget, {30, 20});
        m_plane->reports();
        QCOMPARE(paintsOf(*m_widget, [&] { release(*m_widget, {30, 20}); }), 1);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(30, 20)});
    }

    void releaseElsewhereMovesTheMarker()
    {
        press(*m_widget, {1, 1});
        release(*m_widget, {-5, 70});
        QCOMPARE(m_plane->reports(), QVariantList({m_plane->at(1, 1), m_plane->at(0, 50)}));
        QCOMPARE(m_plane->value(), m_plane->at(0, 50));
    }

    void eventsWithoutAPress()
    {
        m_widget->setMouseTracking(true);
        m_plane->placeMarker(60, 20);
        const QVariant before = m_plane->value();
        drag(*m_widget, {20, 20});
        QCOMPARE(m_plane->value(), before);
        release(*m_widget, {20, 20});
        QCOMPARE(m_plane->value(), before);
        QCOMPARE(m_plane->reports(), QVariantList());
    }

    void releaseAfterAPressElsewhere()
    {
        const auto other = makePlane(m_window.get());
        press(*m_widget, {20, 20});
        drag(*other->widget, {30, 30});
        release(*other->widget, {30, 30});
        QCOMPARE(other->reports(), QVariantList());
        QCOMPARE(QWidget::mouseGrabber(), m_widget);
        release(*m_widget, {20, 20});
        QCOMPARE(m_plane->reports().size(), 2);
    }

    void otherButtons()
    {
        const QVariant before = m_plane->value();
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
            press(*m_widget, {20, 20}, button);
            QVERIFY(!QWidget::mouseGrabber());
            drag(*m_widget, {30, 30});
            release(*m_widget, {30, 30}, button);
        }
        QCOMPARE(m_plane->reports(), QVariantList());
        QCOMPARE(m_plane->value(), before);
    }

    void secondButtonWhileDragging()
    {
        press(*m_widget, {20, 20});
        press(*m_widget, {25, 25}, Qt::RightButton);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(20, 20)});
        release(*m_widget, {26, 26}, Qt::RightButton);
        QCOMPARE(m_plane->reports(), QVariantList());
        QCOMPARE(QWidget::mouseGrabber(), m_widget);
        drag(*m_widget, {30, 30});
        release(*m_widget, {30, 30});
        QCOMPARE(m_plane->reports(), QVariantList({m_plane->at(30, 30), m_plane->at(30, 30)}));
    }

    void doubleClickIsAPress()
    {
        sendMouse(*m_widget, QEvent::MouseButtonDblClick, {20, 20}, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(20, 20)});
        QCOMPARE(QWidget::mouseGrabber(), m_widget);
        release(*m_widget, {20, 20});
    }

    // Qt leaves the grab with a hidden widget, which then swallows every click of the application.
    void hiddenDuringADrag()
    {
        m_window->show();
        press(*m_widget, {20, 20});
        m_plane->reports();
        m_window->hide();
        QVERIFY(!QWidget::mouseGrabber());
        drag(*m_widget, {30, 30});
        release(*m_widget, {30, 30});
        QCOMPARE(m_plane->reports(), QVariantList());
        QCOMPARE(m_plane->value(), m_plane->at(20, 20));
    }

    void disabledDuringADrag()
    {
        press(*m_widget, {20, 20});
        m_window->setEnabled(false);
        QVERIFY(!QWidget::mouseGrabber());
        m_plane->reports();
        press(*m_widget, {30, 30});
        QCOMPARE(m_plane->reports(), QVariantList());
        QVERIFY(!QWidget::mouseGrabber());
    }

    void deletedDuringADrag()
    {
        m_window->show();
        press(*m_widget, {20, 20});
        QCOMPARE(QWidget::mouseGrabber(), m_widget);
        delete m_widget;
        QVERIFY(!QWidget::mouseGrabber());
    }

    void arrowKeys_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<QPoint>("pixel");
        QTest::newRow("left") << Qt::Key_Left << false << QPoint(49, 25);
        QTest::newRow("right") << Qt::Key_Right << false << QPoint(51, 25);
        QTest::newRow("up") << Qt::Key_Up << false << QPoint(50, 24);
        QTest::newRow("down") << Qt::Key_Down << false << QPoint(50, 26);
        QTest::newRow("left, far") << Qt::Key_Left << true << QPoint(40, 25);
        QTest::newRow("down, far") << Qt::Key_Down << true << QPoint(50, 35);
    }

    void arrowKeys()
    {
        QFETCH(Qt::Key, key);
        QFETCH(bool, shift);
        QFETCH(QPoint, pixel);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_plane->placeMarker(50, 25);
        QCOMPARE(m_plane->reports(), QVariantList());
        QCoreApplication::processEvents();
        const Qt::KeyboardModifiers modifiers = shift ? Qt::ShiftModifier : Qt::NoModifier;
        QCOMPARE(paintsOf(*m_widget, [&] { QTest::keyClick(m_widget, key, modifiers); }), 1);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(pixel.x(), pixel.y())});
        QCOMPARE(m_plane->value(), m_plane->at(pixel.x(), pixel.y()));
        for (int i = 0; i < 200; ++i) {
            QTest::keyClick(m_widget, key, modifiers);
        }
        // As many as there were pixels left, and none at the edge.
        const int room = pixel.y() == 25 ? 50 : 25;
        const int step = shift ? 10 : 1;
        QCOMPARE(m_plane->reports().size(), (room + step - 1) / step - 1);
        QVERIFY(!QWidget::mouseGrabber());
    }

    // Of a plane that is its own window, which has nowhere to go by Tab.
    void otherKeysAreLeft()
    {
        const auto plane = makePlane(nullptr);
        plane->placeMarker(50, 25);
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_A, Qt::Key_Tab}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(plane->widget, &event);
            QVERIFY(!event.isAccepted());
        }
        QCOMPARE(plane->reports(), QVariantList());
    }

    // A position is not mirrored.
    void rightToLeft()
    {
        m_window->setLayoutDirection(Qt::RightToLeft);
        press(*m_widget, {10, 10});
        release(*m_widget, {10, 10});
        QCOMPARE(m_plane->reports(), QVariantList({m_plane->at(10, 10), m_plane->at(10, 10)}));
        const QImage marked = m_widget->grab().toImage();
        m_widget->setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(m_widget->grab().toImage(), marked);
        m_widget->unsetLayoutDirection();
        QTest::keyClick(m_widget, Qt::Key_Right);
        QCOMPARE(m_plane->reports(), QVariantList{m_plane->at(11, 10)});
    }

    void focusIsShownToKeyboardUsers()
    {
        const auto picture = [this] { return m_widget->grab().toImage(); };
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        const QImage plain = picture();
        m_widget->setFocus(Qt::MouseFocusReason);
        QVERIFY(m_widget->hasFocus());
        QCOMPARE(m_widget->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(picture(), plain);
        m_widget->clearFocus();
        m_widget->setFocus(Qt::TabFocusReason);
        QVERIFY(picture() != plain);
        // At the edge only: styles fill the frame.
        const QRect inside = m_widget->rect().adjusted(2, 2, -2, -2);
        QCOMPARE(picture().copy(inside), plain.copy(inside));
        m_widget->clearFocus();
        QCOMPARE(picture(), plain);
        // A later click in the same window is no use of the keyboard.
        m_window->setAttribute(Qt::WA_KeyboardFocusChange);
        m_widget->setFocus(Qt::MouseFocusReason);
        QCOMPARE(picture(), plain);
    }

private:
    static std::unique_ptr<Plane> makePlane(QWidget* parent)
    {
        QFETCH_GLOBAL(Plane::Kind, kind);
        return std::make_unique<Plane>(kind, parent);
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Plane> m_plane;
    QWidget* m_widget = nullptr;
};

UIC_TEST_MAIN(tst_PlaneDrag)
#include "tst_PlaneDrag.moc"
