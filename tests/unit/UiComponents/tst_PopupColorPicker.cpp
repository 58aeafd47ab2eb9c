#include "FakeColorPicker.h"
#include "FakePrivacy.h"
#include "FakeScreenColors.h"
#include "FreedMemory.h"
#include "PipetteWindows.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/PopupPosition.h>

#include <functional>
#include <memory>

// The off-screen platform gives every window a frame, and moves it by that once more.
constexpr QPoint offscreenFrame(2, 2);

// Of the palette; its buttons are found by these names.
const char* const amberName = "#ffc000";
const char* const greenName = "#03c705";
const QColor amber(0xff, 0xc0, 0x00);
const QColor green(0x03, 0xc7, 0x05);

using Color = std::optional<QColor>;
using Orvane::Util::AccessStatus;
using Action = std::function<void()>;
Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(std::function<void(FakeColorPicker*)>)

/// Calls what it is made with, in whatever signal it is connected to.
class Trigger : public QObject
{
    Q_OBJECT

public:
    explicit Trigger(Action action)
        : m_action(std::move(action))
    {
    }

    int count = 0;

public Q_SLOTS:
    void run()
    {
        if (count++ == 0) {
            m_action();
        }
    }

private:
    const Action m_action;
};

class tst_PopupColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Settings::setUserCustomColors({});
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(100, 100, 300, 200);
        m_button = new ColorPickerButton(m_window.get());
        m_button->setGeometry(200, 10, 44, 24);
        m_picker = new PopupColorPicker;
        m_button->setPicker(m_picker);
        m_button->setColor(QColor(Qt::red));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void opensBesideTheField()
    {
        m_button->setColor(QColor(10, 20, 30));
        m_button->click();
        QVERIFY(popup()->isVisible());
        QVERIFY(popup()->windowFlags().testFlag(Qt::Popup));
        QCOMPARE(popup()->pos() - offscreenFrame, popupPosition(m_button, popup()->size()));
        QCOMPARE(popup()->pos() - offscreenFrame, m_button->mapToGlobal(QPoint(0, 30)));
        QCOMPARE(panel()->currentColor(), Color(QColor(10, 20, 30)));
        QVERIFY(m_button->isDown());
        QVERIFY(m_button->isPickingInProgress());
    }

    void opensLevelWithTheRightEdgeFromRightToLeft()
    {
        m_button->setLayoutDirection(Qt::RightToLeft);
        m_button->move(240, 10);
        m_button->click();
        QCOMPARE(popup()->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(panel()->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(popup()->geometry().right() - offscreenFrame.x(), m_button->mapToGlobal(QPoint(43, 0)).x());
    }

    void opensOnce()
    {
        m_button->startPicking();
        m_button->startPicking();
        QCOMPARE(m_window->findChildren<ColorPickerWidget*>().size(), 1);
        QVERIFY(popup()->isVisible());
    }

    void previewIsLive()
    {
        m_button->startPicking();
        QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
        paletteButton(amberName)->click();
        QCOMPARE(m_button->color(), Color(amber));
        QCOMPARE(changed.count(), 1);
        QVERIFY(m_button->isPickingInProgress());
        QVERIFY(popup()->isVisible());
    }

    void endsWithTheColor_data()
    {
        QTest::addColumn<Action>("close");
        QTest::addColumn<bool>("isKept");
        const auto press = [this](Qt::Key key) {
            return Action([this, key] { QTest::keyClick(popup()->windowHandle(), key); });
        };
        const auto pressInTheEdit = [this](Qt::Key key) {
            return Action([this, key] {
                child<QLineEdit>("currentColorValueEdit")->setFocus();
                QTest::keyClick(popup()->windowHandle(), key);
            });
        };
        QTest::newRow("stop") << Action([this] { m_button->stopPicking(); }) << true;
        QTest::newRow("Enter") << press(Qt::Key_Enter) << true;
        QTest::newRow("Return in the edit") << pressInTheEdit(Qt::Key_Return) << true;
        QTest::newRow("a click elsewhere") << Action([this] { clickElsewhere(); }) << true;
        QTest::newRow("the field is hidden") << Action([this] { m_button->hide(); }) << true;
        QTest::newRow("the pop-up is hidden by others") << Action([this] { popup()->hide(); }) << true;
        QTest::newRow("Escape") << press(Qt::Key_Escape) << false;
        QTest::newRow("Escape in the edit") << pressInTheEdit(Qt::Key_Escape) << false;
    }

    void endsWithTheColor()
    {
        QFETCH(Action, close);
        QFETCH(bool, isKept);
        for (const Color& before : {Color(QColor(1, 2, 3, 40)), Color(QColor()), Color()}) {
            m_button->show();
            m_button->setColor(before);
            m_button->startPicking();
            QVERIFY(QTest::qWaitForWindowExposed(popup()));
            QCOMPARE(panel()->currentColor(), before);
            paletteButton(amberName)->click();
            const QColor chosen = *m_button->color();
            QCOMPARE(chosen.name(), QString(amberName));

            const Color expected = isKept ? Color(chosen) : before;
            QObject scope;
            QStringList order;
            connect(m_picker, &AbstractColorPicker::colorChanged, &scope, [&order] { order << "color"; });
            connect(m_picker, &AbstractColorPicker::pickingStopped, &scope, [&] {
                order << "stopped";
                QVERIFY(!popup()->isVisible());
                QVERIFY(!m_picker->isInProgress());
                QCOMPARE(m_picker->color(), expected);
            });
            close();
            QVERIFY(!popup()->isVisible());
            // The field does not wait for the end to be reported.
            QCOMPARE(m_button->color(), expected);
            QTRY_COMPARE(order, isKept ? QStringList{"stopped"} : (QStringList{"color", "stopped"}));
            QCOMPARE(m_button->color(), expected);
            QVERIFY(!m_button->isDown());
            QVERIFY(!m_button->isPickingInProgress());
            QCoreApplication::processEvents();
            QCOMPARE(order.count("stopped"), 1);
        }
    }

    void nothingChosenChangesNothing_data()
    {
        QTest::addColumn<Color>("color");
        QTest::addColumn<bool>("opacity");
        QTest::newRow("a palette colour") << Color(QColor(0xff, 0x5d, 0x00)) << true;
        QTest::newRow("a free colour") << Color(QColor(1, 2, 3)) << true;
        // The panel's slider has hundredths.
        QTest::newRow("an alpha between two steps") << Color(QColor(10, 20, 30, 100)) << true;
        QTest::newRow("a translucent palette colour") << Color(QColor(255, 0, 0, 100)) << true;
        QTest::newRow("a translucent palette colour without opacity")
            << Color(QColor(255, 0, 0, 100)) << false;
        QTest::newRow("as HSV") << Color(QColor::fromHsv(120, 100, 90)) << true;
        QTest::newRow("no colour") << Color(QColor()) << true;
        QTest::newRow("several colours") << Color() << true;
    }

    void nothingChosenChangesNothing()
    {
        QFETCH(Color, color);
        QFETCH(bool, opacity);
        m_picker->setOptions({true, opacity, true});
        // The picker still knows red: it hears neither of several colours nor of what is set in silence.
        {
            const QSignalBlocker blocker(m_button);
            m_button->setColor(color);
        }
        const QVector<Action> ends = {[this] { m_button->stopPicking(); }, [this] { clickElsewhere(); },
                                      [this] { QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape); }};
        for (const Action& end : ends) {
            QSignalSpy buttonChanged(m_button, &ColorPickerButton::colorChanged);
            QSignalSpy pickerChanged(m_picker, &AbstractColorPicker::colorChanged);
            m_button->startPicking();
            QVERIFY(QTest::qWaitForWindowExposed(popup()));
            QCoreApplication::processEvents();
            end();
            QTRY_VERIFY(!m_picker->isInProgress());
            QCOMPARE(m_button->color(), color);
            QCOMPARE(buttonChanged.count(), 0);
            QCOMPARE(pickerChanged.count(), 0);
        }
    }

    void aColorSetMeanwhileIsKept_data()
    {
        QTest::addColumn<Color>("color");
        QTest::addColumn<bool>("isTold");
        QTest::addColumn<Action>("end");
        const Action stop = [this] { m_button->stopPicking(); };
        const Action escape = [this] { QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape); };
        QTest::newRow("green") << Color(green) << true << stop;
        QTest::newRow("no colour") << Color(QColor()) << true << stop;
        QTest::newRow("several colours") << Color() << true << stop;
        QTest::newRow("in silence") << Color(green) << false << stop;
        QTest::newRow("green, Escape") << Color(green) << true << escape;
        QTest::newRow("several colours, Escape") << Color() << true << escape;
        QTest::newRow("in silence, Escape") << Color(green) << false << escape;
    }

    void aColorSetMeanwhileIsKept()
    {
        QFETCH(Color, color);
        QFETCH(bool, isTold);
        QFETCH(Action, end);
        m_button->startPicking();
        paletteButton(amberName)->click();
        QSignalSpy changed(m_picker, &AbstractColorPicker::colorChanged);
        {
            const QSignalBlocker blocker(isTold ? nullptr : m_button);
            m_button->setColor(color);
        }
        if (isTold && color) {
            QCOMPARE(panel()->currentColor(), color);
        }
        end();
        QTRY_VERIFY(!m_picker->isInProgress());
        QCOMPARE(m_button->color(), color);
        QCOMPARE(changed.count(), 0);
    }

    void escapeBringsBackWhatWasSetMeanwhile_data()
    {
        QTest::addColumn<Action>("choose");
        QTest::newRow("after a choice in the panel") << Action([this] { paletteButton(greenName)->click(); });
        QTest::newRow("after one with the pipette") << Action([this] {
            auto* const pipette = new FakeColorPicker(m_button);
            pipette->onPick = [pipette] {
                pipette->preview(green);
                pipette->finish(green);
            };
            m_picker->setPipette(pipette);
            child<QToolButton>("pipetteButton")->click();
            QTRY_VERIFY(popup()->isVisible());
        });
    }

    // Several colours, as when the user selects more: the button does not report them.
    void escapeBringsBackWhatWasSetMeanwhile()
    {
        QFETCH(Action, choose);
        m_button->startPicking();
        paletteButton(amberName)->click();
        m_button->setColor(std::nullopt);
        choose();
        QCOMPARE(m_button->color(), Color(green));
        QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape);
        QTRY_VERIFY(!m_picker->isInProgress());
        QCOMPARE(m_button->color(), Color());
    }

    void escapeBringsBackWhatWasBeforeAnswers_data()
    {
        QTest::addColumn<Color>("answer");
        QTest::addColumn<bool>("isTold");
        QTest::newRow("another colour") << Color(QColor(1, 2, 3)) << true;
        QTest::newRow("another colour, in silence") << Color(QColor(1, 2, 3)) << false;
        QTest::newRow("several colours") << Color() << true;
    }

    // Such as a host that takes the nearest colour that it can use.
    void escapeBringsBackWhatWasBeforeAnswers()
    {
        QFETCH(Color, answer);
        QFETCH(bool, isTold);
        const Color before = m_button->color();
        const auto answering = connect(m_button, &ColorPickerButton::colorChanged, this, [&] {
            const QSignalBlocker blocker(isTold ? nullptr : m_button);
            m_button->setColor(answer);
        });
        m_button->startPicking();
        for (const char* const chosen : {amberName, greenName}) {
            paletteButton(chosen)->click();
            QCOMPARE(m_button->color(), answer);
        }
        disconnect(answering);
        QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape);
        QTRY_VERIFY(!m_picker->isInProgress());
        QCOMPARE(m_button->color(), before);
    }

    // A host that shows its selection again when a pick is over: the first one's colour, then several.
    void aColorSetAtTheEndIsKept()
    {
        m_button->setColor(std::nullopt);
        connect(m_button, &ColorPickerButton::pickingStopped, this, [this] {
            m_button->setColor(green);
            m_button->setColor(std::nullopt);
        });
        m_button->startPicking();
        paletteButton(amberName)->click();
        QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape);
        QTRY_VERIFY(!m_picker->isInProgress());
        QCOMPARE(m_button->color(), Color());
    }

    void keyboardFromOpenToClose()
    {
        m_button->setFocus();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Space);
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        // Red is of the palette.
        QVERIFY(paletteButton("#ff0000")->hasFocus());
        // Keys of others pass through.
        QKeyEvent other(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier);
        QCoreApplication::sendEvent(popup(), &other);
        QVERIFY(!other.isAccepted());
        QVERIFY(popup()->isVisible());
        QTest::keyClick(popup()->windowHandle(), Qt::Key_Right);
        QCOMPARE(m_button->color(), Color(QColor(0xff, 0x5d, 0x00)));
        QTest::keyClick(popup()->windowHandle(), Qt::Key_Return);
        QTRY_VERIFY(!m_picker->isInProgress());
        QVERIFY(m_button->hasFocus());

        // A colour that has no button is typed over.
        m_button->setColor(QColor(1, 2, 3));
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Space);
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        QTest::keyClicks(popup()->focusWidget(), "#445566");
        QCOMPARE(m_button->color(), Color(QColor(0x44, 0x55, 0x66)));
        QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape);
        QTRY_VERIFY(!m_picker->isInProgress());
        QCOMPARE(m_button->color(), Color(QColor(1, 2, 3)));
    }

    void options_data()
    {
        QTest::addColumn<bool>("nullColor");
        QTest::addColumn<bool>("opacity");
        QTest::addColumn<bool>("customColors");
        QTest::newRow("default") << false << true << true;
        QTest::newRow("all") << true << true << true;
        QTest::newRow("none") << false << false << false;
        QTest::newRow("no colour") << true << false << false;
    }

    void options()
    {
        QFETCH(bool, nullColor);
        QFETCH(bool, opacity);
        QFETCH(bool, customColors);
        const auto isOffered = [&] {
            return bool(paletteButton("transparent")) == nullColor &&
                   child<QWidget>("opacityPanel")->isVisible() == opacity &&
                   child<QWidget>("otherColorsPanel")->isVisible() == customColors;
        };
        auto* const made = new PopupColorPicker({nullColor, opacity, customColors});
        QCOMPARE(made->options().nullColor, nullColor);
        m_button->setPicker(made);
        m_button->startPicking();
        QVERIFY(isOffered());
        // They wait for the next opening.
        made->setOptions({!nullColor, !opacity, !customColors});
        QVERIFY(isOffered());
        made->setOptions({nullColor, opacity, customColors});
        m_button->stopPicking();
        m_button->startPicking();
        QVERIFY(isOffered());
    }

    void oneWindowSharesAPanel()
    {
        ColorPickerButton second(m_window.get());
        auto* const picker = new PopupColorPicker;
        second.setPicker(picker);
        second.setColor(green);
        QVERIFY(!m_picker->panel());

        m_button->startPicking();
        const ColorPickerWidget* const shared = m_picker->panel();
        QVERIFY(shared);
        QVERIFY(!picker->panel());
        m_button->stopPicking();
        QVERIFY(!m_picker->panel());
        second.startPicking();
        QCOMPARE(picker->panel(), shared);
        QVERIFY(paletteButton(greenName)->isChecked());
        QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
        paletteButton(amberName)->click();
        QCOMPARE(second.color(), Color(amber));
        QCOMPARE(changed.count(), 0);
        second.stopPicking();

        picker->setOptions({true, true, true});
        second.startPicking();
        QVERIFY(picker->panel() != shared);
        second.stopPicking();
        QCOMPARE(m_window->findChildren<ColorPickerWidget*>().size(), 2);
    }

    void anotherFieldTakesThePopupOver()
    {
        ColorPickerButton second(m_window.get());
        second.setPicker(new PopupColorPicker);
        m_button->startPicking();
        paletteButton(amberName)->click();
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        second.startPicking();
        QCOMPARE(stopped.count(), 1);
        QVERIFY(!m_button->isDown());
        QCOMPARE(m_button->color(), Color(amber));
        QVERIFY(popup()->isVisible());
        QCoreApplication::processEvents();
        QVERIFY(second.isPickingInProgress());
        QVERIFY(popup()->isVisible());
    }

    void meanwhileInATakeover_data()
    {
        QTest::addColumn<Action>("act");
        const auto second = [this] { return m_window->findChild<ColorPickerButton*>("second"); };
        QTest::newRow("stopped") << Action([second] { second()->stopPicking(); });
        QTest::newRow("deleted") << Action([second] { delete second(); });
        QTest::newRow("without its pop-up") << Action([this] { delete popup(); });
        QTest::newRow("without its panel") << Action([this] { delete panel(); });
    }

    // In a slot of the end of the first pick.
    void meanwhileInATakeover()
    {
        QFETCH(Action, act);
        const QPointer<ColorPickerButton> second = new ColorPickerButton(m_window.get());
        second->setObjectName("second");
        const QPointer<PopupColorPicker> picker = new PopupColorPicker;
        second->setPicker(picker);
        m_button->startPicking();
        Trigger trigger(act);
        connect(m_picker, SIGNAL(pickingStopped()), &trigger, SLOT(run()));
        {
            const FreedMemoryWatch memory;
            second->startPicking();
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QCOMPARE(trigger.count, 1);
        QVERIFY(!second || !second->isPickingInProgress());
        QVERIFY(!second || !second->isDown());
        QVERIFY(!picker || !picker->panel());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void aFieldInAnotherWindow()
    {
        m_button->startPicking();
        m_button->stopPicking();
        QWidget other;
        m_button->setParent(&other);
        m_button->show();
        other.show();
        m_button->startPicking();
        QVERIFY(m_picker->panel());
        QCOMPARE(m_picker->panel()->window()->parentWidget(), &other);
        QVERIFY(m_picker->panel()->isVisible());
        QVERIFY(!popup()->isVisible());
        m_button->setParent(m_window.get());
    }

    void pipetteComesBackToThePanel_data()
    {
        using Sample = std::function<void(FakeColorPicker*)>;
        QTest::addColumn<Sample>("sample");
        QTest::addColumn<Color>("expected");
        const Color before(QColor(10, 20, 30, 100));
        QTest::newRow("a colour, later") << Sample([](FakeColorPicker* pipette) {
            pipette->preview(QColor(Qt::green));
            pipette->finish(QColor(Qt::green));
        }) << Color(QColor(0, 255, 0, 100));
        QTest::newRow("none, later") << Sample([](FakeColorPicker* pipette) { pipette->finish({}); })
                                     << before;
        QTest::newRow("dies") << Sample([](FakeColorPicker* pipette) { delete pipette; }) << before;
    }

    void pipetteComesBackToThePanel()
    {
        using Sample = std::function<void(FakeColorPicker*)>;
        QFETCH(Sample, sample);
        QFETCH(Color, expected);
        for (const bool isAtOnce : {false, true}) {
            const QPointer<FakeColorPicker> pipette = new FakeColorPicker(m_window.get());
            if (isAtOnce) {
                pipette->onPick = [&] { sample(pipette); };
            }
            m_picker->setPipette(pipette);
            m_button->setColor(QColor(10, 20, 30, 100));
            m_button->startPicking();
            QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
            child<QToolButton>("pipetteButton")->click();
            QVERIFY(!popup()->isVisible());
            if (!isAtOnce) {
                sample(pipette);
            }
            QTRY_VERIFY(popup()->isVisible());
            QCOMPARE(m_button->color(), expected);
            QCOMPARE(panel()->currentColor(), expected);
            QCoreApplication::processEvents();
            QCOMPARE(stopped.count(), 0);
            QVERIFY(m_button->isPickingInProgress());

            // It is one pick.
            QTest::keyClick(popup()->windowHandle(), Qt::Key_Escape);
            QTRY_COMPARE(stopped.count(), 1);
            QCOMPARE(m_button->color(), Color(QColor(10, 20, 30, 100)));
            delete pipette;
        }
        // One that ends without a signal, or that the host takes away.
        FakeColorPicker silent;
        for (const bool isTaken : {false, true}) {
            silent.onPick = [this, &silent, isTaken] {
                isTaken ? m_picker->setPipette(nullptr) : silent.finishInSilence();
            };
            m_picker->setPipette(&silent);
            m_button->startPicking();
            child<QToolButton>("pipetteButton")->click();
            QTRY_VERIFY(popup()->isVisible());
            m_picker->stop();
        }
    }

    void endedAsThePipetteBegins_data()
    {
        QTest::addColumn<Action>("end");
        QTest::newRow("stopped") << Action([this] { m_button->stopPicking(); });
        QTest::newRow("field hidden") << Action([this] { m_button->hide(); });
        QTest::newRow("field deleted") << Action([this] { delete m_button; });
        QTest::newRow("picker replaced") << Action([this] { m_button->setPicker(new PopupColorPicker); });
    }

    // The panel goes first, and an emptied box for the opacity becomes 0 %: in a slot of that colour.
    void endedAsThePipetteBegins()
    {
        QFETCH(Action, end);
        FakeColorPicker pipette;
        m_picker->setPipette(&pipette);
        m_button->startPicking();
        auto* const opacity = child<QSpinBox>("opacitySpinbox");
        opacity->selectAll();
        QTest::keyClick(opacity, Qt::Key_Backspace);
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        Trigger trigger(end);
        connect(m_button, SIGNAL(colorChanged(QColor)), &trigger, SLOT(run()));
        {
            const FreedMemoryWatch memory;
            child<QToolButton>("pipetteButton")->click();
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QCOMPARE(trigger.count, 1);
        QCOMPARE(pipette.calls.count(QStringLiteral("pick")), 0);
        QCoreApplication::processEvents();
        QVERIFY(!popup()->isVisible());
        QVERIFY(!m_button || !m_button->isDown());
        QVERIFY(!m_button || !m_button->isPickingInProgress());
        QCOMPARE(stopped.count(), m_picker ? 1 : 0);
    }

    void pipetteWithoutThePermission()
    {
        FakePrivacy::screenAccess = AccessStatus::Denied;
        const auto reset = qScopeGuard(&FakePrivacy::reset);
        m_button->startPicking();
        Q_EMIT panel()->pipetteRequested();
        QVERIFY(PipetteWindows::views().isEmpty());
        QTRY_VERIFY(popup()->isVisible());
        QVERIFY(m_button->isPickingInProgress());
    }

    void pipetteThatCanDoNothing()
    {
        FakeScreenColors screen;
        ScreenColorSource::install(&screen);
        screen.setReason(QStringLiteral("no screen"));
        FakeColorPicker hosts;
        // One after the other, with one panel.
        for (const bool isHosts : {false, true, false}) {
            m_picker->setPipette(isHosts ? &hosts : nullptr);
            m_button->startPicking();
            const auto* const button = child<QToolButton>("pipetteButton");
            QCOMPARE(button->isEnabled(), isHosts);
            QCOMPARE(button->toolTip(), isHosts ? QString() : QStringLiteral("no screen"));
            screen.setReason(QStringLiteral("no portal"));
            QCOMPARE(button->toolTip(), isHosts ? QString() : QStringLiteral("no portal"));
            screen.setReason({});
            QVERIFY(button->isEnabled());
            screen.setReason(QStringLiteral("no screen"));
            QCOMPARE(button->isEnabled(), isHosts);
            m_picker->stop();
        }
    }

    void toolTipSaysWhyThePipetteFailed()
    {
        FakeScreenColors screen;
        ScreenColorSource::install(&screen);
        const QColor before(10, 20, 30);
        m_button->setColor(before);
        m_button->startPicking();
        const QString reason = QStringLiteral("it does not answer");
        for (const auto& result : {ScreenColorSource::Result{{}, reason}, ScreenColorSource::Result{}}) {
            child<QToolButton>("pipetteButton")->click();
            QVERIFY(!popup()->isVisible());
            screen.requests.constLast().answer(result);
            QTRY_VERIFY(popup()->isVisible());
            QCOMPARE(child<QToolButton>("pipetteButton")->toolTip(), result.reason);
            QVERIFY(child<QToolButton>("pipetteButton")->isEnabled());
            QCOMPARE(QAccessible::queryAccessibleInterface(child<QToolButton>("pipetteButton"))
                         ->text(QAccessible::Name),
                     QStringLiteral("Pick a colour from the screen"));
            QCOMPARE(m_button->color(), Color(before));
        }
    }

    void stopEndsThePipetteToo_data()
    {
        QTest::addColumn<bool>("isHosts");
        QTest::addColumn<bool>("isOver");
        QTest::newRow("the host's") << true << false;
        QTest::newRow("the host's, which has just ended") << true << true;
        QTest::newRow("the screen's") << false << false;
    }

    void stopEndsThePipetteToo()
    {
        QFETCH(bool, isHosts);
        QFETCH(bool, isOver);
        FakeColorPicker pipette;
        m_picker->setPipette(isHosts ? &pipette : nullptr);
        m_button->startPicking();
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        child<QToolButton>("pipetteButton")->click();
        QVERIFY(!popup()->isVisible());
        QVERIFY(m_picker->isInProgress());
        QCOMPARE(PipetteWindows::views().isEmpty(), isHosts);
        QCOMPARE(pipette.isInProgress(), isHosts);
        if (isOver) {
            pipette.finish({});
        }
        m_button->hide();
        QCOMPARE(stopped.count(), 1);
        QVERIFY(!m_picker->isInProgress());
        QVERIFY(!popup()->isVisible());
        QVERIFY(!pipette.isInProgress());
        QVERIFY(PipetteWindows::views().isEmpty());
        QCOMPARE(m_button->color(), Color(QColor(Qt::red)));
        QCoreApplication::processEvents();
        QVERIFY(!popup()->isVisible());
    }

    void withoutAField()
    {
        PopupColorPicker picker;
        picker.pick();
        QVERIFY(!picker.isInProgress());
        picker.setColor(QColor(Qt::red));
        QCOMPARE(picker.color(), Color(QColor(Qt::red)));
    }

    void ownPopupOfThePanelKeepsItOpen()
    {
        m_button->startPicking();
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        m_button->setColor(QColor(12, 34, 56));
        child<QToolButton>("addCustomColorButton")->click();
        const auto* selector = panel()->findChild<QDialog*>();
        QVERIFY(selector->isVisible());
        QCoreApplication::processEvents();
        QVERIFY(popup()->isVisible());
        QVERIFY(m_picker->isInProgress());

        // The first click elsewhere closes the selector, the second the panel.
        clickElsewhere();
        QVERIFY(!selector->isVisible());
        QCoreApplication::processEvents();
        QVERIFY(popup()->isVisible());
        QVERIFY(m_picker->isInProgress());
        QCOMPARE(Settings::userCustomColors(), QStringList{"#0c2238"});
        clickElsewhere();
        QTRY_COMPARE(stopped.count(), 1);
        QVERIFY(!popup()->isVisible());
        QCOMPARE(m_button->color(), Color(QColor(12, 34, 56)));
    }

    void stopClosesTheOwnPopupToo()
    {
        m_button->setColor(QColor(12, 34, 56));
        m_button->startPicking();
        child<QToolButton>("addCustomColorButton")->click();
        const auto* selector = panel()->findChild<QDialog*>();
        QVERIFY(selector->isVisible());
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        m_button->stopPicking();
        QVERIFY(!selector->isVisible());
        QVERIFY(!popup()->isVisible());
        QCOMPARE(stopped.count(), 1);
        QCOMPARE(Settings::userCustomColors(), QStringList{"#0c2238"});
    }

    void pressOnTheFieldIsNotReplayed()
    {
        m_button->startPicking();
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        const QPoint onField = m_button->geometry().center();
        QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, {}, onField);
        QVERIFY(popup()->testAttribute(Qt::WA_NoMouseReplay));
        QVERIFY(!popup()->isVisible());
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, onField);
        QTRY_VERIFY(!m_picker->isInProgress());
        QVERIFY(!m_button->isDown());

        m_button->startPicking();
        clickElsewhere();
        QVERIFY(!popup()->testAttribute(Qt::WA_NoMouseReplay));
    }

    void stopWithoutAPick()
    {
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        m_picker->stop();
        QCOMPARE(stopped.count(), 0);
        QVERIFY(!panel());
    }

    void stopBeforeTheEndIsReported()
    {
        m_button->startPicking();
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        popup()->hide();
        QVERIFY(m_picker->isInProgress());
        m_picker->stop();
        QCOMPARE(stopped.count(), 1);
        // What was on its way does not end the next pick.
        m_button->startPicking();
        QCoreApplication::processEvents();
        QVERIFY(m_picker->isInProgress());
        QVERIFY(popup()->isVisible());
        QCOMPARE(stopped.count(), 1);
    }

    void stopFromInsideASlot()
    {
        m_button->startPicking();
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        connect(m_picker, &AbstractColorPicker::colorChanged, this, [this] { m_picker->stop(); });
        connect(m_picker, &AbstractColorPicker::pickingStopped, this, [this] { m_picker->stop(); });
        paletteButton(amberName)->click();
        QCOMPARE(stopped.count(), 1);
        QVERIFY(!popup()->isVisible());
        QCOMPARE(m_button->color(), Color(amber));
    }

    void deletedInTheMiddle_data()
    {
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<Action>("cause");
        QTest::addColumn<Action>("remove");
        QTest::addColumn<bool>("isChosen"); // another colour, before
        const QVector<QPair<const char*, Action>> victims = {
            {"field", [this] { delete m_button; }},
            {"picker", [this] { m_button->setPicker(new PopupColorPicker); }},
            {"pop-up", [this] { delete popup(); }},
            {"window", [this] { m_window.reset(); }},
        };
        const QByteArray changed = SIGNAL(colorChanged(std::optional<QColor>));
        const QByteArray stopped = SIGNAL(pickingStopped());
        for (const auto& [victim, remove] : victims) {
            // A checked button that is deleted in its own signal crashes inside Qt, hence the edit.
            QTest::addRow("%s, in a preview", victim) << changed << Action([this] {
                QTest::keyClicks(child<QLineEdit>("currentColorValueEdit"), "#123456");
            }) << remove << false;
            QTest::addRow("%s, at the end by Escape", victim)
                << stopped << Action([this] { QTest::keyPress(popup()->windowHandle(), Qt::Key_Escape); })
                << remove << false;
            QTest::addRow("%s, at the end by a click", victim)
                << stopped << Action([this] { clickElsewhere(); }) << remove << false;
            QTest::addRow("%s, when Escape brings the colour back", victim)
                << changed << Action([this] { QTest::keyPress(popup()->windowHandle(), Qt::Key_Escape); })
                << remove << true;
            QTest::addRow("%s, by a colour of the pipette", victim) << changed << Action([this] {
                const QPointer<FakeColorPicker> pipette = new FakeColorPicker(m_button);
                pipette->onPick = [pipette] {
                    pipette->preview(QColor(Qt::green));
                    if (pipette) {
                        pipette->finish(QColor(Qt::green));
                    }
                };
                m_picker->setPipette(pipette);
                QTest::mouseClick(child<QToolButton>("pipetteButton"), Qt::LeftButton);
            }) << remove << false;
            QTest::addRow("%s, by the colour that closing adds", victim) << changed << Action([this] {
                child<QToolButton>("addCustomColorButton")->click();
                m_picker->stop();
            }) << remove << false;
        }
    }

    void deletedInTheMiddle()
    {
        QFETCH(QByteArray, signal);
        QFETCH(Action, cause);
        QFETCH(Action, remove);
        QFETCH(bool, isChosen);
        m_button->setColor(QColor(12, 34, 56, 100));
        // Without opacity the button of a colour that closing adds reports it opaque.
        m_picker->setOptions({false, false, true});
        m_button->startPicking();
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        child<QLineEdit>("currentColorValueEdit")->clear();
        if (isChosen) {
            paletteButton(amberName)->click();
        }
        const QPointer<QWidget> open = popup();
        Trigger trigger(remove);
        QVERIFY(connect(m_picker, signal.constData(), &trigger, SLOT(run())));
        cause();
        QTRY_VERIFY(trigger.count > 0);
        QVERIFY(!open || !open->isVisible());
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (m_button) {
            QVERIFY(!m_button->isPickingInProgress());
            QVERIFY(!m_button->isDown());
        }
        QVERIFY(!QApplication::activePopupWidget());
    }

    void endedBeforeThePanelIsShown_data()
    {
        QTest::addColumn<Action>("end");
        QTest::addColumn<Color>("color");
        QTest::addColumn<QStringList>("ownColors");
        // The panel's slider has no such step.
        const Color between(QColor::fromRgbF(0.1, 0.2, 0.3, 0.12345));
        const Action stop = [this] { m_button->stopPicking(); };
        const Action deleteField = [this] { delete m_button; };
        QTest::newRow("pick") << stop << between << QStringList();
        QTest::newRow("panel") << Action([this] { delete panel(); }) << between << QStringList();
        QTest::newRow("pop-up") << Action([this] { delete popup(); }) << between << QStringList();
        QTest::newRow("field") << deleteField << between << QStringList();
        QTest::newRow("window") << Action([this] { m_window.reset(); }) << between << QStringList();
        // Which the panel finds when it is about to be seen.
        const Color own(QColor(0x12, 0x34, 0x56));
        QTest::newRow("pick, new own colour") << stop << own << QStringList{own->name()};
        QTest::newRow("field, new own colour") << deleteField << own << QStringList{own->name()};
    }

    // In a host's slot of the panel, which gets the field's colour then.
    void endedBeforeThePanelIsShown()
    {
        QFETCH(Action, end);
        QFETCH(Color, color);
        QFETCH(QStringList, ownColors);
        m_button->startPicking();
        m_picker->stop();
        m_button->setColor(color);
        Settings::setUserCustomColors(ownColors);
        Trigger trigger(end);
        connect(panel(), SIGNAL(colorChanged(QColor)), &trigger, SLOT(run()));
        {
            const FreedMemoryWatch memory;
            m_button->startPicking();
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QCOMPARE(trigger.count, 1);
        QVERIFY(!m_button || !m_button->isPickingInProgress());
        QVERIFY(!m_button || !m_button->isDown());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void windowDeletedWhilePicking()
    {
        m_button->startPicking();
        child<QToolButton>("addCustomColorButton")->click();
        m_window.reset();
        QVERIFY(!m_button);
        QVERIFY(!m_picker);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void popupDeletedByOthers_data()
    {
        QTest::addColumn<bool>("onlyThePanel");
        QTest::newRow("pop-up") << false;
        QTest::newRow("panel") << true;
    }

    void popupDeletedByOthers()
    {
        QFETCH(bool, onlyThePanel);
        m_button->startPicking();
        const QPointer<QWidget> open = popup();
        paletteButton(amberName)->click();
        QSignalSpy stopped(m_button, &ColorPickerButton::pickingStopped);
        if (onlyThePanel) {
            delete panel();
        } else {
            delete popup();
        }
        QTRY_COMPARE(stopped.count(), 1);
        QVERIFY(!open || !open->isVisible());
        QCOMPARE(m_button->color(), Color(amber));
        QVERIFY(!m_button->isDown());

        m_button->startPicking();
        QVERIFY(popup()->isVisible());
        QCOMPARE(panel()->currentColor(), Color(amber));
    }

private:
    QWidget* popup() const
    {
        return m_window ? m_window->findChild<QWidget*>(QStringLiteral("colorPanelPopup")) : nullptr;
    }

    ColorPickerWidget* panel() const { return popup() ? popup()->findChild<ColorPickerWidget*>() : nullptr; }
    template <typename Child>
    Child* child(const char* name) const
    {
        return panel()->findChild<Child*>(name);
    }

    QToolButton* paletteButton(const char* color) const
    {
        const auto buttons = child<QWidget>("colorMatrixPanel")->findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            if (button->styleSheet().contains(color)) {
                return button;
            }
        }
        return nullptr;
    }

    void clickElsewhere() const
    {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, QPoint(5, 195));
    }

    std::unique_ptr<QWidget> m_window;
    QPointer<ColorPickerButton> m_button;
    QPointer<PopupColorPicker> m_picker;
};

UIC_TEST_MAIN(tst_PopupColorPicker)
#include "tst_PopupColorPicker.moc"
