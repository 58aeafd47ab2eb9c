#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/SliderInputWidget.h>

#include <TitleInspector.h>

/**
 * What docs/first-hour.md says of its program.
 */
class tst_FirstHour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_titles.list = {Title(), Title()};
        m_titles.list[1].size = 60;
        m_stack.clear();
        m_inspector = std::make_unique<TitleInspector>(&m_titles, &m_stack);
        m_inspector->show();
        QVERIFY(QTest::qWaitForWindowActive(m_inspector.get()));
    }
    void cleanup() { m_inspector.reset(); }

    void emptySelection()
    {
        QVERIFY(!m_inspector->findChild<SliderInputWidget*>()->isEnabled());
        m_inspector->select({0});
        QVERIFY(m_inspector->findChild<SliderInputWidget*>()->isEnabled());
    }

    void oneStepForAllThatIsSelected()
    {
        auto* size = m_inspector->findChild<SliderInputWidget*>();
        m_inspector->select({0});
        QCOMPARE(size->value(), 48);
        m_inspector->select({0, 1});
        auto* session = size->findChild<EditSession*>();
        QVERIFY(session->isMultiValue());
        QCOMPARE(m_stack.count(), 0);

        auto* box = size->findChild<QSpinBox*>();
        box->setFocus();
        QTest::keyClicks(box, QStringLiteral("72"));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(m_titles.list[0].size, 72);
        QCOMPARE(m_titles.list[1].size, 72);
        QCOMPARE(m_stack.count(), 1);
        QCOMPARE(m_stack.undoText(), QStringLiteral("Size"));
        QVERIFY(!session->isMultiValue());

        m_stack.undo();
        QCOMPARE(m_titles.list[0].size, 48);
        QCOMPARE(m_titles.list[1].size, 60);
        QVERIFY(session->isMultiValue());
        m_stack.redo();
        QCOMPARE(size->value(), 72);
        QCOMPARE(m_stack.count(), 1);
    }

    void colourIsLiveAndEscapeBringsItBack()
    {
        m_inspector->select({1});
        auto* field = m_inspector->findChild<ColorInputWidget*>();
        qobject_cast<QToolButton*>(field->anchorWidget())->click();
        auto* edit = m_inspector->findChild<ColorPickerWidget*>()->findChild<QLineEdit*>();
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("#c85028"));
        QCOMPARE(m_titles.list[1].color, std::optional<QColor>(QColor(0xc8, 0x50, 0x28)));
        QTest::keyClick(edit, Qt::Key_Escape);
        QTRY_COMPARE(m_titles.list[1].color, std::optional<QColor>(QColor(Qt::darkCyan)));
        QCOMPARE(m_stack.count(), 0);
    }

    void labelsLeadToTheFields()
    {
        m_inspector->select({0});
        QTest::keyClick(m_inspector.get(), Qt::Key_C, Qt::AltModifier);
        QVERIFY(m_inspector->findChild<ColorInputWidget*>()->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(m_inspector.get(), Qt::Key_S, Qt::AltModifier);
        QVERIFY(m_inspector->findChild<SliderInputWidget*>()->isAncestorOf(QApplication::focusWidget()));
    }

private:
    Titles m_titles;
    QUndoStack m_stack;
    std::unique_ptr<TitleInspector> m_inspector;
};

UIC_TEST_MAIN(tst_FirstHour)
#include "tst_FirstHour.moc"
