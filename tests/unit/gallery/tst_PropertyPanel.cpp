#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>

#include <gallery/GalleryApplication.h>
#include <gallery/PropertyPanel.h>
#include <memory>

class Specimen : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool flag MEMBER m_flag)
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged)
    Q_PROPERTY(double share MEMBER m_share)
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)
    Q_PROPERTY(QColor color MEMBER m_color)
    Q_PROPERTY(Mode mode MEMBER m_mode)
    Q_PROPERTY(int fixed READ count CONSTANT)
    Q_PROPERTY(QPoint point MEMBER m_point)

public:
    enum Mode { Idle = 3, Busy = 9 };
    Q_ENUM(Mode)

    int count() const { return m_count; }
    void setCount(int count)
    {
        // A property that does not take every value.
        count = qBound(0, count, 10);
        if (count != m_count) {
            m_count = count;
            Q_EMIT countChanged(count);
        }
    }

    bool m_flag = true;
    int m_count = 4;
    double m_share = 0.123456;
    QString m_text = QStringLiteral("start");
    QColor m_color = Qt::red;
    Mode m_mode = Busy;
    QPoint m_point;

Q_SIGNALS:
    void countChanged(int count);
    void textChanged();
};

namespace {

int rowCount(const PropertyPanel& panel)
{
    return panel.findChild<QFormLayout*>()->rowCount();
}

} // namespace

class tst_PropertyPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        m_panel.reset();
        m_one = std::make_unique<Specimen>();
        m_other = std::make_unique<Specimen>();
    }

    void noEditorFor_data()
    {
        QTest::addColumn<QString>("property");
        QTest::newRow("unknown") << "nothing";
        QTest::newRow("empty") << "";
        QTest::newRow("read-only") << "fixed";
        QTest::newRow("type without control") << "point";
    }

    void noEditorFor()
    {
        QFETCH(QString, property);
        PropertyPanel panel;
        panel.addProperties([this] { return alive(); }, {property.toUtf8()});
        panel.addProperties([] { return QObjectList(); }, {"flag"});
        QCOMPARE(rowCount(panel), 0);
    }

    void boolean()
    {
        auto* box = edit<QCheckBox>("flag");
        QVERIFY(box->isChecked());
        QSignalSpy edited(m_panel.get(), &PropertyPanel::edited);
        box->click();
        QCOMPARE(m_one->m_flag, false);
        QCOMPARE(m_other->m_flag, false);
        QCOMPARE(edited.count(), 1);
    }

    void integer()
    {
        auto* box = edit<QSpinBox>("count");
        QCOMPARE(box->value(), 4);
        box->setValue(7);
        QCOMPARE(m_one->m_count, 7);
        QCOMPARE(m_other->m_count, 7);
    }

    void fractionIsNotRoundedByShowingIt()
    {
        auto* box = edit<QDoubleSpinBox>("share");
        QCOMPARE(box->value(), 0.1235);
        m_panel->refresh();
        QCOMPARE(m_one->m_share, 0.123456);
        box->setValue(0.5);
        QCOMPARE(m_one->m_share, 0.5);
        QCOMPARE(m_other->m_share, 0.5);
    }

    void text()
    {
        auto* line = edit<QLineEdit>("text");
        QCOMPARE(line->text(), QStringLiteral("start"));
        line->setCursorPosition(2);
        QTest::keyClick(line, Qt::Key_X);
        QCOMPARE(m_one->m_text, QStringLiteral("stxart"));
        QCOMPARE(m_other->m_text, QStringLiteral("stxart"));
        // Rewriting the text would have sent the cursor to its end.
        QCOMPARE(line->cursorPosition(), 3);
    }

    void color()
    {
        auto* field = edit<ColorInputWidget>("color");
        field->setColor(Qt::blue);
        QCOMPARE(m_one->m_color, QColor(Qt::blue));
        QCOMPARE(m_other->m_color, QColor(Qt::blue));
    }

    void enumeration()
    {
        auto* box = edit<QComboBox>("mode");
        QCOMPARE(box->currentText(), QStringLiteral("Busy"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(m_one->m_mode, Specimen::Idle);
        QCOMPARE(m_other->m_mode, Specimen::Idle);
    }

    void followsItsNotifySignal()
    {
        auto* box = edit<QSpinBox>("count");
        QSignalSpy edited(m_panel.get(), &PropertyPanel::edited);
        m_one->setCount(9);
        QCOMPARE(box->value(), 9);
        // Shown only: the other one is not written to.
        QCOMPARE(m_other->m_count, 4);
        QCOMPARE(edited.count(), 0);
    }

    void readsAgainWithoutNotifySignal()
    {
        auto* box = edit<QCheckBox>("flag");
        m_one->m_flag = false;
        QVERIFY(box->isChecked());
        m_panel->refresh();
        QVERIFY(!box->isChecked());
        QVERIFY(m_other->m_flag);
    }

    // A sheet's values arrive when a widget is polished, and no signal tells of them.
    void panelReadsAgainWhenASheetHasSetValues()
    {
        PropertyPanel panel;
        panel.addProperties([this] { return alive(); });
        auto* box = panel.findChild<QDoubleSpinBox*>();
        m_one->m_share = 0.25;
        panel.show();
        QTRY_COMPARE(box->value(), 0.25);
        m_one->m_share = 0.75;
        panel.setStyleSheet(QStringLiteral("QLabel { padding: 1px; }"));
        QTRY_COMPARE(box->value(), 0.75);
        QCOMPARE(m_one->m_share, 0.75);
    }

    void panelTellsOfAnEdit()
    {
        PropertyPanel panel;
        panel.addProperties([this] { return alive(); });
        QSignalSpy edited(&panel, &PropertyPanel::edited);
        panel.findChild<QDoubleSpinBox*>()->setValue(0.5);
        QCOMPARE(edited.size(), 1);
        QCOMPARE(m_one->m_share, 0.5);
        m_one->setCount(7);
        panel.refresh();
        QCOMPARE(edited.size(), 1);
    }

    void aRefusedValueIsShownAsItIs()
    {
        auto* box = edit<QSpinBox>("count");
        box->setValue(50);
        QCOMPARE(m_one->m_count, 10);
        QCOMPARE(box->value(), 10);
    }

    void anObjectDies()
    {
        auto* box = edit<QSpinBox>("count");
        m_one.reset();
        box->setValue(6);
        QCOMPARE(m_other->m_count, 6);
        QVERIFY(box->isEnabled());
        m_other.reset();
        box->setValue(5);
        QVERIFY(!box->isEnabled());
    }

    void aListenerDeletesThePanel()
    {
        auto* box = edit<QSpinBox>("count");
        // Not in a slot of the spin box itself, which Qt's own code would not survive.
        connect(m_one.get(), &Specimen::countChanged, m_panel.get(),
                [this] { m_panel.release()->deleteLater(); });
        box->setValue(8);
        QCOMPARE(m_other->m_count, 8);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void panelTakesOwnPropertiesOfAClass()
    {
        const ColorInputWidget field(nullptr, QColor());
        QStringList names;
        const QVector<QMetaProperty> properties = ownProperties(&field);
        for (const QMetaProperty& property : properties) {
            names.append(property.name());
        }
        QVERIFY(names.contains(QStringLiteral("layoutMargin")));
        QVERIFY(!names.contains(QStringLiteral("frameShape")));
        const QObject plain;
        QVERIFY(ownProperties(&plain).isEmpty());

        PropertyPanel panel;
        panel.addProperties([this] { return alive(); });
        // All but the read-only one and the one that no control fits.
        QCOMPARE(rowCount(panel), 6);
    }

    void panelControlsReport()
    {
        PropertyPanel panel;
        QVariantList got;
        panel.addSwitch(QStringLiteral("a"), false, [&got](bool on) { got.append(on); });
        panel.addNumber(QStringLiteral("b"), 0, 9, 1, [&got](int number) { got.append(number); });
        panel.addText(QStringLiteral("c"), QString(), [&got](const QString& text) { got.append(text); });
        panel.addChoice(QStringLiteral("d"), {"x", "y"}, 0, [&got](int index) { got.append(index); });
        panel.addFraction(QStringLiteral("e"), 0, 1, 0, [&got](double number) { got.append(number); });
        panel.addColor(QStringLiteral("f"), Qt::red, [&got](const QColor& color) { got.append(color); });
        panel.addAction(QStringLiteral("g"), [&got] { got.append(QStringLiteral("run")); });
        QCOMPARE(got, QVariantList());

        panel.findChild<QCheckBox*>()->click();
        panel.findChild<QSpinBox*>()->setValue(5);
        const auto lines = panel.findChildren<QLineEdit*>();
        for (QLineEdit* line : lines) {
            if (!qobject_cast<QAbstractSpinBox*>(line->parent())) {
                line->setText(QStringLiteral("t"));
            }
        }
        panel.findChild<QComboBox*>()->setCurrentIndex(1);
        panel.findChild<QDoubleSpinBox*>()->setValue(0.5);
        panel.findChild<ColorInputWidget*>()->setColor(Qt::blue);
        panel.findChild<QPushButton*>()->click();
        const QVariantList expected = {
            true, 5, QStringLiteral("t"), 1, 0.5, QColor(Qt::blue), QStringLiteral("run")};
        QCOMPARE(got, expected);
    }

    void numbersStandAtTheLeadingEdge_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("built from left to right") << Qt::LeftToRight;
        QTest::newRow("built from right to left") << Qt::RightToLeft;
    }

    void numbersStandAtTheLeadingEdge()
    {
        QFETCH(Qt::LayoutDirection, direction);
        PropertyPanel panel;
        panel.resize(400, 200);
        panel.setLayoutDirection(direction);
        panel.addNumber(QStringLiteral("a"), -9, 9, -1, [](int) {});
        panel.addFraction(QStringLiteral("b"), -9, 9, -1, [](double) {});
        panel.show();
        const auto boxes = panel.findChildren<QAbstractSpinBox*>();
        QCOMPARE(boxes.size(), 2);
        const int changes = 3;
        for (int i = 0; i < changes; ++i) {
            for (QAbstractSpinBox* box : boxes) {
                auto* line = box->findChild<QLineEdit*>();
                line->home(false);
                line->grab(); // painting puts the text in its place
                const QRect cursor = line->inputMethodQuery(Qt::ImCursorRectangle).toRect();
                QCOMPARE(cursor.center().x() > line->width() / 2, direction == Qt::RightToLeft);
            }
            direction = direction == Qt::LeftToRight ? Qt::RightToLeft : Qt::LeftToRight;
            panel.setLayoutDirection(direction);
        }
    }

private:
    template <typename Control>
    Control* edit(const char* property)
    {
        m_panel = std::make_unique<PropertyPanel>();
        m_panel->addProperties([this] { return alive(); }, {property});
        return m_panel->findChild<Control*>(property);
    }

    QObjectList alive() const
    {
        QObjectList objects = {m_one.get(), m_other.get()};
        objects.removeAll(nullptr);
        return objects;
    }

    std::unique_ptr<Specimen> m_one;
    std::unique_ptr<Specimen> m_other;
    std::unique_ptr<PropertyPanel> m_panel;
};

UIC_TEST_MAIN(tst_PropertyPanel)
#include "tst_PropertyPanel.moc"
