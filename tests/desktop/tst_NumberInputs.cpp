#include "Part.h"
#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SliderInputWidget.h>

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

    void numberIsTyped()
    {
        auto* spinBox = partOf<QSpinBox>(m_number, "spinbox");
        QVERIFY(RealInput::clickInto(spinBox));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("73")));
        QTRY_COMPARE(m_numbers, QVector<int>({7, 7, 73, 73}));
        QCOMPARE(partOf<QSlider>(m_number, "slider")->value(), 73);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("number-inputs")));
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
        QVERIFY(RealInput::clickInto(m_before));
        QCOMPARE(m_positions.size(), reports);
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
