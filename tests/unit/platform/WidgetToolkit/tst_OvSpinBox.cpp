#include "FreedMemory.h"
#include "TestMain.h"
#include "Wheel.h"

#include <WidgetToolkit/OvSpinBox.h>

namespace {

QString selectedText(const QWidget& box)
{
    return box.findChild<QLineEdit*>()->selectedText();
}

} // namespace

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

    void wheel_data()
    {
        QTest::addColumn<bool>("focused");
        QTest::addColumn<int>("delta");
        QTest::addColumn<int>("value");
        QTest::newRow("without focus") << false << 120 << 5;
        QTest::newRow("with focus, up") << true << 120 << 6;
        QTest::newRow("with focus, down") << true << -120 << 4;
    }

    void wheel()
    {
        QFETCH(bool, focused);
        QFETCH(int, delta);
        QFETCH(int, value);
        QWidget window;
        QLineEdit other(&window);
        OvSpinBox box(&window);
        box.move(0, 50);
        box.setValue(5);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        (focused ? static_cast<QWidget*>(&box) : &other)->setFocus();
        QSignalSpy spy(&box, qOverload<int>(&QSpinBox::valueChanged));
        const bool accepted = turnWheel(box, delta);
        QCOMPARE(box.value(), value);
        QCOMPARE(spy.count(), focused ? 1 : 0);
        QCOMPARE(box.hasFocus(), focused);
        QCOMPARE(accepted, focused);
    }

    void enterCommitsAndSelects_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("keyboardTracking");
        QTest::newRow("Enter") << Qt::Key_Enter << true;
        QTest::newRow("Return") << Qt::Key_Return << true;
        QTest::newRow("Return without keyboard tracking") << Qt::Key_Return << false;
    }

    void enterCommitsAndSelects()
    {
        QFETCH(Qt::Key, key);
        QFETCH(bool, keyboardTracking);
        OvSpinBox box;
        box.setPrefix(QStringLiteral("x "));
        box.setSuffix(QStringLiteral(" px"));
        box.setKeyboardTracking(keyboardTracking);
        QSignalSpy changed(&box, qOverload<int>(&QSpinBox::valueChanged));
        QSignalSpy finished(&box, &QAbstractSpinBox::editingFinished);
        QSignalSpy returned(box.findChild<QLineEdit*>(), &QLineEdit::returnPressed);
        box.selectAll();
        QTest::keyClicks(&box, QStringLiteral("42"));
        QCOMPARE(selectedText(box), QString());
        QTest::keyClick(&box, key);
        QCOMPARE(box.value(), 42);
        QCOMPARE(box.text(), QStringLiteral("x 42 px"));
        QCOMPARE(selectedText(box), QStringLiteral("42"));
        QCOMPARE(changed.last(), QVariantList{42});
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
        QTest::addColumn<int>("signal");
        QTest::newRow("valueChanged") << 0;
        QTest::newRow("editingFinished") << 1;
        QTest::newRow("returnPressed") << 2;
        QTest::newRow("textChanged") << 3;
    }

    void deletedByAListenerOfEnter()
    {
        QFETCH(int, signal);
        const QPointer<OvSpinBox> box(new OvSpinBox);
        box->setKeyboardTracking(false);
        box->selectAll();
        QTest::keyClick(box.data(), Qt::Key_5);
        const auto destroy = [target = box.data()] { delete target; };
        switch (signal) {
        case 0:
            connect(box, qOverload<int>(&QSpinBox::valueChanged), this, destroy);
            break;
        case 1:
            connect(box, &QAbstractSpinBox::editingFinished, this, destroy);
            break;
        case 2:
            connect(box->findChild<QLineEdit*>(), &QLineEdit::returnPressed, this, destroy);
            break;
        default:
            connect(box, &QSpinBox::textChanged, this, destroy);
        }
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
