#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SliderInputWidget.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QToolTip>
#include <QVBoxLayout>

/**
 * The inputs of numbers and points in a panel that a user scrolls, drags and types in.
 */
class tst_NumberInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_numbers.clear();
        m_fractions.clear();
        m_positions.clear();
        m_window = std::make_unique<QScrollArea>();
        auto* panel = new QWidget;
        auto* layout = new QVBoxLayout(panel);
        // Takes the focus that a window gives to its first widget.
        m_before = new QLineEdit;
        m_number = new SliderInputWidget(nullptr, {0, 100});
        m_fraction = new DoubleSliderInputWidget(nullptr, {0.0, 10.0, 2});
        m_position = new PointSelectorWidget(nullptr, {{0.0, 0.0}, {100.0, 100.0}, 1, 1});
        m_after = new QLineEdit;
        for (QWidget* widget : {static_cast<QWidget*>(m_before), static_cast<QWidget*>(m_number),
                                static_cast<QWidget*>(m_fraction), static_cast<QWidget*>(m_position),
                                static_cast<QWidget*>(m_after)}) {
            layout->addWidget(widget);
        }
        layout->addStretch();
        m_plane = partOf<PointSelectionPlane>(m_position, "pointSelector");
        m_plane->setFixedSize(101, 101);
        panel->setMinimumSize(320, 1000);
        m_window->setWidget(panel);
        m_window->setGeometry(200, 100, 380, 400);
        connect(m_number, &SliderInputWidget::valueChanged, this, [this](int value) { m_numbers += value; });
        connect(m_fraction, &DoubleSliderInputWidget::valueChanged, this,
                [this](double value) { m_fractions += value; });
        connect(m_position, &PointSelectorWidget::valueChanged, this,
                [this](const QPointF& value) { m_positions += value; });
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        QTRY_VERIFY(m_before->hasFocus());
    }

    void cleanup()
    {
        m_window.reset();
        QVERIFY(!QWidget::mouseGrabber());
    }

    void sliderIsDragged()
    {
        auto* slider = partOf<QSlider>(m_number, "slider");
        const auto* spinBox = partOf<QSpinBox>(m_number, "spinbox");
        const int y = slider->height() / 2;
        QVERIFY(RealInput::drag(slider, {slider->width() / 5, y}, {slider->width() * 4 / 5, y}));
        QTRY_VERIFY(!slider->isSliderDown());
        QVERIFY2(qAbs(slider->value() - 80) <= 3, qPrintable(QString::number(slider->value())));
        QCOMPARE(spinBox->value(), slider->value());
        QCOMPARE(m_numbers.last(), slider->value());
        // Both parts report every step on the way.
        QVERIFY(m_numbers.size() >= 8);
        QCOMPARE(m_numbers.size() % 2, 0);
    }

    void fractionIsDragged()
    {
        auto* slider = partOf<QSlider>(m_fraction, "slider");
        const auto* spinBox = partOf<QDoubleSpinBox>(m_fraction, "spinbox");
        const int y = slider->height() / 2;
        QVERIFY(RealInput::drag(slider, {slider->width() / 5, y}, {slider->width() / 2, y}));
        QTRY_VERIFY(!slider->isSliderDown());
        QVERIFY2(qAbs(spinBox->value() - 5.0) < 0.3, qPrintable(spinBox->text()));
        QCOMPARE(spinBox->value(), slider->value() / 100.0);
        QCOMPARE(m_fractions.last(), spinBox->value());
    }

    void numberIsTyped()
    {
        auto* spinBox = partOf<QSpinBox>(m_number, "spinbox");
        QVERIFY(RealInput::click(spinBox));
        QTRY_VERIFY(spinBox->hasFocus());
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("73")));
        QTRY_COMPARE(m_numbers, QVector<int>({7, 7, 73, 73}));
        QCOMPARE(partOf<QSlider>(m_number, "slider")->value(), 73);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("number-inputs")));
    }

    void fractionIsTypedWithEitherMark()
    {
        auto* spinBox = partOf<QDoubleSpinBox>(m_fraction, "spinbox");
        QVERIFY(RealInput::click(spinBox));
        QTRY_VERIFY(spinBox->hasFocus());
        for (const QString& typed : {QStringLiteral("2,57"), QStringLiteral("0.29")}) {
            QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
            QVERIFY(RealInput::type(typed));
            QVERIFY(RealInput::key(QStringLiteral("Return")));
            const double value = QString(typed).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
            QTRY_COMPARE(spinBox->value(), value);
            QTRY_COMPARE(m_fractions.last(), value);
            QCOMPARE(partOf<QSlider>(m_fraction, "slider")->value(), qRound(value * 100));
        }
    }

    void typedTextStaysUntilItIsCommitted()
    {
        auto* spinBox = partOf<QDoubleSpinBox>(m_fraction, "spinbox");
        const auto* edit = spinBox->findChild<QLineEdit*>();
        QVERIFY(RealInput::click(spinBox));
        QTRY_VERIFY(spinBox->hasFocus());
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("003,5")));
        QTRY_COMPARE(edit->text(), QStringLiteral("003,5"));
        QTRY_COMPARE(partOf<QSlider>(m_fraction, "slider")->value(), 350);
        QVERIFY(RealInput::click(m_after));
        QTRY_COMPARE(edit->text(), QStringLiteral("3.50"));
    }

    void arrowKeysStep()
    {
        auto* spinBox = partOf<QDoubleSpinBox>(m_fraction, "spinbox");
        spinBox->setFocus();
        for (int i = 0; i < 6; ++i) {
            QVERIFY(RealInput::key(QStringLiteral("Up")));
        }
        QTRY_COMPARE(m_fractions.size(), 12);
        QVERIFY(m_fractions.last() == 0.06);
        partOf<QSlider>(m_fraction, "slider")->setFocus();
        QVERIFY(RealInput::key(QStringLiteral("Left")));
        QTRY_COMPARE(m_fractions.size(), 14);
        QVERIFY(m_fractions.last() == 0.05);
    }

    void wheelOverUnfocusedPartsScrollsThePanel_data()
    {
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("part");
        QTest::newRow("number, slider") << 0 << "slider";
        QTest::newRow("number, spin box") << 0 << "spinbox";
        QTest::newRow("fraction, slider") << 1 << "slider";
        QTest::newRow("fraction, spin box") << 1 << "spinbox";
        QTest::newRow("point, plane") << 2 << "pointSelector";
        QTest::newRow("point, x") << 2 << "xSpinbox";
        QTest::newRow("point, y") << 2 << "ySpinbox";
    }

    void wheelOverUnfocusedPartsScrollsThePanel()
    {
        QFETCH(int, field);
        QFETCH(QString, part);
        const QVector<QWidget*> fields = {m_number, m_fraction, m_position};
        const auto* target = fields.at(field)->findChild<QWidget*>(part);
        QCOMPARE(m_window->verticalScrollBar()->value(), 0);
        QVERIFY(RealInput::wheel(target, target->rect().center(), -1));
        // The wheel was for the panel.
        QTRY_VERIFY(m_window->verticalScrollBar()->value() > 0);
        QVERIFY(!target->hasFocus());
        QVERIFY(m_numbers.isEmpty() && m_fractions.isEmpty() && m_positions.isEmpty());
    }

    void wheelOverAFocusedPartChangesIt()
    {
        auto* spinBox = partOf<QSpinBox>(m_number, "spinbox");
        spinBox->setFocus();
        QVERIFY(RealInput::wheel(spinBox, spinBox->rect().center(), 3));
        QTRY_COMPARE(spinBox->value(), 3);
        QCOMPARE(m_window->verticalScrollBar()->value(), 0);
    }

    void tabVisitsEveryPart()
    {
        const QVector<QWidget*> order = {partOf<QWidget>(m_number, "slider"),
                                         partOf<QWidget>(m_number, "spinbox"),
                                         partOf<QWidget>(m_fraction, "slider"),
                                         partOf<QWidget>(m_fraction, "spinbox"),
                                         m_plane,
                                         partOf<QWidget>(m_position, "xSpinbox"),
                                         partOf<QWidget>(m_position, "ySpinbox"),
                                         m_after};
        for (QWidget* widget : order) {
            QVERIFY(RealInput::key(QStringLiteral("Tab")));
            QTRY_COMPARE(QApplication::focusWidget(), widget);
        }
        for (int i = order.size() - 2; i >= 0; --i) {
            QVERIFY(RealInput::key(QStringLiteral("shift+Tab")));
            QTRY_COMPARE(QApplication::focusWidget(), order.at(i));
        }
        QVERIFY(m_numbers.isEmpty() && m_fractions.isEmpty() && m_positions.isEmpty());
    }

    void pointIsClicked()
    {
        QVERIFY(RealInput::click(m_plane, {30, 40}));
        // The plane's report, those of the two coordinates, and that of the release.
        QTRY_COMPARE(m_positions, QVector<QPointF>({{30, 40}, {30, 0}, {30, 40}, {30, 40}}));
        QCOMPARE(partOf<QDoubleSpinBox>(m_position, "xSpinbox")->value(), 30.0);
        QCOMPARE(partOf<QDoubleSpinBox>(m_position, "ySpinbox")->value(), 40.0);
        QVERIFY(m_plane->hasFocus());
    }

    void pointIsDraggedOutOfTheWindow()
    {
        // To the left of the window and below the plane, over other widgets.
        const QPoint outside = m_plane->mapFrom(m_window.get(), QPoint(-60, 360));
        QVERIFY(RealInput::drag(m_plane, {50, 50}, outside));
        QTRY_VERIFY(!QWidget::mouseGrabber());
        QCOMPARE(m_plane->point(), QPointF(0, 100));
        QCOMPARE(m_positions.last(), QPointF(0, 100));
        // The next click is for the widget that is below it.
        const int reports = m_positions.size();
        QVERIFY(RealInput::click(m_before));
        QTRY_VERIFY(m_before->hasFocus());
        QCOMPARE(m_positions.size(), reports);
    }

    void pointIsMovedByKeys()
    {
        m_position->setValue({50, 50});
        m_plane->setFocus();
        m_positions.clear();
        QVERIFY(RealInput::key(QStringLiteral("Right")));
        QVERIFY(RealInput::key(QStringLiteral("shift+Down")));
        QTRY_COMPARE(m_positions, QVector<QPointF>({{51, 50}, {51, 50}, {51, 60}, {51, 60}}));
        QVERIFY(m_plane->hasFocus());
    }

    // The button is still down when the plane goes; its release and the next click are for others.
    void planeIsHiddenDuringADrag()
    {
        connect(m_position, &PointSelectorWidget::valueChanged, m_position, [this](const QPointF& value) {
            if (value.x() > 60) {
                m_position->hide();
            }
        });
        QVERIFY(RealInput::drag(m_plane, {20, 20}, {95, 20}));
        QTRY_VERIFY(m_position->isHidden());
        QVERIFY(!QWidget::mouseGrabber());
        QVERIFY(RealInput::click(m_after));
        QTRY_VERIFY(m_after->hasFocus());
    }

    void coordinateHasAToolTip()
    {
        const auto* spinBox = partOf<QDoubleSpinBox>(m_position, "xSpinbox");
        // The mouse may be there already, and then it does not move.
        QVERIFY(RealInput::moveTo(spinBox, {2, 2}));
        QVERIFY(RealInput::moveTo(spinBox, spinBox->rect().center()));
        QTRY_COMPARE(QToolTip::text(), QStringLiteral("Position on the x-axis"));
    }

private:
    template <typename Part>
    static Part* partOf(const QWidget* field, const char* name)
    {
        return field->findChild<Part*>(QString::fromLatin1(name));
    }

    std::unique_ptr<QScrollArea> m_window;
    QLineEdit* m_before = nullptr;
    SliderInputWidget* m_number = nullptr;
    DoubleSliderInputWidget* m_fraction = nullptr;
    PointSelectorWidget* m_position = nullptr;
    QLineEdit* m_after = nullptr;
    PointSelectionPlane* m_plane = nullptr;
    QVector<int> m_numbers;
    QVector<double> m_fractions;
    QVector<QPointF> m_positions;
};

UIC_TEST_MAIN(tst_NumberInputs)
#include "tst_NumberInputs.moc"
