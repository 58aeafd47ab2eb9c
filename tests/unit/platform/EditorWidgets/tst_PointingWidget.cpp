#include "FakePlatform.h"
#include "OnEvent.h"
#include "Settle.h"
#include "TestMain.h"

#include <EditorWidgets/PointingWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>

#include <functional>
#include <limits>
#include <memory>

using ArrowPosition = PointingWidget::ArrowPosition;
using ArrowSide = PointingWidget::ArrowSide;

namespace {

constexpr Qt::WindowFlags asPopup = Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;

QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QPoint middle()
{
    return screenArea().center();
}

/// Gives the bubble a content of @p size.
QWidget* fill(PointingWidget& bubble, const QSize& size = QSize(120, 60))
{
    auto* content = new QWidget;
    content->setFixedSize(size);
    (new OvVBoxLayout(bubble.contentFrame()))->addWidget(content);
    return content;
}

/// A bubble with a content, shown, that points to the middle of the screen.
class ShownBubble : public PointingWidget
{
public:
    explicit ShownBubble(QWidget* parent = nullptr, Qt::WindowFlags flags = {})
        : PointingWidget(parent)
    {
        if (flags) {
            setWindowFlags(flags);
        }
        fill(*this);
        pointTo(middle());
        show();
    }
};

/// The pixel of the bubble that is on the target.
QPoint tipOf(const PointingWidget& bubble)
{
    return bubble.targetPoint() - bubble.geometry().topLeft();
}

bool touchesTarget(const PointingWidget& bubble)
{
    const QRect geometry = bubble.geometry();
    const QPoint target = bubble.targetPoint();
    switch (bubble.effectiveArrowSide()) {
    case ArrowSide::Top:
        return geometry.contains(target) && geometry.top() == target.y();
    case ArrowSide::Right:
        return geometry.contains(target) && geometry.right() == target.x();
    case ArrowSide::Bottom:
        return geometry.contains(target) && geometry.bottom() == target.y();
    case ArrowSide::Left:
        break;
    }
    return geometry.contains(target) && geometry.left() == target.x();
}

/// Aims again in every handler, as bubbles do that annotate a widget of changing size.
class ReaimingBubble : public PointingWidget
{
    Q_OBJECT

public:
    explicit ReaimingBubble(QWidget* parent)
        : PointingWidget(parent)
    {
        if (parent) {
            parent->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == parent() && (event->type() == QEvent::Move || event->type() == QEvent::Resize ||
                                    event->type() == QEvent::Show)) {
            aim();
        }
        return PointingWidget::eventFilter(watched, event);
    }

    int paints = 0;
    int moves = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        aim();
        PointingWidget::paintEvent(event);
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        aim();
    }

    void moveEvent(QMoveEvent* event) override
    {
        ++moves;
        PointingWidget::moveEvent(event);
    }

private:
    void aim() { pointTo(targetPoint()); }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(PointingWidget*)>)

class tst_PointingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        QWidget parent;
        const PointingWidget bubble(&parent);
        QCOMPARE(bubble.windowFlags() & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Tool));
        QVERIFY(bubble.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(bubble.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
        QVERIFY(bubble.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(bubble.testAttribute(Qt::WA_ShowWithoutActivating));
        QVERIFY(bubble.isHidden());
        QCOMPARE(bubble.parentWidget(), &parent);
        QCOMPARE(bubble.arrowSide(), ArrowSide::Top);
        QCOMPARE(bubble.arrowPosition(), ArrowPosition::Center);
        QCOMPARE(bubble.arrowOffset(), 0);
        QVERIFY(bubble.contentFrame());
        QCOMPARE(bubble.contentFrame()->objectName(), QStringLiteral("contentFrame"));
        QCOMPARE(bubble.contentFrame()->parentWidget(), &bubble);
        QCOMPARE(bubble.contentFrame()->layout(), nullptr);
        QCOMPARE(bubble.borderWidth(), 1);
        QCOMPARE(bubble.radius(), 6);
        QCOMPARE(bubble.arrowWidth(), 16);
        QCOMPARE(bubble.arrowLength(), 8);
        QVERIFY(!bubble.backgroundColor().isValid());
        QVERIFY(!bubble.borderColor().isValid());
    }

    void enumerationsHaveTheirNumbers()
    {
        QCOMPARE(static_cast<ArrowSide>(0), ArrowSide::Top);
        QCOMPARE(static_cast<ArrowSide>(1), ArrowSide::Right);
        QCOMPARE(static_cast<ArrowSide>(2), ArrowSide::Bottom);
        QCOMPARE(static_cast<ArrowSide>(3), ArrowSide::Left);
        QCOMPARE(static_cast<ArrowPosition>(0), ArrowPosition::Start);
        QCOMPARE(static_cast<ArrowPosition>(1), ArrowPosition::Center);
        QCOMPARE(static_cast<ArrowPosition>(2), ArrowPosition::End);
        QCOMPARE(QMetaEnum::fromType<ArrowSide>().keyCount(), 4);
        QCOMPARE(QMetaEnum::fromType<ArrowPosition>().keyCount(), 3);
    }

    void unknownEnumeratorsAreIgnored()
    {
        PointingWidget bubble;
        bubble.setArrowSide(ArrowSide::Left, ArrowPosition::End);
        bubble.setArrowSide(static_cast<ArrowSide>(4), ArrowPosition::Start);
        bubble.setArrowSide(static_cast<ArrowSide>(-1), ArrowPosition::Start);
        bubble.setArrowSide(ArrowSide::Top, static_cast<ArrowPosition>(3));
        bubble.setArrowSide(ArrowSide::Top, static_cast<ArrowPosition>(-1));
        QCOMPARE(bubble.arrowSide(), ArrowSide::Left);
        QCOMPARE(bubble.arrowPosition(), ArrowPosition::End);
    }

    void pointsFromEverySide_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<int>("position");
        for (int side = 0; side < 4; ++side) {
            for (int position = 0; position < 3; ++position) {
                QTest::addRow("side %d, position %d", side, position) << side << position;
            }
        }
    }

    void pointsFromEverySide()
    {
        QFETCH(const int, side);
        QFETCH(const int, position);
        PointingWidget bubble;
        fill(bubble);
        bubble.setArrowSide(static_cast<ArrowSide>(side), static_cast<ArrowPosition>(position));
        bubble.pointTo(middle());
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QCOMPARE(bubble.targetPoint(), middle());
        QCOMPARE(int(bubble.effectiveArrowSide()), side);
        QTRY_VERIFY(touchesTarget(bubble));
        const bool across = side == 0 || side == 2;
        const int along = across ? tipOf(bubble).x() : tipOf(bubble).y();
        const int length = across ? bubble.width() : bubble.height();
        QCOMPARE(along, position == 0 ? 15 : position == 1 ? (length - 1) / 2 : length - 1 - 15);
    }

    void contentLeavesRoomForArrow_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QRect>("content");
        QTest::newRow("top") << 0 << QRect(3, 11, 120, 60);
        QTest::newRow("right") << 1 << QRect(3, 3, 120, 60);
        QTest::newRow("bottom") << 2 << QRect(3, 3, 120, 60);
        QTest::newRow("left") << 3 << QRect(11, 3, 120, 60);
    }

    void contentLeavesRoomForArrow()
    {
        QFETCH(const int, side);
        QFETCH(const QRect, content);
        PointingWidget bubble;
        fill(bubble);
        bubble.setArrowSide(static_cast<ArrowSide>(side), ArrowPosition::Center);
        bubble.pointTo(middle());
        bubble.show();
        QCOMPARE(bubble.contentFrame()->geometry(), content);
        const bool across = side == 0 || side == 2;
        QCOMPARE(bubble.size(), across ? QSize(126, 74) : QSize(134, 66));
    }

    void staysOnScreen_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<QPoint>("target");
        const QRect area = screenArea();
        const QVector<QPair<const char*, QPoint>> targets = {
            {"upper left", area.topLeft()},        {"upper right", area.topRight()},
            {"lower left", area.bottomLeft()},     {"lower right", area.bottomRight()},
            {"left", {area.left(), middle().y()}}, {"right", {area.right(), middle().y()}},
            {"top", {middle().x(), area.top()}},   {"bottom", {middle().x(), area.bottom()}},
        };
        for (int side = 0; side < 4; ++side) {
            for (const auto& target : targets) {
                QTest::addRow("side %d, %s", side, target.first) << side << target.second;
            }
        }
    }

    void staysOnScreen()
    {
        QFETCH(const int, side);
        QFETCH(const QPoint, target);
        PointingWidget bubble;
        fill(bubble);
        bubble.setArrowSide(static_cast<ArrowSide>(side), ArrowPosition::Center);
        bubble.show();
        bubble.pointTo(target);
        QVERIFY(screenArea().contains(bubble.geometry()));
        QVERIFY(touchesTarget(bubble));
        // A target on no screen is not touched, and the bubble is still seen.
        bubble.pointTo(target + (target - middle()) * 3);
        QVERIFY(screenArea().contains(bubble.geometry()));
    }

    void screenComesAndGoes()
    {
        const QRect beside(screenArea().topRight() + QPoint(1, 0), screenArea().size());
        PointingWidget bubble;
        fill(bubble);
        bubble.pointTo(beside.center());
        bubble.show();
        settle();
        QVERIFY(screenArea().contains(bubble.geometry()));
        {
            SecondScreen screen(beside);
            QTRY_VERIFY(touchesTarget(bubble));
            const QRect smaller(beside.topLeft(), beside.size() / 2);
            screen.setGeometry(smaller);
            QTRY_VERIFY(smaller.contains(bubble.geometry()));
        }
        QTRY_VERIFY(screenArea().contains(bubble.geometry()));
    }

    void staysAroundItsWindowOnWayland_data()
    {
        QTest::addColumn<QRect>("window");
        QTest::addColumn<int>("popups"); // between it and the bubble
        QTest::addColumn<QRect>("area");
        const QRect large(200, 150, 300, 200);
        const auto aroundIt = [](const QRect& window) {
            QRect area(QPoint(), screenArea().size());
            area.moveCenter(window.center());
            return area;
        };
        const QRect narrow(600, 100, 125, 200);
        const QRect low(100, 600, 300, 73);
        QTest::newRow("a window") << large << 0 << large;
        QTest::newRow("a pop-up of the window") << large << 1 << large;
        QTest::newRow("a pop-up of a pop-up") << large << 2 << large;
        QTest::newRow("narrower than the bubble") << narrow << 0 << aroundIt(narrow);
        QTest::newRow("lower than the bubble") << low << 0 << aroundIt(low);
    }

    // Where the screen is, no program knows there; the window is on it.
    void staysAroundItsWindowOnWayland()
    {
        QFETCH(const QRect, window);
        QFETCH(const int, popups);
        QFETCH(const QRect, area);
        const PlatformName wayland(QStringLiteral("wayland"));
        QWidget below;
        below.setGeometry(window);
        QWidget* parent = &below;
        for (int i = 0; i < popups; ++i) {
            parent = new QWidget(parent, Qt::Popup);
            parent->setGeometry(10, 20, 400, 500);
        }
        PointingWidget bubble(parent);
        QCOMPARE(bubble.windowType(), Qt::ToolTip);
        fill(bubble);
        for (const QPoint& corner :
             {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()}) {
            bubble.pointTo(corner);
            bubble.adjustSize();
            QVERIFY(touchesTarget(bubble));
            QVERIFY(area.contains(bubble.geometry()));
        }
    }

    void appearsAnewOnWayland_data()
    {
        using Act = std::function<void(PointingWidget*)>;
        QTest::addColumn<QString>("platform");
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("times");
        const auto by = [](const QVector<QPoint>& steps) -> Act {
            return [steps](PointingWidget* bubble) {
                for (const QPoint& step : steps) {
                    bubble->pointTo(bubble->targetPoint() + step);
                }
            };
        };
        const QString wayland = QStringLiteral("wayland");
        QTest::newRow("another target") << wayland << by({{30, 40}}) << 1;
        QTest::newRow("other targets in one turn") << wayland << by({{30, 40}, {5, 5}}) << 1;
        QTest::newRow("the same target") << wayland << by({{0, 0}}) << 0;
        QTest::newRow("there and back") << wayland << by({{30, 40}, {-30, -40}}) << 0;
        QTest::newRow("window moved")
            << wayland << Act([](PointingWidget* bubble) { bubble->parentWidget()->move(150, 160); }) << 1;
        QTest::newRow("hidden at once") << wayland << Act([](PointingWidget* bubble) {
            bubble->pointTo(bubble->targetPoint() + QPoint(30, 40));
            bubble->hide();
        }) << 0;
        QTest::newRow("elsewhere") << QStringLiteral("xcb") << by({{30, 40}}) << 0;
    }

    // A compositor looks at the place of a window once, when it appears.
    void appearsAnewOnWayland()
    {
        QFETCH(const QString, platform);
        QFETCH(const std::function<void(PointingWidget*)>, act);
        QFETCH(const int, times);
        const PlatformName name(platform);
        QWidget window;
        window.setGeometry(100, 100, 600, 600);
        window.show();
        ShownBubble bubble(&window);
        settle();
        QStringList log;
        const OnEvent hidden(QEvent::Hide, &bubble, [&] { log += QStringLiteral("hidden"); });
        const OnEvent shown(QEvent::Show, &bubble, [&] { log += QStringLiteral("shown"); });
        act(&bubble);
        const bool isHiddenByHost = !bubble.isVisible();
        // Not amid what has moved it.
        QCOMPARE(log.count(QStringLiteral("shown")), 0);
        settle();
        QCOMPARE(log.count(QStringLiteral("shown")), times);
        QCOMPARE(log.count(QStringLiteral("hidden")), times + (isHiddenByHost ? 1 : 0));
        QCOMPARE(bubble.isVisible(), !isHiddenByHost);
        QVERIFY(touchesTarget(bubble));
        // It is hidden for the user alone.
        window.hide();
        window.show();
        QCOMPARE(bubble.isVisible(), !isHiddenByHost);
    }

    void flippedArrowTakesContentAlong()
    {
        ShownBubble bubble;
        QCOMPARE(bubble.contentFrame()->y(), 11);
        bubble.pointTo(QPoint(middle().x(), screenArea().bottom()));
        QCOMPARE(bubble.effectiveArrowSide(), ArrowSide::Bottom);
        QCOMPARE(bubble.arrowSide(), ArrowSide::Top);
        // At once: the next paint shows both in place.
        QCOMPARE(bubble.contentFrame()->y(), 3);
        QCOMPARE(bubble.size(), QSize(126, 74));
        bubble.pointTo(middle());
        QCOMPARE(bubble.contentFrame()->y(), 11);
    }

    void rightToLeftMirrors()
    {
        PointingWidget bubble;
        fill(bubble);
        bubble.setArrowSide(ArrowSide::Top, ArrowPosition::Start);
        bubble.setArrowOffset(5);
        bubble.pointTo(middle());
        bubble.show();
        QCOMPARE(tipOf(bubble).x(), 20);
        bubble.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(tipOf(bubble).x(), bubble.width() - 1 - 20);
        bubble.setArrowSide(ArrowSide::Left, ArrowPosition::Start);
        QCOMPARE(bubble.size(), QSize(134, 66));
        QCOMPARE(tipOf(bubble), QPoint(0, 20));
    }

    void offsetMovesArrow()
    {
        ShownBubble bubble;
        const int tip = tipOf(bubble).x();
        const int left = bubble.x();
        bubble.setArrowOffset(12);
        QCOMPARE(bubble.arrowOffset(), 12);
        QCOMPARE(tipOf(bubble).x(), tip + 12);
        QCOMPARE(bubble.x(), left - 12);
        bubble.setArrowOffset(100000);
        QCOMPARE(bubble.arrowOffset(), 100000);
        QCOMPARE(tipOf(bubble).x(), bubble.width() - 1 - 15);
        bubble.setArrowOffset(0);
        QCOMPARE(tipOf(bubble).x(), tip);
    }

    void sizeFollowsContent()
    {
        PointingWidget bubble;
        QWidget* const content = fill(bubble);
        bubble.setArrowSide(ArrowSide::Bottom, ArrowPosition::Center);
        bubble.pointTo(middle());
        bubble.show();
        for (const QSize& size : {QSize(200, 150), QSize(50, 20), QSize(120, 60)}) {
            content->setFixedSize(size);
            QTRY_COMPARE(bubble.size(), size + QSize(6, 14));
            QVERIFY(touchesTarget(bubble));
        }
        // What changes while it is hidden is there when it is shown again.
        bubble.hide();
        content->setFixedSize(70, 70);
        bubble.show();
        QCOMPARE(bubble.size(), QSize(76, 84));
        QVERIFY(touchesTarget(bubble));
    }

    void shorterTextMakesItLower()
    {
        PointingWidget bubble;
        auto* label = new QLabel(QStringLiteral("word ").repeated(60));
        label->setWordWrap(true);
        (new OvVBoxLayout(bubble.contentFrame()))->addWidget(label);
        bubble.setFixedWidth(200);
        bubble.pointTo(middle());
        bubble.show();
        const int high = bubble.height();
        label->setText(QStringLiteral("word"));
        QTRY_VERIFY(bubble.height() < high / 4);
        QVERIFY(touchesTarget(bubble));
        label->setText(QStringLiteral("word ").repeated(60));
        QTRY_COMPARE(bubble.height(), high);
        QCOMPARE(bubble.width(), 200);
        QCOMPARE(label->height(), label->heightForWidth(label->width()));
    }

    void largeContentStaysWithinScreen()
    {
        PointingWidget bubble;
        auto* label = new QLabel(QStringLiteral("word ").repeated(20000));
        label->setWordWrap(true);
        label->setMinimumSize(1, 1);
        (new OvVBoxLayout(bubble.contentFrame()))->addWidget(label);
        bubble.pointTo(middle());
        bubble.show();
        QVERIFY(bubble.height() <= screenArea().height());
        QVERIFY(bubble.width() <= screenArea().width());
        label->setWordWrap(false);
        QTRY_COMPARE(bubble.width(), screenArea().width());
        QCOMPARE(bubble.x(), screenArea().x());
        // Content that insists is cut off.
        label->setMinimumSize(5000, 5000);
        QTRY_COMPARE(label->width(), 5000);
        QTRY_COMPARE(bubble.geometry(), screenArea());
        // A bubble that insists shows its beginning.
        bubble.setMinimumSize(5000, 5000);
        QTRY_COMPARE(bubble.width(), 5000);
        QCOMPARE(bubble.pos(), screenArea().topLeft());
        bubble.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(bubble.geometry().right(), screenArea().right());
    }

    void minimumForCornersAndArrow()
    {
        PointingWidget bubble;
        bubble.show();
        QCOMPARE(bubble.size(), QSize(30, 22));
        bubble.setArrowSide(ArrowSide::Left, ArrowPosition::Center);
        QTRY_COMPARE(bubble.size(), QSize(22, 30));
        bubble.setRadius(20);
        QCOMPARE(bubble.sizeHint(), QSize(50, 58));
        QTRY_COMPARE(bubble.size(), QSize(50, 58));
    }

    void extremeTargets_data()
    {
        using Limits = std::numeric_limits<int>;
        const int reach = 1 << 28;
        QTest::addColumn<QPoint>("point");
        QTest::addColumn<QPoint>("target");
        QTest::newRow("far away") << QPoint(-9000, 12345) << QPoint(-9000, 12345);
        QTest::newRow("largest") << QPoint(Limits::max(), Limits::max()) << QPoint(reach, reach);
        QTest::newRow("smallest") << QPoint(Limits::min(), Limits::min()) << QPoint(-reach, -reach);
        QTest::newRow("both") << QPoint(Limits::min(), Limits::max()) << QPoint(-reach, reach);
    }

    void extremeTargets()
    {
        QFETCH(QPoint, point);
        QFETCH(QPoint, target);
        QWidget parent;
        parent.setGeometry(-100, 150, 300, 200);
        for (QWidget* of : {static_cast<QWidget*>(nullptr), &parent}) {
            PointingWidget bubble(of);
            bubble.pointTo(point);
            QCOMPARE(bubble.targetPoint(), target);
            bubble.pointTo(bubble.targetPoint());
            QCOMPARE(bubble.targetPoint(), target);
            parent.move(parent.pos() + QPoint(10, 20));
            bubble.setParent(nullptr);
            QVERIFY(screenArea().contains(bubble.geometry()));
        }
    }

    void targetBeforePointing()
    {
        QWidget parent;
        parent.setGeometry(100, 150, 300, 200);
        parent.show();
        PointingWidget bubble(&parent);
        QCOMPARE(bubble.targetPoint(), parent.mapToGlobal(QPoint()));
        bubble.move(33, 44);
        bubble.show();
        QCOMPARE(bubble.pos(), QPoint(33, 44));
    }

    void followsEveryAncestor()
    {
        QWidget window;
        window.setGeometry(250, 260, 300, 200);
        auto* outer = new QWidget(&window);
        auto* inner = new QWidget(outer);
        auto* annotated = new QPushButton(inner);
        window.show();
        PointingWidget bubble(annotated);
        fill(bubble);
        bubble.pointTo(annotated->mapToGlobal(QPoint(5, 6)));
        bubble.show();
        for (QWidget* moved : {&window, outer, inner, static_cast<QWidget*>(annotated)}) {
            const QPoint before = bubble.pos();
            moved->move(moved->pos() + QPoint(13, 17));
            QTRY_COMPARE(bubble.pos(), before + QPoint(13, 17));
            QCOMPARE(bubble.targetPoint(), annotated->mapToGlobal(QPoint(5, 6)));
            QVERIFY(touchesTarget(bubble));
            moved->resize(moved->size() + QSize(10, 10));
            QCOMPARE(bubble.pos(), before + QPoint(13, 17));
        }
    }

    void followsNewAncestors()
    {
        QWidget first;
        QWidget second;
        first.setGeometry(50, 60, 300, 200);
        second.setGeometry(250, 260, 300, 200);
        auto* outer = new QWidget(&first);
        auto* annotated = new QPushButton(outer);
        first.show();
        second.show();
        PointingWidget bubble(annotated);
        fill(bubble);
        bubble.pointTo(annotated->mapToGlobal(QPoint(5, 6)));
        bubble.show();

        QCOMPARE(bubble.windowHandle()->transientParent(), first.windowHandle());

        // Not the parent itself: the one above it goes to another window.
        outer->setParent(&second);
        QVERIFY(!bubble.isVisible());
        outer->show();
        QVERIFY(bubble.isVisible());
        QCOMPARE(bubble.windowHandle()->transientParent(), second.windowHandle());
        QCOMPARE(bubble.targetPoint(), annotated->mapToGlobal(QPoint(5, 6)));
        QTRY_VERIFY(touchesTarget(bubble));
        const QPoint before = bubble.pos();
        second.move(second.pos() + QPoint(30, 40));
        QTRY_COMPARE(bubble.pos(), before + QPoint(30, 40));
        first.move(0, 0);
        QCoreApplication::processEvents();
        QCOMPARE(bubble.pos(), before + QPoint(30, 40));
    }

    void ownParentReplaced()
    {
        QWidget first;
        QWidget second;
        first.setGeometry(50, 60, 300, 200);
        second.setGeometry(250, 260, 300, 200);
        first.show();
        second.show();
        auto* bubble = new PointingWidget(&first);
        fill(*bubble);
        const QPoint spot = first.mapToGlobal(QPoint(20, 30));
        bubble->pointTo(spot);
        bubble->show();
        bubble->setParent(&second, bubble->windowFlags());
        // Hidden by setParent(), as every widget; it goes on pointing at the same spot of the screen.
        QVERIFY(!bubble->isVisible());
        QCOMPARE(bubble->targetPoint(), spot);
        bubble->show();
        QCOMPARE(bubble->targetPoint(), spot);
        QVERIFY(touchesTarget(*bubble));
        second.move(second.pos() + QPoint(10, 20));
        QTRY_COMPARE(bubble->targetPoint(), spot + QPoint(10, 20));
        first.hide();
        QVERIFY(bubble->isVisible());
        second.hide();
        QVERIFY(!bubble->isVisible());
        bubble->setParent(nullptr, bubble->windowFlags());
        const std::unique_ptr<QWidget> owned(bubble);
        const QPoint last = bubble->targetPoint();
        second.move(0, 0);
        QCoreApplication::processEvents();
        QCOMPARE(bubble->targetPoint(), last);
    }

    void hidesWithParent()
    {
        QWidget window;
        auto* parent = new QWidget(&window);
        window.show();
        PointingWidget bubble(parent);
        bubble.pointTo(middle());
        bubble.show();
        parent->hide();
        QVERIFY(!bubble.isVisible());
        parent->show();
        QVERIFY(bubble.isVisible());
        window.hide();
        QVERIFY(!bubble.isVisible());
        // It moves while nobody sees it.
        parent->move(70, 80);
        window.show();
        QVERIFY(bubble.isVisible());
        QVERIFY(touchesTarget(bubble));
    }

    void hiddenByHostStaysHidden()
    {
        QWidget parent;
        parent.show();
        PointingWidget bubble(&parent);
        parent.hide();
        parent.show();
        QVERIFY(!bubble.isVisible()); // never shown
        bubble.show();
        bubble.hide();
        parent.hide();
        parent.show();
        QVERIFY(!bubble.isVisible()); // hidden before its parent
        bubble.show();
        parent.hide();
        bubble.hide();
        parent.show();
        QVERIFY(!bubble.isVisible()); // hidden meanwhile
        bubble.show();
        bubble.close();
        parent.hide();
        parent.show();
        QVERIFY(!bubble.isVisible());
        parent.hide();
        bubble.show();
        bubble.close();
        parent.show();
        QVERIFY(!bubble.isVisible()); // closed before its parent shows
    }

    // The window manager takes the bubble along with its window. One that hid itself and came back with the
    // window's children would send the window away again.
    void staysWhenWindowIsMinimised()
    {
        QWidget window;
        auto* parent = new QWidget(&window);
        window.show();
        PointingWidget bubble(parent);
        bubble.pointTo(middle());
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QHideEvent minimised;
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&minimised);
        qApp->notify(parent, &minimised); // sendEvent() would take the mark off again
        QVERIFY(bubble.isVisible());
        bubble.hide();
        QSpontaneKeyEvent::setSpontaneous(&restored);
        qApp->notify(parent, &restored);
        QVERIFY(!bubble.isVisible());
    }

    void shownBeforeParent()
    {
        QWidget parent;
        parent.setGeometry(100, 100, 200, 100);
        PointingWidget bubble(&parent);
        fill(bubble);
        bubble.pointTo(parent.mapToGlobal(QPoint(10, 10)));
        bubble.show();
        QVERIFY(!bubble.isVisible());
        parent.show();
        QVERIFY(bubble.isVisible());
        QCOMPARE(bubble.size(), QSize(126, 74));
        QVERIFY(touchesTarget(bubble));
    }

    void popupCloses_data()
    {
        using Act = std::function<void(PointingWidget*)>;
        QTest::addColumn<Act>("act");
        QTest::addColumn<bool>("closes");
        const auto clickAt = [](const QPoint& point) -> Act {
            return [point](PointingWidget* bubble) {
                QTest::mouseClick(bubble->windowHandle(), Qt::LeftButton, {}, point);
            };
        };
        QTest::newRow("click on the content") << clickAt({63, 40}) << false;
        QTest::newRow("click beside the arrow") << clickAt({2, 2}) << true;
        QTest::newRow("click outside") << clickAt({300, -20}) << true;
        QTest::newRow("Escape") << Act([](PointingWidget* bubble) {
            QTest::keyClick(bubble->windowHandle(), Qt::Key_Escape);
        }) << true;
        // A disabled pop-up would hear no key and no click, and keep them from everybody else.
        QTest::newRow("disabled") << Act([](PointingWidget* bubble) {
            bubble->parentWidget()->setEnabled(false);
        }) << true;
        QTest::newRow("parent hidden")
            << Act([](PointingWidget* bubble) { bubble->parentWidget()->hide(); }) << true;
    }

    void popupCloses()
    {
        QFETCH(std::function<void(PointingWidget*)>, act);
        QFETCH(bool, closes);
        QWidget parent;
        parent.show();
        ShownBubble bubble(&parent, asPopup);
        auto* button = new QPushButton(bubble.contentFrame());
        button->setGeometry(bubble.contentFrame()->rect());
        button->show();
        QSignalSpy clicks(button, &QPushButton::clicked);
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QCOMPARE(QApplication::activePopupWidget(), &bubble);
        act(&bubble);
        QCOMPARE(bubble.isVisible(), !closes);
        QCOMPARE(clicks.count(), closes ? 0 : 1);
        QCOMPARE(QApplication::activePopupWidget(), closes ? nullptr : &bubble);
        // For good, but it needs no visible parent.
        parent.setEnabled(true);
        parent.hide();
        parent.show();
        QVERIFY(!bubble.isVisible());
        parent.hide();
        bubble.show();
        QVERIFY(bubble.isVisible());
    }

    void plainChild()
    {
        QWidget window;
        window.setGeometry(100, 100, 400, 300);
        auto* bubble = new PointingWidget(&window);
        bubble->setWindowFlags(Qt::Widget);
        fill(*bubble);
        bubble->show();
        QVERIFY(!bubble->isVisible());
        window.show();
        QVERIFY(bubble->isVisible());
        bubble->pointTo(window.mapToGlobal(QPoint(200, 100)));
        QVERIFY(!bubble->isWindow());
        QCOMPARE(bubble->geometry(), QRect(138, 100, 126, 74));
        window.move(150, 160);
        QCoreApplication::processEvents();
        QCOMPARE(bubble->geometry(), QRect(138, 100, 126, 74));
        QTRY_COMPARE(bubble->targetPoint(), window.mapToGlobal(QPoint(200, 100)));
        window.hide();
        window.show();
        QVERIFY(bubble->isVisible());
    }

    void plainChildStaysInParent()
    {
        QWidget window;
        window.setGeometry(100, 100, 400, 300);
        auto* bubble = new PointingWidget(&window);
        bubble->setWindowFlags(Qt::Widget);
        fill(*bubble);
        window.show();
        bubble->show();
        bubble->pointTo(window.mapToGlobal(QPoint(399, 299)));
        QCOMPARE(bubble->geometry(), QRect(274, 226, 126, 74));
        QCOMPARE(bubble->effectiveArrowSide(), ArrowSide::Bottom);
        window.resize(700, 600);
        QTRY_COMPARE(bubble->geometry(), QRect(337, 299, 126, 74));
    }

    void deletedBeforeParent()
    {
        QWidget window;
        auto* parent = new QWidget(&window);
        window.show();
        auto bubble = std::make_unique<PointingWidget>(parent);
        bubble->pointTo(middle());
        bubble->show();
        bubble.reset();
        window.move(30, 40);
        parent->move(5, 6);
        window.hide();
        window.show();
    }

    void parentAndAncestorsDie()
    {
        auto window = std::make_unique<QWidget>();
        auto* outer = new QWidget(window.get());
        auto* parent = new QWidget(outer);
        window->show();
        const QPointer<PointingWidget> bubble = new PointingWidget(parent);
        bubble->pointTo(middle());
        bubble->show();
        // The parent leaves before the ancestors that it was watched through die.
        QWidget other;
        other.show();
        parent->setParent(&other);
        parent->show();
        window.reset();
        QVERIFY(bubble);
        QVERIFY(bubble->isVisible());
        other.move(77, 88);
        QTRY_VERIFY(touchesTarget(*bubble));
    }

    // A subclass that aims again in its own paintEvent() must come to rest.
    void reaimingComesToRest()
    {
        QWidget parent;
        parent.setGeometry(200, 200, 300, 200);
        parent.show();
        ReaimingBubble bubble(&parent);
        fill(bubble);
        bubble.setArrowSide(ArrowSide::Bottom, ArrowPosition::Start);
        bubble.pointTo(parent.mapToGlobal(QPoint(100, 100)));
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QTRY_VERIFY(bubble.paints > 0);
        settle();
        const int paints = bubble.paints;
        const int moves = bubble.moves;
        for (int turn = 0; turn < 200; ++turn) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        QCOMPARE(bubble.paints, paints);
        QCOMPARE(bubble.moves, moves);
        bubble.update();
        QTRY_COMPARE(bubble.paints, paints + 1);
        settle();
        QCOMPARE(bubble.paints, paints + 1);
        QCOMPARE(bubble.moves, moves);
        // Where the aiming itself moves something, it does so once.
        parent.move(230, 240);
        QTRY_VERIFY(touchesTarget(bubble));
        QTRY_COMPARE(bubble.moves, moves + 1);
    }

    void sameTargetCausesNoPaint()
    {
        ReaimingBubble bubble(nullptr);
        fill(bubble);
        bubble.pointTo(middle());
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        settle();
        const int paints = bubble.paints;
        const int moves = bubble.moves;
        for (int i = 0; i < 50; ++i) {
            bubble.pointTo(bubble.targetPoint());
            QCoreApplication::processEvents();
        }
        QCOMPARE(bubble.paints, paints);
        QCOMPARE(bubble.moves, moves);
    }

    void moveByHostIsUndoneByAiming()
    {
        ShownBubble bubble;
        const QPoint place = bubble.pos();
        bubble.move(3, 4);
        QCOMPARE(bubble.pos(), QPoint(3, 4));
        bubble.pointTo(middle());
        QCOMPARE(bubble.pos(), place);
    }

    // A window manager that puts the bubble elsewhere is asked once more, and not again by every aiming.
    void windowManagersPlaceIsAccepted()
    {
        ReaimingBubble bubble(nullptr);
        fill(bubble);
        bubble.pointTo(middle());
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QCoreApplication::processEvents();
        const QPoint place = bubble.pos();
        const int before = bubble.moves;
        bubble.windowHandle()->setPosition(11, 12);
        QTRY_COMPARE(bubble.moves, before + 2);
        QCOMPARE(bubble.pos(), place);

        bubble.windowHandle()->setPosition(11, 12);
        QTRY_COMPARE(bubble.pos(), QPoint(11, 12));
        const int moves = bubble.moves;
        for (int turn = 0; turn < 20; ++turn) {
            bubble.pointTo(bubble.targetPoint());
            bubble.repaint();
            QCoreApplication::processEvents();
        }
        QCOMPARE(bubble.moves, moves);
        QCOMPARE(bubble.pos(), QPoint(11, 12));
        // Another target is another matter.
        bubble.pointTo(middle() + QPoint(1, 1));
        QVERIFY(touchesTarget(bubble));
    }

    // One that keeps a bubble as large as the screen would else be asked for ever: the arrow goes to another
    // side each time, which asks for a layout.
    void windowManagersSizeIsAccepted()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        PointingWidget bubble(nullptr);
        bubble.contentFrame()->setMinimumSize(screen.size() / 3);
        bubble.pointTo(screen.center() + QPoint(0, 40));
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QCoreApplication::processEvents();
        const QSize size = bubble.size();
        const ArrowSide side = bubble.effectiveArrowSide();
        // It may have been late with an earlier size, twice.
        for (int refusal = 0; refusal < 2; ++refusal) {
            bubble.windowHandle()->resize(screen.size());
            QTRY_COMPARE(bubble.windowHandle()->size(), size);
            QCOMPARE(bubble.size(), size);
            QVERIFY(touchesTarget(bubble));
        }
        bubble.windowHandle()->resize(screen.size());
        QTRY_COMPARE(bubble.size(), screen.size());
        QVERIFY(bubble.effectiveArrowSide() != side);
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
        }
        QCOMPARE(bubble.size(), screen.size());
        // Other contents are another matter.
        bubble.contentFrame()->setMinimumSize(screen.size() / 3 + QSize(20, 0));
        QTRY_COMPARE(bubble.size(), size + QSize(20, 0));
    }

    void maskCoversOnlyTheBubble()
    {
        ShownBubble bubble;
        const QPoint tip = tipOf(bubble);
        QVERIFY(bubble.mask().contains(tip));
        QVERIFY(bubble.mask().contains(bubble.rect().center()));
        QVERIFY(!bubble.mask().contains(QPoint(0, 0)));
        QVERIFY(!bubble.mask().contains(QPoint(tip.x() + 20, 1)));
        QVERIFY(!bubble.mask().contains(QPoint(0, 8)));
        QVERIFY(!bubble.mask().contains(bubble.rect().bottomRight()));
        bubble.setRadius(0);
        QVERIFY(bubble.mask().contains(bubble.rect().bottomRight()));
        bubble.setArrowOffset(40);
        QVERIFY(bubble.mask().contains(tipOf(bubble)));
        QVERIFY(!bubble.mask().contains(tip));
    }

    void paints_data() { pointsFromEverySide_data(); }

    void paints()
    {
        QFETCH(const int, side);
        QFETCH(const int, position);
        PointingWidget bubble;
        fill(bubble);
        bubble.setBackgroundColor(Qt::yellow);
        bubble.setBorderColor(Qt::blue);
        bubble.setArrowSide(static_cast<ArrowSide>(side), static_cast<ArrowPosition>(position));
        bubble.pointTo(middle());
        bubble.show();
        const QImage image = bubble.grab().toImage();
        QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::yellow));
        // The tip belongs to the border.
        const QColor tip = image.pixelColor(tipOf(bubble));
        QVERIFY(tip.alpha() > 100);
        QVERIFY(tip.blue() > tip.red());
        for (const QPoint& corner : {image.rect().topLeft(), image.rect().topRight(),
                                     image.rect().bottomLeft(), image.rect().bottomRight()}) {
            QCOMPARE(image.pixelColor(corner).alpha(), 0);
        }
        const QRect content = bubble.contentFrame()->geometry();
        QCOMPARE(image.pixelColor(content.center().x() - 30, content.top()), QColor(Qt::yellow));
        QCOMPARE(image.pixelColor(content.left(), content.center().y() - 10), QColor(Qt::yellow));
    }

    void sheetSetsProperties()
    {
        QWidget parent;
        parent.setStyleSheet(QStringLiteral(
            "PointingWidget { qproperty-backgroundColor: #010203; qproperty-borderColor: #040506;"
            " qproperty-borderWidth: 3; qproperty-radius: 11; qproperty-arrowWidth: 30; "
            "qproperty-arrowLength: 14; }"
            "PointingWidget > OvFrame#contentFrame { qproperty-layoutMargin: 9; }"));
        parent.show();
        PointingWidget bubble(&parent);
        fill(bubble);
        bubble.pointTo(middle());
        bubble.show();
        QCOMPARE(bubble.backgroundColor(), QColor(1, 2, 3));
        QCOMPARE(bubble.borderColor(), QColor(4, 5, 6));
        QCOMPARE(bubble.borderWidth(), 3);
        QCOMPARE(bubble.radius(), 11);
        QCOMPARE(bubble.arrowWidth(), 30);
        QCOMPARE(bubble.arrowLength(), 14);
        // The first picture has them: 3 for the border, 4 for the corners, 9 for the margin of the content.
        QCOMPARE(bubble.size(), QSize(120 + 2 * 16, 60 + 2 * 16 + 14));
        QVERIFY(touchesTarget(bubble));
    }

    void propertiesNormalise_data()
    {
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<int>("max");
        QTest::newRow("border width") << QByteArray("borderWidth") << 100;
        QTest::newRow("radius") << QByteArray("radius") << 1000;
        QTest::newRow("arrow width") << QByteArray("arrowWidth") << 1000;
        QTest::newRow("arrow length") << QByteArray("arrowLength") << 1000;
    }

    void propertiesNormalise()
    {
        QFETCH(const QByteArray, property);
        QFETCH(const int, max);
        ShownBubble bubble;
        for (const int value : {-1, 0, 1, 5, max, max + 1, INT_MAX, INT_MIN}) {
            bubble.setProperty(property, value);
            QCOMPARE(bubble.property(property).toInt(), qBound(0, value, max));
            QCoreApplication::sendPostedEvents();
            bubble.grab();
        }
        bubble.setProperty(property, 4);
        QTRY_VERIFY(touchesTarget(bubble));
    }

    void defaultColorsFollowPalette()
    {
        ShownBubble bubble;
        QPalette dark = bubble.palette();
        dark.setColor(QPalette::Window, QColor(20, 30, 40));
        dark.setColor(QPalette::WindowText, Qt::white);
        bubble.setPalette(dark);
        const QImage image = bubble.grab().toImage();
        QCOMPARE(image.pixelColor(image.rect().center()), QColor(20, 30, 40));
        const QColor border = image.pixelColor(0, image.height() / 2);
        QVERIFY(border.lightness() > 60 && border.lightness() < 200);
    }

    void layoutDirectionOfParent()
    {
        QWidget parent;
        parent.setLayoutDirection(Qt::RightToLeft);
        parent.show();
        PointingWidget bubble(&parent);
        fill(bubble);
        QCOMPARE(bubble.layoutDirection(), Qt::RightToLeft);
        bubble.setArrowSide(ArrowSide::Top, ArrowPosition::Start);
        bubble.pointTo(middle());
        bubble.show();
        QCOMPARE(tipOf(bubble).x(), bubble.width() - 1 - 15);
        parent.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(bubble.layoutDirection(), Qt::LeftToRight);
        QCOMPARE(tipOf(bubble).x(), 15);
        QCOMPARE(bubble.contentFrame()->layoutDirection(), Qt::LeftToRight);
        bubble.setLayoutDirection(Qt::RightToLeft);
        parent.setLayoutDirection(Qt::RightToLeft);
        parent.setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(bubble.layoutDirection(), Qt::RightToLeft);
    }

    void paletteAndFontOfParent()
    {
        QWidget parent;
        QPalette colors = parent.palette();
        colors.setColor(QPalette::Window, Qt::darkGreen);
        parent.setPalette(colors);
        QFont font = parent.font();
        font.setPointSize(31);
        parent.setFont(font);
        const PointingWidget bubble(&parent);
        QCOMPARE(bubble.palette().color(QPalette::Window), QColor(Qt::darkGreen));
        QCOMPARE(bubble.font().pointSize(), 31);
    }

    void tinySizesPaint()
    {
        PointingWidget bubble;
        for (const ArrowSide side : {ArrowSide::Top, ArrowSide::Right, ArrowSide::Bottom, ArrowSide::Left}) {
            bubble.setArrowSide(side, ArrowPosition::Center);
            for (int size = 0; size < 30; ++size) {
                bubble.resize(size, 30 - size);
                bubble.grab();
            }
        }
    }

    void subclassCanReplacePainting()
    {
        struct Plain : PointingWidget
        {
            using PointingWidget::PointingWidget;
            void paintEvent(QPaintEvent* event) override
            {
                Q_UNUSED(event)
                ++paints;
            }
            void showEvent(QShowEvent* event) override
            {
                PointingWidget::showEvent(event);
                placed = geometry();
            }
            int paints = 0;
            QRect placed;
        } bubble;
        fill(bubble);
        bubble.pointTo(middle());
        bubble.show();
        // The base class has placed the bubble when its handler returns.
        QCOMPARE(bubble.placed, bubble.geometry());
        QCOMPARE(bubble.grab().toImage().pixelColor(60, 40).alpha(), 0);
        QVERIFY(bubble.paints > 0);
    }
};

UIC_TEST_MAIN(tst_PointingWidget)
#include "tst_PointingWidget.moc"
