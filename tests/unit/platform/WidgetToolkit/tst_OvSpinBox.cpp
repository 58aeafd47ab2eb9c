#include "AccessibleEars.h"
#include "FreedMemory.h"
#include "TestMain.h"
#include "Wheel.h"

#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

namespace {

QString selectedText(const QWidget& box)
{
    return box.findChild<QLineEdit*>()->selectedText();
}

std::unique_ptr<QAbstractSpinBox> makeBox(bool ofFractions, QWidget* parent = nullptr)
{
    if (ofFractions) {
        return std::make_unique<OvDoubleSpinBox>(parent);
    }
    return std::make_unique<OvSpinBox>(parent);
}

const char* valueChanged(bool ofFractions)
{
    return ofFractions ? SIGNAL(valueChanged(double)) : SIGNAL(valueChanged(int));
}

} // namespace

/// What both spin boxes share; tst_OvDoubleSpinBox has the rest of the other.
class tst_OvSpinBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isASpinBox()
    {
        OvSpinBox box;
        QCOMPARE(box.metaObject()->className(), "OvSpinBox");
        QCOMPARE(box.metaObject()->superClass(), &QSpinBox::staticMetaObject);
        QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
        QCOMPARE(box.value(), 0);
        QCOMPARE(box.maximum(), 99);
    }

    void stepsAreAnnouncedOnce_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<QByteArray>("means");
        QTest::addColumn<QStringList>("heard");
        for (const bool fractions : {false, true}) {
            const auto row = [fractions](const char* means, const char* heard) {
                QTest::addRow("%s, %s", fractions ? "fraction" : "integer", means)
                    << fractions << QByteArray(means)
                    << (heard ? QStringList{QStringLiteral("Level: ") + QLatin1String(heard)}
                              : QStringList());
            };
            row("key", "6");
            row("page", "15");
            row("wheel", "6");
            row("arrow", "6");
            row("end", nullptr);
        }
    }

    void stepsAreAnnouncedOnce()
    {
        QFETCH(bool, fractions);
        QFETCH(QByteArray, means);
        const auto box = makeBox(fractions);
        box->setAccessibleName(QStringLiteral("Level"));
        box->setProperty("value", means == "end" ? box->property("maximum") : 5);
        box->resize(100, 30);
        box->show();
        QApplication::setActiveWindow(box.get());
        box->setFocus();
        const AccessibleEars ears;
        if (means == "wheel") {
            turnWheel(*box, 120);
        } else if (means == "arrow") {
            QStyleOptionSpinBox option;
            option.initFrom(box.get());
            option.subControls = QStyle::SC_All;
            option.frame = true;
            const QRect arrow =
                box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, box.get());
            QTest::mouseClick(box.get(), Qt::LeftButton, {}, arrow.center());
        } else {
            QTest::keyClick(box.get(), means == "page" ? Qt::Key_PageUp : Qt::Key_Up);
        }
        QTEST(AccessibleEars::take(), "heard");
    }

    void wheel_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<bool>("focused");
        QTest::addColumn<int>("delta");
        QTest::addColumn<int>("value");
        for (const bool fractions : {false, true}) {
            const char* const name = fractions ? "fraction" : "integer";
            QTest::addRow("%s, without focus", name) << fractions << false << 120 << 5;
            QTest::addRow("%s, with focus, up", name) << fractions << true << 120 << 6;
            QTest::addRow("%s, with focus, down", name) << fractions << true << -120 << 4;
        }
    }

    void wheel()
    {
        QFETCH(bool, fractions);
        QFETCH(bool, focused);
        QFETCH(int, delta);
        QFETCH(int, value);
        QWidget window;
        QLineEdit other(&window);
        const auto made = makeBox(fractions, &window);
        QAbstractSpinBox& box = *made;
        box.move(0, 50);
        box.setProperty("value", 5);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        (focused ? static_cast<QWidget*>(&box) : &other)->setFocus();
        QSignalSpy spy(&box, valueChanged(fractions));
        const bool accepted = turnWheel(box, delta);
        QCOMPARE(box.property("value").toInt(), value);
        QCOMPARE(spy.count(), focused ? 1 : 0);
        QCOMPARE(box.hasFocus(), focused);
        QCOMPARE(accepted, focused);
    }

    void enterCommitsAndSelects_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("keyboardTracking");
        for (const bool fractions : {false, true}) {
            const char* const name = fractions ? "fraction" : "integer";
            QTest::addRow("%s, Enter", name) << fractions << Qt::Key_Enter << true;
            QTest::addRow("%s, Return", name) << fractions << Qt::Key_Return << true;
            QTest::addRow("%s, Return without keyboard tracking", name)
                << fractions << Qt::Key_Return << false;
        }
    }

    void enterCommitsAndSelects()
    {
        QFETCH(Qt::Key, key);
        QFETCH(bool, keyboardTracking);
        QFETCH(bool, fractions);
        const auto made = makeBox(fractions);
        QAbstractSpinBox& box = *made;
        box.setProperty("prefix", QStringLiteral("x "));
        box.setProperty("suffix", QStringLiteral(" px"));
        box.setKeyboardTracking(keyboardTracking);
        QSignalSpy changed(&box, valueChanged(fractions));
        QSignalSpy finished(&box, &QAbstractSpinBox::editingFinished);
        QSignalSpy returned(box.findChild<QLineEdit*>(), &QLineEdit::returnPressed);
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("42"));
        QCOMPARE(selectedText(box), QString());
        QTest::keyClick(&box, key);
        const QString number = fractions ? QStringLiteral("42.00") : QStringLiteral("42");
        QCOMPARE(box.property("value").toInt(), 42);
        QCOMPARE(box.text(), QStringLiteral("x %1 px").arg(number));
        QCOMPARE(selectedText(box), number);
        QCOMPARE(changed.size(), keyboardTracking ? 2 : 1);
        QCOMPARE(changed.last().first().toInt(), 42);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(returned.count(), 1);
    }

    void enterAnnouncesAValueOnce()
    {
        OvSpinBox box;
        QSignalSpy changed(&box, qOverload<int>(&QSpinBox::valueChanged));
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_7);
        QCOMPARE(changed.count(), 1);
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(changed.count(), 1);
        box.setKeyboardTracking(false);
        QTest::keyClick(&box, Qt::Key_8);
        QCOMPARE(changed.count(), 1);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(box.value(), 8);
        QVERIFY(!box.keyboardTracking());
    }

    void enterWithUnfinishedTextCorrects()
    {
        OvSpinBox box;
        box.setRange(10, 50);
        box.setValue(30);
        box.setCorrectionMode(QAbstractSpinBox::CorrectToNearestValue);
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_4);
        QCOMPARE(box.value(), 30);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 10);
        QCOMPARE(selectedText(box), QStringLiteral("10"));
    }

    void enterReachesTheDialogAndEscapeToo()
    {
        QDialog dialog;
        auto* box = new OvSpinBox(&dialog);
        auto* button = new QPushButton(&dialog);
        button->setDefault(true);
        QSignalSpy clicked(button, &QPushButton::clicked);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        box->setFocus();
        box->selectAll();
        QTest::keyClick(box, Qt::Key_3);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(box->value(), 3);
        QCOMPARE(clicked.count(), 1);
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(box->value(), 3);
    }

    void listenerSetsAnotherValueOnEnter()
    {
        OvSpinBox box;
        box.show();
        box.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.setFocus();
        connect(&box, &QAbstractSpinBox::editingFinished, &box, [&box] { box.setValue(12); });
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_5);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 12);
        QCOMPARE(selectedText(box), QStringLiteral("12"));
    }

    void signalsOfEnter()
    {
        OvSpinBox box;
        box.setKeyboardTracking(false);
        box.setSuffix(QStringLiteral(" px"));
        QStringList log;
        connect(&box, &QSpinBox::textChanged, this, [&log](const QString& text) { log << text; });
        connect(&box, qOverload<int>(&QSpinBox::valueChanged), this,
                [&log](int value) { log << QString::number(value); });
        // The signal that Qt has deprecated.
        QSignalSpy texts(&box, SIGNAL(valueChanged(QString)));
        connect(&box, &QAbstractSpinBox::editingFinished, this,
                [&log] { log << QStringLiteral("finished"); });
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_5);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(log, QStringList({QStringLiteral("5 px"), QStringLiteral("5"), QStringLiteral("finished")}));
        QCOMPARE(texts.count(), 1);
        QCOMPARE(texts.at(0), QVariantList{QStringLiteral("5 px")});
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(log.size(), 4);
    }

    void deletedByAListenerOfEnter_data()
    {
        QTest::addColumn<bool>("fractions");
        QTest::addColumn<QByteArray>("signal");
        for (const bool fractions : {false, true}) {
            for (const char* signal :
                 {valueChanged(fractions), SIGNAL(editingFinished()), SIGNAL(textChanged(QString))}) {
                QTest::addRow("%s, %s", fractions ? "fraction" : "integer", signal + 1)
                    << fractions << QByteArray(signal);
            }
        }
        QTest::newRow("returnPressed()") << false << QByteArray(SIGNAL(returnPressed()));
    }

    void deletedByAListenerOfEnter()
    {
        QFETCH(bool, fractions);
        QFETCH(QByteArray, signal);
        const QPointer<QAbstractSpinBox> box(makeBox(fractions).release());
        box->setKeyboardTracking(false);
        box->selectAll();
        QTest::keyClick(box.data(), Qt::Key_5);
        QAction remove(nullptr);
        connect(&remove, &QAction::triggered, this, [target = box.data()] { delete target; });
        const bool isTheEdits = signal == SIGNAL(returnPressed());
        QObject* const sender = isTheEdits ? static_cast<QObject*>(box->findChild<QLineEdit*>()) : box;
        QVERIFY(connect(sender, signal.constData(), &remove, SLOT(trigger())));
        const FreedMemoryWatch memory;
        // Not QTest::keyClick, which uses the widget after the event.
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(box, &enter);
        QVERIFY(box.isNull());
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }
};

UIC_TEST_MAIN(tst_OvSpinBox)
#include "tst_OvSpinBox.moc"
