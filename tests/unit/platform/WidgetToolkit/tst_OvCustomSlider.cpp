#include "MouseEvents.h"
#include "TestMain.h"
#include "Wheel.h"

#include <WidgetToolkit/OvCustomSlider.h>

#include <QLineEdit>
#include <QStyleOptionSlider>

#include <cmath>

Q_DECLARE_METATYPE(Qt::Orientation)

namespace {

class Slider : public OvCustomSlider
{
public:
    using OvCustomSlider::OvCustomSlider;

    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }

    int along(const QPoint& point) const { return orientation() == Qt::Horizontal ? point.x() : point.y(); }

    QPoint spot(int place) const
    {
        return orientation() == Qt::Horizontal ? QPoint(place, height() / 2) : QPoint(width() / 2, place);
    }
};

/// As the present row of clickGoesThere_data() says.
void setUpFromRow(Slider& slider)
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, inverted);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, sheet);
    slider.setOrientation(orientation);
    slider.setStyleSheet(sheet);
    slider.setInvertedAppearance(inverted);
    slider.setLayoutDirection(direction);
    slider.resize(orientation == Qt::Horizontal ? QSize(300, 40) : QSize(40, 300));
    slider.ensurePolished();
}

} // namespace

class tst_OvCustomSlider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isASlider();
    void clickGoesThere_data();
    void clickGoesThere();
    void clickBeyondTheEnds();
    void dragGoesOnFromTheClick_data();
    void dragGoesOnFromTheClick();
    void pressOnTheHandleMovesNothing();
    void orderOfSignals();
    void withoutTracking();
    void fewSteps();
    void wholeRangeOf32Bits();
    void otherButtons();
    void emptyRange();
    void disabled();
    void wheel();
    void wheelAtTheEnd();
    void deletedByAListener_data();
    void deletedByAListener();
    void tinySizes();
};

void tst_OvCustomSlider::isASlider()
{
    OvCustomSlider slider;
    QCOMPARE(slider.metaObject()->className(), "OvCustomSlider");
    QCOMPARE(slider.metaObject()->superClass(), &QSlider::staticMetaObject);
    QCOMPARE(slider.orientation(), Qt::Vertical);
    QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
    const OvCustomSlider horizontal(Qt::Horizontal);
    QCOMPARE(horizontal.orientation(), Qt::Horizontal);
    QCOMPARE(horizontal.focusPolicy(), Qt::StrongFocus);
}

void tst_OvCustomSlider::clickGoesThere_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("inverted");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("sheet");
    const QString plain;
    const QString sheet = QStringLiteral(
        "QSlider::groove:horizontal { height: 4px; margin: 0 10px; background: grey; }"
        "QSlider::handle:horizontal { width: 20px; margin: -6px 0; background: red; border-radius: 3px; }"
        "QSlider::groove:vertical { width: 4px; margin: 10px 0; background: grey; }"
        "QSlider::handle:vertical { height: 20px; margin: 0 -6px; background: red; }");
    const QString padded =
        QStringLiteral("QSlider::groove:horizontal { height: 12px; padding: 8px; border: 2px solid black; }"
                       "QSlider::groove:vertical { width: 12px; padding: 8px; border: 2px solid black; }"
                       "QSlider::handle { width: 10px; height: 10px; background: red; }");
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const char* const name = orientation == Qt::Horizontal ? "horizontal" : "vertical";
        QTest::addRow("%s", name) << orientation << false << Qt::LeftToRight << plain;
        QTest::addRow("%s inverted", name) << orientation << true << Qt::LeftToRight << plain;
        QTest::addRow("%s right to left", name) << orientation << false << Qt::RightToLeft << plain;
        QTest::addRow("%s inverted right to left", name) << orientation << true << Qt::RightToLeft << plain;
        QTest::addRow("%s with sheet", name) << orientation << false << Qt::LeftToRight << sheet;
        QTest::addRow("%s with sheet, inverted", name) << orientation << true << Qt::LeftToRight << sheet;
        QTest::addRow("%s with sheet, right to left", name)
            << orientation << false << Qt::RightToLeft << sheet;
        QTest::addRow("%s with padded groove", name) << orientation << false << Qt::LeftToRight << padded;
    }
}

void tst_OvCustomSlider::clickGoesThere()
{
    Slider slider;
    setUpFromRow(slider);
    slider.setRange(-500, 500);
    const bool inverted = slider.invertedAppearance();
    const bool backwards =
        slider.orientation() == Qt::Horizontal ? inverted != slider.isRightToLeft() : !inverted;
    for (const int place : {60, 100, 150, 230}) {
        // From the far side, so that the click is never on the handle.
        slider.setValue((place > 150) != backwards ? -500 : 500);
        QVERIFY(!slider.handle().contains(slider.spot(place)));
        QSignalSpy spy(&slider, &QAbstractSlider::valueChanged);
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, slider.spot(place));
        const int centre = slider.along(slider.handle().center());
        QVERIFY2(std::abs(centre - place) <= 1,
                 qPrintable(QStringLiteral("%1 for %2").arg(centre).arg(place)));
        QCOMPARE(spy.count(), 1);
        QVERIFY(!slider.isSliderDown());
    }
}

void tst_OvCustomSlider::clickBeyondTheEnds()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setRange(0, 10);
    slider.setValue(5);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(0, 15));
    QCOMPARE(slider.value(), 0);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(199, 15));
    QCOMPARE(slider.value(), 10);
}

void tst_OvCustomSlider::dragGoesOnFromTheClick_data()
{
    clickGoesThere_data();
}

void tst_OvCustomSlider::dragGoesOnFromTheClick()
{
    Slider slider;
    setUpFromRow(slider);
    slider.setRange(0, 1000);
    slider.setValue(slider.minimum());
    if (std::abs(slider.along(slider.handle().center()) - 100) < 30) {
        slider.setValue(slider.maximum());
    }
    press(slider, slider.spot(100));
    QVERIFY(slider.isSliderDown());
    const int pressed = slider.along(slider.handle().center());
    QVERIFY(std::abs(pressed - 100) <= 1);
    // The first small move must not make the handle jump.
    drag(slider, slider.spot(101));
    QVERIFY(std::abs(slider.along(slider.handle().center()) - 101) <= 2);
    drag(slider, slider.spot(160));
    QVERIFY(std::abs(slider.along(slider.handle().center()) - 160) <= 2);
    release(slider, slider.spot(160));
    QVERIFY(!slider.isSliderDown());
}

void tst_OvCustomSlider::pressOnTheHandleMovesNothing()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setRange(0, 1000);
    slider.setValue(500);
    const QRect handle = slider.handle();
    QSignalSpy changed(&slider, &QAbstractSlider::valueChanged);
    QSignalSpy pressed(&slider, &QAbstractSlider::sliderPressed);
    for (const int x : {handle.left(), handle.center().x(), handle.right()}) {
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(x, handle.center().y()));
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(pressed.count(), 3);
}

void tst_OvCustomSlider::orderOfSignals()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setRange(0, 100);
    QStringList log;
    connect(&slider, &QAbstractSlider::sliderPressed, this, [&log] { log << QStringLiteral("pressed"); });
    connect(&slider, &QAbstractSlider::sliderMoved, this, [&log] { log << QStringLiteral("moved"); });
    connect(&slider, &QAbstractSlider::valueChanged, this, [&log] { log << QStringLiteral("changed"); });
    connect(&slider, &QAbstractSlider::sliderReleased, this, [&log] { log << QStringLiteral("released"); });
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
    const QStringList expected{QStringLiteral("pressed"), QStringLiteral("moved"), QStringLiteral("changed"),
                               QStringLiteral("released")};
    QCOMPARE(log, expected);
}

void tst_OvCustomSlider::withoutTracking()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setRange(0, 100);
    slider.setTracking(false);
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
    QCOMPARE(slider.value(), 0);
    QVERIFY(slider.sliderPosition() > 70);
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
    QCOMPARE(slider.value(), slider.sliderPosition());
    QVERIFY(slider.value() > 70);
}

void tst_OvCustomSlider::fewSteps()
{
    Slider slider(Qt::Horizontal);
    slider.resize(300, 30);
    slider.setRange(0, 2);
    // Nearest step, not the first one towards the click.
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(60, 15));
    QCOMPARE(slider.value(), 0);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(110, 15));
    QCOMPARE(slider.value(), 1);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(245, 15));
    QCOMPARE(slider.value(), 2);
    // A drag from a place far from the handle that snapped away from it.
    press(slider, QPoint(120, 15));
    QCOMPARE(slider.value(), 1);
    drag(slider, QPoint(121, 15));
    QCOMPARE(slider.value(), 1);
    drag(slider, QPoint(60, 15));
    QCOMPARE(slider.value(), 0);
    release(slider, QPoint(60, 15));
}

void tst_OvCustomSlider::wholeRangeOf32Bits()
{
    Slider slider(Qt::Horizontal);
    slider.resize(301, 30);
    slider.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    slider.setValue(slider.minimum());
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
    QVERIFY2(std::abs(double(slider.value())) < 5e7, qPrintable(QString::number(slider.value())));
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(300, 15));
    QCOMPARE(slider.value(), slider.maximum());
}

void tst_OvCustomSlider::otherButtons()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    QTest::mouseClick(&slider, Qt::RightButton, Qt::NoModifier, QPoint(150, 15));
    QCOMPARE(slider.value(), 0);
    sendMouse(slider, QEvent::MouseButtonPress, QPoint(150, 15), Qt::LeftButton,
              Qt::LeftButton | Qt::RightButton);
    QCOMPARE(slider.value(), 0);
    QVERIFY(!slider.isSliderDown());
}

void tst_OvCustomSlider::emptyRange()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setRange(5, 5);
    QSignalSpy spy(&slider, &QAbstractSlider::sliderPressed);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
    QCOMPARE(slider.value(), 5);
    QCOMPARE(spy.count(), 0);
}

void tst_OvCustomSlider::disabled()
{
    Slider slider(Qt::Horizontal);
    slider.resize(200, 30);
    slider.setEnabled(false);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
    QCOMPARE(slider.value(), 0);
}

void tst_OvCustomSlider::wheel()
{
    QWidget window;
    QLineEdit other(&window);
    Slider slider(Qt::Horizontal, &window);
    slider.setValue(50);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    QVERIFY(!turnWheel(slider, 120));
    QCOMPARE(slider.value(), 50);
    QVERIFY(!slider.hasFocus());
    slider.setFocus();
    QVERIFY(turnWheel(slider, 120));
    QVERIFY(slider.value() > 50);
}

void tst_OvCustomSlider::wheelAtTheEnd()
{
    Slider slider(Qt::Horizontal);
    slider.show();
    slider.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&slider));
    slider.setFocus();
    slider.setValue(slider.maximum());
    QVERIFY(turnWheel(slider, 120));
    QCOMPARE(slider.value(), slider.maximum());
}

void tst_OvCustomSlider::deletedByAListener_data()
{
    QTest::addColumn<bool>("whileMoving");
    QTest::newRow("sliderMoved") << true;
    QTest::newRow("valueChanged") << false;
}

void tst_OvCustomSlider::deletedByAListener()
{
    QFETCH(bool, whileMoving);
    const QPointer<Slider> slider(new Slider(Qt::Horizontal));
    slider->resize(200, 30);
    // Behind sliderMoved QAbstractSlider needs the slider if it tracks.
    slider->setTracking(!whileMoving);
    const auto destroy = [target = slider.data()] { delete target; };
    if (whileMoving) {
        connect(slider, &QAbstractSlider::sliderMoved, this, destroy);
    } else {
        connect(slider, &QAbstractSlider::valueChanged, this, destroy);
    }
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(150, 15), QPoint(150, 15), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(slider, &press);
    QVERIFY(slider.isNull());
}

void tst_OvCustomSlider::tinySizes()
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (int size = 0; size < 12; ++size) {
            Slider slider(orientation);
            slider.resize(size, size);
            QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(size / 2, size / 2));
            slider.grab();
            QVERIFY(slider.value() >= slider.minimum() && slider.value() <= slider.maximum());
        }
    }
}

UIC_TEST_MAIN(tst_OvCustomSlider)
#include "tst_OvCustomSlider.moc"
