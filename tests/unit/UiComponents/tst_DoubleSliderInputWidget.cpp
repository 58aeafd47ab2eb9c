#include "DecimalNumber.h"
#include "SpinBoxTyping.h"
#include "TestMain.h"

#include <UiComponents/DoubleSliderInputWidget.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>

#include <cmath>
#include <limits>
#include <utility>

namespace {

using Values = QVector<double>;
using Ints = std::numeric_limits<int>;
using Doubles = std::numeric_limits<double>;

/// A field that records what it reports.
class Field : public DoubleSliderInputWidget
{
public:
    Field(double minimum, double maximum, int decimals)
        : DoubleSliderInputWidget(nullptr, {minimum, maximum, decimals})
    {
        connect(this, &DoubleSliderInputWidget::valueChanged, this, [this](double value) {
            m_reports += value;
            inStep = inStep && slider->doubleValue() == value && spinBox->value() == value;
        });
    }

    /// What was reported since the last call.
    Values reports() { return std::exchange(m_reports, {}); }

    QLineEdit* edit() const { return spinBox->findChild<QLineEdit*>(); }

    OvDoubleSlider* const slider = findChild<OvDoubleSlider*>();
    OvDoubleSpinBox* const spinBox = findChild<OvDoubleSpinBox*>();
    /// Whether both parts showed the value whenever it was reported.
    bool inStep = true;

private:
    Values m_reports;
};

} // namespace

Q_DECLARE_METATYPE(DoubleSliderInputWidget::Initializer)

/**
 * What only fractions can do. tst_SliderInputWidget has what both fields can.
 */
class tst_DoubleSliderInputWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructionInAForm()
    {
        QWidget form;
        const DoubleSliderInputWidget field(&form);
        QCOMPARE(field.parentWidget(), &form);
        const auto* const box = field.findChild<QDoubleSpinBox*>();
        QCOMPARE(box->minimum(), 0.0);
        QCOMPARE(box->maximum(), 1.0);
        QCOMPARE(box->decimals(), 2);
        QCOMPARE(field.value(), 0.0);
    }

    void decimals_data()
    {
        QTest::addColumn<int>("decimals");
        for (int decimals = 0; decimals <= 9; ++decimals) {
            QTest::addRow("%d", decimals) << decimals;
        }
    }

    void decimals()
    {
        QFETCH(int, decimals);
        Field field(-2.0, 2.0, decimals);
        field.show();
        const int unit = qRound(std::pow(10.0, decimals));
        QCOMPARE(field.slider->minimum(), -2 * unit);
        QCOMPARE(field.slider->maximum(), 2 * unit);
        QCOMPARE(field.spinBox->minimum(), -2.0);
        QCOMPARE(field.spinBox->maximum(), 2.0);
        QCOMPARE(field.spinBox->decimals(), decimals);
        QCOMPARE(field.spinBox->singleStep(), std::pow(10.0, -decimals));
        QTest::keyClick(field.spinBox, Qt::Key_Up);
        const double one = decimalNumber(1, decimals);
        QCOMPARE(field.reports(), Values({one, one}));
        QCOMPARE(field.slider->value(), 1);
        QTest::keyClick(field.slider, Qt::Key_Left);
        QTest::keyClick(field.slider, Qt::Key_Left);
        QCOMPARE(field.reports(), Values({0.0, 0.0, -one, -one}));
        QVERIFY(field.inStep);
    }

    void oddDecimals_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<int>("shown");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        for (const double limit : {1.0, 0.0, 1e300, Doubles::max(), Doubles::infinity()}) {
            QTest::addRow("-1, to %g", limit) << -1 << 0 << -limit << limit;
            QTest::addRow("-400, to %g", limit) << -400 << 0 << -limit << limit;
            QTest::addRow("min, to %g", limit) << Ints::min() << 0 << -limit << limit;
            QTest::addRow("10, to %g", limit) << 10 << 10 << -limit << limit;
            QTest::addRow("20, to %g", limit) << 20 << 20 << -limit << limit;
            QTest::addRow("400, to %g", limit) << 400 << 323 << -limit << limit;
            QTest::addRow("max, to %g", limit) << Ints::max() << 323 << -limit << limit;
        }
    }

    // They make no sense, but no harm either.
    void oddDecimals()
    {
        QFETCH(int, decimals);
        QFETCH(int, shown);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        Field field(minimum, maximum, decimals);
        QCOMPARE(field.spinBox->decimals(), shown);
        field.setValue(0.5);
        field.setValue(-1e300);
        field.setValue(Doubles::infinity());
        QTest::keyClick(field.slider, Qt::Key_Left);
        QTest::keyClick(field.spinBox, Qt::Key_Down);
        QVERIFY(field.slider->doubleValue() >= field.spinBox->minimum());
        QVERIFY(field.slider->doubleValue() <= field.spinBox->maximum());
        QVERIFY(field.spinBox->value() >= field.spinBox->minimum());
        QVERIFY(field.spinBox->value() <= field.spinBox->maximum());
    }

    void bounds_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("last");
        QTest::newRow("half a step") << -0.005 << 0.005 << 2 << -1 << 1;
        QTest::newRow("less than half a step") << -0.0049 << 0.0049 << 2 << 0 << 0;
        QTest::newRow("half, 0 decimals") << 0.5 << 2.5 << 0 << 1 << 3;
        QTest::newRow("products a little off") << 0.29 << 0.57 << 2 << 29 << 57;
        QTest::newRow("negative") << -2.0 << -0.3 << 1 << -20 << -3;
        QTest::newRow("reversed") << 2.0 << 1.0 << 1 << 20 << 20;
        QTest::newRow("one value") << 1.5 << 1.5 << 1 << 15 << 15;
        QTest::newRow("32 bits") << -21474836.48 << 21474836.47 << 2 << Ints::min() << Ints::max();
        QTest::newRow("beyond 32 bits") << -1e10 << 1e10 << 2 << Ints::min() << Ints::max();
        QTest::newRow("9 decimals") << -3.0 << 3.0 << 9 << Ints::min() << Ints::max();
        QTest::newRow("doubles") << Doubles::lowest() << Doubles::max() << 9 << Ints::min() << Ints::max();
        QTest::newRow("smallest double") << 0.0 << Doubles::denorm_min() << 9 << 0 << 0;
        QTest::newRow("infinite") << -Doubles::infinity() << Doubles::infinity() << 2 << Ints::min()
                                  << Ints::max();
        QTest::newRow("infinite, reversed")
            << Doubles::infinity() << -Doubles::infinity() << 0 << Ints::max() << Ints::max();
        QTest::newRow("NaN") << Doubles::quiet_NaN() << Doubles::quiet_NaN() << 2 << 0 << 0;
        QTest::newRow("NaN to 1") << Doubles::quiet_NaN() << 1.0 << 2 << 0 << 100;
    }

    void bounds()
    {
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(int, decimals);
        QFETCH(int, first);
        QFETCH(int, last);
        Field field(minimum, maximum, decimals);
        QCOMPARE(field.slider->minimum(), first);
        QCOMPARE(field.slider->maximum(), last);
        QCOMPARE(field.spinBox->minimum(), decimalNumber(first, decimals));
        QCOMPARE(field.spinBox->maximum(), decimalNumber(last, decimals));
        field.show();
        field.setValue(Doubles::max());
        QCOMPARE(field.slider->value(), last);
        QCOMPARE(field.spinBox->value(), decimalNumber(last, decimals));
        field.setValue(Doubles::lowest());
        QCOMPARE(field.slider->value(), first);
        QCOMPARE(field.spinBox->value(), decimalNumber(first, decimals));
        QVERIFY(field.inStep);
        field.grab();
    }

    void setDecimals_data()
    {
        using Range = DoubleSliderInputWidget::Initializer;
        QTest::addColumn<Range>("range");
        QTest::addColumn<double>("expected");
        QTest::newRow("more decimals") << Range{0.0, 1.0, 4} << 0.75;
        QTest::newRow("fewer decimals") << Range{0.0, 1.0, 1} << 0.8;
        QTest::newRow("no decimals") << Range{0.0, 5.0, 0} << 1.0;
    }

    void setDecimals()
    {
        QFETCH(DoubleSliderInputWidget::Initializer, range);
        QFETCH(double, expected);
        Field field(0.0, 1.0, 2);
        field.setValue(0.75);
        field.reports();
        field.setRange(range);
        const Field made(range.minimum, range.maximum, range.decimals);
        QCOMPARE(field.slider->minimum(), made.slider->minimum());
        QCOMPARE(field.slider->maximum(), made.slider->maximum());
        QCOMPARE(field.spinBox->minimum(), made.spinBox->minimum());
        QCOMPARE(field.spinBox->maximum(), made.spinBox->maximum());
        QCOMPARE(field.spinBox->decimals(), made.spinBox->decimals());
        QCOMPARE(field.spinBox->singleStep(), made.spinBox->singleStep());
        QCOMPARE(field.value(), expected);
        QCOMPARE(field.slider->doubleValue(), expected);
        QCOMPARE(field.reports(), expected == 0.75 ? Values() : Values{expected});
    }

    void setValueOfNearlyThePresentValue()
    {
        Field field(0.0, 1.0, 2);
        field.setValue(0.3);
        field.reports();
        field.setValue(0.1 + 0.2); // not the same double
        field.setValue(0.3004);
        QCOMPARE(field.reports(), Values());
        QVERIFY(field.slider->doubleValue() == 0.3);
    }

    void setValueIsRoundedToTheDecimals_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("reported");
        QTest::newRow("up") << 0.126 << 0.13;
        QTest::newRow("down") << 0.124 << 0.12;
        QTest::newRow("negative up") << -0.124 << -0.12;
        QTest::newRow("negative down") << -0.126 << -0.13;
        QTest::newRow("into the range") << 1.004 << 1.0;
        QTest::newRow("max") << Doubles::max() << 1.0;
        QTest::newRow("min") << Doubles::lowest() << -1.0;
        QTest::newRow("infinite") << Doubles::infinity() << 1.0;
        QTest::newRow("negative infinite") << -Doubles::infinity() << -1.0;
    }

    // What is reported is what is shown, not what was asked for.
    void setValueIsRoundedToTheDecimals()
    {
        QFETCH(double, value);
        QFETCH(double, reported);
        Field field(-1.0, 1.0, 2);
        field.setValue(value);
        QCOMPARE(field.reports(), Values({reported, reported}));
        QVERIFY(field.inStep);
        QVERIFY(field.slider->doubleValue() == reported);
    }

    void setValueIgnoresNaN()
    {
        Field field(0.0, 1.0, 2);
        field.setValue(0.5);
        field.reports();
        field.setValue(Doubles::quiet_NaN());
        QCOMPARE(field.reports(), Values());
        QCOMPARE(field.slider->doubleValue(), 0.5);
        QCOMPARE(field.spinBox->value(), 0.5);
    }

    void negativeZeroIsZero()
    {
        Field field(-1.0, 1.0, 2);
        field.setValue(-0.0);
        field.setValue(-0.001);
        QCOMPARE(field.reports(), Values());
        field.setValue(0.5);
        field.setValue(-0.004);
        QCOMPARE(field.reports().constLast(), 0.0);
        QCOMPARE(field.slider->value(), 0);
    }

    void typingIsNotRewritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("committed");
        QTest::newRow("trailing zeros") << "1.500" << 1.5 << "1.500";
        QTest::newRow("no decimals") << "2" << 2.0 << "2.000";
        QTest::newRow("mark at the end") << "2." << 2.0 << "2.000";
        QTest::newRow("mark at the beginning") << ".25" << 0.25 << "0.250";
        QTest::newRow("leading zeros") << "0001.5" << 1.5 << "1.500";
        QTest::newRow("comma") << "1,5" << 1.5 << "1.500";
        QTest::newRow("negative") << "-0.125" << -0.125 << "-0.125";
        QTest::newRow("negative nothing") << "-0.0" << 0.0 << "0.000";
    }

    void typingIsNotRewritten()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QFETCH(QString, committed);
        Field field(-10.0, 10.0, 3);
        field.show();
        field.spinBox->selectAll();
        QString typed;
        for (const QChar character : text) {
            QTest::keyClicks(field.spinBox, QString(character));
            typed += character;
            QCOMPARE(field.edit()->text(), typed);
            QCOMPARE(field.edit()->cursorPosition(), typed.size());
        }
        QVERIFY(field.slider->doubleValue() == value);
        const Values reports = field.reports();
        QVERIFY((reports.isEmpty() ? 0.0 : reports.last()) == value);
        QTest::keyClick(field.spinBox, Qt::Key_Return);
        QCOMPARE(field.edit()->text(), committed);
        QCOMPARE(field.reports(), Values());
        QVERIFY(field.inStep);
    }

    void typedMark_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("committed");
        for (const char* text : {"1.25", "1,25"}) {
            QTest::addRow("C, %s", text) << "C" << QString::fromLatin1(text) << "1.25";
            QTest::addRow("English, %s", text) << "en_GB" << QString::fromLatin1(text) << "1.25";
            QTest::addRow("German, %s", text) << "de_DE" << QString::fromLatin1(text) << "1,25";
            QTest::addRow("Swiss, %s", text) << "de_CH" << QString::fromLatin1(text) << "1.25";
        }
    }

    void typedMark()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(QString, committed);
        Field field(0.0, 1000.0, 2);
        field.setLocale(QLocale(locale));
        field.show();
        typeInto(field.spinBox, text);
        QCOMPARE(field.edit()->text(), text);
        QTest::keyClick(field.spinBox, Qt::Key_Return);
        QCOMPARE(field.edit()->text(), committed);
        QCOMPARE(field.slider->doubleValue(), 1.25);
        QCOMPARE(field.reports().constLast(), 1.25);
    }
};

UIC_TEST_MAIN(tst_DoubleSliderInputWidget)
#include "tst_DoubleSliderInputWidget.moc"
