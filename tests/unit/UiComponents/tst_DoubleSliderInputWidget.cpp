#include "DecimalNumber.h"
#include "FocusedBy.h"
#include "FreedMemory.h"
#include "MetaObject.h"
#include "SpinBoxTyping.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/DoubleSliderInputWidget.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <utility>

namespace {

using Values = QVector<double>;
using Ints = std::numeric_limits<int>;
using Doubles = std::numeric_limits<double>;

OvDoubleSlider* sliderOf(const QWidget& field)
{
    return field.findChild<OvDoubleSlider*>(QStringLiteral("slider"), Qt::FindDirectChildrenOnly);
}

OvDoubleSpinBox* spinBoxOf(const QWidget& field)
{
    return field.findChild<OvDoubleSpinBox*>(QStringLiteral("spinbox"), Qt::FindDirectChildrenOnly);
}

/// A field that records what it reports.
class Field : public DoubleSliderInputWidget
{
public:
    Field(double minimum, double maximum, int decimals, QWidget* parent = nullptr)
        : DoubleSliderInputWidget(parent, {minimum, maximum, decimals})
    {
        connect(this, &DoubleSliderInputWidget::valueChanged, this, [this](double value) {
            m_reports += value;
            inStep = inStep && slider->doubleValue() == value && spinBox->value() == value;
        });
    }

    /// What was reported since the last call.
    Values reports() { return std::exchange(m_reports, {}); }

    QLineEdit* edit() const { return spinBox->findChild<QLineEdit*>(); }

    OvDoubleSlider* const slider = sliderOf(*this);
    OvDoubleSpinBox* const spinBox = spinBoxOf(*this);
    /// Whether both parts showed the value whenever it was reported.
    bool inStep = true;

private:
    Values m_reports;
};

} // namespace

class tst_DoubleSliderInputWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void initializer();
    void construction();
    void constructionIsSilent();
    void decimals_data();
    void decimals();
    void oddDecimals_data();
    void oddDecimals();
    void bounds_data();
    void bounds();
    void firstValue_data();
    void firstValue();

    void setValueReportsTwice();
    void setValueOfThePresentValue();
    void setValueIsClamped_data();
    void setValueIsClamped();
    void setValueIsRoundedToTheDecimals_data();
    void setValueIsRoundedToTheDecimals();
    void setValueIgnoresNaN();
    void negativeZeroIsZero();
    void randomWalk_data();
    void randomWalk();

    void sliderMoves();
    void sliderKeys();
    void spinBoxSteps();
    void typingIsNotRewritten_data();
    void typingIsNotRewritten();
    void typedMark_data();
    void typedMark();
    void wheelNeedsFocus_data();
    void wheelNeedsFocus();

    void slotSetsAnotherValue();
    void slotKeepsSettingOtherValues();
    void deletedInItsSignal_data();
    void deletedInItsSignal();
    void destroyedWhileTyping();

    void labelBuddyReachesTheSlider();
    void tabOrder();
    void rightToLeft();
};

void tst_DoubleSliderInputWidget::metaObject()
{
    const QMetaObject& meta = DoubleSliderInputWidget::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("DoubleSliderInputWidget"));
    QCOMPARE(meta.superClass(), &OvFrame::staticMetaObject);
    QCOMPARE(ownMethods(meta), QStringList({QStringLiteral("signal valueChanged(double)")}));
    QCOMPARE(QByteArray(meta.method(meta.methodOffset()).parameterNames().front()), QByteArray("value"));
    QCOMPARE(ownProperties(meta), QStringList());
}

void tst_DoubleSliderInputWidget::initializer()
{
    const auto [minimum, maximum, decimals] = DoubleSliderInputWidget::Initializer{-0.5, 8.0, 3};
    QCOMPARE(minimum, -0.5);
    QCOMPARE(maximum, 8.0);
    QCOMPARE(decimals, 3);
}

void tst_DoubleSliderInputWidget::construction()
{
    QWidget parent;
    const auto* field = new DoubleSliderInputWidget(&parent, {-1.0, 1.0, 2});
    QCOMPARE(field->parentWidget(), &parent);

    OvDoubleSlider* slider = sliderOf(*field);
    OvDoubleSpinBox* spinBox = spinBoxOf(*field);
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
    QCOMPARE(slider->multiplier(), 0.01);
    QCOMPARE(slider->minimum(), -100);
    QCOMPARE(slider->maximum(), 100);
    QCOMPARE(spinBox->minimum(), -1.0);
    QCOMPARE(spinBox->maximum(), 1.0);
    QCOMPARE(spinBox->decimals(), 2);
    QCOMPARE(spinBox->singleStep(), 0.01);
    QVERIFY(spinBox->bothDecimalMarksAccepted());
    QCOMPARE(spinBox->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
    QCOMPARE(spinBox->correctionMode(), QAbstractSpinBox::CorrectToNearestValue);
}

// A queued emission would still reach the field's recorder.
void tst_DoubleSliderInputWidget::constructionIsSilent()
{
    Field field(0.125, 20.0, 5);
    field.show();
    QCoreApplication::processEvents();
    QCOMPARE(field.reports(), Values());
    QCOMPARE(field.spinBox->value(), 0.125);
}

void tst_DoubleSliderInputWidget::decimals_data()
{
    QTest::addColumn<int>("decimals");
    for (int decimals = 0; decimals <= 9; ++decimals) {
        QTest::addRow("%d", decimals) << decimals;
    }
}

void tst_DoubleSliderInputWidget::decimals()
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

void tst_DoubleSliderInputWidget::oddDecimals_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<int>("shown");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    for (const double limit : {1.0, 0.0, 1e300, Doubles::max(), Doubles::infinity()}) {
        QTest::addRow("-1, to %g", limit) << -1 << 0 << -limit << limit;
        QTest::addRow("-400, to %g", limit) << -400 << 0 << -limit << limit;
        QTest::addRow("least, to %g", limit) << Ints::min() << 0 << -limit << limit;
        QTest::addRow("10, to %g", limit) << 10 << 10 << -limit << limit;
        QTest::addRow("20, to %g", limit) << 20 << 20 << -limit << limit;
        QTest::addRow("400, to %g", limit) << 400 << 323 << -limit << limit;
        QTest::addRow("largest, to %g", limit) << Ints::max() << 323 << -limit << limit;
    }
}

// They make no sense, but no harm either.
void tst_DoubleSliderInputWidget::oddDecimals()
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

void tst_DoubleSliderInputWidget::bounds_data()
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

void tst_DoubleSliderInputWidget::bounds()
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

void tst_DoubleSliderInputWidget::firstValue_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::newRow("0 inside") << -0.5 << 0.5 << 0.0;
    QTest::newRow("above 0") << 0.125 << 20.0 << 0.125;
    QTest::newRow("below 0") << -20.0 << -0.125 << -0.125;
    QTest::newRow("beyond the spin box's own range") << 1000.001 << 2000.0 << 1000.001;
}

void tst_DoubleSliderInputWidget::firstValue()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    const Field field(minimum, maximum, 3);
    QCOMPARE(field.slider->doubleValue(), value);
    QCOMPARE(field.spinBox->value(), value);
}

void tst_DoubleSliderInputWidget::setValueReportsTwice()
{
    Field field(0.0, 1.0, 2);
    QStringList order;
    connect(field.slider, &OvDoubleSlider::doubleValueChanged, this,
            [&] { order += QStringLiteral("slider"); });
    connect(field.spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [&] { order += QStringLiteral("spin box"); });
    field.setValue(0.3);
    // The spin box was set, and the slider followed it before the spin box's own report.
    QCOMPARE(field.reports(), Values({0.3, 0.3}));
    QCOMPARE(order, QStringList({QStringLiteral("slider"), QStringLiteral("spin box")}));
    QVERIFY(field.inStep);
    QCOMPARE(field.slider->value(), 30);
    QCOMPARE(field.spinBox->cleanText(), QStringLiteral("0.30"));
}

void tst_DoubleSliderInputWidget::setValueOfThePresentValue()
{
    Field field(0.0, 1.0, 2);
    field.setValue(0.0);
    QCOMPARE(field.reports(), Values());
    field.setValue(0.3);
    field.reports();
    field.setValue(0.3);
    field.setValue(0.1 + 0.2); // not the same double
    field.setValue(0.3004);
    QCOMPARE(field.reports(), Values());
    QVERIFY(field.slider->doubleValue() == 0.3);
}

void tst_DoubleSliderInputWidget::setValueIsClamped_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("reported");
    QTest::newRow("one step above") << 1.01 << 1.0;
    QTest::newRow("one step below") << -0.51 << -0.5;
    QTest::newRow("largest") << Doubles::max() << 1.0;
    QTest::newRow("least") << Doubles::lowest() << -0.5;
    QTest::newRow("infinite") << Doubles::infinity() << 1.0;
    QTest::newRow("negative infinite") << -Doubles::infinity() << -0.5;
}

void tst_DoubleSliderInputWidget::setValueIsClamped()
{
    QFETCH(double, value);
    QFETCH(double, reported);
    Field field(-0.5, 1.0, 2);
    field.setValue(value);
    QCOMPARE(field.reports(), Values({reported, reported}));
    QVERIFY(field.inStep);
    field.setValue(value);
    QCOMPARE(field.reports(), Values());
}

void tst_DoubleSliderInputWidget::setValueIsRoundedToTheDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("reported");
    QTest::newRow("up") << 0.126 << 0.13;
    QTest::newRow("down") << 0.124 << 0.12;
    QTest::newRow("negative up") << -0.124 << -0.12;
    QTest::newRow("negative down") << -0.126 << -0.13;
    QTest::newRow("into the range") << 1.004 << 1.0;
}

// What is reported is what is shown, not what was asked for.
void tst_DoubleSliderInputWidget::setValueIsRoundedToTheDecimals()
{
    QFETCH(double, value);
    QFETCH(double, reported);
    Field field(-1.0, 1.0, 2);
    field.setValue(value);
    QCOMPARE(field.reports(), Values({reported, reported}));
    QVERIFY(field.inStep);
    QVERIFY(field.slider->doubleValue() == reported);
}

void tst_DoubleSliderInputWidget::setValueIgnoresNaN()
{
    Field field(0.0, 1.0, 2);
    field.setValue(0.5);
    field.reports();
    field.setValue(Doubles::quiet_NaN());
    QCOMPARE(field.reports(), Values());
    QCOMPARE(field.slider->doubleValue(), 0.5);
    QCOMPARE(field.spinBox->value(), 0.5);
}

void tst_DoubleSliderInputWidget::negativeZeroIsZero()
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

void tst_DoubleSliderInputWidget::randomWalk_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<unsigned>("seed");
    for (int decimals = 0; decimals <= 9; ++decimals) {
        for (unsigned seed = 1; seed <= 4; ++seed) {
            QTest::addRow("%d decimals, seed %u", decimals, seed) << decimals << seed;
        }
    }
}

// The numbers are counted in whole steps and turned into doubles as text: no rounding of doubles is part
// of what is expected.
void tst_DoubleSliderInputWidget::randomWalk()
{
    QFETCH(int, decimals);
    QFETCH(unsigned, seed);
    std::mt19937 generator(seed * 100 + static_cast<unsigned>(decimals));
    // Of any size: as many small numbers as large ones.
    const auto any = [&generator] {
        return static_cast<int>(static_cast<qint32>(generator()) >> (generator() % 31));
    };
    const auto number = [decimals](int steps) { return decimalNumber(steps, decimals); };
    for (int round = 0; round < 12; ++round) {
        const int first = any();
        const int last = qMax(first, any());
        Field field(number(first), number(last), decimals);
        field.show(); // the text is written only then
        QCOMPARE(field.slider->minimum(), first);
        QCOMPARE(field.slider->maximum(), last);
        int step = qBound(first, 0, last);
        for (int i = 0; i < 16; ++i) {
            int wanted = any();
            const int expected = qBound(first, wanted, last);
            // Into a field of one value nothing can be typed.
            switch (generator() % (first == last ? 4 : 5)) {
            case 0:
                field.setValue(number(wanted));
                break;
            case 1:
                field.slider->setValue(wanted);
                break;
            case 2:
                field.spinBox->setValue(number(wanted));
                break;
            case 3:
                // Nearest to the same step.
                field.setValue(
                    decimalNumber(qint64(wanted) * 100 + qint64(generator() % 99) - 49, decimals + 2));
                break;
            default: {
                // A digit that leads out of the range is not taken.
                QString text = QString::number(number(expected), 'f', decimals);
                if (generator() % 2 == 0) {
                    text.replace(QLatin1Char('.'), QLatin1Char(','));
                }
                typeInto(field.spinBox, text);
                QCOMPARE(field.edit()->text(), text);
                QTest::keyClick(field.spinBox, Qt::Key_Return);
                break;
            }
            }
            QCOMPARE(field.slider->value(), expected);
            QVERIFY(field.slider->doubleValue() == number(expected));
            QVERIFY(field.spinBox->value() == number(expected));
            QCOMPARE(field.spinBox->cleanText(), QString::number(number(expected), 'f', decimals));
            const Values reports = field.reports();
            QVERIFY((reports.isEmpty() ? number(step) : reports.last()) == number(expected));
            QVERIFY(field.inStep);
            step = expected;
        }
    }
}

// The spin box follows first and reports; then the slider does.
void tst_DoubleSliderInputWidget::sliderMoves()
{
    Field field(0.0, 1.0, 2);
    field.slider->setSliderDown(true);
    field.slider->setSliderPosition(29);
    QCOMPARE(field.reports(), Values({0.29, 0.29}));
    field.slider->setSliderPosition(29);
    QCOMPARE(field.reports(), Values());
    field.slider->setSliderDown(false);
    QCOMPARE(field.reports(), Values());
    QCOMPARE(field.spinBox->cleanText(), QStringLiteral("0.29"));
    QVERIFY(field.inStep);
}

void tst_DoubleSliderInputWidget::sliderKeys()
{
    Field field(0.0, 1.0, 2);
    QTest::keyClick(field.slider, Qt::Key_End);
    QCOMPARE(field.reports(), Values({1.0, 1.0}));
    QTest::keyClick(field.slider, Qt::Key_Right);
    QCOMPARE(field.reports(), Values());
    QTest::keyClick(field.slider, Qt::Key_Left);
    QCOMPARE(field.reports(), Values({0.99, 0.99}));
}

void tst_DoubleSliderInputWidget::spinBoxSteps()
{
    Field field(0.0, 1.0, 2);
    for (int i = 1; i <= 100; ++i) {
        QTest::keyClick(field.spinBox, Qt::Key_Up);
        QCOMPARE(field.slider->value(), i);
        QVERIFY(field.spinBox->value() == decimalNumber(i, 2));
    }
    QVERIFY(field.inStep);
    QCOMPARE(field.reports().size(), 200);
    QTest::keyClick(field.spinBox, Qt::Key_Up);
    QCOMPARE(field.reports(), Values());
}

void tst_DoubleSliderInputWidget::typingIsNotRewritten_data()
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

void tst_DoubleSliderInputWidget::typingIsNotRewritten()
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

void tst_DoubleSliderInputWidget::typedMark_data()
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

void tst_DoubleSliderInputWidget::typedMark()
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

void tst_DoubleSliderInputWidget::wheelNeedsFocus_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("slider") << "slider";
    QTest::newRow("spin box") << "spinbox";
}

void tst_DoubleSliderInputWidget::wheelNeedsFocus()
{
    QFETCH(QString, part);
    QWidget window;
    QLineEdit other(&window);
    Field field(0.0, 1.0, 2, &window);
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

void tst_DoubleSliderInputWidget::slotSetsAnotherValue()
{
    Field field(0.0, 1.0, 2);
    bool once = true;
    connect(&field, &DoubleSliderInputWidget::valueChanged, this, [&] {
        if (once) {
            once = false;
            field.setValue(0.7);
        }
    });
    field.setValue(0.2);
    QCOMPARE(field.slider->doubleValue(), 0.7);
    QCOMPARE(field.spinBox->value(), 0.7);
    // The second report of the first value was on its way already.
    QCOMPARE(field.reports(), Values({0.2, 0.7, 0.7, 0.2}));
}

// Such as a host that takes only tenths.
void tst_DoubleSliderInputWidget::slotKeepsSettingOtherValues()
{
    Field field(0.0, 1.0, 2);
    connect(&field, &DoubleSliderInputWidget::valueChanged, this,
            [&field](double value) { field.setValue(std::floor(value * 10.0 + 1e-6) / 10.0); });
    field.setValue(0.37);
    QCOMPARE(field.spinBox->value(), 0.3);
    QCOMPARE(field.slider->doubleValue(), 0.3);
    field.slider->setValue(58);
    QCOMPARE(field.spinBox->value(), 0.5);
    QCOMPARE(field.slider->value(), 50);
    field.spinBox->setValue(0.99);
    QCOMPARE(field.spinBox->value(), 0.9);
    QCOMPARE(field.slider->value(), 90);
}

void tst_DoubleSliderInputWidget::deletedInItsSignal_data()
{
    QTest::addColumn<QString>("action");
    for (const char* action :
         {"setValue", "slider", "slider value", "drag", "slider key", "spin box", "Enter"}) {
        QTest::addRow("%s", action) << QString::fromLatin1(action);
    }
}

void tst_DoubleSliderInputWidget::deletedInItsSignal()
{
    QFETCH(QString, action);
    const FreedMemoryWatch watch;
    const QPointer<DoubleSliderInputWidget> field = new DoubleSliderInputWidget(nullptr, {0.0, 1.0, 2});
    OvDoubleSlider* slider = sliderOf(*field);
    OvDoubleSpinBox* spinBox = spinBoxOf(*field);
    field->resize(300, 40);
    field->show();
    if (action == QLatin1String("Enter")) {
        spinBox->setKeyboardTracking(false);
        spinBox->selectAll();
        QTest::keyClicks(spinBox, QStringLiteral("0.5"));
    }
    connect(field.data(), &DoubleSliderInputWidget::valueChanged, this, [&] { delete field; });
    if (action == QLatin1String("setValue")) {
        field->setValue(0.7);
    } else if (action == QLatin1String("slider")) {
        slider->setValue(7);
    } else if (action == QLatin1String("slider value")) {
        slider->setDoubleValue(0.7);
    } else if (action == QLatin1String("drag")) {
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, slider->rect().center());
    } else if (action == QLatin1String("slider key")) {
        QTest::keyPress(slider, Qt::Key_Right);
    } else if (action == QLatin1String("spin box")) {
        spinBox->setValue(0.7);
    } else {
        QTest::keyPress(spinBox, Qt::Key_Return);
    }
    QVERIFY(!field);
    QVERIFY(watch.deleted() > 0);
    QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
}

void tst_DoubleSliderInputWidget::destroyedWhileTyping()
{
    auto field = std::make_unique<DoubleSliderInputWidget>(
        nullptr, DoubleSliderInputWidget::Initializer{10.0, 100.0, 1});
    field->setValue(50);
    auto* spinBox = spinBoxOf(*field);
    destroyWhileTyping(std::move(field), spinBox);
}

void tst_DoubleSliderInputWidget::labelBuddyReachesTheSlider()
{
    QWidget form;
    auto* edit = new QLineEdit(&form);
    auto* label = new QLabel(QStringLiteral("&Opacity"), &form);
    auto* field = new DoubleSliderInputWidget(&form, {0.0, 1.0, 2});
    label->setBuddy(field);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    edit->setFocus();
    QTest::keyClick(&form, Qt::Key_O, Qt::AltModifier);
    QCOMPARE(form.focusWidget(), sliderOf(*field));
}

void tst_DoubleSliderInputWidget::tabOrder()
{
    QWidget form;
    auto* before = new QLineEdit(&form);
    auto* field = new DoubleSliderInputWidget(&form, {0.0, 1.0, 2});
    auto* after = new QLineEdit(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    before->setFocus();
    QCOMPARE(focusedBy(Qt::Key_Tab, 3, form), QList<QWidget*>({sliderOf(*field), spinBoxOf(*field), after}));
}

void tst_DoubleSliderInputWidget::rightToLeft()
{
    Field field(0.0, 1.0, 2);
    field.setLayoutDirection(Qt::RightToLeft);
    field.resize(300, 30);
    field.show();
    QVERIFY(field.slider->x() > field.spinBox->x());
    QTest::keyClick(field.slider, Qt::Key_Left);
    QCOMPARE(field.reports(), Values({0.01, 0.01}));
}

UIC_TEST_MAIN(tst_DoubleSliderInputWidget)
#include "tst_DoubleSliderInputWidget.moc"
