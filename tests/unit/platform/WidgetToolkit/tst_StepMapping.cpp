#include "DecimalNumber.h"
#include "TestMain.h"

#include <WidgetToolkit/StepMapping.h>

#include <cmath>
#include <limits>

using StepMapping::Scale;

namespace {

const double infinity = std::numeric_limits<double>::infinity();
const double largest = std::numeric_limits<double>::max();
const double smallest = std::numeric_limits<double>::denorm_min();

} // namespace

class tst_StepMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valueOfStep_data()
    {
        QTest::addColumn<double>("multiplier");
        QTest::addColumn<int>("step");
        QTest::addColumn<double>("value");
        QTest::newRow("one") << 1.0 << 7 << 7.0;
        QTest::newRow("3 tenths") << 0.1 << 3 << 0.3;
        QTest::newRow("35 hundredths") << 0.01 << 35 << 0.35;
        QTest::newRow("power computed") << std::pow(10.0, -3) << 9 << 0.009;
        QTest::newRow("a third is an inverse") << 1.0 / 3.0 << 6 << 2.0;
        QTest::newRow("decimal that is no inverse") << 0.3 << 3 << 0.9;
        QTest::newRow("2.5") << 2.5 << 3 << 7.5;
        QTest::newRow("1.1") << 1.1 << 3 << 3.3;
        QTest::newRow("negative") << 0.1 << -3 << -0.3;
        QTest::newRow("zero") << 0.1 << 0 << 0.0;
        QTest::newRow("last step of 32 bits") << 1e-9 << std::numeric_limits<int>::max() << 2.147483647;
        QTest::newRow("first step of 32 bits") << 1e-9 << std::numeric_limits<int>::min() << -2.147483648;
        QTest::newRow("too large") << 1e305 << 100000 << largest;
        QTest::newRow("too large, negative") << 1e305 << -100000 << -largest;
        QTest::newRow("smallest multiplier") << smallest << 5 << 5 * smallest;
        QTest::newRow("pi is no fraction") << 3.14159265358979 << 2 << 6.28318530717958;
    }

    void valueOfStep()
    {
        QFETCH(double, multiplier);
        QFETCH(int, step);
        QFETCH(double, value);
        const double result = Scale(multiplier).valueOf(step);
        QVERIFY2(result == value, qPrintable(QString::number(result, 'g', 17)));
    }

    void stepOfValue_data()
    {
        QTest::addColumn<double>("multiplier");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("step");
        QTest::newRow("exact") << 0.1 << 0.3 << 3;
        QTest::newRow("below the half") << 0.1 << 0.3499 << 3;
        QTest::newRow("half goes up") << 1.0 << 2.5 << 3;
        QTest::newRow("negative half goes down") << 1.0 << -2.5 << -3;
        QTest::newRow("decimal half below its double") << 0.01 << 0.285 << 29;
        QTest::newRow("negative decimal half") << 0.01 << -0.285 << -29;
        QTest::newRow("just under the half") << 0.01 << 0.28499999 << 28;
        QTest::newRow("0.005") << 0.01 << 0.005 << 1;
        QTest::newRow("multiplier above one") << 5.0 << 12.5 << 3;
        QTest::newRow("no fraction") << 0.7 << 1.05 << 2;
        QTest::newRow("above 32 bits") << 0.001 << 1e9 << std::numeric_limits<int>::max();
        QTest::newRow("below 32 bits") << 0.001 << -1e9 << std::numeric_limits<int>::min();
        QTest::newRow("infinite") << 1.0 << infinity << std::numeric_limits<int>::max();
        QTest::newRow("minus infinite") << 1.0 << -infinity << std::numeric_limits<int>::min();
        QTest::newRow("not a number") << 1.0 << std::nan("") << 0;
        QTest::newRow("largest double") << smallest << largest << std::numeric_limits<int>::max();
        QTest::newRow("largest multiplier") << largest << 1.0 << 0;
    }

    void stepOfValue()
    {
        QFETCH(double, multiplier);
        QFETCH(double, value);
        QFETCH(int, step);
        QCOMPARE(Scale(multiplier).stepOf(value), step);
    }

    void everyStepOfAPowerOfTenReadsAsDecimal()
    {
        for (int decimals = 0; decimals <= 9; ++decimals) {
            const Scale scale(std::pow(10.0, -decimals));
            for (int i = 0; i < 3000; ++i) {
                // A walk over all of 32 bits in steps that no power of ten divides.
                const int step = static_cast<int>(static_cast<unsigned>(i) * 1431627u);
                const double meant = decimalNumber(step, decimals);
                QVERIFY2(scale.valueOf(step) == meant, qPrintable(QString::number(meant, 'g', 17)));
                QCOMPARE(scale.stepOf(meant), step);
            }
        }
    }

    void isMultiplier()
    {
        QVERIFY(StepMapping::isMultiplier(0.01));
        QVERIFY(StepMapping::isMultiplier(smallest));
        QVERIFY(StepMapping::isMultiplier(largest));
        QVERIFY(!StepMapping::isMultiplier(0.0));
        QVERIFY(!StepMapping::isMultiplier(-0.01));
        QVERIFY(!StepMapping::isMultiplier(infinity));
        QVERIFY(!StepMapping::isMultiplier(std::nan("")));
    }

    void rounded_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        for (const double value : {0.304, 0.305, -0.005, 2.5, 3.5, 1e12 + 0.25, 123456.789}) {
            for (const int decimals : {0, 1, 2, 3, 9}) {
                QTest::addRow("%.17g with %d", value, decimals) << value << decimals;
            }
        }
    }

    void rounded()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QDoubleSpinBox box;
        box.setRange(-1e15, 1e15);
        box.setDecimals(decimals);
        box.setValue(value);
        QCOMPARE(StepMapping::rounded(value, decimals), box.value());
        box.setRange(value, 1e15);
        QCOMPARE(StepMapping::rounded(value, decimals), box.minimum());
    }
};

UIC_TEST_MAIN(tst_StepMapping)
#include "tst_StepMapping.moc"
