#include "DecimalNumber.h"
#include "MarkingTranslator.h"
#include "MouseEvents.h"
#include "Part.h"
#include "SpinBoxTyping.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <utility>

namespace {

using Points = QVector<QPointF>;

struct Step
{
    Step silent() const { return {verb, to, {}}; }

    QString verb;
    QPointF to;
    Points reports;
};
using Story = QVector<Step>;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();

const PointSelectorWidget::Initializer hundreds = {{0.0, 0.0}, {100.0, 100.0}, 1, 1};

/// A field with a plane of 101 × 101 pixels that records what it reports.
class Field : public PointSelectorWidget
{
public:
    explicit Field(const Initializer& init = hundreds, QWidget* parent = nullptr)
        : PointSelectorWidget(parent, init)
    {
        plane->setFixedSize(101, 101);
        connect(this, &PointSelectorWidget::valueChanged, this,
                [this](const QPointF& value) { m_reports += value; });
        show();
    }

    /// What was reported since the last call.
    Points reports() { return std::exchange(m_reports, {}); }

    QPointF numbers() const { return {x->value(), y->value()}; }

    PointSelectionPlane* const plane = partOf<PointSelectionPlane>(*this, "pointSelector");
    OvDoubleSpinBox* const x = partOf<OvDoubleSpinBox>(*this, "xSpinbox");
    OvDoubleSpinBox* const y = partOf<OvDoubleSpinBox>(*this, "ySpinbox");

private:
    Points m_reports;
};

} // namespace

Q_DECLARE_METATYPE(PointSelectorWidget::Initializer)
Q_DECLARE_METATYPE(Story)

class tst_PointSelectorWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(!QWidget::mouseGrabber()); }

    void initializer()
    {
        const auto [minimum, maximum, xDecimals, yDecimals] =
            PointSelectorWidget::Initializer{{-1.0, -2.0}, {3.0, 4.0}, 5, 6};
        QCOMPARE(minimum, QPointF(-1.0, -2.0));
        QCOMPARE(maximum, QPointF(3.0, 4.0));
        QCOMPARE(xDecimals, 5);
        QCOMPARE(yDecimals, 6);
    }

    void setRange_data()
    {
        using Range = PointSelectorWidget::Initializer;
        QTest::addColumn<Range>("range");
        QTest::addColumn<QPointF>("expected");
        QTest::newRow("the same") << hundreds << QPointF(25.5, 75.0);
        QTest::newRow("wider") << Range{{-500.0, -500.0}, {500.0, 500.0}, 1, 1} << QPointF(25.5, 75.0);
        QTest::newRow("fewer decimals") << Range{{0.0, 0.0}, {100.0, 100.0}, 0, 0} << QPointF(26.0, 75.0);
        QTest::newRow("below the value") << Range{{0.0, 0.0}, {10.0, 20.0}, 1, 1} << QPointF(10.0, 20.0);
        QTest::newRow("above the value") << Range{{200.0, 0.0}, {300.0, 100.0}, 1, 1} << QPointF(200.0, 75.0);
        QTest::newRow("inverted") << Range{{0.0, 100.0}, {100.0, 0.0}, 1, 1} << QPointF(25.5, 100.0);
        QTest::newRow("without ends")
            << Range{{noNumber, -infinite}, {noNumber, infinite}, 1, 1} << QPointF(25.5, 75.0);
    }

    void setRange()
    {
        QFETCH(PointSelectorWidget::Initializer, range);
        QFETCH(QPointF, expected);
        Field field;
        field.setValue({25.5, 75.0});
        QCOMPARE(field.value(), QPointF(25.5, 75.0));
        field.reports();
        field.setRange(range);
        const Field made(range);
        for (const auto& [box, other] : {std::pair(field.x, made.x), std::pair(field.y, made.y)}) {
            QCOMPARE(box->minimum(), other->minimum());
            QCOMPARE(box->maximum(), other->maximum());
            QCOMPARE(box->decimals(), other->decimals());
            QCOMPARE(box->singleStep(), other->singleStep());
        }
        QCOMPARE(field.value(), expected);
        QCOMPARE(field.plane->point(), expected);
        QCOMPARE(field.reports(), expected == QPointF(25.5, 75.0) ? Points() : Points{expected});
        // The plane has the new scale.
        QTest::mousePress(field.plane, Qt::LeftButton, {}, QPoint(100, 100));
        if (qIsFinite(range.maximum.x()) && qIsFinite(range.maximum.y())) {
            QCOMPARE(field.plane->point(), range.maximum);
        }
        QTest::mouseRelease(field.plane, Qt::LeftButton, {}, QPoint(100, 100));
    }

    void spinBoxes()
    {
        const Field field({{-1.0, -20.0}, {2.0, 40.0}, 3, 0});
        const auto check = [](const OvDoubleSpinBox* box, double minimum, double maximum, int decimals,
                              double step) {
            QCOMPARE(box->minimum(), minimum);
            QCOMPARE(box->maximum(), maximum);
            QCOMPARE(box->decimals(), decimals);
            QCOMPARE(box->singleStep(), step);
            QVERIFY(box->bothDecimalMarksAccepted());
            QCOMPARE(box->alignment(), Qt::Alignment(Qt::AlignCenter));
            QCOMPARE(box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
            QCOMPARE(box->correctionMode(), QAbstractSpinBox::CorrectToNearestValue);
        };
        check(field.x, -1.0, 2.0, 3, 0.001);
        check(field.y, -20.0, 40.0, 0, 1.0);
        QCOMPARE(field.x->toolTip(), QStringLiteral("Position on the x-axis"));
        QCOMPARE(field.y->toolTip(), QStringLiteral("Position on the y-axis"));
    }

    // A queued emission would still reach the field's recorder.
    void constructionIsSilent()
    {
        Field field({{10.0, 20.0}, {30.0, 40.0}, 1, 1});
        QCoreApplication::processEvents();
        QCOMPARE(field.reports(), Points());
    }

    void startsInStep()
    {
        const Field one;
        QCOMPARE(one.numbers(), QPointF(0, 0));
        QCOMPARE(one.plane->point(), QPointF(0, 0));
        const Field other({{10.0, -40.0}, {30.0, -20.0}, 1, 1});
        QCOMPARE(other.numbers(), QPointF(10, -20));
        QCOMPARE(other.plane->point(), QPointF(10, -20));
        // A new spin box would round the ends to two decimals.
        const Field fine({{0.006, 1.006}, {0.009, 2.0}, 3, 3});
        QCOMPARE(fine.numbers(), QPointF(0.006, 1.006));
        QCOMPARE(fine.plane->point(), QPointF(0.006, 1.006));
    }

    void startsInAForm()
    {
        QWidget form;
        const PointSelectorWidget field(&form);
        QCOMPARE(field.parentWidget(), &form);
        const auto boxes = field.findChildren<QDoubleSpinBox*>();
        QCOMPARE(boxes.size(), 2);
        for (const QDoubleSpinBox* box : boxes) {
            QCOMPARE(box->minimum(), 0.0);
            QCOMPARE(box->maximum(), 1.0);
            QCOMPARE(box->decimals(), 2);
        }
    }

    // What is done, each with what is reported: for the plane, and for each coordinate that changes.
    void story_data()
    {
        QTest::addColumn<PointSelectorWidget::Initializer>("range");
        QTest::addColumn<Story>("story");
        QTest::addColumn<QPointF>("plane");
        QTest::addColumn<QPointF>("numbers");
        const auto row = [](const char* name, const Story& story, const QPointF& at) {
            QTest::newRow(name) << hundreds << story << at << at;
        };
        const Step there{"set", {30, 40}, {{30, 0}, {30, 40}}};
        row("click", {{"press", {30, 40}, {{30, 40}, {30, 0}, {30, 40}}}, {"release", {30, 40}, {{30, 40}}}},
            {30, 40});
        row("clicks that change one coordinate",
            {{"press", {30, 0}, {{30, 0}, {30, 0}}},
             {"release", {30, 0}, {{30, 0}}},
             {"press", {30, 40}, {{30, 40}, {30, 40}}},
             {"release", {30, 40}, {{30, 40}}}},
            {30, 40});
        row("click on the present point",
            {there, {"press", {30, 40}, {{30, 40}}}, {"release", {30, 40}, {{30, 40}}}}, {30, 40});
        row("drag and release",
            {{"press", {10, 10}, {{10, 10}, {10, 0}, {10, 10}}},
             {"drag", {11, 10}, {{11, 10}, {11, 10}}},
             {"drag", {11, 10}, {}},
             {"release", {500, -500}, {{100, 0}, {100, 10}, {100, 0}}}},
            {100, 0});
        row("keys of the plane",
            {there, {"right", {}, {{31, 40}, {31, 40}}}, {"down", {}, {{31, 50}, {31, 50}}}}, {31, 50});
        row("values", {there, {"set", {30, 50}, {{30, 50}}}, {"set", {20, 50}, {{20, 50}}}}, {20, 50});
        // To one decimal.
        row("the present value", {{"set", {0, 0}, {}}, there, there.silent(), {"set", {30.01, 39.99}, {}}},
            {30, 40});
        row("rounded", {{"set", {12.34, 56.78}, {{12.3, 0}, {12.3, 56.8}}}}, {12.3, 56.8});
        for (const double far : {101.0, infinite, largest}) {
            row(qPrintable(QString::number(far)), {there, {"set", {-far, far}, {{0, 40}, {0, 100}}}},
                {0, 100});
        }
        row("no numbers", {there, {"set", {noNumber, noNumber}, {}}}, {30, 40});
        row("no x", {there, {"set", {noNumber, 50}, {{30, 50}}}}, {30, 50});
        row("no y", {there, {"set", {50, noNumber}, {{50, 40}}}}, {50, 40});
        // The spin boxes round and clamp; the plane keeps the point as it was picked.
        QTest::newRow("outside of the plane")
            << hundreds << Story{{"press", {-50, 200}, {{-50, 200}, {0, 100}}}} << QPointF(-50, 200)
            << QPointF(0, 100);
        QTest::newRow("between the decimals")
            << PointSelectorWidget::Initializer{{0.0, 0.0}, {1.0, 1.0}, 1, 1}
            << Story{{"press", {33, 77}, {{0.33, 0.77}, {0.3, 0.0}, {0.3, 0.8}}},
                     {"release", {33, 77}, {{0.33, 0.77}}}}
            << QPointF(0.33, 0.77) << QPointF(0.3, 0.8);
        QTest::newRow("reversed range")
            << PointSelectorWidget::Initializer{{100.0, 0.0}, {0.0, 100.0}, 1, 1}
            << Story{{"press", {30, 40}, {{70, 40}, {100, 40}}}} << QPointF(70, 40) << QPointF(100, 40);
    }

    void story()
    {
        QFETCH(PointSelectorWidget::Initializer, range);
        QFETCH(Story, story);
        Field field(range);
        for (const Step& step : story) {
            const QString verb = step.verb;
            const QPoint pixel = verb == "set" ? QPoint() : step.to.toPoint();
            if (verb == "set") {
                field.setValue(step.to);
            } else if (verb == "press") {
                press(*field.plane, pixel);
            } else if (verb == "drag") {
                drag(*field.plane, pixel);
            } else if (verb == "release") {
                release(*field.plane, pixel);
            } else {
                QTest::keyClick(field.plane, verb == "right" ? Qt::Key_Right : Qt::Key_Down,
                                verb == "right" ? Qt::NoModifier : Qt::ShiftModifier);
            }
            QCOMPARE(field.reports(), step.reports);
        }
        QTEST(field.plane->point(), "plane");
        QTEST(field.numbers(), "numbers");
        if (QWidget::mouseGrabber()) {
            release(*field.plane, {50, 50});
        }
        // A spin box that changes brings the plane back to what is shown.
        field.x->setValue(field.x->value() / 2);
        if (field.x->minimum() < field.x->maximum()) {
            QCOMPARE(field.plane->point(), field.numbers());
        }
    }

    void clickOutsideTheSpinBoxesRange()
    {
        Field field;
        field.x->setMaximum(50.0);
        press(*field.plane, {80, 20});
        QCOMPARE(field.reports(), Points({{80, 20}, {50, 0}, {50, 20}}));
        QCOMPARE(field.plane->point(), QPointF(80, 20));
        release(*field.plane, {80, 20});
        field.y->setValue(30);
        QCOMPARE(field.plane->point(), QPointF(50, 30));
    }

    void spinBoxChangesReachThePlane()
    {
        Field field;
        QSignalSpy planeSpy(field.plane, &PointSelectionPlane::pointChanged);
        field.x->setValue(20);
        field.y->setValue(70);
        QCOMPARE(field.reports(), Points({{20, 0}, {20, 70}}));
        QCOMPARE(field.plane->point(), QPointF(20, 70));
        QCOMPARE(planeSpy.size(), 0);
    }

    void typingIsNotRewritten()
    {
        Field field;
        const auto* edit = field.x->findChild<QLineEdit*>();
        field.x->selectAll();
        const auto text = QStringLiteral("007.50");
        QString typed;
        for (const QChar character : text) {
            typed += character;
            QTest::keyClicks(field.x, QString(character));
            // One decimal only.
            QCOMPARE(edit->text(), typed.left(5));
        }
        QCOMPARE(field.reports(), Points({{7, 0}, {7.5, 0}}));
        QCOMPARE(field.plane->point(), QPointF(7.5, 0));
        QTest::keyClick(field.x, Qt::Key_Return);
        QCOMPARE(edit->text(), QStringLiteral("7.5"));
        QCOMPARE(field.reports(), Points());
    }

    void eitherMarkIsTyped()
    {
        Field field;
        typeInto(field.x, QStringLiteral("1.5"));
        typeInto(field.y, QStringLiteral("2,5"));
        QCOMPARE(field.numbers(), QPointF(1.5, 2.5));
        QCOMPARE(field.plane->point(), QPointF(1.5, 2.5));
    }

    void stepsAreExact()
    {
        Field field;
        for (int i = 1; i <= 100; ++i) {
            QTest::keyClick(field.x, Qt::Key_Up);
            QVERIFY(field.reports().constFirst().x() == decimalNumber(i, 1));
            QVERIFY(field.plane->point().x() == decimalNumber(i, 1));
        }
    }

    void wheelNeedsFocus()
    {
        QWidget window;
        QLineEdit other(&window);
        Field field(hundreds, &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
        for (QWidget* part : {static_cast<QWidget*>(field.x), static_cast<QWidget*>(field.y),
                              static_cast<QWidget*>(field.plane)}) {
            QVERIFY(!turnWheel(*part, 120));
        }
        QCOMPARE(field.reports(), Points());
        field.x->setFocus();
        QVERIFY(turnWheel(*field.x, 120));
        QCOMPARE(field.reports(), Points{QPointF(0.1, 0)});
    }

    // At the first report of a click the spin boxes are still to follow; at a spin box's the plane is.
    void planeIsSetWhileReporting()
    {
        Field field;
        Points planes;
        Points numbers;
        connect(&field, &PointSelectorWidget::valueChanged, this, [&] {
            planes += field.plane->point();
            numbers += field.numbers();
        });
        press(*field.plane, {30, 40});
        QCOMPARE(planes, Points({{30, 40}, {30, 40}, {30, 40}}));
        QCOMPARE(numbers, Points({{0, 0}, {30, 0}, {30, 40}}));
        release(*field.plane, {30, 40});
        planes.clear();
        field.x->setValue(50);
        QCOMPARE(planes, Points{QPointF(30, 40)});
        QCOMPARE(field.plane->point(), QPointF(50, 40));
    }

    void oddRanges_data()
    {
        QTest::addColumn<QPointF>("minimum");
        QTest::addColumn<QPointF>("maximum");
        QTest::newRow("infinite") << QPointF(-infinite, -infinite) << QPointF(infinite, infinite);
        QTest::newRow("infinite, reversed") << QPointF(infinite, infinite) << QPointF(-infinite, -infinite);
        QTest::newRow("NaN") << QPointF(noNumber, noNumber) << QPointF(noNumber, noNumber);
        QTest::newRow("NaN minimum") << QPointF(noNumber, noNumber) << QPointF(100, 100);
        QTest::newRow("NaN maximum") << QPointF(0, 0) << QPointF(noNumber, noNumber);
        QTest::newRow("NaN below") << QPointF(noNumber, noNumber) << QPointF(-infinite, -infinite);
        QTest::newRow("largest") << QPointF(-largest, -largest) << QPointF(largest, largest);
        QTest::newRow("nothing") << QPointF() << QPointF();
    }

    void oddRanges()
    {
        QFETCH(QPointF, minimum);
        QFETCH(QPointF, maximum);
        Field field({minimum, maximum, 2, 2});
        const auto hasNumbers = [&field] {
            return !std::isnan(field.x->value()) && !std::isnan(field.y->value());
        };
        QVERIFY(hasNumbers());
        field.setValue({1, 2});
        QVERIFY(hasNumbers());
        press(*field.plane, {30, 40});
        drag(*field.plane, {31, 41});
        release(*field.plane, {31, 41});
        QTest::keyClick(field.plane, Qt::Key_Left);
        QTest::keyClick(field.x, Qt::Key_Up);
        QVERIFY(hasNumbers());
        field.setValue({infinite, -infinite});
        QVERIFY(hasNumbers());
        field.grab();
        QVERIFY(!field.reports().isEmpty());
    }

    void oddDecimals_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<int>("shown");
        QTest::newRow("-1") << -1 << 0;
        QTest::newRow("min") << std::numeric_limits<int>::min() << 0;
        QTest::newRow("400") << 400 << 323;
        QTest::newRow("max") << std::numeric_limits<int>::max() << 323;
    }

    void oddDecimals()
    {
        QFETCH(int, decimals);
        QFETCH(int, shown);
        Field field({{-1.0, -1.0}, {1.0, 1.0}, decimals, decimals});
        QCOMPARE(field.x->decimals(), shown);
        QCOMPARE(field.y->decimals(), shown);
        field.setValue({1, -1});
        QCOMPARE(field.numbers(), QPointF(1, -1));
        QTest::keyClick(field.x, Qt::Key_Down);
        QVERIFY(field.numbers().x() >= -1.0 && field.numbers().x() <= 1.0);
    }

    // It has no places to choose from, but reports what it makes of a click.
    void planeOfOnePixel()
    {
        Field field;
        field.setValue({30, 40});
        field.plane->setFixedSize(1, 1);
        field.layout()->activate();
        field.plane->resize(1, 1);
        field.reports();
        press(*field.plane, {0, 0});
        release(*field.plane, {0, 0});
        const Points reports = field.reports();
        QCOMPARE(reports.size(), 2);
        QVERIFY(std::isnan(reports.front().x()));
        QCOMPARE(field.numbers(), QPointF(30, 40));
    }

    // It is the signal's point that counts, not the one that the plane has.
    void planeReportsForItself()
    {
        Field field;
        field.setValue({1, 2});
        field.reports();
        Q_EMIT field.plane->pointChanged({30, 40});
        QCOMPARE(field.reports(), Points({{30, 40}, {30, 2}, {30, 40}}));
        QCOMPARE(field.numbers(), QPointF(30, 40));
        QCOMPARE(field.plane->point(), QPointF(1, 2));
    }

    void randomWalk_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 20; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    // Whatever is done, the spin boxes show the plane's point as far as their decimals go.
    void randomWalk()
    {
        QFETCH(unsigned, seed);
        std::mt19937 generator(seed);
        const int xDecimals = int(generator() % 10);
        const int yDecimals = int(generator() % 10);
        const int range = 1000;
        const auto number = [&generator](int decimals) {
            return decimalNumber(int(generator() % (2 * range + 1)) - range, decimals);
        };
        Field field({{decimalNumber(-range, xDecimals), decimalNumber(-range, yDecimals)},
                     {decimalNumber(range, xDecimals), decimalNumber(range, yDecimals)},
                     xDecimals,
                     yDecimals});
        const auto shows = [](const OvDoubleSpinBox* box, double coordinate) {
            const QString text = QString::number(coordinate, 'f', box->decimals());
            return box->cleanText() == text || box->value() == text.toDouble();
        };
        QPointF last;
        for (int step = 0; step < 200; ++step) {
            const QPoint pixel(int(generator() % 101), int(generator() % 101));
            switch (generator() % 6) {
            case 0:
                field.setValue({number(xDecimals), number(yDecimals)});
                break;
            case 1:
                field.x->setValue(number(xDecimals));
                break;
            case 2:
                typeInto(field.y, QString::number(number(yDecimals), 'f', yDecimals));
                break;
            case 3:
                press(*field.plane, pixel);
                drag(*field.plane, pixel + QPoint(7, -9));
                release(*field.plane, pixel + QPoint(13, 200));
                break;
            case 4:
                QTest::keyClick(field.plane, Qt::Key_Left);
                break;
            default:
                QTest::keyClick(field.x, Qt::Key_Up);
                break;
            }
            QVERIFY(shows(field.x, field.plane->point().x()));
            QVERIFY(shows(field.y, field.plane->point().y()));
            const Points reports = field.reports();
            last = reports.isEmpty() ? last : reports.last();
            QVERIFY(shows(field.x, last.x()));
            QVERIFY(shows(field.y, last.y()));
        }
    }

    void slotSetsAnotherValue_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("report");
        for (int report = 1; report <= 3; ++report) {
            QTest::addRow("click, report %d", report) << "click" << report;
        }
        QTest::newRow("setValue, report 1") << "setValue" << 1;
        QTest::newRow("setValue, report 2") << "setValue" << 2;
        QTest::newRow("spin box") << "spin box" << 1;
    }

    // At whichever report it does: afterwards the three agree.
    void slotSetsAnotherValue()
    {
        QFETCH(QString, action);
        QFETCH(int, report);
        Field field;
        int reports = 0;
        connect(&field, &PointSelectorWidget::valueChanged, this, [&] {
            if (++reports == report) {
                field.setValue({70, 80});
            }
        });
        if (action == QLatin1String("click")) {
            press(*field.plane, {30, 40});
        } else if (action == QLatin1String("setValue")) {
            field.setValue({30, 40});
        } else {
            field.x->setValue(30);
        }
        QVERIFY(reports >= report);
        QCOMPARE(field.plane->point(), field.numbers());
        const bool isBetween = (action == QLatin1String("click") && report == 2) ||
                               (action == QLatin1String("setValue") && report == 1);
        // Between the coordinates, the second one is still to come.
        QCOMPARE(field.numbers(), isBetween ? QPointF(70, 40) : QPointF(70, 80));
        if (action == QLatin1String("click")) {
            release(*field.plane, {30, 40});
        }
    }

    void slotSetsAnotherRange()
    {
        Field field;
        connect(&field, &PointSelectorWidget::valueChanged, this, [&field](const QPointF& value) {
            if (value == QPointF(30, 0)) { // the report of x
                field.setRange({{0, 0}, {10, 10}, 1, 1});
            }
        });
        press(*field.plane, {30, 40});
        QCOMPARE(field.numbers(), QPointF(10, 10));
        QCOMPARE(field.plane->point(), QPointF(10, 10));
    }

    // Such as a host that snaps to a grid.
    void slotKeepsSettingOtherValues()
    {
        Field field;
        connect(&field, &PointSelectorWidget::valueChanged, this, [&field](const QPointF& value) {
            field.setValue({std::round(value.x() / 10) * 10, std::round(value.y() / 10) * 10});
        });
        field.setValue({33, 47});
        QCOMPARE(field.numbers(), QPointF(30, 50));
        QCOMPARE(field.plane->point(), QPointF(30, 50));
        press(*field.plane, {72, 88});
        QCOMPARE(field.numbers(), QPointF(70, 90));
        QCOMPARE(field.plane->point(), QPointF(70, 90));
        drag(*field.plane, {48, 12});
        QCOMPARE(field.numbers(), QPointF(50, 10));
        QCOMPARE(field.plane->point(), QPointF(50, 10));
        release(*field.plane, {48, 12});
        QCOMPARE(field.numbers(), QPointF(50, 10));
        QCOMPARE(field.plane->point(), QPointF(50, 10));
    }

    void deletedBetweenTheCoordinates()
    {
        QWidget parent;
        const QPointer<PointSelectorWidget> field = new PointSelectorWidget(&parent, hundreds);
        connect(partOf<OvDoubleSpinBox>(*field, "xSpinbox"), qOverload<double>(&QDoubleSpinBox::valueChanged),
                &parent, [&field] { delete field; });
        field->setValue({30, 40});
        QVERIFY(!field);
    }

    void destroyedWhileTyping_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("x") << "xSpinbox";
        QTest::newRow("y") << "ySpinbox";
    }

    void destroyedWhileTyping()
    {
        QFETCH(QString, name);
        auto field = std::make_unique<PointSelectorWidget>(
            nullptr, PointSelectorWidget::Initializer{{10.0, 10.0}, {100.0, 100.0}, 1, 1});
        field->setValue({50, 50});
        auto* spinBox = field->findChild<OvDoubleSpinBox*>(name);
        destroyWhileTyping(std::move(field), spinBox);
    }

    void languageChange()
    {
        Field field;
        {
            const MarkingTranslator translator("PointSelectorWidget");
            QCOMPARE(field.x->toolTip(), QStringLiteral("<Position on the x-axis>"));
            QCOMPARE(field.y->toolTip(), QStringLiteral("<Position on the y-axis>"));
        }
        QCOMPARE(field.x->toolTip(), QStringLiteral("Position on the x-axis"));
        QCOMPARE(field.reports(), Points());
    }

    void labelsAreEmpty()
    {
        const Field field;
        QCOMPARE(partOf<QLabel>(field, "xLabel")->text(), QString());
        QCOMPARE(partOf<QLabel>(field, "yLabel")->text(), QString());
    }
};

UIC_TEST_MAIN(tst_PointSelectorWidget)
#include "tst_PointSelectorWidget.moc"
