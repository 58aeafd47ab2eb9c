#include "TestMain.h"

#include <UiComponents/EditCommand.h>
#include <UiComponents/EditSession.h>

#include <functional>
#include <memory>

class tst_EditCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_cards = {10, 20, 30};
        m_selected = {0, 1};
        m_stack = std::make_unique<QUndoStack>();
        m_slider = std::make_unique<QSlider>();
        m_slider->setValue(50);
        m_session = new EditSession(m_slider.get());
        EditCommand::record(
            m_session, m_stack.get(), [] { return QStringLiteral("Size"); },
            [this] {
                EditCommand::Targets targets;
                for (const int card : qAsConst(m_selected)) {
                    targets.append(target(card));
                }
                return targets;
            });
    }

    void cleanup()
    {
        m_slider.reset();
        m_stack.reset();
    }

    void sessionIsOneStep()
    {
        drag();
        QCOMPARE(m_cards, (QVector<int>{52, 52, 30}));
        QCOMPARE(m_stack->count(), 0);
        letGo();
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_stack->text(0), QStringLiteral("Size"));
        QCOMPARE(m_cards, (QVector<int>{52, 52, 30}));
        for (int i = 0; i < 2; ++i) {
            m_stack->undo();
            QCOMPARE(m_cards, (QVector<int>{10, 20, 30}));
            m_stack->redo();
            QCOMPARE(m_cards, (QVector<int>{52, 52, 30}));
        }
    }

    void cancelledSessionIsNone()
    {
        drag();
        QTest::keyClick(m_slider.get(), Qt::Key_Escape);
        QCOMPARE(m_cards, (QVector<int>{10, 20, 30}));
        letGo();
        QCOMPARE(m_stack->count(), 0);
    }

    // A selection that changes in the middle is the next session's.
    void targetsOfTheStart()
    {
        drag();
        m_selected = {2};
        letGo();
        QCOMPARE(m_cards, (QVector<int>{52, 52, 30}));
        drag();
        letGo();
        QCOMPARE(m_cards, (QVector<int>{52, 52, 54}));
        m_stack->undo();
        m_stack->undo();
        QCOMPARE(m_cards, (QVector<int>{10, 20, 30}));
    }

    void stackOrSessionDies_data()
    {
        QTest::addColumn<bool>("isStack");
        QTest::newRow("stack") << true;
        QTest::newRow("session") << false;
    }

    void stackOrSessionDies()
    {
        QFETCH(bool, isStack);
        drag();
        if (isStack) {
            m_stack.reset();
        } else {
            delete m_session;
        }
        const int writes = m_writes;
        letGo();
        drag();
        letGo();
        QCOMPARE(m_writes, writes);
    }

    /// In a function of the host's, which the command asks while it is made.
    void diesInATarget_data() { stackOrSessionDies_data(); }

    void diesInATarget()
    {
        QFETCH(bool, isStack);
        drag();
        m_onWrite = [this, isStack] {
            if (isStack) {
                m_stack.reset();
            } else {
                delete m_session;
            }
        };
        letGo();
        m_onWrite = [] {};
        QCOMPARE(m_cards, (QVector<int>{52, 52, 30}));
        if (!isStack) {
            m_stack->undo();
            QCOMPARE(m_cards, (QVector<int>{10, 20, 30}));
            m_stack->redo();
            QCOMPARE(m_cards, (QVector<int>{52, 52, 30}));
        }
    }

private:
    void drag() const
    {
        m_slider->setFocus();
        QTest::keyPress(m_slider.get(), Qt::Key_Right);
        QTest::keyPress(m_slider.get(), Qt::Key_Right);
    }

    void letGo() const { QTest::keyRelease(m_slider.get(), Qt::Key_Right); }
    EditCommand::Target target(int card)
    {
        return {[this, card] { return m_cards.at(card); },
                [this, card](const QVariant& value) {
                    m_cards[card] = value.toInt();
                    ++m_writes;
                    m_onWrite();
                }};
    }

    QVector<int> m_cards;
    QVector<int> m_selected;
    int m_writes = 0;
    std::function<void()> m_onWrite = [] {};
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<QSlider> m_slider;
    QPointer<EditSession> m_session;
};

UIC_TEST_MAIN(tst_EditCommand)
#include "tst_EditCommand.moc"
