#include "SliderField.h"
#include "SpinBoxTyping.h"
#include "TestMain.h"
#include "Wheel.h"

#include <limits>
#include <memory>
#include <random>

namespace {

using Values = SliderField::Values;
using Limits = std::numeric_limits<int>;

} // namespace

/**
 * What the fields for whole numbers and for fractions have in common: every test runs with both, and counts
 * in steps. tst_DoubleSliderInputWidget has what only fractions can do.
 */
class tst_SliderInputWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::newRow("whole") << SliderField::whole;
        QTest::newRow("fractions") << 2;
    }

    void initializer()
    {
        const auto [minimum, maximum] = SliderInputWidget::Initializer{-3, 8};
        QCOMPARE(minimum, -3);
        QCOMPARE(maximum, 8);
        const auto [min, max, decimals] = DoubleSliderInputWidget::Initializer{-0.5, 8.0, 3};
        QCOMPARE(min, -0.5);
        QCOMPARE(max, 8.0);
        QCOMPARE(decimals, 3);
    }

    void construction()
    {
        const auto field = makeField(-3, 8);

        QCOMPARE(field->slider->orientation(), Qt::Horizontal);
        QCOMPARE(field->slider->minimum(), -3);
        QCOMPARE(field->slider->maximum(), 8);
        QCOMPARE(field->spinBox->property("minimum").toDouble(), field->number(-3));
        QCOMPARE(field->spinBox->property("maximum").toDouble(), field->number(8));
        QCOMPARE(field->spinBox->property("singleStep").toDouble(), field->number(1));
        QCOMPARE(field->spinBox->alignment(), Qt::Alignment(Qt::AlignCenter));
        QCOMPARE(field->spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QCOMPARE(field->spinBox->correctionMode(), QAbstractSpinBox::CorrectToNearestValue);
    }

    // A queued emission would still reach the recorder.
    void constructionIsSilent()
    {
        const auto field = makeField(10, 20);
        field->widget->show();
        QCoreApplication::processEvents();
        QCOMPARE(field->reports(), Values());
        QVERIFY(field->shows(10));
    }

    void firstValue_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("value");
        QTest::newRow("0 inside") << -5 << 5 << 0;
        QTest::newRow("above 0") << 10 << 20 << 10;
        QTest::newRow("below 0") << -20 << -10 << -10;
        QTest::newRow("beyond the spin box's own range") << 100000 << 200000 << 100000;
    }

    void firstValue()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, value);
        QVERIFY(makeField(minimum, maximum)->shows(value));
    }

    void setRange_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("expected");
        QTest::newRow("the same") << 0 << 100 << 80;
        QTest::newRow("wider") << -10 << 1000 << 80;
        QTest::newRow("below the value") << 0 << 50 << 50;
        QTest::newRow("above the value") << 200 << 300 << 200;
        QTest::newRow("maximum below minimum") << 90 << 10 << 90;
        QTest::newRow("all there are") << Limits::min() << Limits::max() << 80;
    }

    void setRange()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, expected);
        const auto field = makeField(0, 100);
        field->setValue(80);
        field->reports();
        field->setRange(minimum, maximum);
        const auto made = makeField(minimum, maximum);
        QCOMPARE(field->slider->minimum(), made->slider->minimum());
        QCOMPARE(field->slider->maximum(), made->slider->maximum());
        QCOMPARE(field->spinBox->property("minimum"), made->spinBox->property("minimum"));
        QCOMPARE(field->spinBox->property("maximum"), made->spinBox->property("maximum"));
        QVERIFY(field->shows(expected));
        QCOMPARE(field->reports(), expected == 80 ? Values() : Values{expected});
    }

    void setValueReportsTwice()
    {
        const auto field = makeField(0, 100);
        QStringList order;
        const auto onSpinBox = [&] { order += QStringLiteral("spin box"); };
        connect(field->slider, &QAbstractSlider::valueChanged, this,
                [&] { order += QStringLiteral("slider"); });
        if (auto* box = qobject_cast<OvSpinBox*>(field->spinBox)) {
            connect(box, qOverload<int>(&QSpinBox::valueChanged), this, onSpinBox);
        } else if (auto* fractions = qobject_cast<OvDoubleSpinBox*>(field->spinBox)) {
            connect(fractions, qOverload<double>(&QDoubleSpinBox::valueChanged), this, onSpinBox);
        }
        field->setValue(42);
        // The spin box was set, and the slider followed it before the spin box's own report.
        QCOMPARE(field->reports(), Values({42, 42}));
        QCOMPARE(order, QStringList({QStringLiteral("slider"), QStringLiteral("spin box")}));
        QVERIFY(field->inStep);
        QVERIFY(field->shows(42));
        QCOMPARE(field->spinBox->text(), field->text(42));
    }

    void setValueOfThePresentValue()
    {
        const auto field = makeField(0, 100);
        field->setValue(0);
        QCOMPARE(field->reports(), Values());
        field->setValue(42);
        field->reports();
        field->setValue(42);
        QCOMPARE(field->reports(), Values());
    }

    void setValueIsClamped_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("reported");
        QTest::newRow("one above") << 101 << 100;
        QTest::newRow("one below") << -51 << -50;
        QTest::newRow("max") << Limits::max() << 100;
        QTest::newRow("min") << Limits::min() << -50;
    }

    void setValueIsClamped()
    {
        QFETCH(int, value);
        QFETCH(int, reported);
        const auto field = makeField(-50, 100);
        field->setValue(value);
        QCOMPARE(field->reports(), Values({reported, reported}));
        QVERIFY(field->inStep);
        field->setValue(value);
        QCOMPARE(field->reports(), Values());
    }

    // The slider is given both ends as they are and makes the minimum win.
    void reversedRange()
    {
        const auto field = makeField(9, 3);
        QCOMPARE(field->slider->minimum(), 9);
        QCOMPARE(field->slider->maximum(), 9);
        QCOMPARE(field->spinBox->property("minimum").toDouble(), field->number(9));
        QCOMPARE(field->spinBox->property("maximum").toDouble(), field->number(9));
        field->setValue(5);
        QCOMPARE(field->reports(), Values());
        QVERIFY(field->shows(9));
    }

    void rangeOfOneValue()
    {
        const auto field = makeField(7, 7);
        QVERIFY(field->shows(7));
        field->setValue(8);
        QTest::keyClick(field->slider, Qt::Key_Right);
        QTest::keyClick(field->spinBox, Qt::Key_Up);
        QCOMPARE(field->reports(), Values());
    }

    void extremesOf32Bits()
    {
        const auto field = makeField(Limits::min(), Limits::max());
        field->widget->show();
        field->setValue(Limits::max());
        QCOMPARE(field->reports(), Values({Limits::max(), Limits::max()}));
        field->setValue(Limits::min());
        QCOMPARE(field->reports(), Values({Limits::min(), Limits::min()}));
        field->widget->grab();
        QTest::keyClick(field->spinBox, Qt::Key_Down);
        QTest::keyClick(field->slider, Qt::Key_Left);
        QCOMPARE(field->reports(), Values());
        typeInto(field->spinBox, field->text(Limits::max()));
        QVERIFY(field->shows(Limits::max()));
        QVERIFY(field->inStep);
    }

    void randomWalk_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 0; seed < 40; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    // Fractions are counted in whole steps and turned into doubles as text: no rounding of doubles is part of
    // what is expected.
    void randomWalk()
    {
        QFETCH(unsigned, seed);
        const int digits = isWhole() ? SliderField::whole : static_cast<int>(seed % 10);
        std::mt19937 generator(seed);
        // Of any size: as many small numbers as large ones.
        const auto any = [&generator] {
            return static_cast<int>(static_cast<qint32>(generator()) >> (generator() % 31));
        };
        for (int round = 0; round < 12; ++round) {
            const int minimum = any();
            const int maximum = any();
            const int last = qMax(minimum, maximum);
            SliderField field(digits, minimum, maximum);
            field.widget->show(); // the text is written only then
            int value = qBound(minimum, 0, last);
            for (int step = 0; step < 16; ++step) {
                const int wanted = any();
                const int expected = qBound(minimum, wanted, last);
                // Into a field of one value nothing can be typed.
                switch (generator() % (minimum == last ? 4 : 5)) {
                case 0:
                    field.setValue(wanted);
                    break;
                case 1:
                    field.slider->setValue(wanted);
                    break;
                case 2:
                    field.setSpinBox(wanted);
                    break;
                case 3:
                    if (auto* fractions = qobject_cast<DoubleSliderInputWidget*>(field.widget)) {
                        // Nearest to the same step.
                        fractions->setValue(
                            decimalNumber(qint64(wanted) * 100 + qint64(generator() % 99) - 49, digits + 2));
                    } else {
                        field.setValue(wanted);
                    }
                    break;
                default: {
                    // A digit that leads out of the range is not taken.
                    QString text = field.text(expected);
                    if (generator() % 2 == 0) {
                        text.replace(QLatin1Char('.'), QLatin1Char(','));
                    }
                    typeInto(field.spinBox, text);
                    QCOMPARE(field.edit->text(), text);
                    QTest::keyClick(field.spinBox, Qt::Key_Return);
                    break;
                }
                }
                QVERIFY(field.shows(expected));
                QCOMPARE(field.edit->text(), field.text(expected));
                const Values reports = field.reports();
                QVERIFY(field.inStep);
                QCOMPARE(reports.isEmpty() ? value : reports.last(), expected);
                value = expected;
            }
        }
    }

    // The spin box follows first and reports; then the slider does.
    void sliderMoves()
    {
        const auto field = makeField(0, 100);
        field->slider->setSliderDown(true);
        field->slider->setSliderPosition(29);
        QCOMPARE(field->reports(), Values({29, 29}));
        field->slider->setSliderPosition(29);
        QCOMPARE(field->reports(), Values());
        field->slider->setSliderDown(false);
        QCOMPARE(field->reports(), Values());
        QCOMPARE(field->spinBox->text(), field->text(29));
        QVERIFY(field->inStep);
    }

    void sliderKeys()
    {
        const auto field = makeField(0, 100);
        QTest::keyClick(field->slider, Qt::Key_Right);
        QCOMPARE(field->reports(), Values({1, 1}));
        QTest::keyClick(field->slider, Qt::Key_End);
        QCOMPARE(field->reports(), Values({100, 100}));
        QTest::keyClick(field->slider, Qt::Key_Right);
        QCOMPARE(field->reports(), Values());
        QTest::keyClick(field->slider, Qt::Key_Left);
        QCOMPARE(field->reports(), Values({99, 99}));
    }

    void spinBoxSteps()
    {
        const auto field = makeField(0, 100);
        for (int i = 1; i <= 90; ++i) {
            QTest::keyClick(field->spinBox, Qt::Key_Up);
            QVERIFY(field->shows(i));
            QCOMPARE(field->reports(), Values({i, i}));
        }
        QTest::keyClick(field->spinBox, Qt::Key_PageUp);
        QCOMPARE(field->reports(), Values({100, 100}));
        QTest::keyClick(field->spinBox, Qt::Key_Up);
        QCOMPARE(field->reports(), Values());
        QVERIFY(field->shows(100));
        QVERIFY(field->inStep);
    }

    void typingIsNotRewritten()
    {
        const auto field = makeField(-100 * unit(), 100 * unit());
        field->spinBox->selectAll();
        QTest::keyClicks(field->spinBox, QStringLiteral("-0"));
        QCOMPARE(field->edit->text(), QStringLiteral("-0"));
        QTest::keyClicks(field->spinBox, QStringLiteral("07"));
        QCOMPARE(field->edit->text(), QStringLiteral("-007"));
        QCOMPARE(field->edit->cursorPosition(), 4);
        QCOMPARE(field->reports(), Values({-7 * unit(), -7 * unit()}));
        QVERIFY(field->shows(-7 * unit()));
        QTest::keyClick(field->spinBox, Qt::Key_Return);
        QCOMPARE(field->edit->text(), field->text(-7 * unit()));
        QCOMPARE(field->reports(), Values());
    }

    void typedBeyondTheRange_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("too small") << "20";
        QTest::newRow("nothing") << "";
    }

    void typedBeyondTheRange()
    {
        QFETCH(QString, text);
        const auto field = makeField(100 * unit(), 200 * unit());
        field->setValue(150 * unit());
        field->reports();
        field->spinBox->selectAll();
        QTest::keyClick(field->spinBox, Qt::Key_Delete);
        QTest::keyClicks(field->spinBox, text);
        QCOMPARE(field->reports(), Values());
        QTest::keyClick(field->spinBox, Qt::Key_Return);
        QVERIFY(field->shows(100 * unit()));
        QCOMPARE(field->edit->text(), field->text(100 * unit()));
        QVERIFY(field->inStep);
    }

    void wheelNeedsFocus_data()
    {
        QTest::addColumn<QString>("part");
        QTest::newRow("slider") << "slider";
        QTest::newRow("spin box") << "spinbox";
    }

    void wheelNeedsFocus()
    {
        QFETCH(QString, part);
        QWidget window;
        QLineEdit other(&window);
        const auto field = makeField(0, 100, &window);
        auto* target = field->widget->findChild<QWidget*>(part);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        QVERIFY(!turnWheel(*target, 120));
        QCOMPARE(field->reports(), Values());
        target->setFocus();
        QVERIFY(turnWheel(*target, 120));
        QVERIFY(!field->reports().isEmpty());
        QVERIFY(field->inStep);
    }

    void slotSetsAnotherValue()
    {
        const auto field = makeField(0, 100);
        bool once = true;
        field->onReport = [&](int) {
            if (once) {
                once = false;
                field->setValue(70);
            }
        };
        field->setValue(20);
        QVERIFY(field->shows(70));
        // The second report of the first value was on its way already.
        QCOMPARE(field->reports(), Values({20, 70, 70, 20}));
    }

    // Such as a host that takes only multiples of ten.
    void slotKeepsSettingOtherValues()
    {
        const auto field = makeField(0, 100);
        field->onReport = [&field](int value) { field->setValue(value / 10 * 10); };
        field->setValue(37);
        QVERIFY(field->shows(30));
        field->slider->setValue(58);
        QVERIFY(field->shows(50));
        field->setSpinBox(99);
        QVERIFY(field->shows(90));
    }

    void partMovedInASlot()
    {
        const auto field = makeField(0, 100);
        connect(field->slider, &QAbstractSlider::valueChanged, this, [&field](int value) {
            if (value == 20) {
                field->slider->setValue(80);
            }
        });
        field->setValue(20);
        QVERIFY(field->shows(80));
    }

    void deletedLaterWhileTyping()
    {
        const auto field = makeField(0, 100 * unit());
        field->onReport = [&field](int) { field->widget->deleteLater(); };
        typeInto(field->spinBox, QStringLiteral("5"));
        QTRY_VERIFY(!field->widget);
    }

    void destroyedWhileTyping()
    {
        const auto destroy = [](auto field, auto* spinBox) {
            field->setValue(50);
            destroyWhileTyping(std::move(field), spinBox);
        };
        if (isWhole()) {
            auto field =
                std::make_unique<SliderInputWidget>(nullptr, SliderInputWidget::Initializer{10, 100});
            auto* spinBox = field->findChild<OvSpinBox*>();
            destroy(std::move(field), spinBox);
        } else {
            auto field = std::make_unique<DoubleSliderInputWidget>(
                nullptr, DoubleSliderInputWidget::Initializer{10.0, 100.0, 1});
            auto* spinBox = field->findChild<OvDoubleSpinBox*>();
            destroy(std::move(field), spinBox);
        }
    }

    void sheetSetsMetrics()
    {
        const auto field = makeField(0, 100);
        field->widget->setStyleSheet(QStringLiteral("%1 { qproperty-layoutSpacing: 9; }"
                                                    "%1 > #spinbox { min-width: 77px; }")
                                         .arg(QLatin1String(field->widget->metaObject()->className())));
        field->widget->show();
        QCOMPARE(field->widget->layout()->spacing(), 9);
        QVERIFY(field->spinBox->width() >= 77);
    }

private:
    /// A field of the kind that the tests are running with.
    static std::unique_ptr<SliderField> makeField(int minimum, int maximum, QWidget* parent = nullptr)
    {
        return std::make_unique<SliderField>(decimals(), minimum, maximum, parent);
    }

    static int decimals()
    {
        QFETCH_GLOBAL(int, decimals);
        return decimals;
    }

    static bool isWhole() { return decimals() == SliderField::whole; }
    /// The steps that are 1.
    static int unit() { return isWhole() ? 1 : 100; }
};

UIC_TEST_MAIN(tst_SliderInputWidget)
#include "tst_SliderInputWidget.moc"
