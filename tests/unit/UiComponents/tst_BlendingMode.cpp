#include "TestMain.h"

#include <UiComponents/BlendingMode.h>

class tst_BlendingMode : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void modeChosen(BlendingMode mode);

private Q_SLOTS:
    void numbers_data()
    {
        QTest::addColumn<BlendingMode>("mode");
        QTest::addColumn<int>("number");

        QTest::newRow("Overlay") << BlendingMode::Overlay << 0;
        QTest::newRow("Lighten") << BlendingMode::Lighten << 1;
        QTest::newRow("Color") << BlendingMode::Color << 2;
        QTest::newRow("ColorDodge") << BlendingMode::ColorDodge << 3;
        QTest::newRow("LinearDodge") << BlendingMode::LinearDodge << 4;
        QTest::newRow("SourceOver") << BlendingMode::SourceOver << 5;
        QTest::newRow("Screen") << BlendingMode::Screen << 6;
        QTest::newRow("Difference") << BlendingMode::Difference << 7;
        QTest::newRow("Multiply") << BlendingMode::Multiply << 8;
        QTest::newRow("Darken") << BlendingMode::Darken << 9;
        QTest::newRow("ColorBurn") << BlendingMode::ColorBurn << 10;
        QTest::newRow("HardLight") << BlendingMode::HardLight << 11;
        QTest::newRow("SoftLight") << BlendingMode::SoftLight << 12;
        QTest::newRow("Exclusion") << BlendingMode::Exclusion << 13;
    }

    // Stored projects hold these.
    void numbers()
    {
        QFETCH(BlendingMode, mode);
        QTEST(static_cast<int>(mode), "number");
    }

    void travelsInSignals()
    {
        QSignalSpy direct(this, &tst_BlendingMode::modeChosen);
        BlendingMode queued = BlendingMode::Overlay;
        connect(
            this, &tst_BlendingMode::modeChosen, this, [&queued](BlendingMode mode) { queued = mode; },
            Qt::QueuedConnection);
        Q_EMIT modeChosen(BlendingMode::Exclusion);
        QCOMPARE(direct.front().front().value<BlendingMode>(), BlendingMode::Exclusion);
        QTRY_COMPARE(queued, BlendingMode::Exclusion);
    }
};

UIC_TEST_MAIN(tst_BlendingMode)
#include "tst_BlendingMode.moc"
