#include "DecimalNumber.h"
#include "TestMain.h"

#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

#include <cmath>
#include <functional>
#include <type_traits>

namespace {

void bind(OvDoubleSlider* slider, QDoubleSpinBox* box)
{
    Util::bindWidgets(slider, box);
}

QString numberOf(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

template <typename Number>
QString rangeOf(Number minimum, Number maximum, Number value)
{
    return numberOf(minimum) + ".." + numberOf(maximum) + QLatin1Char(' ') + numberOf(value);
}

struct Step
{
    /// What is set, and to what.
    QString act;
    /// Of the slider, with its fraction if it has one, and of the box; and who has reported a value.
    QString state;
};

using Steps = QVector<Step>;
using Play = std::function<QStringList(const Steps&)>;

template <typename Slider, typename Box>
QStringList statesOf(const Steps& steps)
{
    constexpr bool isFine = std::is_base_of_v<OvDoubleSlider, Slider>;
    constexpr bool isFraction = std::is_base_of_v<QDoubleSpinBox, Box>;
    using Number = decltype(std::declval<Box>().value());
    Slider slider;
    Box box;
    QStringList reports;
    const auto note = [&reports](const char* who) {
        return [&reports, who] { reports += QLatin1String(who); };
    };
    QObject::connect(&slider, &QAbstractSlider::valueChanged, &slider, note("slider"));
    QObject::connect(&box, qOverload<Number>(&Box::valueChanged), &box, note("box"));
    if constexpr (isFine) {
        QObject::connect(&slider, &OvDoubleSlider::doubleValueChanged, &slider, note("fraction"));
    }
    QStringList states;
    for (const Step& step : steps) {
        const auto acts = step.act.split(", ");
        reports.clear();
        for (const QString& act : acts) {
            const QStringList words = act.split(QLatin1Char(' '));
            const QString& what = words.first();
            const double first = words.value(1).toDouble();
            const double second = words.value(2).toDouble();
            if (what == "bind") {
                Util::bindWidgets(
                    static_cast<std::conditional_t<isFraction, OvDoubleSlider, QAbstractSlider>*>(&slider),
                    &box);
            } else if (what == "slider") {
                slider.setValue(static_cast<int>(first));
            } else if (what == "sliderRange") {
                slider.setRange(static_cast<int>(first), static_cast<int>(second));
            } else if (what == "box") {
                box.setValue(static_cast<Number>(first));
            } else if (what == "boxRange") {
                box.setRange(static_cast<Number>(first), static_cast<Number>(second));
            } else if (what == "show") {
                box.show();
                QCoreApplication::processEvents();
            } else if (what == "decimalsByName") {
                box.setProperty("decimals", first);
            } else if constexpr (isFine) {
                if (what == "multiplier") {
                    slider.setMultiplier(first);
                } else if (what == "fraction") {
                    slider.setDoubleValue(first);
                } else if constexpr (isFraction) {
                    box.setDecimals(static_cast<int>(first));
                }
            }
        }
        QString state = rangeOf(slider.minimum(), slider.maximum(), slider.value());
        if constexpr (isFine) {
            state += QLatin1Char('=') + numberOf(slider.doubleValue());
        }
        state += " | " + rangeOf(box.minimum(), box.maximum(), box.value());
        if constexpr (isFraction) {
            if (box.text() != box.textFromValue(box.value())) {
                state += " shows " + box.text();
            }
        }
        reports.sort();
        states += (QStringList(state) + reports).join(QLatin1Char(' '));
    }
    return states;
}

/// A slider and either kind of box.
struct Either
{
    QPointer<OvDoubleSlider> slider = new OvDoubleSlider;
    QPointer<QSpinBox> box = new QSpinBox;
    QPointer<QDoubleSpinBox> doubleBox = new QDoubleSpinBox;
    const bool fractions;

    explicit Either(bool isOfFractions)
        : fractions(isOfFractions)
    {
    }
    ~Either()
    {
        delete slider;
        delete box;
        delete doubleBox;
    }
    Either(const Either&) = delete;
    Either& operator=(const Either&) = delete;

    void bind() const
    {
        if (fractions) {
            ::bind(slider, doubleBox);
        } else {
            Util::bindWidgets(static_cast<QAbstractSlider*>(slider), box.data());
        }
    }

    QAbstractSpinBox* spinBox() const { return fractions ? static_cast<QAbstractSpinBox*>(doubleBox) : box; }
    double boxValue() const { return fractions ? doubleBox->value() : box->value(); }

    void set(bool ofSlider, int value) const
    {
        if (ofSlider) {
            slider->setValue(value);
        } else if (fractions) {
            doubleBox->setValue(value);
        } else {
            box->setValue(value);
        }
    }

    void listen(bool toSlider, QObject* context, const std::function<void()>& slot) const
    {
        if (toSlider) {
            QObject::connect(slider, &QAbstractSlider::valueChanged, context, slot);
        } else if (fractions) {
            QObject::connect(doubleBox, qOverload<double>(&QDoubleSpinBox::valueChanged), context, slot);
        } else {
            QObject::connect(box, qOverload<int>(&QSpinBox::valueChanged), context, slot);
        }
    }
};

} // namespace

Q_DECLARE_METATYPE(Play)
Q_DECLARE_METATYPE(Steps)

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

    void story_data()
    {
        QTest::addColumn<Play>("play");
        QTest::addColumn<Steps>("steps");
        const Play whole = statesOf<QSlider, QSpinBox>;
        const Play wholeOfFine = statesOf<OvDoubleSlider, OvSpinBox>;
        const Play plain = statesOf<OvDoubleSlider, QDoubleSpinBox>;
        const Play own = statesOf<OvDoubleSlider, OvDoubleSpinBox>;
        const auto row = [](const char* name, const Play& play, const Steps& steps) {
            QTest::newRow(name) << play << steps;
        };
        row("integer: range and value of the slider", whole,
            {{"sliderRange -20 300", "-20..300 0 | 0..99 0"},
             {"slider 120", "-20..300 120 | 0..99 0 slider"},
             {"bind", "-20..300 120 | -20..300 120 box"}});
        row("integer: both directions", whole,
            {{"bind", "0..99 0 | 0..99 0"},
             {"slider 7", "0..99 7 | 0..99 7 box slider"},
             {"box 9", "0..99 9 | 0..99 9 box slider"},
             {"box 9", "0..99 9 | 0..99 9"},
             {"slider 9", "0..99 9 | 0..99 9"},
             {"slider 1000", "0..99 99 | 0..99 99 box slider"}});
        row("integer: range of the slider", whole,
            {{"bind", "0..99 0 | 0..99 0"},
             {"slider 60", "0..99 60 | 0..99 60 box slider"},
             {"sliderRange 0 50", "0..50 50 | 0..50 50 box slider"},
             {"sliderRange 55 50", "55..55 55 | 55..55 55 box slider"},
             {"sliderRange 9 3", "9..9 9 | 9..9 9 box slider"},
             {"sliderRange -2147483648 2147483647", "-2147483648..2147483647 9 | -2147483648..2147483647 9"},
             {"slider -2147483648",
              "-2147483648..2147483647 -2147483648 | -2147483648..2147483647 -2147483648 box slider"},
             {"box 2147483647",
              "-2147483648..2147483647 2147483647 | -2147483648..2147483647 2147483647 box slider"}});
        row("integer: range of the box, which counts from the next value", whole,
            {{"bind, boxRange -500 500", "0..99 0 | -500..500 0"},
             {"box -400", "-500..500 -400 | -500..500 -400 box slider"},
             {"boxRange 0 10", "0..10 0 | 0..10 0 box slider"}});
        row("integer: range of the box, and the slider moves", whole,
            {{"bind, boxRange 0 50", "0..99 0 | 0..50 0"},
             {"slider 80", "0..50 50 | 0..50 50 box slider slider"},
             {"boxRange 0 40", "0..40 40 | 0..40 40 box slider"},
             {"slider 20", "0..40 20 | 0..40 20 box slider"}});
        row("integer, fine slider: fraction that the box rounds", wholeOfFine,
            {{"sliderRange 0 100, multiplier 0.01", "0..100 0=0 | 0..99 0"},
             {"slider 100", "0..100 100=1 | 0..99 0 fraction slider"},
             {"boxRange 0 100", "0..100 100=1 | 0..100 0"},
             {"bind", "0..100 100=1 | 0..100 100 box"},
             {"fraction 0.505", "0..100 51=0.505 | 0..100 51 box fraction slider"},
             {"box 20", "0..100 20=0.2 | 0..100 20 box fraction slider"}});
        row("fraction: both directions", plain,
            {{"bind, multiplier 0.01, sliderRange 0 100", "0..100 0=0 | 0..1 0"},
             {"slider 35", "0..100 35=0.35 | 0..1 0.35 box fraction slider"},
             {"box 0.57", "0..100 57=0.57 | 0..1 0.57 box fraction slider"}});
        row("fraction: between steps", plain,
            {{"bind, multiplier 0.1, sliderRange 0 100", "0..100 0=0 | 0..10 0"},
             {"box 0.25", "0..100 3=0.25 | 0..10 0.25 box fraction slider"},
             {"fraction 0.2549", "0..100 3=0.2549 | 0..10 0.25 fraction"},
             {"fraction 0.2551", "0..100 3=0.2551 | 0..10 0.26 box fraction"}});
        row("fraction: value after decimals that nobody reports", plain,
            {{"bind, multiplier 0.001, sliderRange 0 1000", "0..1000 0=0 | 0..1 0"},
             {"fraction 0.004", "0..1000 4=0.004 | 0..1 0 fraction slider"},
             {"decimals 3", "0..1000 4=0.004 | 0..1 0"},
             {"box 0.7", "0..1000 700=0.7 | 0..1 0.7 box fraction slider"}});
        row("fraction: range of the box", plain,
            {{"bind, multiplier 0.01, sliderRange 0 100", "0..100 0=0 | 0..1 0"},
             {"fraction 0.9", "0..100 90=0.9 | 0..1 0.9 box fraction slider"},
             {"boxRange -5 5", "0..100 90=0.9 | -5..5 0.9"},
             {"box -4.25", "-500..500 -425=-4.25 | -5..5 -4.25 box fraction slider"},
             {"boxRange 1 2", "100..200 100=1 | 1..2 1 box fraction slider"}});
        row("fraction, own box: decimals lowered", own,
            {{"bind, multiplier 0.001, sliderRange -1000 1000, decimals 3", "-1000..1000 0=0 | -1..1 0"},
             {"fraction 0.3049", "-1000..1000 305=0.3049 | -1..1 0.305 box fraction slider"},
             {"decimals 2", "-1000..1000 305=0.3049 | -1..1 0.3 box"},
             {"decimals 0", "-1000..1000 305=0.3049 | -1..1 0 box"},
             {"decimals 4", "-1000..1000 305=0.3049 | -1..1 0.3049 box"}});
        row("fraction, own box: decimals raised", own,
            {{"bind, multiplier 0.001, sliderRange 0 1000", "0..1000 0=0 | 0..1 0"},
             {"fraction 0.004", "0..1000 4=0.004 | 0..1 0 fraction slider"},
             {"decimals 3", "0..1000 4=0.004 | 0..1 0.004 box"}});
        row("fraction, own box: decimals raised by name", own,
            {{"bind, multiplier 0.001, sliderRange 0 1000", "0..1000 0=0 | 0..1 0"},
             {"fraction 0.004", "0..1000 4=0.004 | 0..1 0 fraction slider"},
             {"decimalsByName 3", "0..1000 4=0.004 | 0..1 0.004 box"}});
        row("fraction, own box: range of the box between steps", own,
            {{"bind, multiplier 0.01, decimals 3", "0..99 0=0 | 0..0.99 0"},
             {"boxRange 0.005 0.994", "1..99 1=0.01 | 0.005..0.994 0.005 box fraction fraction slider"},
             {"box 0.5", "1..99 50=0.5 | 0.005..0.994 0.5 box fraction slider"},
             {"box 0.005", "1..99 1=0.01 | 0.005..0.994 0.005 box fraction slider"},
             {"box 0.994", "1..99 99=0.99 | 0.005..0.994 0.994 box fraction slider"},
             {"slider 1", "1..99 1=0.01 | 0.005..0.994 0.01 box fraction slider"}});
        row("fraction, own box: range of the box beyond 32 bits", own,
            {{"bind, multiplier 0.01, boxRange -1e12 1e12", "0..99 0=0 | -1e+12..1e+12 0"},
             {"box 5e11",
              "-2147483648..2147483647 2147483647=21474836.47 | -1e+12..1e+12 5e+11 box fraction slider"},
             {"box -5e11",
              "-2147483648..2147483647 -2147483648=-21474836.48 | -1e+12..1e+12 -5e+11 box fraction slider"},
             {"show", "-2147483648..2147483647 -2147483648=-21474836.48 | -1e+12..1e+12 -5e+11"},
             {"decimals 4", "-2147483648..2147483647 -2147483648=-21474836.48 | -1e+12..1e+12 -5e+11"},
             {"show", "-2147483648..2147483647 -2147483648=-21474836.48 | -1e+12..1e+12 -5e+11"},
             {"box 12.5", "-2147483648..2147483647 1250=12.5 | -1e+12..1e+12 12.5 box fraction slider"},
             {"slider 1000", "-2147483648..2147483647 1000=10 | -1e+12..1e+12 10 box fraction slider"}});
        row("fraction, own box: range of the slider moved away", own,
            {{"bind, multiplier 0.1, sliderRange 0 100", "0..100 0=0 | 0..10 0"},
             {"fraction 8", "0..100 80=8 | 0..10 8 box fraction slider"},
             {"sliderRange 200 300", "200..300 200=20 | 20..30 20 box fraction slider"}});
    }

    void story()
    {
        QFETCH(Play, play);
        QFETCH(Steps, steps);
        QStringList states;
        for (const Step& step : qAsConst(steps)) {
            states += step.state;
        }
        QCOMPARE(play(steps), states);
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
        const Either either(fractions);
        either.bind();
        if (sliderFirst) {
            delete either.slider;
            either.set(false, 3);
            either.spinBox()->show();
        } else {
            delete either.spinBox();
            QVERIFY(either.slider->children().isEmpty());
            either.slider->setValue(3);
            either.slider->setRange(0, 10);
            either.slider->setMultiplier(0.5);
            QCOMPARE(either.slider->value(), 3);
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
            const Either either(fractions);
            const QPointer<QAbstractSpinBox> box = either.spinBox();
            const auto listen = [&] {
                either.listen(sliderEmits, this, [&] {
                    delete (sliderDies ? static_cast<QWidget*>(either.slider) : box.data());
                });
            };
            if (early) {
                listen();
            }
            either.bind();
            if (!early) {
                listen();
            }
            either.set(sliderMoved, 5);
            QCOMPARE(either.slider.isNull(), sliderDies);
            QCOMPARE(box.isNull(), !sliderDies);
            // The survivor goes on by itself.
            if (either.slider) {
                either.slider->setValue(6);
                QCOMPARE(either.slider->value(), 6);
            }
            disconnect(this);
        }
    }

    void oneDiesAtANewRange_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<bool>("boxMoved"); // the range of the spin box, away from the value; or the slider's
        QTest::addColumn<bool>("atRange");  // before the value
        QTest::addColumn<bool>("sliderDies");
        for (const bool fractions : {false, true}) {
            const char* const kind = fractions ? "fraction" : "integer";
            // QAbstractSlider itself does not survive a slot of its rangeChanged() that deletes it.
            QTest::addRow("%s: spin box deleted at the slider's range", kind)
                << fractions << true << true << false;
            QTest::addRow("%s: slider deleted at its value", kind) << fractions << true << false << true;
            QTest::addRow("%s: spin box deleted at its value", kind) << fractions << false << false << false;
        }
    }

    void oneDiesAtANewRange()
    {
        QFETCH(const bool, fractions);
        QFETCH(const bool, boxMoved);
        QFETCH(const bool, atRange);
        QFETCH(const bool, sliderDies);
        const Either either(fractions);
        either.bind();
        const QPointer<QAbstractSpinBox> box = either.spinBox();
        const auto die = [&] { delete (sliderDies ? static_cast<QWidget*>(either.slider) : box.data()); };
        if (atRange) {
            connect(either.slider, &QAbstractSlider::rangeChanged, this, die);
        } else {
            either.listen(boxMoved, this, die);
        }
        if (boxMoved) {
            {
                // Counts from the next value.
                const QSignalBlocker quiet(box);
                either.box->setRange(200, 300);
                either.doubleBox->setRange(200, 300);
            }
            either.set(false, 250);
        } else {
            either.slider->setRange(200, 300);
        }
        disconnect(this);
        QCOMPARE(either.slider.isNull(), sliderDies);
        QCOMPARE(box.isNull(), !sliderDies);
        // Nothing is done to the survivor any more.
        if (either.slider) {
            QCOMPARE(either.slider->value(), boxMoved ? 0 : 200);
        }
    }

    void listenerMovesTheRange_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::newRow("integer") << false;
        QTest::newRow("fraction") << true;
    }

    // While the box's value is being copied.
    void listenerMovesTheRange()
    {
        QFETCH(const bool, fractions);
        const Either either(fractions);
        either.bind();
        either.listen(true, this, [&either] { either.slider->setRange(10, 20); });
        either.set(false, 15);
        QCOMPARE(either.slider->value(), 15);
        QCOMPARE(either.boxValue(), 15.0);
        QCOMPARE(either.spinBox()->property("minimum").toDouble(), 10.0);
        QCOMPARE(either.spinBox()->property("maximum").toDouble(), 20.0);
        disconnect(this);
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
            const Either either(fractions);
            const auto listen = [&] {
                either.listen(sliderEmits, either.slider, [&] { either.set(movesSlider, 42); });
            };
            if (early) {
                listen();
            }
            either.bind();
            if (!early) {
                listen();
            }
            either.set(true, 5);
            QCOMPARE(either.slider->value(), 42);
            QCOMPARE(either.boxValue(), 42.0);
            either.set(false, 6);
            // A listener that comes first asks for what the slider has still got: the binding is the last.
            const double expected = !sliderEmits && movesSlider && early ? 6.0 : 42.0;
            QCOMPARE(either.slider->doubleValue(), expected);
            QCOMPARE(double(either.slider->value()), expected);
            QCOMPARE(either.boxValue(), expected);
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
        const QString typed = "-12,345";
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
        QTest::keyClicks(&box, "12.5");
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
            QString order = "mrd";
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
