#include "FakeColorPicker.h"
#include "FreedMemory.h"
#include "OptionalColor.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>

#include <memory>

namespace {

QWidget* faceOf(const ColorPickerButton& button)
{
    return button.findChild<QWidget*>("color", Qt::FindDirectChildrenOnly);
}

FakeColorPicker* installPicker(ColorPickerButton& button)
{
    auto* picker = new FakeColorPicker;
    button.setPicker(picker);
    return picker;
}

/// Everything that a button and its picker say, in order.
class Protocol : public QObject
{
public:
    void watch(ColorPickerButton* button)
    {
        connect(button, &ColorPickerButton::pickingStarted, this, [this] { lines += "started"; });
        connect(button, &ColorPickerButton::pickingStopped, this, [this] { lines += "stopped"; });
        connect(button, &ColorPickerButton::colorChanged, this,
                [this](const QColor& color) { lines += text(color); });
    }

    QStringList lines;
};

QString opaque(Qt::GlobalColor color)
{
    return QColor(color).name(QColor::HexArgb);
}

} // namespace

class tst_ColorPickerButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButtonShowsMultiple()
    {
        const ColorPickerButton button;
        QVERIFY(!button.color().has_value());
        QCOMPARE(button.property("multiColor"), QVariant(true));
        QCOMPARE(button.property("nullColor"), QVariant(false));
        QCOMPARE(faceOf(button)->styleSheet(), "background: transparent;");
        QVERIFY(!button.isDown());
    }

    void faceIsSeenWithoutASheet()
    {
        ColorPickerButton button;
        button.setColor(QColor(200, 100, 50));
        button.resize(40, 40);
        button.show();
        QVERIFY(faceOf(button)->width() >= 16);
        QVERIFY(faceOf(button)->height() >= 16);
        QCOMPARE(button.grab().toImage().pixelColor(faceOf(button)->geometry().center()),
                 QColor(200, 100, 50));

        button.setStyleSheet("#color { min-width: 5px; max-width: 5px; }");
        QTRY_COMPARE(faceOf(button)->width(), 5);
    }

    void states_data()
    {
        QTest::addColumn<OptionalColor>("color");
        QTest::addColumn<bool>("nullColor");
        QTest::addColumn<bool>("multiColor");
        QTest::addColumn<QString>("face");

        const QString transparent = "background: transparent;";
        QTest::newRow("red") << OptionalColor(QColor(255, 0, 0)) << false << false
                             << "background: rgba(255, 0, 0, 1)";
        QTest::newRow("fully transparent")
            << OptionalColor(QColor(1, 2, 3, 0)) << false << false << "background: rgba(1, 2, 3, 1)";
        QTest::newRow("hsv") << OptionalColor(QColor::fromHsv(120, 255, 255)) << false << false
                             << "background: rgba(0, 255, 0, 1)";
        QTest::newRow("none") << OptionalColor(QColor()) << true << false << transparent;
        QTest::newRow("multiple") << OptionalColor() << false << true << transparent;
    }

    void states()
    {
        QFETCH(OptionalColor, color);
        ColorPickerButton button;
        button.setColor(QColor(9, 9, 9));
        button.setColor(color);
        QVERIFY(button.color() == color);
        QTEST(button.property("nullColor").toBool(), "nullColor");
        QTEST(button.property("multiColor").toBool(), "multiColor");
        QTEST(faceOf(button)->styleSheet(), "face");
    }

    void disabledFaceIsDimmed()
    {
        ColorPickerButton button;
        button.setColor(QColor(1, 2, 3));
        QCOMPARE(faceOf(button)->styleSheet(), "background: rgba(1, 2, 3, 1)");
        button.setEnabled(false);
        QCOMPARE(faceOf(button)->styleSheet(), "background: rgba(1, 2, 3, 0.4)");
        button.setColor(QColor(4, 5, 6));
        QCOMPARE(faceOf(button)->styleSheet(), "background: rgba(4, 5, 6, 0.4)");
        button.setEnabled(true);
        QCOMPARE(faceOf(button)->styleSheet(), "background: rgba(4, 5, 6, 1)");

        QWidget parent;
        button.setParent(&parent);
        parent.setEnabled(false);
        QCOMPARE(faceOf(button)->styleSheet(), "background: rgba(4, 5, 6, 0.4)");
        button.setParent(nullptr);
    }

    void translucentColorIsShownOpaque()
    {
        ColorPickerButton button;
        button.setStyleSheet("#color { min-width: 20px; min-height: 20px; }");
        button.setColor(QColor(200, 100, 50, 128));
        QCOMPARE(faceOf(button)->styleSheet(), "background: rgba(200, 100, 50, 1)");
        button.resize(40, 40);
        button.show();
        const QPoint middle = faceOf(button)->geometry().center();
        QCOMPARE(button.grab().toImage().pixelColor(middle), QColor(200, 100, 50));
    }

    // A slot that changes the value again must not change what the first emission carries to later slots.
    void setColorOfItsOwnValue()
    {
        ColorPickerButton button;
        QStringList seen;
        connect(&button, &ColorPickerButton::colorChanged, this, [&](const QColor& color) {
            if (color == QColor(Qt::red)) {
                button.setColor(QColor(Qt::blue));
            }
        });
        connect(&button, &ColorPickerButton::colorChanged, this,
                [&](const QColor& color) { seen += text(color); });
        button.setColor(QColor(Qt::red));
        QCOMPARE(seen, QStringList({opaque(Qt::blue), opaque(Qt::red)}));
        QVERIFY(button.color() == OptionalColor(QColor(Qt::blue)));
    }

    // What happens, what the button reports, what its picker is asked to do, and what it then shows.
    void story_data()
    {
        QTest::addColumn<QString>("story");
        QTest::addColumn<QString>("reports");
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("state");
        const auto row = [](const char* name, const char* story, const char* reports, const char* calls,
                            const char* state) { QTest::newRow(name) << story << reports << calls << state; };
        row("colours set", "set red; set red; set #fe0000; set #80fe0000", "#ffff0000; #fffe0000; #80fe0000",
            "setColor; setColor; setColor", "#80fe0000");
        row("the model of a colour counts", "set red; hsv red", "#ffff0000; #ffff0000", "setColor; setColor",
            "#ffff0000");
        // To the picker, too, several colours are no value.
        row("several colours and none", "set red; set several; set several; set none; set none",
            "#ffff0000; none", "setColor; setColor", "none");
        row("picked by a click", "click; preview green; finish blue",
            "started; #ff008000; stopped; #ff0000ff", "pick; setColor; setColor", "#ff0000ff");
        row("by Space", "space", "started", "pick", "several down picking");
        row("while disabled", "disable; click; space", "", "", "several");
        row("previews", "start; preview green; preview green; preview several", "started; #ff008000",
            "pick; setColor", "several down picking");
        row("silent end", "start; silence", "started", "pick", "several down");
        row("started again after a silent end", "start; silence; start; finish red",
            "started; started; stopped; #ffff0000", "pick; pick; setColor", "#ffff0000");
        row("stopped", "start; preview red; stop", "started; #ffff0000; stopped", "pick; setColor; stop",
            "#ffff0000");
        // The picker's word at the end is what counts, whatever it reported before.
        row("hidden", "start; preview red; set yellow; hide",
            "started; #ffff0000; #ffffff00; stopped; #ffff0000", "pick; setColor; setColor; stop; setColor",
            "#ffff0000");
        row("hidden while idle", "hide", "", "stop", "several");
        row("finished twice", "start; finish red; finish red", "started; stopped; #ffff0000; stopped",
            "pick; setColor", "#ffff0000");
        row("finished with several colours", "set red; start; finish several", "#ffff0000; started; stopped",
            "setColor; pick", "several");
        row("another picker", "start; replace", "started", "", "several");
        row("another picker is heard once", "replace; preview red; finish red", "#ffff0000; stopped",
            "setColor", "#ffff0000");
    }

    void story()
    {
        QFETCH(QString, story);
        ColorPickerButton button;
        FakeColorPicker* picker = installPicker(button);
        Protocol protocol;
        protocol.watch(&button);
        button.show();
        const QStringList steps = story.split("; ");
        for (const QString& step : steps) {
            const QString verb = step.section(' ', 0, 0);
            const QString name = step.section(' ', 1);
            OptionalColor color = name == "none" ? QColor() : QColor(name.isEmpty() ? "red" : name);
            if (name == "several") {
                color.reset();
            }
            if (verb == "set") {
                button.setColor(color);
            } else if (verb == "hsv") {
                button.setColor(color->toHsv());
            } else if (verb == "click") {
                QTest::mouseClick(&button, Qt::LeftButton);
            } else if (verb == "space") {
                QTest::keyClick(&button, Qt::Key_Space);
            } else if (verb == "start") {
                button.startPicking();
            } else if (verb == "stop") {
                button.stopPicking();
            } else if (verb == "hide") {
                button.hide();
            } else if (verb == "disable") {
                button.setEnabled(false);
            } else if (verb == "preview") {
                picker->preview(color);
            } else if (verb == "finish") {
                picker->finish(color);
            } else if (verb == "silence") {
                picker->finishInSilence();
            } else {
                picker = installPicker(button);
            }
        }
        QTEST(protocol.lines.join("; "), "reports");
        QTEST(picker->calls.join("; "), "calls");
        QTEST(text(button.color()) + (button.isDown() ? " down" : "") +
                  (button.isPickingInProgress() ? " picking" : ""),
              "state");
    }

    void selectorsTakeEffectAtOnce()
    {
        ColorPickerButton button;
        button.setStyleSheet("ColorPickerButton { qproperty-text: colour; }"
                             "ColorPickerButton[nullColor=\"true\"] { qproperty-text: blank; }"
                             "ColorPickerButton[multiColor=\"true\"] { qproperty-text: several; }");
        button.ensurePolished();
        QCOMPARE(button.text(), "several");
        button.setColor(QColor());
        QCOMPARE(button.text(), "blank");
        button.setColor(QColor(Qt::red));
        QCOMPARE(button.text(), "colour");
    }

    // Without a colour, the face has one and the same sheet in both states.
    void facesSelectorsTakeEffectAtOnce()
    {
        ColorPickerButton button;
        button.setStyleSheet("ColorPickerButton #color { qproperty-toolTip: colour; }"
                             "ColorPickerButton[nullColor=\"true\"] #color { qproperty-toolTip: blank; }"
                             "ColorPickerButton[multiColor=\"true\"] #color { qproperty-toolTip: several; }");
        faceOf(button)->ensurePolished();
        QCOMPARE(faceOf(button)->toolTip(), "several");
        button.setColor(QColor());
        QCOMPARE(faceOf(button)->toolTip(), "blank");
        button.setColor(std::nullopt);
        QCOMPARE(faceOf(button)->toolTip(), "several");
        button.setColor(QColor(Qt::red));
        QCOMPARE(faceOf(button)->toolTip(), "colour");
    }

    void clickWithoutPicker()
    {
        ColorPickerButton button;
        Protocol protocol;
        protocol.watch(&button);
        button.click();
        button.startPicking();
        button.stopPicking();
        QCOMPARE(protocol.lines, QStringList());
        QVERIFY(!button.isDown());
    }

    void buttonIsPressedBeforePick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        bool downAtStart = true;
        bool downAtPick = false;
        connect(&button, &ColorPickerButton::pickingStarted, this, [&] { downAtStart = button.isDown(); });
        picker->onPick = [&] { downAtPick = button.isDown(); };
        button.startPicking();
        QVERIFY(!downAtStart);
        QVERIFY(downAtPick);
    }

    // A slot that sets another colour runs before the picker hears of the first.
    void pickerIsLeftWithTheLatestColor()
    {
        ColorPickerButton button;
        connect(&button, &ColorPickerButton::colorChanged, this, [&button](const QColor& color) {
            if (color == QColor(Qt::red)) {
                button.setColor(QColor(Qt::blue));
            }
        });
        auto* picker = new FakeColorPicker;
        button.setPicker(picker);
        button.setColor(QColor(Qt::red));
        QCOMPARE(picker->received.size(), std::size_t(1));
        QVERIFY(picker->received.back() == OptionalColor(QColor(Qt::blue)));
    }

    void pickerMayAnswerSetColor()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        picker->onSetColor = [picker](const OptionalColor& color) { Q_EMIT picker->colorChanged(color); };
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.setColor(QColor(Qt::red));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(picker->received.size(), std::size_t(1));
    }

    void pickerAnswersFromInsidePick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        picker->onPick = [picker] {
            picker->preview(QColor(Qt::green));
            picker->finish(QColor(Qt::red));
        };
        Protocol protocol;
        protocol.watch(&button);
        button.click();
        QCOMPARE(protocol.lines, QStringList({"started", opaque(Qt::green), "stopped", opaque(Qt::red)}));
        QVERIFY(!button.isDown());
    }

    void pickerRunsANestedLoop()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        bool downInLoop = false;
        picker->onPick = [&] {
            QEventLoop loop;
            QMetaObject::invokeMethod(
                &loop,
                [&] {
                    downInLoop = button.isDown();
                    loop.quit();
                },
                Qt::QueuedConnection);
            loop.exec();
            picker->finish(QColor(Qt::red));
        };
        button.click();
        QVERIFY(downInLoop);
        QVERIFY(!button.isDown());
    }

    // A picker that sees the key first ends with it; the button is still pressed when the key arrives there.
    void spaceThatEndsANestedPick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.show();
        picker->onPick = [&] {
            picker->finishInSilence();
            QTest::keyClick(&button, Qt::Key_Space);
            QTest::keyPress(&button, Qt::Key_Space);
        };
        button.click();
        QTest::keyRelease(&button, Qt::Key_Space);
        QCOMPARE(picker->calls, QStringList({"pick"}));
        QVERIFY(button.isDown());

        picker->onPick = nullptr;
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(picker->calls, QStringList({"pick", "pick"}));
    }

    void spaceWhileANestedPickGoesOn()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.show();
        picker->onPick = [&] {
            picker->onPick = nullptr;
            QTest::keyClick(&button, Qt::Key_Space);
        };
        button.click();
        QCOMPARE(picker->calls, QStringList({"pick", "pick"}));
    }

    void secondPickerReplacesTheFirst()
    {
        ColorPickerButton button;
        const QPointer<FakeColorPicker> first = new FakeColorPicker;
        auto* second = new FakeColorPicker;
        button.setPicker(first);
        button.setPicker(second);
        QVERIFY(!first);
        QCOMPARE(second->parent(), &button);
        button.startPicking();
        QCOMPARE(second->calls, QStringList({"pick"}));
    }

    void installingTheSamePickerKeepsIt()
    {
        ColorPickerButton button;
        const QPointer<FakeColorPicker> picker = new FakeColorPicker;
        button.setPicker(picker);
        button.setPicker(picker);
        QVERIFY(picker);
        button.setColor(QColor(Qt::red));
        QCOMPARE(picker->received.size(), std::size_t(1));
    }

    void pickerParentedElsewhereIsTakenOver()
    {
        ColorPickerButton button;
        QPointer<FakeColorPicker> picker;
        {
            QObject elsewhere;
            picker = new FakeColorPicker(&elsewhere);
            button.setPicker(picker);
            QCOMPARE(picker->parent(), &button);
        }
        QVERIFY(picker);
        button.startPicking();
        QCOMPARE(picker->calls, QStringList({"pick"}));
    }

    // Asking a picker for its colour while it is destroyed would call a pure virtual function.
    void pickerThatReportsFromItsDestructor()
    {
        auto button = std::make_unique<ColorPickerButton>();
        QSignalSpy stopped(button.get(), &ColorPickerButton::pickingStopped);
        QSignalSpy changed(button.get(), &ColorPickerButton::colorChanged);
        const auto install = [&] {
            auto* picker = new FakeColorPicker;
            picker->onDestruction = [picker] {
                Q_EMIT picker->colorChanged(QColor(Qt::red));
                Q_EMIT picker->pickingStopped();
            };
            button->setPicker(picker);
            button->startPicking();
        };
        install();
        install();
        button.reset();
        QCOMPARE(stopped.size(), 0);
        QCOMPARE(changed.size(), 0);
    }

    void pickerDeletesItselfWhilePicking()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        picker->onPick = [picker] { delete picker; };
        Protocol protocol;
        protocol.watch(&button);
        button.click();
        QVERIFY(!button.isDown());
        QCOMPARE(protocol.lines, QStringList({"started"}));

        button.click();
        button.stopPicking();
        button.setColor(QColor(Qt::red));
        QCOMPARE(protocol.lines.size(), 2);
    }

    void pickerDeletesItselfAtTheEnd()
    {
        ColorPickerButton button;
        const QPointer<FakeColorPicker> picker = new FakeColorPicker;
        button.setPicker(picker);
        connect(picker.data(), &AbstractColorPicker::pickingStopped, picker.data(), &QObject::deleteLater);
        button.startPicking();
        picker->finish(QColor(Qt::red));
        QCoreApplication::sendPostedEvents(picker, QEvent::DeferredDelete);
        QVERIFY(!picker);
        QVERIFY(!button.isDown());
        QVERIFY(button.color() == OptionalColor(QColor(Qt::red)));
        button.startPicking();
        QVERIFY(!button.isDown());
    }

    void pickerReplacedInASlot_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QStringList>("secondIsAsked");
        QTest::addColumn<bool>("pressed");
        QTest::newRow("pickingStarted") << "started" << QStringList({"pick"}) << true;
        QTest::newRow("pickingStopped") << "stopped" << QStringList() << false;
        QTest::newRow("colorChanged") << "changed" << QStringList() << false;
    }

    void pickerReplacedInASlot()
    {
        QFETCH(QString, signal);
        QFETCH(QStringList, secondIsAsked);
        QFETCH(bool, pressed);

        ColorPickerButton button;
        QPointer<FakeColorPicker> first = new FakeColorPicker;
        QPointer<FakeColorPicker> second;
        button.setPicker(first);

        const auto replace = [&] {
            if (!second) {
                second = new FakeColorPicker;
                button.setPicker(second);
            }
        };
        if (signal == "started") {
            connect(&button, &ColorPickerButton::pickingStarted, this, replace);
        } else if (signal == "stopped") {
            connect(&button, &ColorPickerButton::pickingStopped, this, replace);
        } else {
            connect(&button, &ColorPickerButton::colorChanged, this, replace);
        }
        button.startPicking();
        if (first) {
            Q_EMIT first->pickingStopped();
        }
        if (first) {
            Q_EMIT first->colorChanged(QColor(Qt::green));
        }
        QVERIFY(!first);
        QVERIFY(second);
        QCOMPARE(second->calls, secondIsAsked);
        QCOMPARE(button.isDown(), pressed);
    }

    void pickerReplacedInsidePick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        auto* second = new FakeColorPicker;
        picker->onPick = [&button, second] { button.setPicker(second); };
        button.click();
        QVERIFY(!button.isDown());
        QCOMPARE(second->calls, QStringList());
    }

    void buttonOwnsThePicker()
    {
        QPointer<FakeColorPicker> picker = new FakeColorPicker;
        {
            ColorPickerButton button;
            button.setPicker(picker);
            QCOMPARE(picker->parent(), &button);
        }
        QVERIFY(!picker);
    }

    void buttonDeletedWhilePicking()
    {
        auto* button = new ColorPickerButton;
        auto* picker = new FakeColorPicker;
        button->setPicker(picker);
        QSignalSpy stopped(button, &ColorPickerButton::pickingStopped);
        const QPointer<FakeColorPicker> guard = picker;
        picker->onPick = [button] { delete button; };
        button->startPicking();
        QVERIFY(!guard);
        QCOMPARE(stopped.size(), 0);
    }

    void buttonDeletedByItsPickersColor()
    {
        const QPointer<ColorPickerButton> button = new ColorPickerButton;
        auto* picker = new FakeColorPicker;
        picker->onColor = [button] { delete button; };
        button->setPicker(picker);
        button->startPicking();
        const FreedMemoryWatch memory;
        picker->finish(QColor(Qt::red));
        QVERIFY(!button);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }

    void buttonDeletedByItsFormerPicker()
    {
        const QPointer<ColorPickerButton> button = new ColorPickerButton;
        auto* former = new FakeColorPicker;
        former->onDestruction = [button] { delete button; };
        button->setPicker(former);
        const QPointer<FakeColorPicker> picker = new FakeColorPicker;
        const FreedMemoryWatch memory;
        button->setPicker(picker);
        QVERIFY(!button);
        // It was the button's own already.
        QVERIFY(!picker);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }
};

UIC_TEST_MAIN(tst_ColorPickerButton)
#include "tst_ColorPickerButton.moc"
