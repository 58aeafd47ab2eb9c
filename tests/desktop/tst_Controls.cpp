#include "RealInput.h"
#include "TestMain.h"

#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

/**
 * The toolkit's controls in a panel that a user scrolls, clicks and types in.
 */
class tst_Controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QScrollArea>();
        m_panel = new QWidget;
        auto* layout = new QVBoxLayout(m_panel);
        // Takes the focus that a window gives to its first widget.
        layout->addWidget(new QLineEdit);

        m_spinBox = new OvSpinBox;
        m_spinBox->setRange(0, 1000);
        m_spinBox->setValue(50);
        m_doubleSpinBox = new OvDoubleSpinBox;
        m_doubleSpinBox->setBothDecimalMarksAccepted(true);
        m_doubleSpinBox->setValue(50);
        m_slider = new OvCustomSlider(Qt::Horizontal);
        m_slider->setValue(50);
        m_doubleSlider = new OvDoubleSlider;
        m_doubleSlider->setOrientation(Qt::Horizontal);
        m_doubleSlider->setValue(50);
        m_comboBox = new OvComboBox;
        m_comboBox->addItems(
            {QStringLiteral("Normal"), QStringLiteral("Multiply"), QStringLiteral("Screen")});
        m_comboBox->setCurrentIndex(1);

        const QVector<QPair<const char*, QWidget*>> controls = {{"spin box", m_spinBox},
                                                                {"double spin box", m_doubleSpinBox},
                                                                {"slider", m_slider},
                                                                {"double slider", m_doubleSlider},
                                                                {"combo box", m_comboBox}};
        for (const auto& [name, widget] : controls) {
            widget->setObjectName(QLatin1String(name));
            layout->addWidget(widget);
        }
        layout->addStretch();
        m_panel->setMinimumSize(300, 1000);
        m_window->setWidget(m_panel);
        m_window->setGeometry(200, 100, 360, 400);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        QTRY_VERIFY(m_panel->findChild<QLineEdit*>()->hasFocus());
    }

    void cleanup() { m_window.reset(); }

    void wheelOverUnfocusedControlsScrollsThePanel_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"spin box", "double spin box", "slider", "double slider", "combo box"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }

    void wheelOverUnfocusedControlsScrollsThePanel()
    {
        QFETCH(QString, name);
        const QVariant before = valueOf(name);
        QCOMPARE(m_window->verticalScrollBar()->value(), 0);
        QVERIFY(RealInput::wheel(control(name), control(name)->rect().center(), -1));
        // The wheel was for the panel.
        QTRY_VERIFY(m_window->verticalScrollBar()->value() > 0);
        QCOMPARE(valueOf(name), before);
        QVERIFY(!control(name)->hasFocus());
    }

    void wheelOverFocusedControlChangesIt()
    {
        m_spinBox->setFocus();
        QVERIFY(RealInput::wheel(m_spinBox, m_spinBox->rect().center(), 3));
        QTRY_COMPARE(m_spinBox->value(), 53);
        QCOMPARE(m_window->verticalScrollBar()->value(), 0);
    }

    void dragFromTheGrooveGoesOn()
    {
        const int y = m_slider->height() / 2;
        QVERIFY(RealInput::drag(m_slider, QPoint(m_slider->width() / 5, y),
                                QPoint(m_slider->width() * 9 / 10, y)));
        QTRY_VERIFY(!m_slider->isSliderDown());
        QVERIFY2(qAbs(m_slider->value() - 90) <= 3, qPrintable(QString::number(m_slider->value())));
    }

    void popUpOpensAndPicks()
    {
        QVERIFY(RealInput::click(m_comboBox));
        QTRY_VERIFY(QApplication::activePopupWidget());
        QVERIFY(QTest::qWaitForWindowExposed(QApplication::activePopupWidget()));
        QVERIFY(RealInput::key(QStringLiteral("Down")));
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QCOMPARE(m_comboBox->currentText(), QStringLiteral("Screen"));
    }

private:
    QWidget* control(const QString& name) const { return m_panel->findChild<QWidget*>(name); }

    QVariant valueOf(const QString& name) const
    {
        QWidget* const widget = control(name);
        return widget == m_comboBox ? QVariant(m_comboBox->currentIndex()) : widget->property("value");
    }

    std::unique_ptr<QScrollArea> m_window;
    QWidget* m_panel = nullptr;
    OvSpinBox* m_spinBox = nullptr;
    OvDoubleSpinBox* m_doubleSpinBox = nullptr;
    OvCustomSlider* m_slider = nullptr;
    OvDoubleSlider* m_doubleSlider = nullptr;
    OvComboBox* m_comboBox = nullptr;
};

UIC_TEST_MAIN(tst_Controls)
#include "tst_Controls.moc"
