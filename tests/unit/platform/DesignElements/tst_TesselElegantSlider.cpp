#include "TestMain.h"

#include <DesignElements/TesselElegantSlider.h>

using Orvane::Tessel::TesselElegantSlider;

namespace {

const QColor grooveColor(0, 128, 0);
const QColor fillColor(0, 0, 255);
const QColor faceColor(255, 255, 0);

class Slider : public TesselElegantSlider
{
public:
    explicit Slider(Qt::Orientation orientation = Qt::Horizontal)
    {
        setOrientation(orientation);
        setRange(0, 100);
        setValue(50);
        resize(orientation == Qt::Horizontal ? QSize(200, 24) : QSize(24, 200));
        QPalette colors = palette();
        colors.setColor(QPalette::Mid, grooveColor);
        colors.setColor(QPalette::Highlight, fillColor);
        colors.setColor(QPalette::Light, faceColor);
        colors.setColor(QPalette::Disabled, QPalette::Light, Qt::gray);
        setPalette(colors);
    }

    QPoint handleCentre() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).center();
    }
};

QImage picture(QWidget& widget)
{
    return widget.grab().toImage();
}

} // namespace

class tst_TesselElegantSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void isACustomSlider()
    {
        QWidget parent;
        const TesselElegantSlider slider(&parent);
        QCOMPARE(slider.parentWidget(), &parent);
        QVERIFY(slider.inherits("OvCustomSlider"));
        QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(slider.metaObject()->className(), "Orvane::Tessel::TesselElegantSlider");
    }

    void drawsItself_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<bool>("inverted");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("filledAtTopLeft");
        QTest::newRow("horizontal") << Qt::Horizontal << false << Qt::LeftToRight << true;
        QTest::newRow("horizontal, inverted") << Qt::Horizontal << true << Qt::LeftToRight << false;
        QTest::newRow("horizontal, right to left") << Qt::Horizontal << false << Qt::RightToLeft << false;
        QTest::newRow("vertical") << Qt::Vertical << false << Qt::LeftToRight << false;
        QTest::newRow("vertical, inverted") << Qt::Vertical << true << Qt::LeftToRight << true;
    }

    void drawsItself()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(bool, inverted);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, filledAtTopLeft);
        Slider slider(orientation);
        slider.setInvertedAppearance(inverted);
        slider.setLayoutDirection(direction);
        const QImage image = picture(slider);
        const QPoint centre = slider.handleCentre();
        QCOMPARE(image.pixelColor(centre), faceColor);
        const QPoint away = orientation == Qt::Horizontal ? QPoint(50, 0) : QPoint(0, 50);
        QCOMPARE(image.pixelColor(centre - away), filledAtTopLeft ? fillColor : grooveColor);
        QCOMPARE(image.pixelColor(centre + away), filledAtTopLeft ? grooveColor : fillColor);
    }

    void disabledShowsNoValue()
    {
        Slider slider;
        slider.setEnabled(false);
        const QImage image = picture(slider);
        const QPoint centre = slider.handleCentre();
        QCOMPARE(image.pixelColor(centre), QColor(Qt::gray));
        QCOMPARE(image.pixelColor(centre - QPoint(50, 0)), image.pixelColor(centre + QPoint(50, 0)));
    }

    void focusHasARing()
    {
        Slider slider;
        slider.show();
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.clearFocus();
        const QImage without = picture(slider);
        slider.setFocus();
        QTRY_VERIFY(slider.hasFocus());
        QVERIFY(picture(slider) != without);
    }

    void rulesForAllWidgetsLeaveTheLook()
    {
        Slider slider;
        const QImage own = picture(slider);
        slider.setStyleSheet(QStringLiteral("* { font-size: 13px; } QWidget { selection-color: red; }"));
        QCOMPARE(picture(slider).pixelColor(slider.handleCentre()), faceColor);
        QCOMPARE(picture(slider), own);
    }

    void backgroundOfTheSheetLiesBelow()
    {
        Slider slider;
        slider.setStyleSheet(QStringLiteral("QWidget { background: #ff0000; }"));
        const QImage image = picture(slider);
        QCOMPARE(image.pixelColor(2, 1), QColor(Qt::red));
        QCOMPARE(image.pixelColor(slider.handleCentre()), faceColor);
        QCOMPARE(image.pixelColor(slider.handleCentre() - QPoint(50, 0)), fillColor);
    }

    void sheetDrawsTheGroove_data()
    {
        QTest::addColumn<QString>("metrics");
        QTest::newRow("without a height") << QString();
        for (const int height : {1, 4, 7, 24, 1000}) {
            QTest::addRow("%d px", height) << QStringLiteral("height: %1px;").arg(height);
        }
    }

    void sheetDrawsTheGroove()
    {
        QFETCH(QString, metrics);
        Slider slider;
        slider.setStyleSheet(
            QStringLiteral("Orvane--Tessel--TesselElegantSlider::groove { background: #ff0000; %1 }"
                           "Orvane--Tessel--TesselElegantSlider::handle { width: 15px; %1 }")
                .arg(metrics));
        const QImage image = picture(slider);
        QCOMPARE(image.pixelColor(slider.handleCentre() + QPoint(60, 0)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(slider.handleCentre() - QPoint(60, 0)), QColor(Qt::red));
    }

    void sheetChangesWhileShown()
    {
        Slider slider;
        slider.show();
        const QImage own = picture(slider);
        qApp->setStyleSheet(QStringLiteral("QSlider::groove { height: 6px; background: #ff0000; }"));
        QCOMPARE(picture(slider).pixelColor(slider.handleCentre() + QPoint(60, 0)), QColor(Qt::red));
        qApp->setStyleSheet(QString());
        QCOMPARE(picture(slider).pixelColor(slider.handleCentre()), own.pixelColor(slider.handleCentre()));
    }

    void drawsAtEverySize()
    {
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            Slider slider(orientation);
            for (int width = 1; width < 20; ++width) {
                for (int height = 1; height < 20; ++height) {
                    slider.resize(width, height);
                    QVERIFY(!picture(slider).isNull());
                }
            }
        }
    }

    void clickOnTheGrooveGoesThere()
    {
        Slider slider;
        slider.show();
        QTest::mouseClick(&slider, Qt::LeftButton, {}, QPoint(150, 12));
        QVERIFY(slider.value() > 70 && slider.value() < 80);
    }
};

UIC_TEST_MAIN(tst_TesselElegantSlider)
#include "tst_TesselElegantSlider.moc"
