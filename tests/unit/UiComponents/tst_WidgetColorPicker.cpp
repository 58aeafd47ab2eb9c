#include "FreedMemory.h"
#include "MouseEvents.h"
#include "PickingStage.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerStylingObject.h>

#include <memory>
#include <utility>

using Act = std::function<void(PickingStage*, WidgetColorPicker*)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(std::function<void(QWidget*)>)

namespace {

/// A look whose object does something when it is asked.
class ActingLook : public WidgetColorPickerStylingObject
{
public:
    explicit ActingLook(std::function<void()> act)
        : m_act(std::move(act))
    {
    }
    QCursor pickingCursor() const override
    {
        const std::function<void()> act = m_act;
        act();
        return Qt::PointingHandCursor;
    }

private:
    std::function<void()> m_act;
};

class Look : public WidgetColorPickerStylingObject
{
public:
    explicit Look(Qt::CursorShape shape)
        : m_shape(shape)
    {
    }
    QCursor pickingCursor() const override
    {
        ++asked;
        return m_shape;
    }

    mutable int asked = 0;

private:
    Qt::CursorShape m_shape;
};

/// Everything a picker says, in order, with what it answers at that moment.
class Protocol : public QObject
{
public:
    explicit Protocol(WidgetColorPicker* picker)
    {
        connect(picker, &AbstractColorPicker::colorChanged, this, [this](const std::optional<QColor>& color) {
            lines += QStringLiteral("color ") + color->name(QColor::HexArgb);
        });
        connect(picker, &AbstractColorPicker::pickingStopped, this, [this, picker] {
            lines += QStringLiteral("stopped ") + picker->color()->name(QColor::HexArgb) +
                     (picker->isInProgress() ? QStringLiteral(" in progress") : QString());
        });
    }

    QStringList lines;
};

QStringList picked(const QColor& color)
{
    const QString name = color.name(QColor::HexArgb);
    return {QStringLiteral("color ") + name, QStringLiteral("stopped ") + name};
}

QColor colorIn(const QPoint& point)
{
    return {PatternWidget::colorAt(point)};
}

const QPoint spot(37, 21);

enum class Victim { Picker, Target, Window, Button, Other };
enum class Moment { Timer, PressElsewhere, AfterPressElsewhere };

} // namespace

class tst_WidgetColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stage = std::make_unique<PickingStage>();
        QVERIFY(m_stage->show());
        // Null is no widget.
        m_picker = new WidgetColorPicker({nullptr, m_stage->button});
        m_picker->setTarget(m_stage->target);
        PickingStage::moveCursor(m_stage->target, spot);
    }

    void cleanup()
    {
        delete m_picker;
        m_stage.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void construction()
    {
        WidgetColorPicker picker({});
        QVERIFY(!picker.parent());
        QVERIFY(!picker.target());
        QVERIFY(!picker.isInProgress());
        QVERIFY(picker.color().has_value());
        QVERIFY(!picker.color()->isValid());
    }

    void setColorDoesNothing()
    {
        const Protocol protocol(m_picker);
        m_picker->setColor(QColor(Qt::red));
        m_picker->setColor(std::nullopt);
        QCOMPARE(m_picker->color(), std::optional<QColor>(QColor()));
        QCOMPARE(protocol.lines, QStringList());
    }

    void stopWhileIdleDoesNothing()
    {
        const Protocol protocol(m_picker);
        m_stage->target->setCursor(Qt::IBeamCursor);
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        m_picker->stop();
        QVERIFY(QGuiApplication::overrideCursor());
        QGuiApplication::restoreOverrideCursor();
        QCOMPARE(m_stage->target->cursor().shape(), Qt::IBeamCursor);
        QCOMPARE(protocol.lines, QStringList());
    }

    void pickWithoutATargetForgetsTheColor()
    {
        QVERIFY(pickWith([this] { m_stage->press(); }));
        QVERIFY(m_picker->color()->isValid());
        const Protocol protocol(m_picker);
        m_picker->setTarget(nullptr);
        m_picker->pick();
        QVERIFY(!m_picker->color()->isValid());
        QVERIFY(!m_picker->isInProgress());
        QCOMPARE(protocol.lines, QStringList());
    }

    void pressOnTheTargetPicks()
    {
        const Protocol protocol(m_picker);
        QVERIFY(pickWith([this] {
            QVERIFY(m_picker->isInProgress());
            m_stage->press();
            QVERIFY(!m_picker->isInProgress());
            QVERIFY(!m_picker->color()->isValid());
            m_stage->release();
        }));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
        QCOMPARE(m_picker->color(), std::optional<QColor>(colorIn(spot)));
        QCOMPARE(m_stage->target->presses, 0);
        QVERIFY(!m_picker->isInProgress());

        // The filter has gone.
        m_stage->press();
        m_stage->release();
        QCOMPARE(m_stage->target->presses, 1);
    }

    void pick_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QColor>("color"); // invalid: nothing is said
        const auto row = [](const char* name, const QColor& color, const Act& act) {
            QTest::newRow(name) << act << color;
        };
        const auto pressAt = [row](const char* name, const QPoint& point, const QColor& color) {
            row(name, color, [point](PickingStage* stage, WidgetColorPicker*) {
                PickingStage::moveCursor(stage->target, point);
                stage->press();
            });
        };
        const QColor spotColor = colorIn(spot);
        // The outline lies over the outer two pixels.
        for (const QPoint& point : {QPoint(0, 0), QPoint(50, 1), QPoint(2, 2), QPoint(99, 79)}) {
            pressAt(qPrintable(QStringLiteral("pressed at %1, %2").arg(point.x()).arg(point.y())), point,
                    colorIn(point));
        }
        pressAt("pressed left of it", {-1, 40}, {});
        pressAt("pressed above it", {50, -1}, {});
        pressAt("pressed right of it", {100, 40}, {});
        pressAt("pressed below it", {50, 80}, {});
        for (const auto button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
            row(qPrintable(QStringLiteral("mouse button %1").arg(button)), spotColor,
                [button](PickingStage* stage, WidgetColorPicker*) { stage->press(button); });
        }
        row("stopped, twice", spotColor, [](PickingStage*, WidgetColorPicker* picker) {
            picker->stop();
            QVERIFY(!picker->isInProgress());
            picker->stop();
        });
        row("stopped elsewhere", {}, [](PickingStage* stage, WidgetColorPicker* picker) {
            PickingStage::moveCursor(stage->button);
            picker->stop();
        });
        row("key elsewhere", {}, [](PickingStage* stage, WidgetColorPicker*) {
            PickingStage::moveCursor(stage->other);
            QTest::keyPress(stage->window->windowHandle(), Qt::Key_Escape);
        });
        // The cursor decides about the colour, not the press.
        row("another widget pressed below the cursor", spotColor,
            [](PickingStage* stage, WidgetColorPicker*) {
                QTest::mousePress(stage->window->windowHandle(), Qt::LeftButton, {},
                                  stage->other->geometry().center());
                QVERIFY(stage->other->isDown());
            });
        row("another widget clicked", {}, [](PickingStage* stage, WidgetColorPicker* picker) {
            stage->pressOn(stage->other);
            QVERIFY(stage->other->isDown());
            QVERIFY(!picker->isInProgress());
            stage->release();
        });
        row("target taken away", {}, [](PickingStage*, WidgetColorPicker* picker) {
            picker->setTarget(nullptr);
            QVERIFY(!picker->isInProgress());
        });
        row("target taken away, and given again", {}, [](PickingStage* stage, WidgetColorPicker* picker) {
            picker->setTarget(nullptr);
            picker->setTarget(stage->target);
            QVERIFY(!picker->isInProgress());
        });
        row("target moved", colorIn(spot - QPoint(1, 2)), [](PickingStage* stage, WidgetColorPicker*) {
            stage->target->move(11, 12);
            stage->press();
        });
        // A key ends the pick, goes on to the dialog around the target, and closes it.
        row("window hidden at once", spotColor, [](PickingStage* stage, WidgetColorPicker* picker) {
            picker->stop();
            stage->window->hide();
        });
        // These do not end it.
        const auto passing = [row, spotColor](const char* name,
                                              const std::function<void(PickingStage*)>& act) {
            row(name, spotColor, [act](PickingStage* stage, WidgetColorPicker* picker) {
                act(stage);
                QCoreApplication::processEvents();
                QVERIFY(picker->isInProgress());
                PickingStage::moveCursor(stage->target, spot);
                picker->stop();
                QVERIFY(!picker->isInProgress());
            });
        };
        passing("moved",
                [](PickingStage* stage) { QTest::mouseMove(stage->window->windowHandle(), QPoint(60, 60)); });
        passing("released", [](PickingStage* stage) { stage->release(); });
        passing("key released",
                [](PickingStage* stage) { QTest::keyRelease(stage->window->windowHandle(), Qt::Key_A); });
        passing("wheel", [](PickingStage* stage) { turnWheel(*stage->target, 120); });
        passing("focus", [](PickingStage* stage) { stage->button->setFocus(); });
        passing("double click", [](PickingStage* stage) {
            sendMouse(*stage->target, QEvent::MouseButtonDblClick, {50, 50}, Qt::LeftButton, Qt::LeftButton);
        });
        passing("target hidden and shown", [](PickingStage* stage) {
            stage->target->hide();
            stage->target->show();
        });
    }

    void pick()
    {
        QFETCH(Act, act);
        QFETCH(QColor, color);
        const Protocol protocol(m_picker);
        QVERIFY(!m_stage->outline());
        QVERIFY(pickWith([this, act] {
            QVERIFY(m_stage->outline() && m_stage->outline()->isVisible());
            act(m_stage.get(), m_picker);
            QVERIFY(!m_stage->outline());
        }));
        QCOMPARE(protocol.lines, color.isValid() ? picked(color) : QStringList());
        QCOMPARE(m_picker->color(), std::optional<QColor>(color));
        QCOMPARE(m_stage->target->presses, 0);
        QVERIFY(!m_picker->isInProgress());
        QCOMPARE(m_stage->target->cursor().shape(), Qt::ArrowCursor);
    }

    void mouseBetweenPoints_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("shift");
        QTest::addColumn<bool>("isInside");
        QTest::newRow("last pixel of the last point") << 99.5 << 0.0 << true;
        QTest::newRow("first pixel of the next point") << 100.0 << 0.0 << false;
        QTest::newRow("last pixel of the point before") << -0.5 << 0.0 << false;
        QTest::newRow("first pixel, window between points") << 0.0 << 0.5 << true;
        QTest::newRow("last pixel, window between points") << 99.5 << 0.5 << true;
        QTest::newRow("pixel before, window between points") << -0.5 << 0.5 << false;
        QTest::newRow("pixel after, window between points") << 100.0 << 0.5 << false;
    }

    // As on a screen with two pixels for a point: Qt rounds where the cursor is, and where a window is.
    // Events do not.
    void mouseBetweenPoints()
    {
        QFETCH(const double, x);
        QFETCH(const double, shift);
        QFETCH(const bool, isInside);
        const Protocol protocol(m_picker);
        QWindow* const window = m_stage->window->windowHandle();
        QVERIFY(pickWith([&] {
            const QPointF local = QPointF(m_stage->target->pos()) + QPointF(x, 40);
            const QPointF global = local + window->mapToGlobal(QPoint(0, 0)) + QPointF(shift, 0);
            QCursor::setPos(global.toPoint());
            QMouseEvent move(QEvent::MouseMove, local, local, global, Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(window, &move);
            QTest::keyPress(window, Qt::Key_Escape);
        }));
        QCOMPARE(protocol.lines.size(), isInside ? 2 : 0);
    }

    // The mouse may tell of a move of the window before the window does.
    void windowMovedBelowTheMouse()
    {
        const Protocol protocol(m_picker);
        QWindow* const window = m_stage->window->windowHandle();
        QVERIFY(pickWith([&] {
            const QPointF global = QCursor::pos();
            const QPointF local = m_stage->window->mapFromGlobal(QCursor::pos()) - QPoint(80, 0);
            QMouseEvent move(QEvent::MouseMove, local, local, global, Qt::NoButton, Qt::NoButton,
                             Qt::NoModifier);
            QCoreApplication::sendEvent(window, &move);
            QTest::keyPress(window, Qt::Key_Escape);
        }));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void pressOnAConstructorWidgetIsSwallowed()
    {
        const Protocol protocol(m_picker);
        QSignalSpy pressed(m_stage->button.data(), &QAbstractButton::pressed);
        QSignalSpy clicked(m_stage->button.data(), &QAbstractButton::clicked);
        QVERIFY(pickWith([this] {
            m_stage->pressOn(m_stage->button);
            QVERIFY(!m_picker->isInProgress());
            m_stage->release();
        }));
        QCOMPARE(pressed.size(), 0);
        QCOMPARE(clicked.size(), 0);
        QCOMPARE(protocol.lines, QStringList());
    }

    // Buttons take a double click for a press: the button would be clicked after all.
    void doubleClickOfASwallowedPressIsSwallowed()
    {
        QSignalSpy clicked(m_stage->button.data(), &QAbstractButton::clicked);
        QWindow* const window = m_stage->window->windowHandle();
        const QPoint place = m_stage->button->geometry().center();
        PickingStage::moveCursor(m_stage->button);
        QTest::mouseClick(window, Qt::LeftButton, {}, place);
        QCOMPARE(clicked.size(), 1);
        QVERIFY(pickWith([&] {
            // The second click of two comes as a press, a double click and a release.
            QTest::mousePress(window, Qt::LeftButton, {}, place);
            QMouseEvent doubleClick(QEvent::MouseButtonDblClick, place, window->mapToGlobal(place),
                                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &doubleClick);
            QTest::mouseRelease(window, Qt::LeftButton, {}, place);
        }));
        QCOMPARE(clicked.size(), 1);
        QVERIFY(!m_stage->button->isDown());

        // Only that one.
        PickingStage::moveCursor(m_stage->target);
        QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPoint(50, 50),
                                window->mapToGlobal(QPoint(50, 50)), Qt::LeftButton, Qt::LeftButton,
                                Qt::NoModifier);
        QCoreApplication::sendEvent(window, &doubleClick);
        QCOMPARE(m_stage->target->doubleClicks, 1);
    }

    // The receiver of a press may have brought the target below the cursor before pick() returns.
    void targetMayComeToTheCursor()
    {
        PickingStage::moveCursor(m_stage->other);
        connect(m_stage->other, &QAbstractButton::pressed, this, [this] {
            m_stage->target->setGeometry(m_stage->other->geometry());
            m_stage->target->raise();
        });
        QSignalSpy changed(m_picker, &AbstractColorPicker::colorChanged);
        QVERIFY(pickWith([this] {
            QTest::mousePress(m_stage->window->windowHandle(), Qt::LeftButton, {},
                              m_stage->other->geometry().center());
        }));
        QCOMPARE(changed.count(), 1);
        QVERIFY(m_picker->color()->isValid());
    }

    void hiddenTargetMayShrinkAsItPaints()
    {
        const Protocol protocol(m_picker);
        QVERIFY(pickWith([this] {
            QWidget* const target = m_stage->target;
            target->hide();
            (new QVBoxLayout(target))->setSizeConstraint(QLayout::SetFixedSize);
            target->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            target->setGeometry(target->geometry().adjusted(30, 0, 31, 0));
            QCursor::setPos(target->mapToGlobal(target->rect().bottomRight() - QPoint(2, 2)));
            m_picker->stop();
        }));
        QCOMPARE(protocol.lines, QStringList());
        QVERIFY(!m_picker->color()->isValid());
    }

    void keyEndsThePick_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Escape") << Qt::Key_Escape;
        QTest::newRow("Space") << Qt::Key_Space;
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Shift") << Qt::Key_Shift;
        QTest::newRow("A") << Qt::Key_A;
    }

    void keyEndsThePick()
    {
        QFETCH(Qt::Key, key);
        const Protocol protocol(m_picker);
        /// Sees what reaches the widget with the focus.
        class Keys : public QObject
        {
        public:
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                if (event->type() == QEvent::KeyPress) {
                    seen = static_cast<QKeyEvent*>(event)->key();
                }
                return false;
            }
            int seen = 0;
        } keys;
        m_stage->other->installEventFilter(&keys);
        QVERIFY(pickWith([this, key] {
            QTest::keyPress(m_stage->window->windowHandle(), key);
            QVERIFY(!m_picker->isInProgress());
        }));
        QCOMPARE(keys.seen, int(key));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void idlePickerFiltersNothing()
    {
        QMouseEvent press(QEvent::MouseButtonPress, spot, m_stage->target->mapToGlobal(spot), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
        QVERIFY(!m_picker->eventFilter(m_stage->target, &press));
        QVERIFY(!m_picker->eventFilter(m_stage->target, &key));
    }

    void pickWhilePickingForgetsTheColor()
    {
        QVERIFY(pickWith([this] { m_stage->press(); }));
        QVERIFY(m_picker->color()->isValid());
        const Protocol protocol(m_picker);
        QVERIFY(pickWith([this] {
            QVERIFY(!m_picker->color()->isValid());
            m_picker->pick();
            QVERIFY(m_picker->isInProgress());
            QCOMPARE(m_stage->target->findChildren<QWidget*>(QStringLiteral("highlightFrame")).size(), 1);
            m_stage->press();
        }));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void lastWindowClosedEndsThePick()
    {
        const Protocol protocol(m_picker);
        QGuiApplication::setQuitOnLastWindowClosed(false);
        QTimer::singleShot(0, this, [this] {
            QVERIFY(pickWith([this] {
                m_stage->window->close();
                QVERIFY(!m_picker->isInProgress());
            }));
            QCoreApplication::quit();
        });
        QCoreApplication::exec();
        QGuiApplication::setQuitOnLastWindowClosed(true);
        // The cursor decides, as for any other end.
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void quittingEndsThePick()
    {
        const Protocol protocol(m_picker);
        bool hasReturned = false;
        QTimer::singleShot(0, this, [this, &hasReturned] {
            QVERIFY(pickWith([] { QCoreApplication::quit(); }));
            hasReturned = true;
        });
        QCoreApplication::exec();
        QVERIFY(hasReturned);
        QVERIFY(!m_picker->isInProgress());
        QCOMPARE(protocol.lines, QStringList());
        QVERIFY(!m_stage->outline());
        QCOMPARE(m_stage->target->cursor().shape(), Qt::ArrowCursor);
        m_stage->press();
        QCOMPARE(m_stage->target->presses, 1);
        m_stage->release();

        // It is as good as new.
        QVERIFY(pickWith([this] { m_stage->press(); }));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    // The last window that closes ends the pick, and then posts what makes the application quit.
    void quitIsNotSwallowed()
    {
        QWidget tool(m_stage->window, Qt::Tool);
        tool.setGeometry(400, 300, 100, 100);
        PatternWidget target(&tool);
        target.resize(100, 100);
        tool.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tool));
        m_picker->setTarget(&target);
        PickingStage::moveCursor(&target, spot);
        const Protocol protocol(m_picker);
        QTimer::singleShot(0, this, [this] {
            QVERIFY(pickWith([this] {
                m_stage->window->close();
                QVERIFY(!m_picker->isInProgress());
            }));
        });
        QTimer watchdog;
        bool isRescued = false;
        connect(&watchdog, &QTimer::timeout, this, [&isRescued] {
            isRescued = true;
            QCoreApplication::quit();
        });
        watchdog.start(5000);
        QCoreApplication::exec();
        QVERIFY(!isRescued);
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void cursorOfTheStylingObject()
    {
        const auto look = std::make_unique<Look>(Qt::PointingHandCursor);
        m_picker->setStylingObject(look.get());
        QCOMPARE(look->asked, 0);
        QVERIFY(pickWith([this] {
            QCOMPARE(m_stage->target->cursor().shape(), Qt::PointingHandCursor);
            m_picker->stop();
        }));
        QCOMPARE(look->asked, 1);
        m_picker->setStylingObject(nullptr);
        QVERIFY(pickWith([this] {
            QCOMPARE(m_stage->target->cursor().shape(), Qt::CrossCursor);
            m_picker->stop();
        }));
        QCOMPARE(look->asked, 1);
    }

    void stylingObjectSetWhilePicking()
    {
        Look look(Qt::PointingHandCursor);
        m_stage->target->setCursor(Qt::IBeamCursor);
        QVERIFY(pickWith([this, &look] {
            QCOMPARE(m_stage->target->cursor().shape(), Qt::CrossCursor);
            m_picker->setStylingObject(&look);
            QCOMPARE(m_stage->target->cursor().shape(), Qt::PointingHandCursor);
            m_picker->setStylingObject(nullptr);
            QCOMPARE(m_stage->target->cursor().shape(), Qt::CrossCursor);
            m_picker->stop();
            // At once, not when pick() returns.
            QCOMPARE(m_stage->target->cursor().shape(), Qt::IBeamCursor);
        }));
        QCOMPARE(m_stage->target->cursor().shape(), Qt::IBeamCursor);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void stylingObjectIsAskedWithoutAPickingCursor()
    {
        QVector<int> shapes;
        ActingLook look([&] { shapes += m_stage->target->cursor().shape(); });
        m_stage->target->setCursor(Qt::IBeamCursor);
        QVERIFY(pickWith([&] {
            m_picker->setStylingObject(&look);
            QCOMPARE(m_stage->target->cursor().shape(), Qt::PointingHandCursor);
            m_picker->stop();
        }));
        QCOMPARE(shapes, QVector<int>({Qt::IBeamCursor}));
        m_picker->setStylingObject(nullptr);
    }

    // The pick that it begins is over before the one that asked it has a loop.
    void stylingObjectThatPicks()
    {
        const Protocol protocol(m_picker);
        bool isFirst = true;
        ActingLook look([&] {
            if (isFirst) {
                isFirst = false;
                m_picker->pick();
            }
        });
        m_picker->setStylingObject(&look);
        // Were the outer one to run, nothing else could end its loop.
        QVERIFY(runWith([this] { m_picker->pick(); },
                        [this] {
                            m_stage->press();
                            m_stage->release();
                        },
                        [] { QCoreApplication::exit(); }));
        m_picker->setStylingObject(nullptr);
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
        QVERIFY(!m_stage->outline());
        QCOMPARE(m_stage->target->cursor().shape(), Qt::ArrowCursor);
        m_stage->press();
        QCOMPARE(m_stage->target->presses, 1);
        m_stage->release();
    }

    void stylingObjectThatDeletes_data()
    {
        QTest::addColumn<bool>("isPicker");
        QTest::addColumn<bool>("isPicking");
        QTest::newRow("the picker, before the loop") << true << false;
        QTest::newRow("the picker, while picking") << true << true;
        QTest::newRow("the target, before the loop") << false << false;
        QTest::newRow("the target, while picking") << false << true;
    }

    void stylingObjectThatDeletes()
    {
        QFETCH(const bool, isPicker);
        QFETCH(const bool, isPicking);
        ActingLook look([&] {
            if (isPicker) {
                delete m_picker;
            } else {
                delete m_stage->target;
            }
        });
        const Protocol protocol(m_picker);
        if (isPicking) {
            QVERIFY(pickWith([&] {
                m_picker->setStylingObject(&look);
                // Without a target, a picking cursor would be the whole application's.
                QVERIFY(!QGuiApplication::overrideCursor());
            }));
        } else {
            m_picker->setStylingObject(&look);
            QVERIFY(runWith([this] { m_picker->pick(); }, [] {},
                            [this] {
                                if (m_picker) {
                                    m_picker->stop();
                                }
                            }));
        }
        QCOMPARE(bool(m_picker), !isPicker);
        QCOMPARE(bool(m_stage->target), isPicker);
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(!m_stage->outline());
        if (m_stage->target) {
            QCOMPARE(m_stage->target->cursor().shape(), Qt::ArrowCursor);
        }
        QCOMPARE(protocol.lines, QStringList());
        if (m_picker) {
            QVERIFY(!m_picker->isInProgress());
            m_picker->setStylingObject(nullptr);
        }
    }

    void twoPickersOnOneTarget()
    {
        Look look(Qt::PointingHandCursor);
        m_stage->target->setCursor(Qt::IBeamCursor);
        WidgetColorPicker second({});
        second.setTarget(m_stage->target);
        second.setStylingObject(&look);
        QVERIFY(pickWith([&] {
            QVERIFY(runWith([&] { second.pick(); },
                            [&] {
                                QCOMPARE(m_stage->target->cursor().shape(), Qt::PointingHandCursor);
                                // Ended in the order in which they began.
                                m_picker->stop();
                                QCOMPARE(m_stage->target->cursor().shape(), Qt::PointingHandCursor);
                                m_stage->press();
                            },
                            [&] { second.stop(); }));
        }));
        QCOMPARE(m_stage->target->cursor().shape(), Qt::IBeamCursor);
        QVERIFY(!m_stage->outline());
    }

    void stylingObjectDiesWhilePicking()
    {
        const Protocol protocol(m_picker);
        auto look = std::make_unique<Look>(Qt::PointingHandCursor);
        m_picker->setStylingObject(look.get());
        PatternWidget second(m_stage->window);
        QVERIFY(pickWith([&] {
            look.reset();
            // The new target gets the cursor that the dead object gave.
            m_picker->setTarget(&second);
            QCOMPARE(second.cursor().shape(), Qt::PointingHandCursor);
            m_picker->setTarget(m_stage->target);
            m_stage->press();
        }));
        m_picker->setStylingObject(nullptr);
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void overrideCursorOfTheHostStays()
    {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        QVERIFY(pickWith([this] { delete m_stage->target; }));
        QVERIFY(QGuiApplication::overrideCursor());
        QGuiApplication::restoreOverrideCursor();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void newTargetWhilePicking()
    {
        const Protocol protocol(m_picker);
        auto* second = new PatternWidget(m_stage->window);
        second->setGeometry(180, 0, 50, 50);
        second->setCursor(Qt::WaitCursor);
        second->show();
        QVERIFY(pickWith([&] {
            m_picker->setTarget(second);
            QCOMPARE(m_picker->target(), second);
            QVERIFY(!m_stage->outline());
            QCOMPARE(m_stage->target->cursor().shape(), Qt::ArrowCursor);
            QVERIFY(second->findChild<QWidget*>(QStringLiteral("highlightFrame")));
            QCOMPARE(second->cursor().shape(), Qt::CrossCursor);
            PickingStage::moveCursor(second, QPoint(20, 30));
            m_stage->press();
        }));
        QCOMPARE(second->presses, 0);
        QCOMPARE(second->cursor().shape(), Qt::WaitCursor);
        QCOMPARE(protocol.lines, picked(colorIn(QPoint(20, 30))));
    }

    void targetReparentedWhilePicking()
    {
        const Protocol protocol(m_picker);
        QWidget second;
        second.setGeometry(400, 100, 200, 200);
        second.show();
        QVERIFY(pickWith([&] {
            m_stage->target->setParent(&second);
            m_stage->target->show();
            QVERIFY(QTest::qWaitForWindowExposed(&second));
            PickingStage::moveCursor(m_stage->target, spot);
            QTest::mousePress(second.windowHandle(), Qt::LeftButton, {},
                              second.mapFromGlobal(QCursor::pos()));
        }));
        QCOMPARE(m_stage->target->presses, 0);
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void targetThatDiedIsNull()
    {
        delete m_stage->target;
        QVERIFY(!m_picker->target());
        m_picker->pick();
        QVERIFY(!m_picker->isInProgress());
    }

    void deletedWhilePicking_data()
    {
        QTest::addColumn<int>("victim");
        QTest::addColumn<int>("moment");
        const QVector<QPair<const char*, Victim>> victims = {{"picker", Victim::Picker},
                                                             {"target", Victim::Target},
                                                             {"window", Victim::Window},
                                                             {"constructor's widget", Victim::Button},
                                                             {"other widget", Victim::Other}};
        const QVector<QPair<const char*, Moment>> moments = {
            {"by a timer", Moment::Timer},
            {"by the press that ends it", Moment::PressElsewhere},
            {"after the press that ends it", Moment::AfterPressElsewhere}};
        for (const auto& [victimName, victim] : victims) {
            for (const auto& [momentName, moment] : moments) {
                if (moment == Moment::PressElsewhere &&
                    (victim == Victim::Window || victim == Victim::Other)) {
                    // Qt's own buttons do not survive it.
                    continue;
                }
                QTest::addRow("%s %s", victimName, momentName) << int(victim) << int(moment);
            }
        }
    }

    void deletedWhilePicking()
    {
        QFETCH(int, victim);
        QFETCH(int, moment);
        const Protocol protocol(m_picker);
        const auto destroy = [this, victim] {
            switch (Victim(victim)) {
            case Victim::Picker:
                delete m_picker;
                break;
            case Victim::Target:
                delete m_stage->target;
                break;
            case Victim::Window:
                delete m_stage->window;
                break;
            case Victim::Button:
                delete m_stage->button;
                break;
            case Victim::Other:
                delete m_stage->other;
                break;
            }
        };
        const bool endsThePick = Victim(victim) != Victim::Button && Victim(victim) != Victim::Other;
        QVERIFY(pickWith([&] {
            switch (Moment(moment)) {
            case Moment::Timer:
                destroy();
                if (!endsThePick) {
                    // It goes on.
                    QTimer::singleShot(0, this, [this] {
                        QVERIFY(m_picker->isInProgress());
                        m_stage->press();
                    });
                }
                break;
            case Moment::PressElsewhere:
            case Moment::AfterPressElsewhere:
                connect(m_stage->other.data(), &QAbstractButton::pressed, this, destroy,
                        Moment(moment) == Moment::PressElsewhere ? Qt::DirectConnection
                                                                 : Qt::QueuedConnection);
                QTest::mousePress(m_stage->window->windowHandle(), Qt::LeftButton, {},
                                  m_stage->other->geometry().center());
                break;
            }
        }));
        QCOMPARE(protocol.lines, endsThePick ? QStringList() : picked(colorIn(spot)));
        QVERIFY(!m_stage->outline());
        if (m_stage->target) {
            QCOMPARE(m_stage->target->cursor().shape(), Qt::ArrowCursor);
            // No filter has stayed.
            if (QGuiApplication::mouseButtons() != Qt::NoButton) {
                m_stage->release();
            }
            const int before = m_stage->target->presses;
            m_stage->press();
            QCOMPARE(m_stage->target->presses, before + 1);
            m_stage->release();
        }
    }

    // A widget that tells of its end is no more than a QWidget: nothing may be set on it or painted any more.
    void dyingTargetIsLeftAlone()
    {
        class Events : public QObject
        {
        public:
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                if (isDying && (event->type() == QEvent::CursorChange || event->type() == QEvent::Paint)) {
                    seen += event->type();
                }
                return false;
            }
            bool isDying = false;
            QVector<int> seen;
        } events;
        // The first to hear of it.
        auto* target = new PatternWidget(m_stage->window);
        connect(target, &QObject::destroyed, &events, [&events] { events.isDying = true; });
        target->setGeometry(m_stage->target->geometry());
        target->show();
        target->installEventFilter(&events);
        m_picker->setTarget(target);
        const Protocol protocol(m_picker);
        QVERIFY(pickWith([this, target] {
            delete target;
            QVERIFY(!m_picker->isInProgress());
        }));
        QVERIFY(events.isDying);
        QCOMPARE(events.seen, QVector<int>());
        QCOMPARE(protocol.lines, QStringList());
    }

    void deletedByTheTargetsPainting_data()
    {
        QTest::addColumn<bool>("isNext");
        QTest::newRow("the picker, inside the filter that sees the press") << false;
        QTest::newRow("the next target, as it is set") << true;
    }

    // The outline goes by painting the target.
    void deletedByTheTargetsPainting()
    {
        QFETCH(const bool, isNext);
        class Deadly : public PatternWidget
        {
        public:
            using PatternWidget::PatternWidget;

            std::function<void()> act;

        protected:
            void paintEvent(QPaintEvent* event) override
            {
                PatternWidget::paintEvent(event);
                if (act) {
                    const std::function<void()> once = std::exchange(act, nullptr);
                    once();
                }
            }
        };
        auto* target = new Deadly(m_stage->window);
        target->setGeometry(m_stage->target->geometry());
        target->show();
        m_picker->setTarget(target);
        const Protocol protocol(m_picker);
        const FreedMemoryWatch memory;
        QVERIFY(pickWith([this, target, isNext] {
            QCoreApplication::processEvents();
            if (isNext) {
                auto* const next = new QWidget;
                target->act = [next] { delete next; };
                m_picker->setTarget(next);
                QVERIFY(!m_picker->target());
            } else {
                target->act = [this] { delete m_picker; };
                m_stage->press();
                QVERIFY(!m_picker);
            }
        }));
        QVERIFY(isNext ? !m_picker->isInProgress() : !m_picker);
        QVERIFY(!m_stage->outline());
        QCOMPARE(target->presses, 0);
        QCOMPARE(target->cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(protocol.lines, QStringList());
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }

    void stopInASlot()
    {
        const Protocol protocol(m_picker);
        connect(m_picker.data(), &AbstractColorPicker::colorChanged, m_picker.data(),
                &AbstractColorPicker::stop);
        connect(m_picker.data(), &AbstractColorPicker::pickingStopped, m_picker.data(),
                &AbstractColorPicker::stop);
        QVERIFY(pickWith([this] { m_stage->press(); }));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    void pickInASlot()
    {
        const QPoint second(60, 40);
        QSignalSpy changed(m_picker.data(), &AbstractColorPicker::colorChanged);
        QSignalSpy stopped(m_picker.data(), &AbstractColorPicker::pickingStopped);
        connect(m_picker.data(), &AbstractColorPicker::colorChanged, this, [this, second] {
            if (m_stage->target->mapFromGlobal(QCursor::pos()) == spot) {
                PickingStage::moveCursor(m_stage->target, second);
                QVERIFY(pickWith([this] { m_stage->press(); }));
            }
        });
        QVERIFY(pickWith([this] {
            m_stage->press();
            m_stage->release();
        }));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.at(0).front().value<std::optional<QColor>>(), std::optional<QColor>(colorIn(spot)));
        QCOMPARE(changed.at(1).front().value<std::optional<QColor>>(),
                 std::optional<QColor>(colorIn(second)));
        QCOMPARE(stopped.size(), 2);
        QCOMPARE(m_picker->color(), std::optional<QColor>(colorIn(second)));
    }

    // The press outside ends the first pick, and reaches what begins the second. The first one's loop returns
    // after the second one's, and the cursor decides for both.
    void pickBegunByTheEndOfAnother()
    {
        const Protocol protocol(m_picker);
        int begun = 0;
        connect(m_stage->other.data(), &QAbstractButton::pressed, this, [&] {
            ++begun;
            QVERIFY(pickWith([this] {
                QVERIFY(m_picker->isInProgress());
                PickingStage::moveCursor(m_stage->target, spot);
                m_stage->press();
            }));
            QCOMPARE(protocol.lines, picked(colorIn(spot)));
        });
        QVERIFY(pickWith([this] { m_stage->pressOn(m_stage->other); }));
        QCOMPARE(begun, 1);
        QCOMPARE(protocol.lines, picked(colorIn(spot)) + picked(colorIn(spot)));
        QVERIFY(!m_stage->outline());
        QVERIFY(!m_picker->isInProgress());
    }

    // Both are released by one click into the target.
    void twoFieldsOnOneTarget()
    {
        ColorPickerButton first(m_stage->window);
        first.setGeometry(190, 10, 30, 30);
        ColorPickerButton second(m_stage->window);
        second.setGeometry(190, 50, 30, 30);
        for (ColorPickerButton* field : {&first, &second}) {
            field->show();
            auto* picker = new WidgetColorPicker({field});
            picker->setTarget(m_stage->target);
            field->setPicker(picker);
        }
        const auto clickOn = [this](QWidget* widget) {
            m_stage->pressOn(widget);
            m_stage->release();
        };
        connect(
            &first, &ColorPickerButton::pickingStarted, this, [&] { clickOn(&second); },
            Qt::QueuedConnection);
        connect(
            &second, &ColorPickerButton::pickingStarted, this,
            [this] {
                PickingStage::moveCursor(m_stage->target, spot);
                m_stage->press();
            },
            Qt::QueuedConnection);
        QVERIFY(runWith([&] { clickOn(&first); }, [] {},
                        [&] {
                            second.stopPicking();
                            first.stopPicking();
                        }));
        for (const ColorPickerButton* field : {&first, &second}) {
            QCOMPARE(field->color(), std::optional<QColor>(colorIn(spot)));
            QVERIFY(!field->isDown());
            QVERIFY(!field->isPickingInProgress());
        }
    }

    void targetIsReadWhereTheScreenIsNot_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::newRow("without a picture") << QPoint(500, 400);
        QTest::newRow("on no screen") << QPoint(-1000, -1000);
    }

    void targetIsReadWhereTheScreenIsNot()
    {
        QFETCH(QPoint, place);
        PatternWidget unseen;
        unseen.setAttribute(Qt::WA_DontShowOnScreen);
        unseen.setGeometry(QRect(place, QSize(100, 100)));
        unseen.show();
        m_picker->setTarget(&unseen);
        PickingStage::moveCursor(&unseen, spot);
        const Protocol protocol(m_picker);
        QVERIFY(pickWith([this] { m_picker->stop(); }));
        QCOMPARE(protocol.lines, picked(colorIn(spot)));
    }

    // Closing the window ends the pick of a button in it, while Qt goes through the children of the target.
    void targetAroundItsButtonMayBeHidden_data()
    {
        QTest::addColumn<std::function<void(QWidget*)>>("hide");
        using Hide = std::function<void(QWidget*)>;
        QTest::newRow("closed") << Hide([](QWidget* window) { window->close(); });
        QTest::newRow("hidden") << Hide([](QWidget* window) { window->hide(); });
        QTest::newRow("given a parent") << Hide([](QWidget* window) {
            QWidget parent;
            window->setParent(&parent);
            window->setParent(nullptr);
        });
        QTest::newRow("deleted") << Hide([](QWidget* window) { delete window; });
    }

    void targetAroundItsButtonMayBeHidden()
    {
        QFETCH(std::function<void(QWidget*)>, hide);
        const QPointer<QWidget> window = new QWidget;
        window->setGeometry(400, 100, 200, 200);
        const QPointer<ColorPickerButton> field = new ColorPickerButton(window);
        for (int i = 0; i < 20; ++i) {
            new QWidget(window);
        }
        auto* picker = new WidgetColorPicker({field.data()});
        picker->setTarget(window);
        field->setPicker(picker);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QVERIFY(
            runWith([&] { field->startPicking(); }, [&] { hide(window); }, [&] { field->stopPicking(); }));
        QVERIFY(!window || !window->findChild<QWidget*>(QStringLiteral("highlightFrame")));
        QVERIFY(!QGuiApplication::overrideCursor());
        delete window;
    }

    void colorButtonPicks()
    {
        const auto field = makeField();
        QSignalSpy changed(field.get(), &ColorPickerButton::colorChanged);
        QSignalSpy stopped(field.get(), &ColorPickerButton::pickingStopped);
        const auto clickWith = [&](const std::function<void()>& inside) {
            return runWith([&] { field->click(); }, inside, [&] { field->stopPicking(); });
        };
        // Without a colour it stays pressed.
        QVERIFY(clickWith([&] {
            QVERIFY(field->isPickingInProgress());
            QVERIFY(field->isDown());
            m_stage->pressOn(field.get());
        }));
        QCOMPARE(stopped.size(), 0);
        QVERIFY(field->isDown());
        QVERIFY(!field->isPickingInProgress());
        QCOMPARE(field->color(), std::optional<QColor>());

        PickingStage::moveCursor(m_stage->target, spot);
        QVERIFY(clickWith([&] { m_stage->press(); }));
        QCOMPARE(field->color(), std::optional<QColor>(colorIn(spot)));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(stopped.size(), 1);
        QVERIFY(!field->isDown());
    }

    void keyThatEndsAPickOfAColorButton_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("isReleasedInside");
        for (const auto& [name, key] :
             {std::pair("Space", Qt::Key_Space), std::pair("Select", Qt::Key_Select)}) {
            QTest::addRow("%s, released at once", name) << key << true;
            QTest::addRow("%s, released later", name) << key << false;
        }
    }

    // It reaches the field, which is still pressed, and letting the key go would click it.
    void keyThatEndsAPickOfAColorButton()
    {
        QFETCH(const Qt::Key, key);
        QFETCH(const bool, isReleasedInside);
        const auto made = makeField();
        ColorPickerButton& field = *made;
        field.setFocus();
        QSignalSpy started(&field, &ColorPickerButton::pickingStarted);
        const auto send = [&field, key](QEvent::Type type) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&field, &event);
        };
        const auto click = [send] {
            send(QEvent::KeyPress);
            send(QEvent::KeyRelease);
        };
        PickingStage::moveCursor(m_stage->other);
        QVERIFY(runWith(
            click,
            [&] {
                QVERIFY(field.isPickingInProgress());
                send(QEvent::KeyPress);
                QVERIFY(!field.isPickingInProgress());
                if (isReleasedInside) {
                    send(QEvent::KeyRelease);
                }
            },
            [&] { field.stopPicking(); }));
        if (!isReleasedInside) {
            send(QEvent::KeyRelease);
        }
        QCOMPARE(started.size(), 1);
        QVERIFY(!field.isPickingInProgress());
        QVERIFY(field.isDown());

        // The next one is a click as any other.
        PickingStage::moveCursor(m_stage->target, spot);
        QVERIFY(runWith(
            click,
            [&] {
                QCOMPARE(started.size(), 2);
                QVERIFY(field.isPickingInProgress());
                click();
            },
            [&] { field.stopPicking(); }));
        QCOMPARE(started.size(), 2);
        QCOMPARE(field.color(), std::optional<QColor>(colorIn(spot)));
        QVERIFY(!field.isDown());
    }

    void colorButtonGoneWhilePicking_data()
    {
        QTest::addColumn<int>("how");
        QTest::newRow("deleted") << 0;
        QTest::newRow("its picker replaced") << 1;
        QTest::newRow("hidden") << 2;
    }

    void colorButtonGoneWhilePicking()
    {
        QFETCH(int, how);
        const QPointer<ColorPickerButton> field = makeField().release();
        QSignalSpy changed(field.data(), &ColorPickerButton::colorChanged);
        QVERIFY(runWith([&] { field->startPicking(); },
                        [&] {
                            if (how == 0) {
                                delete field;
                            } else if (how == 1) {
                                field->setPicker(new WidgetColorPicker({}));
                            } else {
                                field->hide();
                            }
                        },
                        [&] { m_picker->stop(); }));
        QCOMPARE(bool(m_picker), how == 2);
        // Hiding stops it as any other end does.
        QCOMPARE(changed.size(), how == 2 ? 1 : 0);
        QVERIFY(!field || !field->isDown());
        QVERIFY(!m_stage->outline());
        delete field;
    }

    // destroyed() comes when the picker's own part is gone.
    void targetMayDieAfterThePicker()
    {
        auto picker = std::make_unique<WidgetColorPicker>(QSet<QWidget*>());
        auto target = std::make_unique<QWidget>();
        picker->setTarget(target.get());
        connect(picker.get(), &QObject::destroyed, this, [&target] { target.reset(); });
        picker.reset();
        QVERIFY(!target);
    }

private:
    /// A button that has the picker.
    std::unique_ptr<ColorPickerButton> makeField()
    {
        auto field = std::make_unique<ColorPickerButton>(m_stage->window);
        field->setGeometry(190, 10, 30, 30);
        field->show();
        delete m_picker;
        m_picker = new WidgetColorPicker({field.get()});
        m_picker->setTarget(m_stage->target);
        field->setPicker(m_picker);
        return field;
    }

    bool pickWith(const std::function<void()>& inside)
    {
        return runWith([this] { m_picker->pick(); }, inside, [this] { m_picker->stop(); });
    }

    std::unique_ptr<PickingStage> m_stage;
    QPointer<WidgetColorPicker> m_picker;
};

UIC_TEST_MAIN(tst_WidgetColorPicker)
#include "tst_WidgetColorPicker.moc"
