#include "RealInput.h"
#include "TestMain.h"

#include <EditorWidgets/PointingWidget.h>
#include <WidgetToolkit/OvFrame.h>

namespace {

const QColor bubbleColor(20, 120, 60);

QPoint middleOf(const QWidget* widget)
{
    return widget->rect().center();
}

} // namespace

/**
 * A bubble beside its window, as the window manager and the compositor treat the two.
 */
class tst_PointingBubble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(300, 200, 400, 250);
        QVERIFY(RealInput::showAndActivate(m_window.get()));

        m_bubble = new PointingWidget(m_window.get());
        m_bubble->setBackgroundColor(bubbleColor);
        m_bubble->contentFrame()->setFixedSize(150, 60);
        m_bubble->setArrowSide(PointingWidget::ArrowSide::Top, PointingWidget::ArrowPosition::Center);
        m_bubble->pointTo(m_window->mapToGlobal(m_spot));
        m_bubble->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_bubble));
        QTRY_COMPARE(RealInput::pixel(m_bubble, middleOf(m_bubble)), bubbleColor);
    }

    void cleanup() { m_window.reset(); }

    void followsItsWindowWhenTheUserMovesIt()
    {
        const QPoint distance = m_bubble->pos() - m_window->pos();
        const QPoint before = m_window->pos();

        // The window manager's title bar lies above the window's own area.
        const QPoint titleBar(200, -8);
        QVERIFY(RealInput::drag(m_window.get(), titleBar, titleBar + QPoint(130, 90)));
        QTRY_COMPARE(m_window->pos(), before + QPoint(130, 90));
        QTRY_COMPARE(m_bubble->targetPoint(), m_window->mapToGlobal(m_spot));
        QTRY_COMPARE(m_bubble->pos() - m_window->pos(), distance);
        QTRY_COMPARE(RealInput::pixel(m_bubble, middleOf(m_bubble)), bubbleColor);
        // The tip of the arrow, where it touches the spot, and nothing above it.
        QTRY_VERIFY(RealInput::pixel(m_window.get(), m_spot + QPoint(0, 4)) !=
                    m_window->palette().window().color());
        QCOMPARE(RealInput::pixel(m_window.get(), m_spot - QPoint(0, 3)),
                 m_window->palette().window().color());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("pointing-bubble")));
    }

    void followsItsTarget()
    {
        const QColor background = m_window->palette().window().color();
        const QPoint spot = m_spot + QPoint(90, 70);
        m_bubble->pointTo(m_window->mapToGlobal(spot));
        QTRY_COMPARE(RealInput::pixel(m_window.get(), spot + QPoint(0, 20)), bubbleColor);
        QTRY_COMPARE(RealInput::pixel(m_window.get(), m_spot + QPoint(0, 20)), background);
        QVERIFY(m_bubble->isVisible());
    }

    void leavesTheKeyboardToItsWindow()
    {
        QLineEdit edit(m_window.get());
        edit.show();
        edit.setFocus();
        QVERIFY(m_window->isActiveWindow());
        QVERIFY(RealInput::type(QStringLiteral("intro")));
        QTRY_COMPARE(edit.text(), QStringLiteral("intro"));
    }

    void clicksBesideTheArrowGoToWhatLiesThere()
    {
        QWidget below(m_window.get());
        below.setGeometry(m_window->rect());
        below.show();
        int presses = 0;
        struct Counter : QObject
        {
            explicit Counter(int& presses)
                : m_presses(presses)
            {
            }
            bool eventFilter(QObject*, QEvent* event) override
            {
                m_presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
                return false;
            }
            int& m_presses;
        } counter(presses);
        below.installEventFilter(&counter);

        // Inside the bubble's window, level with its arrow, and far from it.
        const QPoint beside = m_window->mapFromGlobal(m_bubble->mapToGlobal(QPoint(3, 1)));
        QVERIFY(RealInput::click(m_window.get(), beside));
        QTRY_COMPARE(presses, 1);
        // On the bubble itself.
        QVERIFY(RealInput::click(m_bubble));
        // A click that is sure to arrive after it.
        QVERIFY(RealInput::click(m_window.get(), QPoint(10, 10)));
        QTRY_COMPARE(presses, 2);
    }

private:
    const QPoint m_spot{120, 60};
    std::unique_ptr<QWidget> m_window;
    PointingWidget* m_bubble = nullptr;
};

UIC_TEST_MAIN(tst_PointingBubble)
#include "tst_PointingBubble.moc"
