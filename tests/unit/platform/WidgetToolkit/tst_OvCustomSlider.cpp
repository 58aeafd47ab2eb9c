#include "Deletion.h"
#include "FreedMemory.h"
#include "MouseEvents.h"
#include "TestMain.h"
#include "Wheel.h"

#include <WidgetToolkit/OvCustomSlider.h>

#include <cmath>
#include <functional>

Q_DECLARE_METATYPE(Qt::Orientation)
Q_DECLARE_METATYPE(std::function<void(QSlider*)>)

namespace {

class Slider : public OvCustomSlider
{
public:
    using OvCustomSlider::OvCustomSlider;

    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }

    int along(const QPoint& point) const { return orientation() == Qt::Horizontal ? point.x() : point.y(); }

    QPoint spot(int place) const
    {
        return orientation() == Qt::Horizontal ? QPoint(place, height() / 2) : QPoint(width() / 2, place);
    }
};

/// Draws no slider, but notes what it is to draw.
class NotingStyle : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override
    {
        const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (slider) {
            noted = *slider;
        } else {
            QProxyStyle::drawComplexControl(control, option, painter, widget);
        }
    }

    mutable QStyleOptionSlider noted;
};

/// As the present row of clickGoesThere_data() says.
void setUpFromRow(Slider& slider)
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, inverted);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, sheet);
    slider.setOrientation(orientation);
    slider.setStyleSheet(sheet);
    slider.setInvertedAppearance(inverted);
    slider.setLayoutDirection(direction);
    slider.resize(orientation == Qt::Horizontal ? QSize(300, 40) : QSize(40, 300));
    slider.ensurePolished();
}

} // namespace

class tst_OvCustomSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isASlider()
    {
        OvCustomSlider slider;
        QCOMPARE(slider.metaObject()->className(), "OvCustomSlider");
        QCOMPARE(slider.metaObject()->superClass(), &QSlider::staticMetaObject);
        QCOMPARE(slider.orientation(), Qt::Vertical);
        QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
        const OvCustomSlider horizontal(Qt::Horizontal);
        QCOMPARE(horizontal.orientation(), Qt::Horizontal);
        QCOMPARE(horizontal.focusPolicy(), Qt::StrongFocus);
    }

    void clickGoesThere_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("inverted");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QString>("sheet");
        const QString plain;
        const QString sheet = QStringLiteral(
            "QSlider::groove:horizontal { height: 4px; margin: 0 10px; background: grey; }"
            "QSlider::handle:horizontal { width: 20px; margin: -6px 0; background: red; border-radius: 3px; }"
            "QSlider::groove:vertical { width: 4px; margin: 10px 0; background: grey; }"
            "QSlider::handle:vertical { height: 20px; margin: 0 -6px; background: red; }");
        const QString padded = QStringLiteral(
            "QSlider::groove:horizontal { height: 12px; padding: 8px; border: 2px solid black; }"
            "QSlider::groove:vertical { width: 12px; padding: 8px; border: 2px solid black; }"
            "QSlider::handle { width: 10px; height: 10px; background: red; }");
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            const char* const name = orientation == Qt::Horizontal ? "horizontal" : "vertical";
            QTest::addRow("%s", name) << orientation << false << Qt::LeftToRight << plain;
            QTest::addRow("%s inverted", name) << orientation << true << Qt::LeftToRight << plain;
            QTest::addRow("%s right to left", name) << orientation << false << Qt::RightToLeft << plain;
            QTest::addRow("%s inverted right to left", name)
                << orientation << true << Qt::RightToLeft << plain;
            QTest::addRow("%s with sheet", name) << orientation << false << Qt::LeftToRight << sheet;
            QTest::addRow("%s with sheet, inverted", name) << orientation << true << Qt::LeftToRight << sheet;
            QTest::addRow("%s with sheet, right to left", name)
                << orientation << false << Qt::RightToLeft << sheet;
            QTest::addRow("%s with padded groove", name) << orientation << false << Qt::LeftToRight << padded;
        }
    }

    void clickGoesThere()
    {
        Slider slider;
        setUpFromRow(slider);
        slider.setRange(-500, 500);
        const bool inverted = slider.invertedAppearance();
        const bool backwards =
            slider.orientation() == Qt::Horizontal ? inverted != slider.isRightToLeft() : !inverted;
        for (const int place : {60, 100, 150, 230}) {
            // From the far side, so that the click is never on the handle.
            slider.setValue((place > 150) != backwards ? -500 : 500);
            QVERIFY(!slider.handle().contains(slider.spot(place)));
            QSignalSpy spy(&slider, &QAbstractSlider::valueChanged);
            QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, slider.spot(place));
            const int centre = slider.along(slider.handle().center());
            QVERIFY2(std::abs(centre - place) <= 1,
                     qPrintable(QStringLiteral("%1 for %2").arg(centre).arg(place)));
            QCOMPARE(spy.count(), 1);
            QVERIFY(!slider.isSliderDown());
        }
    }

    void clickBeyondTheEnds()
    {
        Slider slider(Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 10);
        slider.setValue(5);
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(0, 15));
        QCOMPARE(slider.value(), 0);
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(199, 15));
        QCOMPARE(slider.value(), 10);
    }

    void dragGoesOnFromTheClick_data() { clickGoesThere_data(); }

    void dragGoesOnFromTheClick()
    {
        Slider slider;
        setUpFromRow(slider);
        slider.setRange(0, 1000);
        slider.setValue(slider.minimum());
        if (std::abs(slider.along(slider.handle().center()) - 100) < 30) {
            slider.setValue(slider.maximum());
        }
        press(slider, slider.spot(100));
        QVERIFY(slider.isSliderDown());
        const int pressed = slider.along(slider.handle().center());
        QVERIFY(std::abs(pressed - 100) <= 1);
        // The first small move must not make the handle jump.
        drag(slider, slider.spot(101));
        QVERIFY(std::abs(slider.along(slider.handle().center()) - 101) <= 2);
        drag(slider, slider.spot(160));
        QVERIFY(std::abs(slider.along(slider.handle().center()) - 160) <= 2);
        release(slider, slider.spot(160));
        QVERIFY(!slider.isSliderDown());
    }

    void pressOnTheHandleMovesNothing()
    {
        Slider slider(Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 1000);
        slider.setValue(500);
        const QRect handle = slider.handle();
        QSignalSpy changed(&slider, &QAbstractSlider::valueChanged);
        QSignalSpy pressed(&slider, &QAbstractSlider::sliderPressed);
        for (const int x : {handle.left(), handle.center().x(), handle.right()}) {
            QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(x, handle.center().y()));
        }
        QCOMPARE(changed.count(), 0);
        QCOMPARE(pressed.count(), 3);
    }

    void orderOfSignals()
    {
        Slider slider(Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        QStringList log;
        connect(&slider, &QAbstractSlider::sliderPressed, this, [&log] { log << QStringLiteral("pressed"); });
        connect(&slider, &QAbstractSlider::sliderMoved, this, [&log] { log << QStringLiteral("moved"); });
        connect(&slider, &QAbstractSlider::valueChanged, this, [&log] { log << QStringLiteral("changed"); });
        connect(&slider, &QAbstractSlider::sliderReleased, this,
                [&log] { log << QStringLiteral("released"); });
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
        const QStringList expected{QStringLiteral("pressed"), QStringLiteral("moved"),
                                   QStringLiteral("changed"), QStringLiteral("released")};
        QCOMPARE(log, expected);
    }

    void withoutTracking()
    {
        Slider slider(Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        slider.setTracking(false);
        QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
        QCOMPARE(slider.value(), 0);
        QVERIFY(slider.sliderPosition() > 70);
        QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
        QCOMPARE(slider.value(), slider.sliderPosition());
        QVERIFY(slider.value() > 70);
    }

    void fewSteps()
    {
        Slider slider(Qt::Horizontal);
        slider.resize(300, 30);
        slider.setRange(0, 2);
        // Nearest step, not the first one towards the click.
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(60, 15));
        QCOMPARE(slider.value(), 0);
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(110, 15));
        QCOMPARE(slider.value(), 1);
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(245, 15));
        QCOMPARE(slider.value(), 2);
        // A drag from a place far from the handle that snapped away from it.
        press(slider, QPoint(120, 15));
        QCOMPARE(slider.value(), 1);
        drag(slider, QPoint(121, 15));
        QCOMPARE(slider.value(), 1);
        drag(slider, QPoint(60, 15));
        QCOMPARE(slider.value(), 0);
        release(slider, QPoint(60, 15));
    }

    void wideRanges_data()
    {
        using Steps = std::numeric_limits<int>;
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("2^31 - 1 steps") << 0 << Steps::max();
        // Where QStyle divides by zero.
        QTest::newRow("2^31 steps") << -1 << Steps::max();
        QTest::newRow("2^31 steps below zero") << Steps::min() << 0;
        QTest::newRow("2^31 + 1 steps") << -2 << Steps::max();
        QTest::newRow("all 32 bits") << Steps::min() << Steps::max();
    }

    void wideRanges()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        Slider slider(Qt::Horizontal);
        slider.resize(300, 30);
        slider.setRange(minimum, maximum);
        QCOMPARE(slider.minimum(), minimum);
        QCOMPARE(slider.maximum(), maximum);
        Slider narrow(Qt::Horizontal);
        narrow.resize(300, 30);
        narrow.setRange(0, 1000);
        for (const int place : {0, 70, 150, 220, 299}) {
            const QPoint at(place, 15);
            press(slider, at);
            press(narrow, at);
            QVERIFY(std::abs(slider.handle().x() - narrow.handle().x()) <= 1);
            const double part = (double(slider.value()) - minimum) / (double(maximum) - minimum);
            QVERIFY2(std::abs(part - narrow.value() / 1000.0) < 0.001, qPrintable(QString::number(part)));
            drag(slider, at + QPoint(5, 0));
            QHoverEvent hover(QEvent::HoverMove, at, at);
            QApplication::sendEvent(&slider, &hover);
            slider.grab();
            release(slider, at);
            release(narrow, at);
        }
        QCOMPARE(slider.value(), maximum);
    }

    void ticksCanBeCounted_data()
    {
        using Steps = std::numeric_limits<int>;
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("maxTicks");
        QTest::newRow("by hand") << 0 << 100 << 25 << 4;
        QTest::newRow("one a pixel") << 0 << 300 << 1 << 300;
        QTest::newRow("millions") << 0 << 100000000 << 1 << 300;
        QTest::newRow("millions of pages") << 0 << 100000000 << 0 << 300;
        QTest::newRow("billions") << Steps::min() << Steps::max() << 1 << 300;
        QTest::newRow("to the last number but one") << Steps::max() - 100 << Steps::max() - 1 << 25 << 3;
        QTest::newRow("at the last number but one") << Steps::max() - 1 << Steps::max() - 1 << 0 << 0;
        QTest::newRow("far apart") << 50 << 100 << Steps::max() << 0;
    }

    void ticksCanBeCounted()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, interval);
        QFETCH(int, maxTicks);
        NotingStyle style;
        Slider slider(Qt::Horizontal);
        slider.setStyle(&style);
        slider.resize(300, 30);
        slider.setTickPosition(QSlider::TicksBelow);
        slider.setTickInterval(interval);
        slider.setRange(minimum, maximum);
        slider.grab();
        const QStyleOptionSlider& option = style.noted;
        const qint64 distance =
            option.tickInterval > 0 ? option.tickInterval : qMax(option.singleStep, option.pageStep);
        QVERIFY(distance > 0);
        const qint64 ticks = (qint64(option.maximum) - option.minimum) / distance;
        QVERIFY2(ticks <= maxTicks + 1, qPrintable(QString::number(ticks)));
        QVERIFY(ticks >= maxTicks - 1);
        // Where a style stops counting.
        QVERIFY(option.minimum + (ticks + 1) * distance < std::numeric_limits<int>::max());
        QVERIFY(option.maximum + distance < std::numeric_limits<int>::max());
    }

    void looksLikeAQSlider_data()
    {
        using Act = std::function<void(QSlider*)>;
        QTest::addColumn<Act>("act");
        const auto hover = [](QSlider* slider, const QPoint& at) {
            slider->setAttribute(Qt::WA_UnderMouse);
            QHoverEvent event(QEvent::HoverMove, at, QPoint(-1, -1));
            QApplication::sendEvent(slider, &event);
        };
        QTest::newRow("at rest") << Act([](QSlider*) {});
        QTest::newRow("disabled") << Act([](QSlider* slider) { slider->setEnabled(false); });
        QTest::newRow("ticks") << Act([](QSlider* slider) { slider->setTickPosition(QSlider::TicksBelow); });
        QTest::newRow("handle hovered") << Act([=](QSlider* slider) { hover(slider, {100, 15}); });
        QTest::newRow("groove hovered") << Act([=](QSlider* slider) { hover(slider, {30, 15}); });
        QTest::newRow("left again") << Act([=](QSlider* slider) {
            hover(slider, {100, 15});
            QHoverEvent event(QEvent::HoverLeave, QPoint(-1, -1), QPoint(100, 15));
            QApplication::sendEvent(slider, &event);
        });
        QTest::newRow("pressed") << Act([](QSlider* slider) { press(*slider, {100, 15}); });
        QTest::newRow("released") << Act([](QSlider* slider) {
            press(*slider, {100, 15});
            release(*slider, {100, 15});
        });
    }

    void looksLikeAQSlider()
    {
        QFETCH(std::function<void(QSlider*)>, act);
        for (const char* sheet : {"", "QSlider::groove { background: gray; height: 4px; }"
                                      "QSlider::handle { background: red; width: 12px; margin: -4px 0; }"
                                      "QSlider::handle:hover { background: lime; }"
                                      "QSlider::handle:pressed { background: blue; }"}) {
            QSlider expected(Qt::Horizontal);
            Slider slider(Qt::Horizontal);
            for (QSlider* each : {&expected, static_cast<QSlider*>(&slider)}) {
                each->setFocusPolicy(Qt::NoFocus);
                each->resize(200, 30);
                each->setStyleSheet(QLatin1String(sheet));
                each->setRange(0, 100);
                each->setValue(50);
                act(each);
                each->grab(); // the first picture of ticks that Fusion draws differs from all that follow
            }
            QCOMPARE(slider.grab().toImage(), expected.grab().toImage());
        }
    }

    void middleButton()
    {
        Slider slider(Qt::Horizontal);
        slider.resize(200, 30);
        QVERIFY(slider.style()->styleHint(QStyle::SH_Slider_AbsoluteSetButtons) & Qt::MiddleButton);
        press(slider, {150, 15}, Qt::MiddleButton);
        QVERIFY(slider.value() > 70);
        QVERIFY(slider.isSliderDown());
        sendMouse(slider, QEvent::MouseMove, {199, 15}, Qt::NoButton, Qt::MiddleButton);
        QCOMPARE(slider.value(), 99);
        release(slider, {199, 15}, Qt::MiddleButton);
        QVERIFY(!slider.isSliderDown());
    }

    void pressMovesNothing_data()
    {
        using Act = std::function<void(QSlider*)>;
        QTest::addColumn<Act>("act");
        const auto click = [](QSlider* slider) { QTest::mouseClick(slider, Qt::LeftButton, {}, {150, 15}); };
        QTest::newRow("right button") << Act([](QSlider* slider) {
            QTest::mouseClick(slider, Qt::RightButton, {}, {150, 15});
        });
        QTest::newRow("left button, the right one is down") << Act([](QSlider* slider) {
            sendMouse(*slider, QEvent::MouseButtonPress, {150, 15}, Qt::LeftButton,
                      Qt::LeftButton | Qt::RightButton);
        });
        QTest::newRow("empty range") << Act([click](QSlider* slider) {
            slider->setRange(5, 5);
            click(slider);
        });
        QTest::newRow("disabled") << Act([click](QSlider* slider) {
            slider->setEnabled(false);
            click(slider);
        });
    }

    void pressMovesNothing()
    {
        QFETCH(std::function<void(QSlider*)>, act);
        Slider slider(Qt::Horizontal);
        slider.resize(200, 30);
        QSignalSpy spy(&slider, &QAbstractSlider::sliderPressed);
        act(&slider);
        QCOMPARE(slider.value(), slider.minimum());
        QVERIFY(!slider.isSliderDown());
        QCOMPARE(spy.count(), 0);
    }

    void wheel()
    {
        QWidget window;
        QLineEdit other(&window);
        Slider slider(Qt::Horizontal, &window);
        slider.setValue(50);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        QVERIFY(!turnWheel(slider, 120));
        QCOMPARE(slider.value(), 50);
        QVERIFY(!slider.hasFocus());
        slider.setFocus();
        for (const int page : {10, INT_MIN}) {
            slider.setValue(50);
            slider.setPageStep(page);
            QVERIFY(turnWheel(slider, 120));
            QCOMPARE(slider.value(), 50 + QApplication::wheelScrollLines());
        }
    }

    void wheelAtTheEnd()
    {
        Slider slider(Qt::Horizontal);
        slider.show();
        slider.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.setFocus();
        slider.setValue(slider.maximum());
        QVERIFY(turnWheel(slider, 120));
        QCOMPARE(slider.value(), slider.maximum());
    }

    void keysAndWheelAreQSliders_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("appearance");
        QTest::addColumn<bool>("controls");
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                for (int inverted = 0; inverted < 4; ++inverted) {
                    QTest::addRow("%s, %s, inverted %d",
                                  orientation == Qt::Horizontal ? "horizontal" : "vertical",
                                  direction == Qt::LeftToRight ? "left to right" : "right to left", inverted)
                        << orientation << direction << ((inverted & 1) != 0) << ((inverted & 2) != 0);
                }
            }
        }
    }

    void keysAndWheelAreQSliders()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, appearance);
        QFETCH(bool, controls);
        QWidget window;
        QSlider expected(orientation, &window);
        Slider slider(orientation, &window);
        QStringList logs[2];
        const auto setUp = [&](QSlider* each, QStringList* log) {
            each->setLayoutDirection(direction);
            each->setInvertedAppearance(appearance);
            each->setInvertedControls(controls);
            each->setRange(-30, 30);
            each->setSingleStep(3);
            each->setPageStep(13);
            connect(each, &QAbstractSlider::actionTriggered, this, [=](int action) {
                *log << QStringLiteral("action %1 at %2").arg(action).arg(each->value());
            });
            connect(each, &QAbstractSlider::valueChanged, this,
                    [=](int value) { *log << QStringLiteral("value %1").arg(value); });
        };
        setUp(&expected, &logs[0]);
        setUp(&slider, &logs[1]);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto keys = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right,  Qt::Key_Up,
                           Qt::Key_Down, Qt::Key_Up,    Qt::Key_PageUp, Qt::Key_PageDown,
                           Qt::Key_Home, Qt::Key_Down,  Qt::Key_End,    Qt::Key_Up};
        for (const Qt::Key key : keys) {
            QTest::keyClick(&expected, key);
            QTest::keyClick(&slider, key);
            QCOMPARE(slider.value(), expected.value());
        }
        QCOMPARE(logs[1], logs[0]);
        slider.setFocus();
        const auto turn = [](QSlider& each, const QPoint& delta, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event(QPoint(5, 5), each.mapToGlobal({5, 5}), {}, delta, {}, modifiers,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(&each, &event);
        };
        slider.setValue(0);
        expected.setValue(0);
        const auto turns = {QPoint(0, 120), QPoint(0, 20),   QPoint(0, 20), QPoint(0, -20), QPoint(0, -15),
                            QPoint(120, 0), QPoint(-50, 10), QPoint(0, 1),  QPoint(0, -600)};
        for (const auto modifiers : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
            for (const QPoint& delta : turns) {
                turn(expected, delta, modifiers);
                turn(slider, delta, modifiers);
                QCOMPARE(slider.value(), expected.value());
            }
        }
    }

    void slotAdjustsAnAction()
    {
        Slider slider(Qt::Horizontal);
        slider.setSingleStep(5);
        QSignalSpy actions(&slider, &QAbstractSlider::actionTriggered);
        QSignalSpy values(&slider, &QAbstractSlider::valueChanged);
        connect(&slider, &QAbstractSlider::actionTriggered, &slider,
                [&slider] { slider.setSliderPosition(slider.sliderPosition() + 2); });
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(actions.count(), 1);
        QCOMPARE(values.count(), 1);
        QCOMPARE(slider.value(), 7);
        QVERIFY(slider.hasTracking());
    }

    void deletedByAListener_data()
    {
        using Act = std::function<void(QSlider*)>;
        QTest::addColumn<Act>("prepare");
        QTest::addColumn<Act>("act");
        const Act nothing = [](QSlider*) {};
        const Act pressed = [](QSlider* slider) { press(*slider, {150, 15}); };
        const Act pressedWithoutTracking = [pressed](QSlider* slider) {
            slider->setTracking(false);
            pressed(slider);
        };
        const Act released = [](QSlider* slider) { release(*slider, {150, 15}); };
        QTest::newRow("press") << nothing << pressed;
        QTest::newRow("press without tracking") << nothing << pressedWithoutTracking;
        QTest::newRow("middle press") << nothing << Act([](QSlider* slider) {
            press(*slider, {150, 15}, Qt::MiddleButton);
        });
        QTest::newRow("drag") << pressed << Act([](QSlider* slider) { drag(*slider, {50, 15}); });
        QTest::newRow("release") << pressed << released;
        QTest::newRow("release without tracking") << pressedWithoutTracking << released;
        const Act key = [](QSlider* slider) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
            QApplication::sendEvent(slider, &event);
        };
        QTest::newRow("key") << nothing << key;
        QTest::newRow("key during a drag") << pressed << key;
        QTest::newRow("wheel") << nothing << Act([](QSlider* slider) { turnWheel(*slider, 120); });
    }

    void deletedByAListener()
    {
        using Act = std::function<void(QSlider*)>;
        QFETCH(Act, prepare);
        QFETCH(Act, act);
        // Every signal that comes is, in turn, the last one.
        for (const Deletion deletion : allDeletions) {
            for (int last = 1, signals = 1; last <= signals; ++last) {
                const QPointer<Slider> slider = new Slider(Qt::Horizontal);
                slider->resize(200, 30);
                slider->show();
                QVERIFY(QTest::qWaitForWindowActive(slider));
                slider->setFocus();
                prepare(slider);
                signals = 0;
                const auto slot = [&] {
                    if (++signals == last) {
                        destroy(slider, deletion);
                    }
                };
                connect(slider, &QAbstractSlider::sliderPressed, this, slot);
                connect(slider, &QAbstractSlider::sliderMoved, this, slot);
                connect(slider, &QAbstractSlider::sliderReleased, this, slot);
                connect(slider, &QAbstractSlider::actionTriggered, this, slot);
                connect(slider, &QAbstractSlider::valueChanged, this, slot);
                const FreedMemoryWatch memory;
                act(slider);
                QVERIFY(signals > 0);
                QCOMPARE(slider.isNull(), signals >= last);
                QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
                if (slider) {
                    delete slider;
                    break;
                }
            }
        }
    }

    void tinySizes()
    {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            for (int size = 0; size < 12; ++size) {
                Slider slider(orientation);
                slider.resize(size, size);
                QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(size / 2, size / 2));
                slider.grab();
                QVERIFY(slider.value() >= slider.minimum() && slider.value() <= slider.maximum());
            }
        }
    }
};

UIC_TEST_MAIN(tst_OvCustomSlider)
#include "tst_OvCustomSlider.moc"
