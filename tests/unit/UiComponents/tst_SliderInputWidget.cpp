#include "FocusedBy.h"
#include "FreedMemory.h"
#include "MetaObject.h"
#include "SpinBoxTyping.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QFormLayout>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QtMath>

#include <limits>
#include <memory>
#include <random>
#include <utility>

namespace {

using Values = QVector<int>;
using Limits = std::numeric_limits<int>;

OvCustomSlider* sliderOf(const QWidget& field)
{
    return field.findChild<OvCustomSlider*>(QStringLiteral("slider"), Qt::FindDirectChildrenOnly);
}

OvSpinBox* spinBoxOf(const QWidget& field)
{
    return field.findChild<OvSpinBox*>(QStringLiteral("spinbox"), Qt::FindDirectChildrenOnly);
}

/// A field that records what it reports.
class Field : public SliderInputWidget
{
public:
    Field(int minimum, int maximum, QWidget* parent = nullptr)
        : SliderInputWidget(parent, {minimum, maximum})
    {
        connect(this, &SliderInputWidget::valueChanged, this, [this](int value) {
            m_reports += value;
            inStep = inStep && slider->value() == value && spinBox->value() == value;
        });
    }

    /// What was reported since the last call.
    Values reports() { return std::exchange(m_reports, {}); }

    OvCustomSlider* const slider = sliderOf(*this);
    OvSpinBox* const spinBox = spinBoxOf(*this);
    /// Whether both parts showed the value whenever it was reported.
    bool inStep = true;

private:
    Values m_reports;
};

} // namespace

class tst_SliderInputWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void initializer();
    void construction();
    void constructionIsSilent();
    void firstValue_data();
    void firstValue();

    void setValueReportsTwice();
    void setValueOfThePresentValue();
    void setValueIsClamped_data();
    void setValueIsClamped();
    void reversedRange();
    void rangeOfOneValue();
    void extremesOf32Bits();
    void randomWalk_data();
    void randomWalk();

    void sliderMoves();
    void sliderKeys();
    void spinBoxSteps();
    void typingIsNotRewritten();
    void typedBeyondTheRange_data();
    void typedBeyondTheRange();
    void wheelNeedsFocus_data();
    void wheelNeedsFocus();

    void slotSetsAnotherValue();
    void slotKeepsSettingOtherValues();
    void partMovedInASlot();
    void deletedInItsSignal_data();
    void deletedInItsSignal();
    void deletedLaterWhileTyping();
    void destroyedWhileTyping();

    void labelBuddyReachesTheSlider();
    void tabOrder();
    void disabled();
    void rightToLeft();
    void sheetSetsMetrics();
};

void tst_SliderInputWidget::metaObject()
{
    const QMetaObject& meta = SliderInputWidget::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("SliderInputWidget"));
    QCOMPARE(meta.superClass(), &OvFrame::staticMetaObject);
    QCOMPARE(ownMethods(meta), QStringList({QStringLiteral("signal valueChanged(int)")}));
    QCOMPARE(QByteArray(meta.method(meta.methodOffset()).parameterNames().front()), QByteArray("value"));
    QCOMPARE(ownProperties(meta), QStringList());
}

void tst_SliderInputWidget::initializer()
{
    const auto [minimum, maximum] = SliderInputWidget::Initializer{-3, 8};
    QCOMPARE(minimum, -3);
    QCOMPARE(maximum, 8);
}

void tst_SliderInputWidget::construction()
{
    QWidget parent;
    const auto* field = new SliderInputWidget(&parent, {-3, 8});
    QCOMPARE(field->parentWidget(), &parent);

    OvCustomSlider* slider = sliderOf(*field);
    OvSpinBox* spinBox = spinBoxOf(*field);
    QVERIFY(slider);
    QVERIFY(spinBox);
    QLayout* layout = field->layout();
    QVERIFY(layout);
    QCOMPARE(QByteArray(layout->metaObject()->className()), QByteArray("OvHBoxLayout"));
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), slider);
    QCOMPARE(layout->itemAt(1)->widget(), spinBox);

    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(slider->minimum(), -3);
    QCOMPARE(slider->maximum(), 8);
    QCOMPARE(spinBox->minimum(), -3);
    QCOMPARE(spinBox->maximum(), 8);
    QCOMPARE(spinBox->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(spinBox->correctionMode(), QAbstractSpinBox::CorrectToNearestValue);
}

// A queued emission would still reach the field's recorder.
void tst_SliderInputWidget::constructionIsSilent()
{
    Field field(10, 20);
    QCoreApplication::processEvents();
    QCOMPARE(field.reports(), Values());
}

void tst_SliderInputWidget::firstValue_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::newRow("0 inside") << -5 << 5 << 0;
    QTest::newRow("above 0") << 10 << 20 << 10;
    QTest::newRow("below 0") << -20 << -10 << -10;
    QTest::newRow("beyond the spin box's own range") << 1000 << 2000 << 1000;
}

void tst_SliderInputWidget::firstValue()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    const Field field(minimum, maximum);
    QCOMPARE(field.slider->value(), value);
    QCOMPARE(field.spinBox->value(), value);
}

void tst_SliderInputWidget::setValueReportsTwice()
{
    Field field(0, 100);
    QStringList order;
    connect(field.slider, &QAbstractSlider::valueChanged, this, [&] { order += QStringLiteral("slider"); });
    connect(field.spinBox, qOverload<int>(&QSpinBox::valueChanged), this,
            [&] { order += QStringLiteral("spin box"); });
    field.setValue(42);
    // The spin box was set, and the slider followed it before the spin box's own report.
    QCOMPARE(field.reports(), Values({42, 42}));
    QCOMPARE(order, QStringList({QStringLiteral("slider"), QStringLiteral("spin box")}));
    QVERIFY(field.inStep);
    QCOMPARE(field.slider->value(), 42);
    QCOMPARE(field.spinBox->value(), 42);
}

void tst_SliderInputWidget::setValueOfThePresentValue()
{
    Field field(0, 100);
    field.setValue(0);
    QCOMPARE(field.reports(), Values());
    field.setValue(42);
    field.reports();
    field.setValue(42);
    QCOMPARE(field.reports(), Values());
}

void tst_SliderInputWidget::setValueIsClamped_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("reported");
    QTest::newRow("one above") << 101 << 100;
    QTest::newRow("one below") << -51 << -50;
    QTest::newRow("largest") << Limits::max() << 100;
    QTest::newRow("least") << Limits::min() << -50;
}

void tst_SliderInputWidget::setValueIsClamped()
{
    QFETCH(int, value);
    QFETCH(int, reported);
    Field field(-50, 100);
    field.setValue(value);
    QCOMPARE(field.reports(), Values({reported, reported}));
    QVERIFY(field.inStep);
    field.setValue(value);
    QCOMPARE(field.reports(), Values());
}

// The slider is given both ends as they are and makes the minimum win.
void tst_SliderInputWidget::reversedRange()
{
    Field field(9, 3);
    QCOMPARE(field.slider->minimum(), 9);
    QCOMPARE(field.slider->maximum(), 9);
    QCOMPARE(field.spinBox->minimum(), 9);
    QCOMPARE(field.spinBox->maximum(), 9);
    field.setValue(5);
    QCOMPARE(field.reports(), Values());
    QCOMPARE(field.spinBox->value(), 9);
}

void tst_SliderInputWidget::rangeOfOneValue()
{
    Field field(7, 7);
    QCOMPARE(field.slider->value(), 7);
    QCOMPARE(field.spinBox->value(), 7);
    field.setValue(8);
    QTest::keyClick(field.slider, Qt::Key_Right);
    QTest::keyClick(field.spinBox, Qt::Key_Up);
    QCOMPARE(field.reports(), Values());
}

void tst_SliderInputWidget::extremesOf32Bits()
{
    Field field(Limits::min(), Limits::max());
    field.show();
    field.setValue(Limits::max());
    QCOMPARE(field.reports(), Values({Limits::max(), Limits::max()}));
    field.setValue(Limits::min());
    QCOMPARE(field.reports(), Values({Limits::min(), Limits::min()}));
    field.grab();
    QTest::keyClick(field.spinBox, Qt::Key_Down);
    QTest::keyClick(field.slider, Qt::Key_Left);
    QCOMPARE(field.reports(), Values());
    typeInto(field.spinBox, QStringLiteral("2147483647"));
    QCOMPARE(field.spinBox->value(), Limits::max());
    QCOMPARE(field.slider->value(), Limits::max());
    QVERIFY(field.inStep);
}

void tst_SliderInputWidget::randomWalk_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 20; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void tst_SliderInputWidget::randomWalk()
{
    QFETCH(unsigned, seed);
    std::mt19937 generator(seed);
    // Of any size: as many small numbers as large ones.
    const auto any = [&generator] {
        return static_cast<int>(static_cast<qint32>(generator()) >> (generator() % 31));
    };
    for (int round = 0; round < 20; ++round) {
        const int minimum = any();
        const int maximum = any();
        const int last = qMax(minimum, maximum);
        Field field(minimum, maximum);
        field.show(); // the text is written only then
        int value = qBound(minimum, 0, last);
        for (int step = 0; step < 20; ++step) {
            int wanted = any();
            switch (generator() % 4) {
            case 0:
                field.setValue(wanted);
                break;
            case 1:
                field.slider->setValue(wanted);
                break;
            case 2:
                field.spinBox->setValue(wanted);
                break;
            default:
                // A digit that leads out of the range is not taken.
                wanted = qBound(minimum, wanted, last);
                typeInto(field.spinBox, QString::number(wanted));
                QTest::keyClick(field.spinBox, Qt::Key_Return);
                break;
            }
            const int expected = qBound(minimum, wanted, last);
            QCOMPARE(field.slider->value(), expected);
            QCOMPARE(field.spinBox->value(), expected);
            QCOMPARE(field.spinBox->cleanText(), QString::number(expected));
            const Values reports = field.reports();
            QVERIFY(field.inStep);
            QCOMPARE(reports.isEmpty() ? value : reports.last(), expected);
            value = expected;
        }
    }
}

// The spin box follows first and reports; then the slider does.
void tst_SliderInputWidget::sliderMoves()
{
    Field field(0, 100);
    field.slider->setSliderDown(true);
    field.slider->setSliderPosition(30);
    QCOMPARE(field.reports(), Values({30, 30}));
    field.slider->setSliderPosition(30);
    QCOMPARE(field.reports(), Values());
    field.slider->setSliderDown(false);
    QCOMPARE(field.reports(), Values());
    QCOMPARE(field.spinBox->cleanText(), QStringLiteral("30"));
    QVERIFY(field.inStep);
}

void tst_SliderInputWidget::sliderKeys()
{
    Field field(0, 100);
    QTest::keyClick(field.slider, Qt::Key_Right);
    QCOMPARE(field.reports(), Values({1, 1}));
    QTest::keyClick(field.slider, Qt::Key_End);
    QCOMPARE(field.reports(), Values({100, 100}));
    QTest::keyClick(field.slider, Qt::Key_Right);
    QCOMPARE(field.reports(), Values());
}

void tst_SliderInputWidget::spinBoxSteps()
{
    Field field(0, 100);
    QTest::keyClick(field.spinBox, Qt::Key_Up);
    QCOMPARE(field.reports(), Values({1, 1}));
    QTest::keyClick(field.spinBox, Qt::Key_PageUp);
    QCOMPARE(field.reports(), Values({11, 11}));
    QCOMPARE(field.slider->value(), 11);
    QVERIFY(field.inStep);
}

void tst_SliderInputWidget::typingIsNotRewritten()
{
    Field field(-100, 100);
    const QLineEdit* edit = field.spinBox->findChild<QLineEdit*>();
    field.spinBox->selectAll();
    QTest::keyClicks(field.spinBox, QStringLiteral("-0"));
    QCOMPARE(edit->text(), QStringLiteral("-0"));
    QTest::keyClicks(field.spinBox, QStringLiteral("07"));
    QCOMPARE(edit->text(), QStringLiteral("-007"));
    QCOMPARE(edit->cursorPosition(), 4);
    QCOMPARE(field.reports(), Values({-7, -7}));
    QCOMPARE(field.slider->value(), -7);
    QTest::keyClick(field.spinBox, Qt::Key_Return);
    QCOMPARE(edit->text(), QStringLiteral("-7"));
    QCOMPARE(field.reports(), Values());
}

void tst_SliderInputWidget::typedBeyondTheRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("too small") << "20" << 100;
    QTest::newRow("nothing") << "" << 100;
}

void tst_SliderInputWidget::typedBeyondTheRange()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    Field field(100, 200);
    field.setValue(150);
    field.reports();
    field.spinBox->selectAll();
    QTest::keyClick(field.spinBox, Qt::Key_Delete);
    QTest::keyClicks(field.spinBox, text);
    QCOMPARE(field.reports(), Values());
    QTest::keyClick(field.spinBox, Qt::Key_Return);
    QCOMPARE(field.spinBox->value(), value);
    QCOMPARE(field.slider->value(), value);
    QCOMPARE(field.spinBox->cleanText(), QString::number(value));
    QVERIFY(field.inStep);
}

void tst_SliderInputWidget::wheelNeedsFocus_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("slider") << "slider";
    QTest::newRow("spin box") << "spinbox";
}

void tst_SliderInputWidget::wheelNeedsFocus()
{
    QFETCH(QString, part);
    QWidget window;
    QLineEdit other(&window);
    Field field(0, 100, &window);
    auto* target = field.findChild<QWidget*>(part);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus();
    QVERIFY(!turnWheel(*target, 120));
    QCOMPARE(field.reports(), Values());
    target->setFocus();
    QVERIFY(turnWheel(*target, 120));
    QVERIFY(!field.reports().isEmpty());
    QVERIFY(field.inStep);
}

void tst_SliderInputWidget::slotSetsAnotherValue()
{
    Field field(0, 100);
    bool once = true;
    connect(&field, &SliderInputWidget::valueChanged, this, [&] {
        if (once) {
            once = false;
            field.setValue(70);
        }
    });
    field.setValue(20);
    QCOMPARE(field.slider->value(), 70);
    QCOMPARE(field.spinBox->value(), 70);
    // The second report of the first value was on its way already.
    QCOMPARE(field.reports(), Values({20, 70, 70, 20}));
}

// Such as a host that takes only multiples of ten.
void tst_SliderInputWidget::slotKeepsSettingOtherValues()
{
    Field field(0, 100);
    connect(&field, &SliderInputWidget::valueChanged, this,
            [&field](int value) { field.setValue(value / 10 * 10); });
    field.setValue(37);
    QCOMPARE(field.spinBox->value(), 30);
    QCOMPARE(field.slider->value(), 30);
    field.slider->setValue(58);
    QCOMPARE(field.spinBox->value(), 50);
    QCOMPARE(field.slider->value(), 50);
    field.spinBox->setValue(99);
    QCOMPARE(field.spinBox->value(), 90);
    QCOMPARE(field.slider->value(), 90);
}

void tst_SliderInputWidget::partMovedInASlot()
{
    Field field(0, 100);
    connect(field.slider, &QAbstractSlider::valueChanged, this, [&field](int value) {
        if (value == 20) {
            field.slider->setValue(80);
        }
    });
    field.setValue(20);
    QCOMPARE(field.slider->value(), field.spinBox->value());
    QCOMPARE(field.slider->value(), 80);
}

void tst_SliderInputWidget::deletedInItsSignal_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("withParent");
    for (const char* action : {"setValue", "slider", "drag", "slider key", "spin box", "Enter"}) {
        QTest::addRow("%s", action) << QString::fromLatin1(action) << false;
        QTest::addRow("%s, with its parent", action) << QString::fromLatin1(action) << true;
    }
}

void tst_SliderInputWidget::deletedInItsSignal()
{
    QFETCH(QString, action);
    QFETCH(bool, withParent);
    const FreedMemoryWatch watch;
    const QPointer<QWidget> parent = new QWidget;
    const QPointer<SliderInputWidget> field =
        new SliderInputWidget(withParent ? parent.data() : nullptr, {0, 100});
    OvCustomSlider* slider = sliderOf(*field);
    OvSpinBox* spinBox = spinBoxOf(*field);
    (withParent ? parent.data() : field.data())->resize(300, 40);
    field->resize(300, 40);
    (withParent ? parent.data() : field.data())->show();
    if (action == QLatin1String("Enter")) {
        spinBox->setKeyboardTracking(false);
        QTest::keyClicks(spinBox, QStringLiteral("5"));
    }
    connect(field.data(), &SliderInputWidget::valueChanged, this,
            [&] { delete (withParent ? parent.data() : field.data()); });
    if (action == QLatin1String("setValue")) {
        field->setValue(7);
    } else if (action == QLatin1String("slider")) {
        slider->setValue(7);
    } else if (action == QLatin1String("drag")) {
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier,
                          {slider->width() / 2, slider->height() / 2});
    } else if (action == QLatin1String("slider key")) {
        QTest::keyPress(slider, Qt::Key_Right);
    } else if (action == QLatin1String("spin box")) {
        spinBox->setValue(7);
    } else {
        QTest::keyPress(spinBox, Qt::Key_Return);
    }
    QVERIFY(!field);
    QVERIFY(watch.deleted() > 0);
    QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
    delete parent;
}

void tst_SliderInputWidget::deletedLaterWhileTyping()
{
    const QPointer<SliderInputWidget> field = new SliderInputWidget(nullptr, {0, 100});
    connect(field.data(), &SliderInputWidget::valueChanged, field.data(), &QObject::deleteLater);
    QTest::keyClicks(spinBoxOf(*field), QStringLiteral("5"));
    QTRY_VERIFY(!field);
}

void tst_SliderInputWidget::destroyedWhileTyping()
{
    auto field = std::make_unique<SliderInputWidget>(nullptr, SliderInputWidget::Initializer{10, 100});
    field->setValue(50);
    auto* spinBox = spinBoxOf(*field);
    destroyWhileTyping(std::move(field), spinBox);
}

void tst_SliderInputWidget::labelBuddyReachesTheSlider()
{
    QWidget form;
    auto* edit = new QLineEdit(&form);
    auto* label = new QLabel(QStringLiteral("&Volume"), &form);
    auto* field = new SliderInputWidget(&form, {0, 100});
    label->setBuddy(field);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    edit->setFocus();
    QTest::keyClick(&form, Qt::Key_V, Qt::AltModifier);
    QCOMPARE(form.focusWidget(), sliderOf(*field));
}

void tst_SliderInputWidget::tabOrder()
{
    QWidget form;
    auto* before = new QLineEdit(&form);
    auto* field = new SliderInputWidget(&form, {0, 100});
    auto* after = new QLineEdit(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    before->setFocus();
    QWidget* const slider = sliderOf(*field);
    QWidget* const spinBox = spinBoxOf(*field);
    QCOMPARE(focusedBy(Qt::Key_Tab, 3, form), QList<QWidget*>({slider, spinBox, after}));
    QCOMPARE(focusedBy(Qt::Key_Backtab, 3, form), QList<QWidget*>({spinBox, slider, before}));
}

void tst_SliderInputWidget::disabled()
{
    Field field(0, 100);
    field.setEnabled(false);
    QVERIFY(!field.slider->isEnabled());
    QVERIFY(!field.spinBox->isEnabled());
    field.setValue(5);
    QCOMPARE(field.reports(), Values({5, 5}));
}

void tst_SliderInputWidget::rightToLeft()
{
    Field field(0, 100);
    field.setLayoutDirection(Qt::RightToLeft);
    field.resize(300, 30);
    field.show();
    QVERIFY(field.slider->x() > field.spinBox->x());
    QTest::keyClick(field.slider, Qt::Key_Left);
    QCOMPARE(field.reports(), Values({1, 1}));
}

void tst_SliderInputWidget::sheetSetsMetrics()
{
    SliderInputWidget field(nullptr, {0, 100});
    field.setStyleSheet(QStringLiteral("SliderInputWidget { qproperty-layoutSpacing: 9; }"
                                       "SliderInputWidget > #spinbox { min-width: 77px; }"));
    field.show();
    QCOMPARE(field.layout()->spacing(), 9);
    QVERIFY(spinBoxOf(field)->width() >= 77);
}

UIC_TEST_MAIN(tst_SliderInputWidget)
#include "tst_SliderInputWidget.moc"
