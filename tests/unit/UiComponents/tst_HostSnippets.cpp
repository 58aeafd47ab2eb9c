#include "FakeColorPicker.h"
#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/EditCommand.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SliderInputWidget.h>

struct Card
{
    int size = 0;
};

/**
 * What README.md shows of a host, word for word between the marks, and that it does what is said there.
 */
class tst_HostSnippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colour()
    {
        QWidget window;
        QWidget* const inspector = &window;
        FakeColorPicker videoPicker;
        const QColor color(Qt::red);
        //! [colour]
        PopupColorPicker::Options options;
        options.nullColor = true; // the panel offers "no colour" too
        auto* picker = new PopupColorPicker(options);
        // What its pipette button starts. By default it picks from the screen.
        picker->setPipette(&videoPicker);
        auto* field = new ColorInputWidget(inspector, color);
        field->setPicker(picker);
        //! [colour]
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        qobject_cast<QToolButton*>(field->anchorWidget())->click();
        QVERIFY(picker->panel());
        picker->panel()->findChild<QToolButton*>(QStringLiteral("pipetteButton"))->click();
        QVERIFY(videoPicker.isInProgress());
        videoPicker.preview(QColor(Qt::green));
        videoPicker.finish(QColor(Qt::green));
        QTRY_VERIFY(picker->panel()->isVisible());
        QCOMPARE(field->color()->name(), QColor(Qt::green).name());
    }

    void undoAndSeveralValues()
    {
        QWidget inspector;
        QUndoStack undoStack;
        Card one{10};
        Card two{20};
        const QVector<Card*> selection = {&one, &two};
        auto* size = new SliderInputWidget(&inspector, {0, 100});
        //! [undo]
        auto* session = new EditSession(size);
        EditCommand::record(
            session, &undoStack, [] { return tr("Size"); },
            [&] {
                EditCommand::Targets targets;
                for (Card* card : selection) {
                    targets.append({[card] { return card->size; },
                                    [card](const QVariant& value) { card->size = value.toInt(); }});
                }
                return targets;
            });
        //! [undo]
        const auto showSelection = [&] {
            //! [refresh]
            const EditSession::Refresh refresh(&inspector); // none of this is an edit
            if (one.size == two.size) {
                session->setValue(one.size);
            } else {
                session->setMultiValue(true);
            }
            //! [refresh]
        };
        showSelection();
        QVERIFY(session->isMultiValue());
        QCOMPARE(undoStack.count(), 0);

        inspector.show();
        QVERIFY(QTest::qWaitForWindowActive(&inspector));
        auto* box = size->findChild<QSpinBox*>();
        box->setFocus();
        QTest::keyClicks(box, QStringLiteral("42"));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(one.size, 42);
        QCOMPARE(two.size, 42);
        QCOMPARE(undoStack.count(), 1);
        showSelection();
        undoStack.undo();
        QCOMPARE(one.size, 10);
        QCOMPARE(two.size, 20);
        showSelection();
        QVERIFY(session->isMultiValue());
        QCOMPARE(undoStack.count(), 1);
    }
};

UIC_TEST_MAIN(tst_HostSnippets)
#include "tst_HostSnippets.moc"
