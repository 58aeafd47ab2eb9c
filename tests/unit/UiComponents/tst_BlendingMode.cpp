#include "TestMain.h"

#include <UiComponents/BlendingMode.h>

class tst_BlendingMode : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void modeChosen(BlendingMode mode);

private Q_SLOTS:
    // Stored projects hold these.
    void numbers()
    {
        const BlendingMode modes[] = {
            BlendingMode::Overlay,    BlendingMode::Lighten,     BlendingMode::Color,
            BlendingMode::ColorDodge, BlendingMode::LinearDodge, BlendingMode::SourceOver,
            BlendingMode::Screen,     BlendingMode::Difference,  BlendingMode::Multiply,
            BlendingMode::Darken,     BlendingMode::ColorBurn,   BlendingMode::HardLight,
            BlendingMode::SoftLight,  BlendingMode::Exclusion};
        for (int number = 0; number < 14; ++number) {
            QCOMPARE(static_cast<int>(modes[number]), number);
        }
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
