#include "FakeColorPicker.h"
#include "FreedMemory.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>

#include <memory>

using OptionalColor = std::optional<QColor>;

namespace {

QWidget* faceOf(const ColorPickerButton& button)
{
    return button.findChild<QWidget*>(QStringLiteral("color"), Qt::FindDirectChildrenOnly);
}

FakeColorPicker* installPicker(ColorPickerButton& button)
{
    auto* picker = new FakeColorPicker;
    button.setPicker(picker);
    return picker;
}

QString text(const OptionalColor& color)
{
    if (!color) {
        return QStringLiteral("multiple");
    }
    return color->isValid() ? color->name(QColor::HexArgb) : QStringLiteral("none");
}

/// Everything that a button and its picker say, in order.
class Protocol : public QObject
{
public:
    void watch(ColorPickerButton* button)
    {
        connect(button, &ColorPickerButton::pickingStarted, this,
                [this] { lines += QStringLiteral("started"); });
        connect(button, &ColorPickerButton::pickingStopped, this,
                [this] { lines += QStringLiteral("stopped"); });
        connect(button, &ColorPickerButton::colorChanged, this,
                [this](const QColor& color) { lines += QStringLiteral("changed ") + text(color); });
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
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: transparent;"));
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

        button.setStyleSheet(QStringLiteral("#color { min-width: 5px; max-width: 5px; }"));
        QTRY_COMPARE(faceOf(button)->width(), 5);
    }

    void states_data()
    {
        QTest::addColumn<OptionalColor>("color");
        QTest::addColumn<bool>("nullColor");
        QTest::addColumn<bool>("multiColor");
        QTest::addColumn<QString>("face");

        const QString transparent = QStringLiteral("background: transparent;");
        QTest::newRow("red") << OptionalColor(QColor(255, 0, 0)) << false << false
                             << QStringLiteral("background: rgba(255, 0, 0, 1)");
        QTest::newRow("fully transparent") << OptionalColor(QColor(1, 2, 3, 0)) << false << false
                                           << QStringLiteral("background: rgba(1, 2, 3, 1)");
        QTest::newRow("hsv") << OptionalColor(QColor::fromHsv(120, 255, 255)) << false << false
                             << QStringLiteral("background: rgba(0, 255, 0, 1)");
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

    void setColorOfNoColorIsReported()
    {
        ColorPickerButton button;
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.setColor(QColor());
        QCOMPARE(button.property("nullColor"), QVariant(true));
        QCOMPARE(button.property("multiColor"), QVariant(false));
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: transparent;"));
        QCOMPARE(changed.size(), 1);
        QVERIFY(!changed.front().front().value<QColor>().isValid());
    }

    void sameColorIsReportedOnce()
    {
        ColorPickerButton button;
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.setColor(QColor(10, 20, 30));
        button.setColor(QColor(10, 20, 30));
        QCOMPARE(changed.size(), 1);
        button.setColor(std::nullopt);
        button.setColor(std::nullopt);
        button.setColor(QColor());
        button.setColor(QColor());
        QCOMPARE(changed.size(), 2);
    }

    void changeToMultipleIsShownButNotReported()
    {
        ColorPickerButton button;
        button.setColor(QColor(10, 20, 30));
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.setColor(std::nullopt);
        QCOMPARE(changed.size(), 0);
        QVERIFY(!button.color().has_value());
        QCOMPARE(button.property("multiColor"), QVariant(true));
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: transparent;"));
    }

    void colorModelCounts()
    {
        ColorPickerButton button;
        button.setColor(QColor(255, 0, 0));
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.setColor(QColor(255, 0, 0).toHsv());
        QCOMPARE(changed.size(), 1);
    }

    void disabledFaceIsDimmed()
    {
        ColorPickerButton button;
        button.setColor(QColor(1, 2, 3));
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: rgba(1, 2, 3, 1)"));
        button.setEnabled(false);
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: rgba(1, 2, 3, 0.4)"));
        button.setColor(QColor(4, 5, 6));
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: rgba(4, 5, 6, 0.4)"));
        button.setEnabled(true);
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: rgba(4, 5, 6, 1)"));

        QWidget parent;
        button.setParent(&parent);
        parent.setEnabled(false);
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: rgba(4, 5, 6, 0.4)"));
        button.setParent(nullptr);
    }

    void translucentColorIsShownOpaque()
    {
        ColorPickerButton button;
        button.setStyleSheet(QStringLiteral("#color { min-width: 20px; min-height: 20px; }"));
        button.setColor(QColor(200, 100, 50, 128));
        QCOMPARE(faceOf(button)->styleSheet(), QStringLiteral("background: rgba(200, 100, 50, 1)"));
        button.resize(40, 40);
        button.show();
        const QPoint middle = faceOf(button)->geometry().center();
        QCOMPARE(button.grab().toImage().pixelColor(middle), QColor(200, 100, 50));
    }

    void valueKeepsAlpha()
    {
        ColorPickerButton button;
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        const QColor translucent(200, 100, 50, 128);
        button.setColor(translucent);
        QVERIFY(button.color() == OptionalColor(translucent));
        QCOMPARE(changed.front().front().value<QColor>(), translucent);
        button.setColor(QColor(200, 100, 50, 129));
        QCOMPARE(changed.size(), 2);
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

    void selectorsTakeEffectAtOnce()
    {
        ColorPickerButton button;
        button.setStyleSheet(
            QStringLiteral("ColorPickerButton { qproperty-text: colour; }"
                           "ColorPickerButton[nullColor=\"true\"] { qproperty-text: blank; }"
                           "ColorPickerButton[multiColor=\"true\"] { qproperty-text: several; }"));
        button.ensurePolished();
        QCOMPARE(button.text(), QStringLiteral("several"));
        button.setColor(QColor());
        QCOMPARE(button.text(), QStringLiteral("blank"));
        button.setColor(QColor(Qt::red));
        QCOMPARE(button.text(), QStringLiteral("colour"));
    }

    // Without a colour, the face has one and the same sheet in both states.
    void facesSelectorsTakeEffectAtOnce()
    {
        ColorPickerButton button;
        button.setStyleSheet(
            QStringLiteral("ColorPickerButton #color { qproperty-toolTip: colour; }"
                           "ColorPickerButton[nullColor=\"true\"] #color { qproperty-toolTip: blank; }"
                           "ColorPickerButton[multiColor=\"true\"] #color { qproperty-toolTip: several; }"));
        faceOf(button)->ensurePolished();
        QCOMPARE(faceOf(button)->toolTip(), QStringLiteral("several"));
        button.setColor(QColor());
        QCOMPARE(faceOf(button)->toolTip(), QStringLiteral("blank"));
        button.setColor(std::nullopt);
        QCOMPARE(faceOf(button)->toolTip(), QStringLiteral("several"));
        button.setColor(QColor(Qt::red));
        QCOMPARE(faceOf(button)->toolTip(), QStringLiteral("colour"));
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

    void pickFromClickToColor()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        Protocol protocol;
        protocol.watch(&button);
        button.show();

        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(protocol.lines, QStringList({QStringLiteral("started")}));
        QCOMPARE(picker->calls, QStringList({QStringLiteral("pick")}));
        QVERIFY(button.isDown());
        QVERIFY(button.isPickingInProgress());

        picker->preview(QColor(Qt::green));
        picker->finish(QColor(Qt::blue));
        QCOMPARE(protocol.lines,
                 QStringList({QStringLiteral("started"), QStringLiteral("changed ") + opaque(Qt::green),
                              QStringLiteral("stopped"), QStringLiteral("changed ") + opaque(Qt::blue)}));
        QVERIFY(!button.isDown());
        QVERIFY(!button.isPickingInProgress());
        QVERIFY(button.color() == OptionalColor(QColor(Qt::blue)));
    }

    void spaceStartsAPick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.show();
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(picker->calls, QStringList({QStringLiteral("pick")}));
        QVERIFY(button.isDown());
    }

    void disabledButtonDoesNotPick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.setEnabled(false);
        button.show();
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(picker->calls, QStringList());
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

    void previewIsAdoptedAtOnce()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.startPicking();
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        picker->preview(QColor(Qt::green));
        QVERIFY(button.color() == OptionalColor(QColor(Qt::green)));
        picker->preview(QColor(Qt::green));
        picker->preview(std::nullopt);
        QVERIFY(!button.color().has_value());
        QCOMPARE(changed.size(), 1);
        QVERIFY(button.isDown());
    }

    void silentEndKeepsThePress()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        Protocol protocol;
        protocol.watch(&button);
        button.startPicking();
        picker->finishInSilence();
        QVERIFY(button.isDown());
        QVERIFY(!button.isPickingInProgress());
        QCOMPARE(protocol.lines, QStringList({QStringLiteral("started")}));
    }

    void restartAfterSilentEnd()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.startPicking();
        picker->finishInSilence();
        button.startPicking();
        picker->finish(QColor(Qt::red));
        QVERIFY(!button.isDown());
    }

    void stopPickingAsksThePicker()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        Protocol protocol;
        protocol.watch(&button);
        button.startPicking();
        picker->preview(QColor(Qt::red));
        button.stopPicking();
        QCOMPARE(picker->calls.count(QStringLiteral("stop")), 1);
        QVERIFY(!button.isDown());
        QCOMPARE(protocol.lines,
                 QStringList({QStringLiteral("started"), QStringLiteral("changed ") + opaque(Qt::red),
                              QStringLiteral("stopped")}));
    }

    void hidingStopsThePick()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.show();
        button.startPicking();
        picker->preview(QColor(Qt::red));
        Protocol protocol;
        protocol.watch(&button);
        // The picker's word at the end is what counts, whatever it reported before.
        button.setColor(QColor(Qt::yellow));
        button.hide();
        QCOMPARE(picker->calls.last(), QStringLiteral("setColor"));
        QCOMPARE(picker->calls.count(QStringLiteral("stop")), 1);
        QCOMPARE(protocol.lines,
                 QStringList({QStringLiteral("changed ") + opaque(Qt::yellow), QStringLiteral("stopped"),
                              QStringLiteral("changed ") + opaque(Qt::red)}));
        QVERIFY(!button.isDown());
        QVERIFY(button.color() == OptionalColor(QColor(Qt::red)));
    }

    void hidingAnIdleButtonAsksThePickerToStop()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        Protocol protocol;
        protocol.watch(&button);
        button.show();
        button.hide();
        QCOMPARE(picker->calls, QStringList({QStringLiteral("stop")}));
        QCOMPARE(protocol.lines, QStringList());
    }

    void stoppedTwiceIsRelayedTwice()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        QSignalSpy stopped(&button, &ColorPickerButton::pickingStopped);
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.startPicking();
        picker->finish(QColor(Qt::red));
        picker->finish(QColor(Qt::red));
        QCOMPARE(stopped.size(), 2);
        QCOMPARE(changed.size(), 1);
        QVERIFY(!button.isDown());
    }

    void finalColorMayBeMultiple()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.setColor(QColor(Qt::red));
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        button.startPicking();
        picker->finish(std::nullopt);
        QVERIFY(!button.color().has_value());
        QCOMPARE(changed.size(), 0);
        QVERIFY(!button.isDown());
    }

    void pickerLearnsEachColor()
    {
        ColorPickerButton button;
        auto* picker = new FakeColorPicker;
        button.setColor(QColor(Qt::black));
        button.setPicker(picker);
        QCOMPARE(picker->received.size(), std::size_t(0));
        button.setColor(QColor(Qt::red));
        button.setColor(QColor());
        QCOMPARE(picker->received.size(), std::size_t(2));
        QVERIFY(picker->received.at(0) == OptionalColor(QColor(Qt::red)));
        QVERIFY(picker->received.at(1) == OptionalColor(QColor()));
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

    void pickerIsNotToldOfMultiple()
    {
        ColorPickerButton button;
        FakeColorPicker* const picker = installPicker(button);
        button.setColor(QColor(Qt::red));
        button.setColor(std::nullopt);
        QCOMPARE(picker->received.size(), std::size_t(1));
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
        QCOMPARE(protocol.lines,
                 QStringList({QStringLiteral("started"), QStringLiteral("changed ") + opaque(Qt::green),
                              QStringLiteral("stopped"), QStringLiteral("changed ") + opaque(Qt::red)}));
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
        QCOMPARE(picker->calls, QStringList({QStringLiteral("pick")}));
        QVERIFY(button.isDown());

        picker->onPick = nullptr;
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(picker->calls, QStringList({QStringLiteral("pick"), QStringLiteral("pick")}));
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
        QCOMPARE(picker->calls, QStringList({QStringLiteral("pick"), QStringLiteral("pick")}));
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
        QCOMPARE(second->calls, QStringList({QStringLiteral("pick")}));
    }

    void secondPickerIsHeardOnce()
    {
        ColorPickerButton button;
        button.setPicker(new FakeColorPicker);
        auto* second = new FakeColorPicker;
        button.setPicker(second);
        QSignalSpy changed(&button, &ColorPickerButton::colorChanged);
        QSignalSpy stopped(&button, &ColorPickerButton::pickingStopped);
        second->preview(QColor(Qt::red));
        second->finish(QColor(Qt::red));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(stopped.size(), 1);
        QCOMPARE(second->received.size(), std::size_t(1));
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
        QCOMPARE(picker->calls, QStringList({QStringLiteral("pick")}));
    }

    void replacedWhilePickingReleases()
    {
        ColorPickerButton button;
        button.setPicker(new FakeColorPicker);
        button.startPicking();
        QSignalSpy stopped(&button, &ColorPickerButton::pickingStopped);
        auto* second = new FakeColorPicker;
        button.setPicker(second);
        QVERIFY(!button.isDown());
        QVERIFY(!button.isPickingInProgress());
        QCOMPARE(stopped.size(), 0);
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
        QCOMPARE(protocol.lines, QStringList({QStringLiteral("started")}));

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
        QTest::newRow("pickingStarted")
            << QStringLiteral("started") << QStringList({QStringLiteral("pick")}) << true;
        QTest::newRow("pickingStopped") << QStringLiteral("stopped") << QStringList() << false;
        QTest::newRow("colorChanged") << QStringLiteral("changed") << QStringList() << false;
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
        if (signal == QLatin1String("started")) {
            connect(&button, &ColorPickerButton::pickingStarted, this, replace);
        } else if (signal == QLatin1String("stopped")) {
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
        class Picker : public FakeColorPicker
        {
        public:
            std::optional<QColor> color() override
            {
                delete parent();
                return QColor(Qt::red);
            }
        };
        const QPointer<ColorPickerButton> button = new ColorPickerButton;
        auto* picker = new Picker;
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
