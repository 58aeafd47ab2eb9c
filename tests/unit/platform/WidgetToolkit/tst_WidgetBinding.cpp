#include "DecimalNumber.h"
#include "TestMain.h"

#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

#include <cmath>
#include <limits>

namespace {

void bind(OvDoubleSlider* slider, QDoubleSpinBox* box)
{
    Util::bindWidgets(slider, box);
}

} // namespace

class tst_WidgetBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullWidgets()
    {
        QSlider slider;
        OvDoubleSlider doubleSlider;
        QSpinBox box;
        QDoubleSpinBox doubleBox;
        Util::bindWidgets(&slider, static_cast<QSpinBox*>(nullptr));
        Util::bindWidgets(static_cast<QAbstractSlider*>(nullptr), &box);
        Util::bindWidgets(&doubleSlider, static_cast<QDoubleSpinBox*>(nullptr));
        Util::bindWidgets(static_cast<OvDoubleSlider*>(nullptr), &doubleBox);
        QVERIFY(slider.children().isEmpty());
        QVERIFY(doubleSlider.children().isEmpty());
    }

    void integerTakesRangeAndValue()
    {
        QSlider slider;
        slider.setRange(-20, 300);
        slider.setValue(120);
        QSpinBox box;
        Util::bindWidgets(&slider, &box);
        QCOMPARE(box.minimum(), -20);
        QCOMPARE(box.maximum(), 300);
        QCOMPARE(box.value(), 120);
        QCOMPARE(slider.value(), 120);
    }

    void integerBothDirections()
    {
        QSlider slider;
        QSpinBox box;
        Util::bindWidgets(&slider, &box);
        QSignalSpy sliderSpy(&slider, &QAbstractSlider::valueChanged);
        QSignalSpy boxSpy(&box, qOverload<int>(&QSpinBox::valueChanged));
        slider.setValue(7);
        QCOMPARE(box.value(), 7);
        QCOMPARE(sliderSpy.count(), 1);
        QCOMPARE(boxSpy.count(), 1);
        box.setValue(9);
        QCOMPARE(slider.value(), 9);
        QCOMPARE(sliderSpy.count(), 2);
        QCOMPARE(boxSpy.count(), 2);
        box.setValue(9);
        slider.setValue(9);
        QCOMPARE(sliderSpy.count(), 2);
        QCOMPARE(boxSpy.count(), 2);
        // A slot before the binding's own sees the value too.
        slider.setValue(1000);
        QCOMPARE(box.value(), 99);
        QCOMPARE(boxSpy.count(), 3);
    }

    void integerSliderRange()
    {
        QSlider slider;
        QSpinBox box;
        Util::bindWidgets(&slider, &box);
        slider.setValue(60);
        QSignalSpy sliderSpy(&slider, &QAbstractSlider::valueChanged);
        QSignalSpy boxSpy(&box, qOverload<int>(&QSpinBox::valueChanged));
        slider.setRange(0, 50);
        QCOMPARE(box.maximum(), 50);
        QCOMPARE(box.value(), 50);
        QCOMPARE(slider.value(), 50);
        QCOMPARE(sliderSpy.count(), 1);
        QCOMPARE(boxSpy.count(), 1);
        slider.setMinimum(55);
        QCOMPARE(box.minimum(), 55);
        QCOMPARE(box.maximum(), 55);
        QCOMPARE(box.value(), 55);
        // Turned upside down, Qt makes the minimum win.
        slider.setRange(9, 3);
        QCOMPARE(box.minimum(), 9);
        QCOMPARE(box.maximum(), 9);
        slider.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        QCOMPARE(box.minimum(), std::numeric_limits<int>::min());
        QCOMPARE(box.maximum(), std::numeric_limits<int>::max());
        slider.setValue(std::numeric_limits<int>::min());
        QCOMPARE(box.value(), std::numeric_limits<int>::min());
        box.setValue(std::numeric_limits<int>::max());
        QCOMPARE(slider.value(), std::numeric_limits<int>::max());
    }

    void integerSpinBoxRangeAtNextValue()
    {
        QSlider slider;
        QSpinBox box;
        Util::bindWidgets(&slider, &box);
        box.setRange(-500, 500);
        QCOMPARE(slider.maximum(), 99);
        QSignalSpy sliderSpy(&slider, &QAbstractSlider::valueChanged);
        box.setValue(-400);
        QCOMPARE(slider.minimum(), -500);
        QCOMPARE(slider.maximum(), 500);
        QCOMPARE(slider.value(), -400);
        QCOMPARE(sliderSpy.count(), 1);
        // A range that pushes the value is taken over at once.
        box.setRange(0, 10);
        QCOMPARE(slider.minimum(), 0);
        QCOMPARE(slider.maximum(), 10);
        QCOMPARE(slider.value(), 0);
        QCOMPARE(sliderSpy.count(), 2);
        QCOMPARE(box.minimum(), 0);
        QCOMPARE(box.maximum(), 10);
    }

    void integerSpinBoxRangeWhenTheSliderMoves()
    {
        QSlider slider;
        QSpinBox box;
        Util::bindWidgets(&slider, &box);
        box.setRange(0, 50);
        slider.setValue(80);
        QCOMPARE(box.value(), 50);
        QCOMPARE(slider.value(), 50);
        QCOMPARE(slider.maximum(), 50);
        box.setRange(0, 40);
        slider.setValue(20);
        QCOMPARE(box.value(), 20);
        QCOMPARE(slider.maximum(), 40);
    }

    void integerRangeAndValueTogether()
    {
        // A double slider moves its value before it announces its range.
        OvDoubleSlider slider;
        QSpinBox box;
        slider.setDoubleValue(150.0);
        Util::bindWidgets(static_cast<QAbstractSlider*>(&slider), &box);
        QCOMPARE(box.value(), 99);
        QSignalSpy boxSpy(&box, qOverload<int>(&QSpinBox::valueChanged));
        slider.setRange(120, 200);
        QCOMPARE(slider.value(), 150);
        QCOMPARE(box.value(), 150);
        QCOMPARE(box.minimum(), 120);
        QCOMPARE(boxSpy.count(), 1);
    }

    void integerWithDoubleSlider()
    {
        OvDoubleSlider slider;
        OvSpinBox box;
        slider.setRange(0, 100);
        slider.setMultiplier(0.01);
        slider.setValue(slider.maximum());
        box.setRange(0, 100);
        Util::bindWidgets(static_cast<QAbstractSlider*>(&slider), &box);
        QCOMPARE(box.value(), 100);
        slider.setDoubleValue(0.505);
        QCOMPARE(box.value(), 51);
        QCOMPARE(slider.doubleValue(), 0.505);
        box.setValue(20);
        QCOMPARE(slider.doubleValue(), 0.2);
    }

    void boundTwice()
    {
        QSlider slider;
        QSpinBox box;
        QSpinBox second;
        Util::bindWidgets(&slider, &box);
        Util::bindWidgets(&slider, &box);
        QCOMPARE(slider.findChildren<QObject*>().count(), 1);
        // One slider may serve two spin boxes.
        Util::bindWidgets(&slider, &second);
        box.setValue(7);
        QCOMPARE(second.value(), 7);
        second.setValue(9);
        QCOMPARE(box.value(), 9);

        OvDoubleSlider doubleSlider;
        QDoubleSpinBox doubleBox;
        bind(&doubleSlider, &doubleBox);
        bind(&doubleSlider, &doubleBox);
        QCOMPARE(doubleSlider.findChildren<QObject*>().count(), 1);
    }

    void widgetsDie_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<bool>("sliderFirst");
        QTest::newRow("integer, slider") << false << true;
        QTest::newRow("integer, spin box") << false << false;
        QTest::newRow("fraction, slider") << true << true;
        QTest::newRow("fraction, spin box") << true << false;
    }

    void widgetsDie()
    {
        QFETCH(bool, fractions);
        QFETCH(bool, sliderFirst);
        auto slider = std::make_unique<OvDoubleSlider>();
        auto box = std::make_unique<QSpinBox>();
        auto doubleBox = std::make_unique<QDoubleSpinBox>();
        if (fractions) {
            Util::bindWidgets(slider.get(), doubleBox.get());
        } else {
            Util::bindWidgets(static_cast<QAbstractSlider*>(slider.get()), box.get());
        }
        if (sliderFirst) {
            slider.reset();
            box->setValue(3);
            doubleBox->setValue(3.0);
            doubleBox->show();
        } else {
            box.reset();
            doubleBox.reset();
            QVERIFY(slider->children().isEmpty());
            slider->setValue(3);
            slider->setRange(0, 10);
            slider->setMultiplier(0.5);
            QCOMPARE(slider->value(), 3);
        }
    }

    void oneDiesInASlot_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<bool>("sliderEmits");
        QTest::addColumn<bool>("sliderDies");
        QTest::addColumn<bool>("sliderMoved");
        for (const bool fractions : {false, true}) {
            for (const bool sliderEmits : {false, true}) {
                for (const bool sliderDies : {false, true}) {
                    for (const bool sliderMoved : {false, true}) {
                        QTest::addRow("%s: %s deleted in a slot of %s when %s moves",
                                      fractions ? "fraction" : "integer", sliderDies ? "slider" : "spin box",
                                      sliderEmits ? "slider" : "spin box",
                                      sliderMoved ? "slider" : "spin box")
                            << fractions << sliderEmits << sliderDies << sliderMoved;
                    }
                }
            }
        }
    }

    void oneDiesInASlot()
    {
        QFETCH(bool, fractions);
        QFETCH(bool, sliderEmits);
        QFETCH(bool, sliderDies);
        QFETCH(bool, sliderMoved);
        // Connected before the binding, and after it.
        for (const bool early : {true, false}) {
            const QPointer<OvDoubleSlider> slider(new OvDoubleSlider);
            const QPointer<QSpinBox> box(new QSpinBox);
            const QPointer<QDoubleSpinBox> doubleBox(new QDoubleSpinBox);
            const QPointer<QAbstractSpinBox> either(fractions ? static_cast<QAbstractSpinBox*>(doubleBox)
                                                              : box);
            const auto destroy = [&] {
                delete (sliderDies ? static_cast<QWidget*>(slider.data()) : either.data());
            };
            const auto listen = [&] {
                if (sliderEmits) {
                    connect(slider, &QAbstractSlider::valueChanged, this, destroy);
                } else if (fractions) {
                    connect(doubleBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this, destroy);
                } else {
                    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, destroy);
                }
            };
            if (early) {
                listen();
            }
            if (fractions) {
                Util::bindWidgets(slider.data(), doubleBox.data());
            } else {
                Util::bindWidgets(static_cast<QAbstractSlider*>(slider.data()), box.data());
            }
            if (!early) {
                listen();
            }
            if (sliderMoved) {
                slider->setValue(5);
            } else if (fractions) {
                doubleBox->setValue(5.0);
            } else {
                box->setValue(5);
            }
            QCOMPARE(slider.isNull(), sliderDies);
            QCOMPARE(either.isNull(), !sliderDies);
            // The survivor goes on by itself.
            if (slider) {
                slider->setValue(6);
                QCOMPARE(slider->value(), 6);
            }
            disconnect(this);
            delete slider;
            delete box;
            delete doubleBox;
        }
    }

    void listenerMovesEitherSide_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<bool>("sliderEmits");
        QTest::addColumn<bool>("movesSlider");
        for (const bool fractions : {false, true}) {
            for (const bool sliderEmits : {false, true}) {
                for (const bool movesSlider : {false, true}) {
                    QTest::addRow("%s: %s set in a slot of %s", fractions ? "fraction" : "integer",
                                  movesSlider ? "slider" : "spin box", sliderEmits ? "slider" : "spin box")
                        << fractions << sliderEmits << movesSlider;
                }
            }
        }
    }

    void listenerMovesEitherSide()
    {
        QFETCH(bool, fractions);
        QFETCH(bool, sliderEmits);
        QFETCH(bool, movesSlider);
        for (const bool early : {true, false}) {
            OvDoubleSlider slider;
            QSpinBox box;
            QDoubleSpinBox doubleBox;
            const auto react = [&] {
                if (movesSlider) {
                    slider.setValue(42);
                } else if (fractions) {
                    doubleBox.setValue(42.0);
                } else {
                    box.setValue(42);
                }
            };
            const auto listen = [&] {
                if (sliderEmits) {
                    connect(&slider, &QAbstractSlider::valueChanged, &slider, react);
                } else if (fractions) {
                    connect(&doubleBox, qOverload<double>(&QDoubleSpinBox::valueChanged), &doubleBox, react);
                } else {
                    connect(&box, qOverload<int>(&QSpinBox::valueChanged), &box, react);
                }
            };
            if (early) {
                listen();
            }
            if (fractions) {
                Util::bindWidgets(&slider, &doubleBox);
            } else {
                Util::bindWidgets(static_cast<QAbstractSlider*>(&slider), &box);
            }
            if (!early) {
                listen();
            }
            slider.setValue(5);
            QCOMPARE(slider.value(), 42);
            QCOMPARE(fractions ? doubleBox.value() : box.value(), 42.0);
            if (fractions) {
                doubleBox.setValue(6.0);
            } else {
                box.setValue(6);
            }
            // A listener that comes first asks for what the slider has still got: the binding is the last.
            const double expected = !sliderEmits && movesSlider && early ? 6.0 : 42.0;
            QCOMPARE(slider.doubleValue(), expected);
            QCOMPARE(double(slider.value()), expected);
            QCOMPARE(fractions ? doubleBox.value() : box.value(), expected);
        }
    }

    void listenersThatDisagreeComeToAnEnd()
    {
        OvDoubleSlider slider;
        QDoubleSpinBox box;
        bind(&slider, &box);
        connect(&slider, &OvDoubleSlider::doubleValueChanged, &slider,
                [&slider] { slider.setDoubleValue(10.0); });
        connect(&box, qOverload<double>(&QDoubleSpinBox::valueChanged), &box, [&box] { box.setValue(20.0); });
        slider.setValue(5);
        box.setValue(7.0);
        QVERIFY(slider.doubleValue() == 10.0 || slider.doubleValue() == 20.0);
    }

    void typingIsNotRewritten()
    {
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.1);
        slider.setRange(-1000, 1000);
        box.setBothDecimalMarksAccepted(true);
        box.setDecimals(3);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        auto* edit = box.findChild<QLineEdit*>();
        box.selectAll();
        const QString typed = QStringLiteral("-12,345");
        for (int i = 0; i < typed.size(); ++i) {
            QTest::keyClicks(&box, typed.mid(i, 1));
            QCOMPARE(edit->text(), typed.left(i + 1));
            QCOMPARE(edit->cursorPosition(), i + 1);
        }
        QCOMPARE(slider.doubleValue(), -12.345);
        QCOMPARE(slider.value(), -123);
        QCOMPARE(sliderSpy.last(), QVariantList{-12.345});
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), -12.345);
        QCOMPARE(slider.doubleValue(), -12.345);
    }

    void typingWithoutKeyboardTracking()
    {
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        box.setKeyboardTracking(false);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("12.5"));
        QCOMPARE(slider.doubleValue(), 0.0);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(slider.doubleValue(), 12.5);
        QCOMPARE(slider.value(), 13);
        QCOMPARE(box.value(), 12.5);
        QCOMPARE(sliderSpy.count(), 1);
    }

    void construction_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("decimals");
        struct Range
        {
            const char* name;
            double minimum;
            double maximum;
        };
        const Range ranges[] = {{"0 to 1", 0.0, 1.0},
                                {"around zero", -1.5, 1.5},
                                {"negative", -2.0, -1.123456789},
                                {"positive", 1.123456789, 2.0},
                                {"tiny", 0.001, 0.002},
                                {"tiny, negative", -0.004, -0.001},
                                {"nothing at two decimals", 0.0001, 0.0004},
                                {"half a step", 0.005, 0.995},
                                {"single value", 0.125, 0.125}};
        for (const Range& range : ranges) {
            for (int decimals = 0; decimals <= 9; ++decimals) {
                QTest::addRow("%s, %d decimals", range.name, decimals)
                    << range.minimum << range.maximum << decimals;
            }
        }
    }

    void construction()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(int, decimals);
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        const double step = std::pow(10.0, -decimals);
        const double steps = std::pow(10.0, decimals);
        bind(&slider, &box);
        slider.setMultiplier(step);
        const int first = static_cast<int>(std::round(steps * minimum));
        const int last = static_cast<int>(std::round(steps * maximum));
        slider.setRange(first, last);
        slider.setOrientation(Qt::Horizontal);
        box.setBothDecimalMarksAccepted(true);
        box.setAlignment(Qt::AlignCenter);
        box.setButtonSymbols(QAbstractSpinBox::NoButtons);
        box.setSingleStep(step);
        box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        const int positionBefore = slider.value();
        box.setDecimals(decimals);

        QCOMPARE(slider.value(), positionBefore);
        QCOMPARE(slider.minimum(), first);
        QCOMPARE(slider.maximum(), last);
        QVERIFY(box.minimum() == decimalNumber(first, decimals));
        QVERIFY(box.maximum() == decimalNumber(last, decimals));
        QVERIFY(box.value() == slider.doubleValue());
        QVERIFY(box.value() == decimalNumber(slider.value(), decimals));

        // As the spin box first and then the slider are given a value from outside.
        const double middle = decimalNumber((qint64(first) + last) / 2, decimals);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        QSignalSpy boxSpy(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
        const int changes = middle == box.value() ? 0 : 1;
        box.setValue(middle);
        slider.setDoubleValue(middle);
        QVERIFY(box.value() == middle);
        QVERIFY(slider.doubleValue() == middle);
        QCOMPARE(sliderSpy.count(), changes);
        QCOMPARE(boxSpy.count(), changes);

        slider.setValue(last);
        QVERIFY(box.value() == decimalNumber(last, decimals));
        QCOMPARE(slider.minimum(), first);
        QCOMPARE(slider.maximum(), last);
    }

    void fractionBothDirections()
    {
        OvDoubleSlider slider;
        QDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.01);
        slider.setRange(0, 100);
        QCOMPARE(box.maximum(), 1.0);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        QSignalSpy stepSpy(&slider, &QAbstractSlider::valueChanged);
        QSignalSpy boxSpy(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
        slider.setValue(35);
        QVERIFY(box.value() == 0.35);
        QCOMPARE(sliderSpy.count(), 1);
        QCOMPARE(stepSpy.count(), 1);
        QCOMPARE(boxSpy.count(), 1);
        box.setValue(0.57);
        QCOMPARE(slider.value(), 57);
        QVERIFY(slider.doubleValue() == 0.57);
        QCOMPARE(sliderSpy.count(), 2);
        QCOMPARE(stepSpy.count(), 2);
        QCOMPARE(boxSpy.count(), 2);
    }

    void sliderBetweenSteps()
    {
        OvDoubleSlider slider;
        QDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.1);
        slider.setRange(0, 100);
        box.setValue(0.25);
        QCOMPARE(slider.value(), 3);
        QCOMPARE(slider.doubleValue(), 0.25);
        QCOMPARE(box.value(), 0.25);
        // Finer than the spin box shows: the slider keeps it.
        slider.setDoubleValue(0.2549);
        QCOMPARE(box.value(), 0.25);
        QCOMPARE(slider.doubleValue(), 0.2549);
        slider.setDoubleValue(0.2551);
        QCOMPARE(box.value(), 0.26);
        QCOMPARE(slider.doubleValue(), 0.2551);
    }

    void decimalsLowered()
    {
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.001);
        slider.setRange(-1000, 1000);
        box.setDecimals(3);
        slider.setDoubleValue(0.3049);
        QCOMPARE(box.value(), 0.305);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        box.setDecimals(2);
        QCOMPARE(box.value(), 0.30);
        box.setDecimals(0);
        QCOMPARE(box.value(), 0.0);
        QCOMPARE(slider.doubleValue(), 0.3049);
        box.setDecimals(4);
        QCOMPARE(box.value(), 0.3049);
        QCOMPARE(sliderSpy.count(), 0);
        QCOMPARE(slider.minimum(), -1000);
        QCOMPARE(slider.maximum(), 1000);
    }

    void decimalsRaised_data()
    {
        QTest::addColumn<bool>("byProperty");
        QTest::newRow("setDecimals") << false;
        QTest::newRow("property") << true;
    }

    void decimalsRaised()
    {
        QFETCH(bool, byProperty);
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.001);
        slider.setRange(0, 1000);
        slider.setDoubleValue(0.004);
        QCOMPARE(box.value(), 0.0);
        QSignalSpy boxSpy(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        if (byProperty) {
            box.setProperty("decimals", 3);
        } else {
            box.setDecimals(3);
        }
        QCOMPARE(box.value(), 0.004);
        QCOMPARE(box.text(), box.locale().toString(0.004, 'f', 3));
        QCOMPARE(boxSpy.count(), 1);
        QCOMPARE(sliderSpy.count(), 0);
    }

    void decimalsRaisedOnAPlainSpinBox_data()
    {
        QTest::addColumn<int>("occasion");
        QTest::newRow("show") << 0;
        QTest::newRow("paint") << 1;
        QTest::newRow("focus") << 2;
        QTest::newRow("value of the slider") << 3;
    }

    void decimalsRaisedOnAPlainSpinBox()
    {
        QFETCH(int, occasion);
        QWidget window;
        OvDoubleSlider slider;
        QLineEdit other(&window);
        QDoubleSpinBox box(&window);
        bind(&slider, &box);
        slider.setMultiplier(0.001);
        slider.setRange(0, 1000);
        slider.setDoubleValue(0.004);
        if (occasion == 1 || occasion == 2) {
            window.show();
            window.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            other.setFocus();
        }
        box.setDecimals(3);
        QCOMPARE(box.value(), 0.0);
        switch (occasion) {
        case 0:
            window.show();
            QCOMPARE(box.value(), 0.004);
            break;
        case 1:
            QTRY_COMPARE(box.value(), 0.004);
            break;
        case 2:
            box.setFocus();
            QCOMPARE(box.value(), 0.004);
            break;
        default:
            slider.setDoubleValue(0.0041);
            QCOMPARE(box.value(), 0.004);
        }
        QVERIFY(slider.doubleValue() >= 0.004);
    }

    void valueTypedAfterSilentDecimals()
    {
        OvDoubleSlider slider;
        QDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.001);
        slider.setRange(0, 1000);
        slider.setDoubleValue(0.004);
        box.setDecimals(3);
        box.setValue(0.7);
        QCOMPARE(box.value(), 0.7);
        QCOMPARE(slider.doubleValue(), 0.7);
        QCOMPARE(slider.value(), 700);
    }

    void fractionSpinBoxRangeAtNextValue()
    {
        OvDoubleSlider slider;
        QDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.01);
        slider.setRange(0, 100);
        slider.setDoubleValue(0.9);
        box.setRange(-5.0, 5.0);
        QCOMPARE(slider.maximum(), 100);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        box.setValue(-4.25);
        QCOMPARE(slider.minimum(), -500);
        QCOMPARE(slider.maximum(), 500);
        QCOMPARE(slider.doubleValue(), -4.25);
        QCOMPARE(sliderSpy.count(), 1);
        QCOMPARE(box.minimum(), -5.0);
        QCOMPARE(box.maximum(), 5.0);
        box.setRange(1.0, 2.0);
        QCOMPARE(slider.minimum(), 100);
        QCOMPARE(slider.maximum(), 200);
        QCOMPARE(slider.doubleValue(), 1.0);
        QCOMPARE(sliderSpy.count(), 2);
    }

    void spinBoxRangeBetweenSteps()
    {
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.01);
        box.setDecimals(3);
        box.setRange(0.005, 0.994);
        box.setValue(0.5);
        QCOMPARE(slider.minimum(), 1);
        QCOMPARE(slider.maximum(), 99);
        box.setValue(0.005);
        QCOMPARE(box.value(), 0.005);
        QCOMPARE(slider.value(), 1);
        box.setValue(0.994);
        QCOMPARE(box.value(), 0.994);
        QCOMPARE(slider.value(), 99);
        QCOMPARE(box.minimum(), 0.005);
        QCOMPARE(box.maximum(), 0.994);
        slider.setValue(1);
        QCOMPARE(box.value(), 0.01);
    }

    void spinBoxRangeBeyond32Bits()
    {
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.01);
        box.setRange(-1e12, 1e12);
        box.setValue(5e11);
        QCOMPARE(slider.minimum(), std::numeric_limits<int>::min());
        QCOMPARE(slider.maximum(), std::numeric_limits<int>::max());
        QCOMPARE(slider.value(), std::numeric_limits<int>::max());
        QCOMPARE(box.value(), 5e11);
        QCOMPARE(box.maximum(), 1e12);
        box.setValue(-5e11);
        QCOMPARE(slider.value(), std::numeric_limits<int>::min());
        QCOMPARE(box.value(), -5e11);
        // Neither a repaint nor other decimals bring the slider's clamped value back.
        box.show();
        box.setDecimals(4);
        QCoreApplication::processEvents();
        QCOMPARE(box.value(), -5e11);
        box.setValue(12.5);
        QCOMPARE(slider.doubleValue(), 12.5);
        QCOMPARE(slider.value(), 1250);
        slider.setValue(1000);
        QCOMPARE(box.value(), 10.0);
        QCOMPARE(box.maximum(), 1e12);
    }

    void rangeMovedAway()
    {
        OvDoubleSlider slider;
        OvDoubleSpinBox box;
        bind(&slider, &box);
        slider.setMultiplier(0.1);
        slider.setRange(0, 100);
        slider.setDoubleValue(8.0);
        QSignalSpy sliderSpy(&slider, &OvDoubleSlider::doubleValueChanged);
        QSignalSpy boxSpy(&box, qOverload<double>(&QDoubleSpinBox::valueChanged));
        slider.setRange(200, 300);
        QCOMPARE(box.value(), 20.0);
        QCOMPARE(box.minimum(), 20.0);
        QCOMPARE(box.maximum(), 30.0);
        QCOMPARE(slider.doubleValue(), 20.0);
        QCOMPARE(sliderSpy.count(), 1);
        QCOMPARE(boxSpy.count(), 1);
    }

    void randomWalk_data()
    {
        QTest::addColumn<int>("decimals");
        for (int decimals = 0; decimals <= 9; ++decimals) {
            QTest::addRow("%d decimals", decimals) << decimals;
        }
    }

    void randomWalk()
    {
        QFETCH(int, decimals);
        QRandomGenerator random(20150 + decimals);
        const auto anyStep = [&random] {
            // Magnitudes of all sizes alike.
            const qint64 magnitude = qint64(random.generate() & 0x7fffffffu) >> random.bounded(31);
            return static_cast<int>(random.bounded(2) ? magnitude : -magnitude);
        };
        for (int round = 0; round < 60; ++round) {
            int first = anyStep();
            int last = anyStep();
            if (first > last) {
                std::swap(first, last);
            }
            OvDoubleSlider slider;
            OvDoubleSpinBox box;
            bind(&slider, &box);
            // Any order of setting up.
            QString order = QStringLiteral("mrd");
            for (int i = 2; i > 0; --i) {
                const int other = random.bounded(i + 1);
                const QChar kept = order.at(i);
                order[i] = order.at(other);
                order[other] = kept;
            }
            for (const QChar what : qAsConst(order)) {
                if (what == QLatin1Char('m')) {
                    slider.setMultiplier(std::pow(10.0, -decimals));
                } else if (what == QLatin1Char('r')) {
                    slider.setRange(first, last);
                } else {
                    box.setDecimals(decimals);
                }
            }
            const QByteArray hint =
                QStringLiteral("range %1 to %2, order %3").arg(first).arg(last).arg(order).toLatin1();
            QVERIFY2(slider.minimum() == first && slider.maximum() == last, hint);
            QVERIFY2(box.minimum() == decimalNumber(first, decimals), hint);
            QVERIFY2(box.maximum() == decimalNumber(last, decimals), hint);
            double reported = box.value();
            connect(&box, qOverload<double>(&QDoubleSpinBox::valueChanged), &box,
                    [&reported](double value) { reported = value; });
            double reportedBySlider = slider.doubleValue();
            connect(&slider, &OvDoubleSlider::doubleValueChanged, &slider,
                    [&reportedBySlider](double value) { reportedBySlider = value; });
            for (int i = 0; i < 40; ++i) {
                const int step = anyStep();
                const int expected = qBound(first, step, last);
                const double value = decimalNumber(expected, decimals);
                switch (random.bounded(3)) {
                case 0:
                    slider.setValue(step);
                    break;
                case 1:
                    box.setValue(decimalNumber(step, decimals));
                    break;
                default:
                    slider.setDoubleValue(decimalNumber(step, decimals));
                }
                QVERIFY2(slider.value() == expected, hint);
                QVERIFY2(box.value() == value, hint);
                QVERIFY2(slider.doubleValue() == value, hint);
                QVERIFY2(reported == value, hint);
                QVERIFY2(reportedBySlider == value, hint);
            }
            QVERIFY2(slider.minimum() == first && slider.maximum() == last, hint);
        }
    }
};

UIC_TEST_MAIN(tst_WidgetBinding)
#include "tst_WidgetBinding.moc"
