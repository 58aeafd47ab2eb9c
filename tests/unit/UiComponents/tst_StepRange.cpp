#include "DecimalNumber.h"
#include "TestMain.h"

#include <UiComponents/StepRange.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

using Steps = std::numeric_limits<int>;
using Doubles = std::numeric_limits<double>;

} // namespace

class tst_StepRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void step_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<double>("step");
        QTest::newRow("0") << 0 << 1.0;
        QTest::newRow("2") << 2 << 0.01;
        QTest::newRow("9") << 9 << 1e-9;
        QTest::newRow("-2") << -2 << 100.0;
        QTest::newRow("too many") << 400 << 0.0;
        QTest::newRow("max") << Steps::max() << 0.0;
        QTest::newRow("min") << Steps::min() << Doubles::infinity();
    }

    void step()
    {
        QFETCH(int, decimals);
        QFETCH(double, step);
        QCOMPARE(StepRange::stepOf(decimals), step);
    }

    void nearestStep_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<int>("step");
        QTest::newRow("0") << 0.0 << 2 << 0;
        QTest::newRow("half") << 0.005 << 2 << 1;
        QTest::newRow("negative half") << -0.005 << 2 << -1;
        QTest::newRow("half, 0 decimals") << 2.5 << 0 << 3;
        QTest::newRow("negative half, 0 decimals") << -2.5 << 0 << -3;
        QTest::newRow("below half") << 0.0049 << 2 << 0;
        QTest::newRow("negative, nearer to 0") << -0.0049 << 2 << 0;
        QTest::newRow("product a little less than whole") << 0.29 << 2 << 29;
        QTest::newRow("product a little more than whole") << 1.1 << 1 << 11;
        QTest::newRow("negative product a little off") << -0.29 << 2 << -29;
        QTest::newRow("9 decimals") << 1.123456789 << 9 << 1123456789;
        QTest::newRow("negative decimals") << 1250.0 << -2 << 13;
        QTest::newRow("max step") << 21474836.47 << 2 << Steps::max();
        QTest::newRow("min step") << -21474836.48 << 2 << Steps::min();
        QTest::newRow("beyond the max step") << 21474836.48 << 2 << Steps::max();
        QTest::newRow("beyond the min step") << -21474836.49 << 2 << Steps::min();
        QTest::newRow("max double") << Doubles::max() << 2 << Steps::max();
        QTest::newRow("min double") << Doubles::lowest() << 0 << Steps::min();
        QTest::newRow("smallest double") << Doubles::denorm_min() << 9 << 0;
        QTest::newRow("infinity") << Doubles::infinity() << 2 << Steps::max();
        QTest::newRow("negative infinity") << -Doubles::infinity() << 2 << Steps::min();
        QTest::newRow("NaN") << Doubles::quiet_NaN() << 2 << 0;
        QTest::newRow("0 and infinite power") << 0.0 << 400 << 0;
        QTest::newRow("infinity and power 0") << Doubles::infinity() << -400 << 0;
        QTest::newRow("max decimals") << 1.0 << Steps::max() << Steps::max();
        QTest::newRow("min decimals") << 1.0 << Steps::min() << 0;
    }

    void nearestStep()
    {
        QFETCH(double, value);
        QFETCH(int, decimals);
        QFETCH(int, step);
        QCOMPARE(StepRange::nearestStep(value, decimals), step);
    }

    void everyDecimalIsItsOwnStep_data()
    {
        QTest::addColumn<int>("decimals");
        for (int decimals = 0; decimals <= 9; ++decimals) {
            QTest::addRow("%d", decimals) << decimals;
        }
    }

    void everyDecimalIsItsOwnStep()
    {
        QFETCH(int, decimals);
        std::mt19937 generator(static_cast<unsigned>(decimals + 1));
        for (int i = 0; i < 20000; ++i) {
            const int step = i < 5000 ? i - 2500 : static_cast<int>(generator());
            QCOMPARE(StepRange::nearestStep(decimalNumber(step, decimals), decimals), step);
        }
    }
};

UIC_TEST_MAIN(tst_StepRange)
#include "tst_StepRange.moc"
