#include "AccessibleEars.h"
#include "TestMain.h"

#include <WidgetToolkit/OvDoubleSlider.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

using Change = std::function<void(OvDoubleSlider&)>;
Q_DECLARE_METATYPE(Change)

namespace {

const double infinity = std::numeric_limits<double>::infinity();

/// From 0 to 1 in hundredths, from left to right.
class Hundredths : public OvDoubleSlider
{
public:
    Hundredths()
    {
        setOrientation(Qt::Horizontal);
        resize(200, 30);
        setRange(0, 100);
        setMultiplier(0.01);
    }
};

} // namespace

class tst_OvDoubleSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaksUnits()
    {
        Hundredths slider;
        slider.setDoubleValue(0.4);
        QAccessibleInterface& interface = reader(&slider);
        QCOMPARE(interface.role(), QAccessible::Slider);
        QCOMPARE(interface.text(QAccessible::Value), QStringLiteral("0.4"));
        QAccessibleValueInterface* const value = interface.valueInterface();
        QVERIFY(value);
        QCOMPARE(value->currentValue().toDouble(), 0.4);
        QCOMPARE(value->minimumValue().toDouble(), 0.0);
        QCOMPARE(value->maximumValue().toDouble(), 1.0);
        QCOMPARE(value->minimumStepSize().toDouble(), 0.01);
        QSignalSpy changes(&slider, &OvDoubleSlider::doubleValueChanged);
        value->setCurrentValue(0.7);
        QCOMPARE(slider.doubleValue(), 0.7);
        QCOMPARE(changes.size(), 1);
        slider.setEnabled(false);
        value->setCurrentValue(0.1);
        QCOMPARE(slider.doubleValue(), 0.7);
        slider.setRange(0, 2000000000);
        for (const auto& [number, text] :
             {std::pair(1234567.25, "1,234,567"), std::pair(999999.75, "1,000,000"),
              std::pair(2.0 / 3, "0.666667")}) {
            slider.setDoubleValue(number);
            QCOMPARE(interface.text(QAccessible::Value), QString::fromLatin1(text));
        }
        slider.setMultiplier(1e-6);
        slider.setDoubleValue(0.00005);
        QCOMPARE(interface.text(QAccessible::Value), QStringLiteral("0.00005"));
    }

    void changesAreAnnouncedOnce_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QStringList>("heard");
        const auto row = [](const char* name, const Change& change, const QStringList& heard) {
            QTest::newRow(name) << change << heard;
        };
        row("a step", [](OvDoubleSlider& slider) { slider.setValue(41); }, {QStringLiteral("Gain: 0.41")});
        row("a key", [](OvDoubleSlider& slider) { QTest::keyClick(&slider, Qt::Key_Up); },
            {QStringLiteral("Gain: 0.41")});
        row("a value on another step", [](OvDoubleSlider& slider) { slider.setDoubleValue(0.7); },
            {QStringLiteral("Gain: 0.7")});
        row("a value within the step", [](OvDoubleSlider& slider) { slider.setDoubleValue(0.404); },
            {QStringLiteral("Gain: 0.404")});
        row("a value within the step, after another multiplier",
            [](OvDoubleSlider& slider) {
                slider.setMultiplier(0.1);
                AccessibleEars::take();
                slider.setDoubleValue(0.42);
            },
            {QStringLiteral("Gain: 0.42")});
        row("back to the step",
            [](OvDoubleSlider& slider) {
                slider.setDoubleValue(0.404);
                AccessibleEars::take();
                slider.setDoubleValue(0.4);
            },
            {QStringLiteral("Gain: 0.4")});
        row("the same", [](OvDoubleSlider& slider) { slider.setDoubleValue(0.4); }, {});
    }

    // When a reader hears of it, the slider has the value already.
    void changesAreAnnouncedOnce()
    {
        QFETCH(Change, change);
        Hundredths slider;
        slider.setAccessibleName(QStringLiteral("Gain"));
        slider.setDoubleValue(0.4);
        const AccessibleEars ears;
        change(slider);
        QTEST(AccessibleEars::take(), "heard");
    }

    void dragsAreAnnouncedOnce()
    {
        Hundredths slider;
        slider.setAccessibleName(QStringLiteral("Gain"));
        QSignalSpy changes(&slider, &OvDoubleSlider::doubleValueChanged);
        // Others are heard meanwhile.
        QSlider other;
        other.setAccessibleName(QStringLiteral("Other"));
        connect(&slider, &QAbstractSlider::valueChanged, &other, &QAbstractSlider::setValue);
        const AccessibleEars ears;
        const auto send = [&slider](QEvent::Type type, int x, Qt::MouseButtons buttons) {
            QMouseEvent event(type, QPoint(x, 15), Qt::LeftButton, buttons, Qt::NoModifier);
            QApplication::sendEvent(&slider, &event);
        };
        send(QEvent::MouseButtonPress, 60, Qt::LeftButton);
        send(QEvent::MouseMove, 100, Qt::LeftButton);
        send(QEvent::MouseMove, 199, Qt::LeftButton);
        QCOMPARE(changes.size(), 3);
        QStringList heard = AccessibleEars::take();
        QCOMPARE(heard.filter(QStringLiteral("Other")).size(), 3);
        QCOMPARE(heard.filter(QStringLiteral("Gain")), QStringList());
        send(QEvent::MouseButtonRelease, 199, Qt::NoButton);
        QCOMPARE(AccessibleEars::take(), QStringList{QStringLiteral("Gain: 1")});
        // A press on the handle moves nothing.
        send(QEvent::MouseButtonPress, 195, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, 195, Qt::NoButton);
        QCOMPARE(AccessibleEars::take(), QStringList());
        QTest::keyClick(&slider, Qt::Key_Left);
        QCOMPARE(AccessibleEars::take().filter(QStringLiteral("Gain")),
                 QStringList{QStringLiteral("Gain: 0.99")});
    }

    void handlerOfASlotStays()
    {
        const auto own = [](QAccessibleEvent* /*event*/) {};
        Hundredths slider;
        connect(&slider, &QAbstractSlider::valueChanged, this,
                [own] { QAccessible::installUpdateHandler(own); });
        const QAccessible::UpdateHandler before = QAccessible::installUpdateHandler(nullptr);
        QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(150, 15));
        QVERIFY(slider.value() > 50);
        const QAccessible::UpdateHandler after = QAccessible::installUpdateHandler(before);
        QCOMPARE(reinterpret_cast<quintptr>(after),
                 reinterpret_cast<quintptr>(static_cast<QAccessible::UpdateHandler>(own)));
    }

    void metaObject()
    {
        OvDoubleSlider slider;
        const QMetaObject* meta = slider.metaObject();
        QCOMPARE(meta->className(), "OvDoubleSlider");
        QVERIFY(slider.inherits("OvCustomSlider"));
        QCOMPARE(meta->userProperty().name(), "doubleValue");
        QVERIFY(meta->indexOfSignal("doubleValueChanged(double)") >= 0);
        QVERIFY(slider.setProperty("multiplier", 0.5));
        QVERIFY(slider.setProperty("doubleValue", 1.5));
        QCOMPARE(slider.value(), 3);
    }

    void keepsTheExactValue_data()
    {
        QTest::addColumn<double>("asked");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("step");
        QTest::newRow("on a step") << 0.3 << 0.3 << 30;
        QTest::newRow("between two steps") << 0.304 << 0.304 << 30;
        QTest::newRow("half") << 0.305 << 0.305 << 31;
        QTest::newRow("negative half") << -0.305 << -0.305 << -31;
        QTest::newRow("minimum") << -1.0 << -1.0 << -100;
        QTest::newRow("below the minimum") << -1.0001 << -1.0 << -100;
        QTest::newRow("above the maximum") << 7.0 << 1.0 << 100;
        QTest::newRow("infinite") << infinity << 1.0 << 100;
        QTest::newRow("minus infinite") << -infinity << -1.0 << -100;
    }

    void keepsTheExactValue()
    {
        QFETCH(double, asked);
        QFETCH(double, value);
        QFETCH(int, step);
        OvDoubleSlider slider;
        slider.setMultiplier(0.01);
        slider.setRange(-100, 100);
        slider.setDoubleValue(asked);
        QVERIFY(slider.doubleValue() == value);
        QCOMPARE(slider.value(), step);
    }

    // What is set, each with the value and the step that follow, and what is reported, in order.
    void story_data()
    {
        QTest::addColumn<QStringList>("story");
        const auto row = [](const char* name, const QStringList& story) { QTest::newRow(name) << story; };
        row("from the start", {"value 0 = 0, 0", "value inf = 99, 99; value 99; step 99"});
        row("steps read as decimals",
            {"multiplier 0.1", "step 3 = 0.3, 3; value 0.3; step 3", "step 7 = 0.7, 7; value 0.7; step 7"});
        row("step", {"multiplier 0.01", "value 0.304", "step 30 = 0.304, 30",
                     "step 31 = 0.31, 31; value 0.31; step 31",
                     "multiplier 0.02 = 0.62, 31; value 0.62; multiplier 0.02"});
        row("value", {"multiplier 0.1", "value 0.72 = 0.72, 7; value 0.72; step 7", "value 0.72 = 0.72, 7",
                      "value 0.73 = 0.73, 7; value 0.73", "value nan = 0.73, 7"});
        row("multiplier of a value", {"value 5", "multiplier 0.5 = 5, 10; step 10; multiplier 0.5"});
        row("multiplier of a step", {"step 20", "multiplier 0.25 = 5, 20; value 5; multiplier 0.25"});
        row("multiplier that leaves no room",
            {"multiplier 0.01", "value 0.9",
             "multiplier 0.001 = 0.099, 99; value 0.099; step 99; multiplier 0.001"});
        row("bad multipliers",
            {"multiplier 0.5", "value 3.25", "multiplier 0 = 3.25, 7", "multiplier -0.5 = 3.25, 7",
             "multiplier inf = 3.25, 7", "multiplier nan = 3.25, 7", "multiplier 0.5 = 3.25, 7"});
        row("blocked", {"multiplier 0.1", "step 5", "block", "step 8", "unblock = 0.8, 8",
                        "step 5 = 0.5, 5; value 0.5; step 5", "block", "value 0.8", "unblock",
                        "value 0.5 = 0.5, 5; value 0.5; step 5"});
    }

    void story()
    {
        QFETCH(QStringList, story);
        OvDoubleSlider slider;
        QStringList log;
        connect(&slider, &QAbstractSlider::valueChanged, this,
                [&log](int step) { log += QString("step %1").arg(step); });
        connect(&slider, &OvDoubleSlider::doubleValueChanged, this,
                [&log](double value) { log += QString("value %1").arg(value); });
        connect(&slider, &OvDoubleSlider::multiplierChanged, this,
                [&log](double multiplier) { log += QString("multiplier %1").arg(multiplier); });
        for (const QString& step : story) {
            const QString action = step.section(" = ", 0, 0);
            const QString verb = action.section(' ', 0, 0);
            const double number = action.section(' ', 1).toDouble();
            log.clear();
            if (verb == "value") {
                slider.setDoubleValue(number);
            } else if (verb == "step") {
                slider.setValue(static_cast<int>(number));
            } else if (verb == "multiplier") {
                slider.setMultiplier(number);
            } else {
                slider.blockSignals(verb == "block");
            }
            log.prepend(QString("%1 = %2, %3").arg(action).arg(slider.doubleValue()).arg(slider.value()));
            if (step.contains('=')) {
                QCOMPARE(log.join("; "), step);
            }
        }
    }

    void noNegativeZero()
    {
        OvDoubleSlider slider;
        // A minimum of 0 would take its place.
        slider.setMinimum(-1);
        slider.setDoubleValue(-0.0);
        QVERIFY(!std::signbit(slider.doubleValue()));
    }

    // m: the multiplier, n: the minimum, x: the maximum, v: the value, s: the step.
    void anyOrder_data()
    {
        QTest::addColumn<QByteArray>("order");
        QTest::addColumn<double>("multiplier");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<double>("asked");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("step");
        const QByteArray valued("mnxv");
        QTest::newRow("opacity") << valued << 0.01 << 0 << 100 << 0.5 << 0.5 << 50;
        QTest::newRow("opacity at its maximum") << valued << 0.01 << 0 << 100 << 1.0 << 1.0 << 100;
        QTest::newRow("between steps") << valued << 0.01 << 0 << 100 << 0.505 << 0.505 << 51;
        QTest::newRow("negative") << valued << 0.001 << -2000 << -1000 << -1.2345 << -1.2345 << -1235;
        QTest::newRow("range without zero") << valued << 0.1 << 50 << 90 << 7.77 << 7.77 << 78;
        QTest::newRow("large multiplier") << valued << 10.0 << 0 << 1000 << 4321.0 << 4321.0 << 432;
        QTest::newRow("outside") << valued << 0.1 << 50 << 90 << 100.0 << 9.0 << 90;
        QTest::newRow("infinite") << valued << 0.1 << 50 << 90 << -infinity << 5.0 << 50;
        QTest::newRow("nine decimals")
            << valued << 1e-9 << -2000000000 << 2000000000 << 1.234567891 << 1.234567891 << 1234567891;
        QTest::newRow("a step") << QByteArray("mnxs") << 0.01 << 0 << 100 << 0.0 << 0.5 << 50;
    }

    void anyOrder()
    {
        QFETCH(QByteArray, order);
        QFETCH(double, multiplier);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(double, asked);
        QFETCH(double, value);
        QFETCH(int, step);
        std::sort(order.begin(), order.end());
        do {
            OvDoubleSlider slider;
            for (const char what : qAsConst(order)) {
                switch (what) {
                case 'm':
                    slider.setMultiplier(multiplier);
                    break;
                case 'n':
                    slider.setMinimum(minimum);
                    break;
                case 'x':
                    slider.setMaximum(maximum);
                    break;
                case 's':
                    slider.setValue(step);
                    break;
                default:
                    slider.setDoubleValue(asked);
                }
            }
            // Qt itself lets the bound that is set last win over the other.
            slider.setRange(minimum, maximum);
            QVERIFY2(slider.doubleValue() == value, order.constData());
            QVERIFY2(slider.value() == step, order.constData());
        } while (std::next_permutation(order.begin(), order.end()));
    }

    void valueComesBackWhenThereIsRoom()
    {
        OvDoubleSlider slider;
        slider.setMultiplier(0.1);
        slider.setDoubleValue(7.25);
        slider.setRange(0, 50);
        QCOMPARE(slider.doubleValue(), 5.0);
        QCOMPARE(slider.value(), 50);
        slider.setRange(0, 100);
        QCOMPARE(slider.doubleValue(), 7.25);
        QCOMPARE(slider.value(), 73);
        // Moved by the user, it does not.
        slider.setRange(0, 50);
        slider.setValue(40);
        slider.setRange(0, 100);
        QCOMPARE(slider.doubleValue(), 4.0);
        // Nor is there ever room for one without an end.
        slider.setDoubleValue(infinity);
        QCOMPARE(slider.doubleValue(), 10.0);
        slider.setRange(0, 200);
        QCOMPARE(slider.doubleValue(), 20.0);
    }

    void reportedCutStays_data()
    {
        QTest::addColumn<bool>("isInSteps");
        QTest::addColumn<bool>("isBlocked");
        QTest::newRow("to a listener of the value") << false << false;
        QTest::newRow("to a listener of the step") << true << false;
        QTest::newRow("to nobody") << false << true;
    }

    void reportedCutStays()
    {
        QFETCH(bool, isInSteps);
        QFETCH(bool, isBlocked);
        OvDoubleSlider slider;
        slider.setMultiplier(0.1);
        slider.setDoubleValue(7.25);
        const auto signal = isInSteps ? QMetaMethod::fromSignal(&QAbstractSlider::valueChanged)
                                      : QMetaMethod::fromSignal(&OvDoubleSlider::doubleValueChanged);
        QSignalSpy spy(&slider, signal);
        slider.blockSignals(isBlocked);
        slider.setRange(0, 50);
        slider.blockSignals(false);
        QCOMPARE(slider.doubleValue(), 5.0);
        QCOMPARE(spy.count(), isBlocked ? 0 : 1);
        // Nor does it say the same value twice.
        slider.setDoubleValue(7.25);
        QCOMPARE(spy.count(), isBlocked ? 0 : 1);
        spy.clear();
        slider.setRange(0, 100);
        QCOMPARE(slider.doubleValue(), isBlocked ? 7.25 : 5.0);
        QCOMPARE(spy.count(), isBlocked ? 1 : 0);
    }

    void signalsAreCoherent()
    {
        OvDoubleSlider slider;
        QSignalSpy steps(&slider, &QAbstractSlider::valueChanged);
        QSignalSpy values(&slider, &OvDoubleSlider::doubleValueChanged);
        connect(&slider, &OvDoubleSlider::doubleValueChanged, this,
                [&slider](double value) { QVERIFY(value == slider.doubleValue()); });
        connect(&slider, &QAbstractSlider::valueChanged, this, [&slider](int step) {
            QVERIFY(std::abs(slider.doubleValue() - step * slider.multiplier()) <=
                    slider.multiplier() * 0.5000001);
        });
        slider.setMultiplier(0.1);
        slider.setDoubleValue(0.72);
        slider.setRange(-30, 50);
        slider.setDoubleValue(17.0);
        slider.setRange(0, 500);
        slider.setDoubleValue(17.0);
        slider.setMultiplier(0.7);
        slider.setValue(3);
        slider.setRange(10, 20);
        QVERIFY(steps.count() >= 5);
        QVERIFY(values.count() >= 5);
    }

    void listenerSetsAnotherValue()
    {
        OvDoubleSlider slider;
        slider.setMultiplier(0.1);
        QSignalSpy spy(&slider, &OvDoubleSlider::doubleValueChanged);
        connect(&slider, &OvDoubleSlider::doubleValueChanged, &slider, [&slider](double value) {
            if (value < 5.0) {
                slider.setDoubleValue(5.05);
            }
        });
        slider.setDoubleValue(1.0);
        QCOMPARE(slider.doubleValue(), 5.05);
        QCOMPARE(slider.value(), 51);
        QCOMPARE(spy.last(), QVariantList{5.05});
        slider.setValue(3);
        QCOMPARE(slider.doubleValue(), 5.05);
    }

    void keysAndDragMoveByWholeSteps()
    {
        Hundredths slider;
        slider.setDoubleValue(0.304);
        QSignalSpy spy(&slider, &OvDoubleSlider::doubleValueChanged);
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(spy.count(), 1);
        QVERIFY(slider.doubleValue() == 0.31);
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(199, 15));
        QCOMPARE(slider.doubleValue(), 1.0);
    }

    void withoutTracking()
    {
        Hundredths slider;
        slider.setTracking(false);
        slider.setDoubleValue(0.304);
        QSignalSpy spy(&slider, &OvDoubleSlider::doubleValueChanged);
        QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(199, 15));
        QCOMPARE(slider.doubleValue(), 0.304);
        QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(199, 15));
        QCOMPARE(slider.doubleValue(), 1.0);
        QCOMPARE(spy.count(), 1);
    }

    void deletedByAListener_data()
    {
        QTest::addColumn<Change>("listen");
        QTest::addColumn<Change>("act");
        const auto deletedBy = [](auto signal) {
            return Change([signal](OvDoubleSlider& slider) {
                connect(&slider, signal, &slider, [target = &slider] { delete target; });
            });
        };
        const Change multiply = [](OvDoubleSlider& slider) { slider.setMultiplier(0.01); };
        const QVector<QPair<const char*, Change>> acts = {
            {"setDoubleValue", [](OvDoubleSlider& slider) { slider.setDoubleValue(7.25); }},
            {"setValue", [](OvDoubleSlider& slider) { slider.setValue(7); }},
            {"setMultiplier", multiply},
            {"click", [](OvDoubleSlider& slider) {
                 QMouseEvent press(QEvent::MouseButtonPress, QPoint(15, 2), QPoint(15, 2), Qt::LeftButton,
                                   Qt::LeftButton, Qt::NoModifier);
                 QApplication::sendEvent(&slider, &press);
             }}};
        for (const auto& act : acts) {
            QTest::addRow("valueChanged by %s", act.first)
                << deletedBy(&QAbstractSlider::valueChanged) << act.second;
            QTest::addRow("doubleValueChanged by %s", act.first)
                << deletedBy(&OvDoubleSlider::doubleValueChanged) << act.second;
        }
        QTest::newRow("multiplierChanged by setMultiplier")
            << deletedBy(&OvDoubleSlider::multiplierChanged) << multiply;
    }

    void deletedByAListener()
    {
        QFETCH(Change, listen);
        QFETCH(Change, act);
        const QPointer<OvDoubleSlider> slider(new OvDoubleSlider);
        slider->resize(30, 200);
        slider->setDoubleValue(5.0);
        listen(*slider);
        act(*slider);
        QVERIFY(slider.isNull());
    }

    void extremes()
    {
        OvDoubleSlider slider;
        slider.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        slider.setDoubleValue(1e300);
        QCOMPARE(slider.value(), std::numeric_limits<int>::max());
        QCOMPARE(slider.doubleValue(), 2147483647.0);
        slider.setMultiplier(1e300);
        QCOMPARE(slider.value(), 1);
        QCOMPARE(slider.doubleValue(), 1e300);
        slider.setDoubleValue(-infinity);
        QVERIFY(std::isfinite(slider.doubleValue()));
        slider.setMultiplier(std::numeric_limits<double>::denorm_min());
        QCOMPARE(slider.value(), std::numeric_limits<int>::min());
        slider.setDoubleValue(0.0);
        QCOMPARE(slider.value(), 0);
    }
};

UIC_TEST_MAIN(tst_OvDoubleSlider)
#include "tst_OvDoubleSlider.moc"
