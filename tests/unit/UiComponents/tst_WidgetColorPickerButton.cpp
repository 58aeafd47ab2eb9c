#include "FreedMemory.h"
#include "PickingStage.h"
#include "TestMain.h"

#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <UiComponents/WidgetColorPickerStylingObject.h>

#include <memory>

using Act = std::function<void(PickingStage*, WidgetColorPickerButton*)>;
Q_DECLARE_METATYPE(Act)

namespace {

const QPoint spot(37, 21);
const QColor spotColor(PatternWidget::colorAt(spot));

/// Everything that a button says, in order.
class Protocol : public QObject
{
public:
    explicit Protocol(WidgetColorPickerButton* button)
    {
        connect(button, &WidgetColorPickerButton::pickingStarted, this, [this, button] {
            lines += button->isPickingInProgress() ? QStringLiteral("started in progress")
                                                   : QStringLiteral("started");
        });
        connect(button, &WidgetColorPickerButton::pickingFinished, this, [this, button] {
            lines += button->isPickingInProgress() ? QStringLiteral("finished in progress")
                                                   : QStringLiteral("finished");
        });
        connect(button, &WidgetColorPickerButton::colorChanged, this,
                [this](const QColor& color) { lines += color.name(); });
    }

    QStringList lines;
};

const QStringList cancelled = {QStringLiteral("started"), QStringLiteral("finished")};
const QStringList picked = cancelled + QStringList(spotColor.name());

} // namespace

class tst_WidgetColorPickerButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stage = std::make_unique<PickingStage>();
        m_button = new WidgetColorPickerButton(m_stage->window);
        m_button->setGeometry(190, 10, 40, 30);
        m_button->setTargetWidget(m_stage->target);
        QVERIFY(m_stage->show());
    }

    void cleanup()
    {
        m_stage.reset();
        QVERIFY(!m_button);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void construction()
    {
        QWidget parent;
        auto* button = new WidgetColorPickerButton(&parent);
        QCOMPARE(button->parentWidget(), &parent);
        QVERIFY(!button->isEnabled());
        QVERIFY(!button->targetWidget());
        QVERIFY(!button->color().isValid());
        QVERIFY(button->changeSelfColor());
        QVERIFY(!button->isPickingInProgress());
        QCOMPARE(button->styleSheet(), QString());
    }

    void targetEnables()
    {
        QCOMPARE(m_button->targetWidget(), static_cast<const QWidget*>(m_stage->target));
        QVERIFY(m_button->isEnabled());
        m_button->setTargetWidget(nullptr);
        QVERIFY(!m_button->targetWidget());
        QVERIFY(!m_button->isEnabled());
        m_button->setTargetWidget(m_stage->other);
        QVERIFY(m_button->isEnabled());
    }

    void targetThatDiesDisables()
    {
        delete m_stage->target;
        QVERIFY(!m_button->targetWidget());
        QVERIFY(!m_button->isEnabled());
    }

    void replacedTargetIsForgotten()
    {
        m_button->setTargetWidget(m_stage->other);
        delete m_stage->target;
        QVERIFY(m_button->isEnabled());
        delete m_stage->other;
        QVERIFY(!m_button->isEnabled());
    }

    void startWithoutATargetDoesNothing()
    {
        const Protocol protocol(m_button);
        m_button->setTargetWidget(nullptr);
        m_button->startPicking();
        m_button->stopPicking();
        m_button->setEnabled(true);
        m_button->click();
        QCOMPARE(protocol.lines, QStringList());
    }

    void setColorWritesTheSheet_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("sheet");
        const auto sheet = [](const char* name) {
            return QStringLiteral("QToolButton { background-color: %1 }").arg(QLatin1String(name));
        };
        QTest::newRow("red") << QColor(255, 0, 0) << sheet("#ff0000");
        QTest::newRow("lower case") << QColor(0xAB, 0xCD, 0xEF) << sheet("#abcdef");
        QTest::newRow("alpha is not shown") << QColor(1, 2, 3, 4) << sheet("#010203");
        QTest::newRow("hsv") << QColor::fromHsv(120, 255, 255) << sheet("#00ff00");
        QTest::newRow("invalid") << QColor() << sheet("#000000");
    }

    void setColorWritesTheSheet()
    {
        QFETCH(QColor, color);
        m_button->setColor(QColor(9, 9, 9));
        QSignalSpy changed(m_button.data(), &WidgetColorPickerButton::colorChanged);
        m_button->setColor(color);
        QCOMPARE(m_button->color(), color);
        QTEST(m_button->styleSheet(), "sheet");
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.front().front().value<QColor>(), color);
    }

    void sameColorIsReportedOnce()
    {
        QSignalSpy changed(m_button.data(), &WidgetColorPickerButton::colorChanged);
        m_button->setColor(QColor());
        QCOMPARE(changed.size(), 0);
        QCOMPARE(m_button->styleSheet(), QString());
        m_button->setColor(QColor(1, 2, 3));
        m_button->setColor(QColor(1, 2, 3));
        QCOMPARE(changed.size(), 1);
        m_button->setColor(QColor(1, 2, 3).toHsv());
        QCOMPARE(changed.size(), 2);
    }

    void faceStaysWithoutChangeSelfColor_data()
    {
        QTest::addColumn<QColor>("before");
        QTest::newRow("before the first colour") << QColor();
        QTest::newRow("after one") << QColor(1, 2, 3);
    }

    void faceStaysWithoutChangeSelfColor()
    {
        QFETCH(const QColor, before);
        m_stage->window->setStyleSheet(
            QStringLiteral("QToolButton { border: 1px solid black; background: green; }"
                           "QToolButton[nullColor=\"true\"] { background: red; }"));
        m_button->setColor(before);
        m_button->setChangeSelfColor(false);
        const QString sheet = m_button->styleSheet();
        const QImage face = m_button->grab().toImage();
        for (const QColor& color : {QColor(4, 5, 6), QColor()}) {
            QSignalSpy changed(m_button.data(), &WidgetColorPickerButton::colorChanged);
            m_button->setColor(color);
            QCOMPARE(m_button->color(), color);
            QCOMPARE(changed.size(), 1);
            QCOMPARE(m_button->styleSheet(), sheet);
            QCOMPARE(m_button->grab().toImage(), face);
        }
    }

    void changeSelfColorIsOnlyNoted()
    {
        m_button->setChangeSelfColor(false);
        QVERIFY(!m_button->property("changeSelfColor").toBool());
        m_button->setColor(QColor(1, 2, 3));
        m_button->setProperty("changeSelfColor", true);
        QVERIFY(m_button->changeSelfColor());
        QCOMPARE(m_button->styleSheet(), QString());
        m_button->setColor(QColor(4, 5, 6));
        QCOMPARE(m_button->styleSheet(), QStringLiteral("QToolButton { background-color: #040506 }"));
    }

    void faceIsAPushButton()
    {
        class Reference : public QToolButton
        {
        public:
            using QToolButton::QToolButton;

        protected:
            void paintEvent(QPaintEvent* /*event*/) override
            {
                QStyleOptionButton option;
                option.initFrom(this);
                QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
            }
        };
        auto* reference = new Reference(m_stage->window);
        reference->setGeometry(m_button->geometry());
        reference->show();
        m_button->setText(QStringLiteral("never seen"));
        QCOMPARE(m_button->grab().toImage(), reference->grab().toImage());
        m_button->setColor(QColor(200, 100, 50));
        reference->setStyleSheet(m_button->styleSheet());
        QCOMPARE(m_button->grab().toImage(), reference->grab().toImage());
        m_button->setTargetWidget(nullptr);
        reference->setEnabled(false);
        QCOMPARE(m_button->grab().toImage(), reference->grab().toImage());
    }

    void faceHasTheColor()
    {
        // With a border that is not the style's own, the background is exactly what the sheet says.
        m_stage->window->setStyleSheet(
            QStringLiteral("QToolButton { border: 1px solid black; background: green; }"));
        m_button->setColor(QColor(200, 100, 50));
        QCOMPARE(m_button->grab().toImage().pixelColor(m_button->rect().center()), QColor(200, 100, 50));
    }

    void faceOfNoColorMayHaveAPicture()
    {
        m_stage->window->setStyleSheet(
            QStringLiteral("QToolButton { border: 1px solid black; background: green; }"
                           "QToolButton[nullColor=\"true\"] { background: qlineargradient(stop: 0 red); }"));
        const auto face = [this] { return m_button->grab().toImage().pixelColor(m_button->rect().center()); };
        QCOMPARE(face(), QColor(Qt::red));
        m_button->setColor(QColor(200, 100, 50));
        QCOMPARE(m_button->property("nullColor"), QVariant(false));
        QCOMPARE(face(), QColor(200, 100, 50));
        m_button->setColor(QColor());
        QCOMPARE(m_button->property("nullColor"), QVariant(true));
    }

    void pressedFaceIsSeen()
    {
        m_button->setColor(QColor(200, 100, 50));
        const QImage before = m_button->grab().toImage();
        m_button->setDown(true);
        QVERIFY(m_button->grab().toImage() != before);
    }

    void plainFaceIsAToolButton()
    {
        auto* reference = new QToolButton(m_stage->window);
        reference->setGeometry(m_button->geometry());
        reference->show();
        for (QToolButton* button : {static_cast<QToolButton*>(m_button), reference}) {
            button->setText(QStringLiteral("Pick"));
            button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        }
        m_button->setChangeSelfColor(false);
        QCOMPARE(m_button->grab().toImage(), reference->grab().toImage());
    }

    void clickPicks()
    {
        const Protocol protocol(m_button);
        QVERIFY(clickWith([this] {
            QVERIFY(m_button->isPickingInProgress());
            QVERIFY(!m_button->pickedColor().isValid());
            m_stage->press();
        }));
        QCOMPARE(protocol.lines, picked);
        QCOMPARE(m_button->color(), spotColor);
        QCOMPARE(m_button->pickedColor(), spotColor);
        QCOMPARE(m_button->styleSheet(),
                 QStringLiteral("QToolButton { background-color: %1 }").arg(spotColor.name()));
        QVERIFY(!m_button->isPickingInProgress());
        QVERIFY(!m_button->isDown());
    }

    void pick_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QStringList>("said");
        const auto row = [](const char* name, const QStringList& said, const Act& act) {
            QTest::newRow(name) << act << said;
        };
        row("pressed elsewhere", cancelled, [](PickingStage* stage, auto*) { stage->pressOn(stage->other); });
        row("the colour that it has", cancelled, [](PickingStage* stage, auto* button) {
            const QSignalBlocker blocker(button);
            button->setColor(spotColor);
            stage->press();
        });
        row("started again", picked, [](PickingStage* stage, auto* button) {
            button->startPicking();
            QVERIFY(button->isPickingInProgress());
            stage->press();
        });
        row("stopped", picked, [](PickingStage*, auto* button) {
            button->stopPicking();
            QVERIFY(!button->isPickingInProgress());
        });
        row("target taken away", cancelled, [](PickingStage*, auto* button) {
            button->setTargetWidget(nullptr);
            QVERIFY(!button->isPickingInProgress());
            QVERIFY(!button->isEnabled());
        });
        row("target deleted", cancelled, [](PickingStage* stage, auto* button) {
            delete stage->target;
            QVERIFY(!button->isEnabled());
        });
        row("hidden", picked, [](PickingStage* stage, auto* button) {
            button->hide();
            QVERIFY(button->isPickingInProgress());
            stage->press();
        });
        // The cursor is where the target was when stopPicking() ends the pick.
        row("window closed", picked, [](PickingStage* stage, auto* button) {
            stage->window->close();
            button->stopPicking();
        });
        row("clicked itself", cancelled, [](PickingStage* stage, auto* button) {
            stage->pressOn(button);
            QVERIFY(!button->isDown());
            stage->release();
        });
        row("double-clicked itself", cancelled, [](PickingStage* stage, auto* button) {
            stage->pressOn(button);
            QWindow* const window = stage->window->windowHandle();
            const QPoint place = button->geometry().center();
            QMouseEvent doubleClick(QEvent::MouseButtonDblClick, place, window->mapToGlobal(place),
                                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window, &doubleClick);
            stage->release();
        });
        row("Tab", picked, [](PickingStage* stage, auto* button) {
            button->setFocus();
            QWidget::setTabOrder(button, stage->other);
            QTest::keyClick(stage->window->windowHandle(), Qt::Key_Tab);
            QVERIFY(stage->other->hasFocus());
        });
    }

    void pick()
    {
        QFETCH(Act, act);
        QFETCH(QStringList, said);
        const Protocol protocol(m_button);
        QVERIFY(clickWith([this, act] { act(m_stage.get(), m_button); }));
        QCOMPARE(protocol.lines, said);
        QVERIFY(!m_button->isPickingInProgress());
        QVERIFY(!m_button->isDown());
    }

    void pickWithoutChangeSelfColor()
    {
        m_button->setColor(QColor(1, 2, 3));
        m_button->setChangeSelfColor(false);
        const QString sheet = m_button->styleSheet();
        const QImage face = m_button->grab().toImage();
        const Protocol protocol(m_button);
        QVERIFY(clickWith([this] { m_stage->press(); }));
        QCOMPARE(protocol.lines, picked);
        QCOMPARE(m_button->color(), spotColor);
        QCOMPARE(m_button->styleSheet(), sheet);
        QCOMPARE(m_button->grab().toImage(), face);
    }

    void stylingObjectIsThePickers()
    {
        class Look : public WidgetColorPickerStylingObject
        {
        public:
            QCursor pickingCursor() const override { return Qt::PointingHandCursor; }
        };
        const auto look = std::make_unique<Look>();
        m_button->setPickerStylingObject(look.get());
        QVERIFY(clickWith([this] {
            QCOMPARE(m_stage->target->cursor().shape(), Qt::PointingHandCursor);
            m_button->setPickerStylingObject(nullptr);
            QCOMPARE(m_stage->target->cursor().shape(), Qt::CrossCursor);
            m_stage->press();
        }));
    }

    void disabledButtonDoesNotPick()
    {
        const Protocol protocol(m_button);
        m_button->setEnabled(false);
        PickingStage::moveCursor(m_button);
        m_stage->press();
        m_stage->release();
        QCOMPARE(protocol.lines, QStringList());
    }

    void keyEndsThePick_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("isOverTarget");
        QTest::newRow("Space over the target") << Qt::Key_Space << true;
        QTest::newRow("Space elsewhere") << Qt::Key_Space << false;
        QTest::newRow("Escape over the target") << Qt::Key_Escape << true;
        QTest::newRow("Escape elsewhere") << Qt::Key_Escape << false;
    }

    // The key that ends a pick goes on to the button if that has the focus: it must not start the next pick.
    void keyEndsThePick()
    {
        QFETCH(Qt::Key, key);
        QFETCH(bool, isOverTarget);
        const Protocol protocol(m_button);
        m_button->setFocus();
        QWindow* const window = m_stage->window->windowHandle();
        QVERIFY(clickWith([&] {
            if (!isOverTarget) {
                PickingStage::moveCursor(m_stage->other);
            }
            QTest::keyPress(window, key);
            QVERIFY(!m_button->isDown());
            QTest::keyRelease(window, key);
        }));
        QCOMPARE(protocol.lines, isOverTarget ? picked : cancelled);
        QVERIFY(!m_button->isDown());

        // Released only after the pick has returned.
        QVERIFY(clickWith([&] {
            PickingStage::moveCursor(m_stage->other);
            QTest::keyPress(window, key);
        }));
        QTest::keyRelease(window, key);
        QVERIFY(!m_button->isPickingInProgress());
        QVERIFY(!m_button->isDown());
    }

    void spaceStartsAPickThatLasts()
    {
        const Protocol protocol(m_button);
        m_button->setFocus();
        QWindow* const window = m_stage->window->windowHandle();
        const auto useSpace = [window] { QTest::keyClick(window, Qt::Key_Space); };
        QVERIFY(pickWith(useSpace, [this] {
            QVERIFY(m_button->isPickingInProgress());
            m_stage->press();
        }));
        QCOMPARE(protocol.lines, picked);

        // And again: the button is as it was.
        QVERIFY(pickWith(useSpace, [this] {
            QVERIFY(m_button->isPickingInProgress());
            m_stage->pressOn(m_stage->other);
        }));
        QCOMPARE(protocol.lines, picked + cancelled);
        QVERIFY(!m_button->pickedColor().isValid());
    }

    void deletedWhilePicking_data()
    {
        QTest::addColumn<bool>("isWindowToo");
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("button, by the mouse") << false << false;
        QTest::newRow("window, by the mouse") << true << false;
        QTest::newRow("button, by a key") << false << true;
        QTest::newRow("window, by a key") << true << true;
    }

    // Qt's own handlers of the click run on after it, and some write into the button.
    void deletedWhilePicking()
    {
        QFETCH(bool, isWindowToo);
        QFETCH(bool, isByKey);
        QSignalSpy finished(m_button.data(), &WidgetColorPickerButton::pickingFinished);
        m_button->setFocus();
        const auto destroy = [this, isWindowToo] {
            if (isWindowToo) {
                delete m_stage->window;
            } else {
                delete m_button;
            }
        };
        PickingStage::moveCursor(m_button);
        const FreedMemoryWatch memory;
        QTimer::singleShot(0, this, destroy);
        if (isByKey) {
            QTest::keyClick(m_button.data(), Qt::Key_Space);
        } else {
            QTest::mouseClick(m_button.data(), Qt::LeftButton);
        }
        QVERIFY(!m_button);
        QCOMPARE(finished.size(), 0);
        QVERIFY(memory.deleted() > 0);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }

    void targetGoneWhenStarted()
    {
        const Protocol protocol(m_button);
        connect(m_button.data(), &WidgetColorPickerButton::pickingStarted, this,
                [this] { delete m_stage->target; });
        m_button->click();
        QCOMPARE(protocol.lines, cancelled);
    }

    void startInASlot()
    {
        const Protocol protocol(m_button);
        bool isFirst = true;
        connect(m_button.data(), &WidgetColorPickerButton::pickingFinished, this, [&] {
            if (isFirst) {
                isFirst = false;
                QVERIFY(clickWith([this] { m_stage->press(); }));
            }
        });
        QVERIFY(clickWith([this] { m_stage->pressOn(m_stage->other); }));
        QCOMPARE(protocol.lines, cancelled + picked);
    }

private:
    /// Calls @p start, and @p inside in the loop of the pick that it begins, with the mouse over the spot in
    /// the target.
    bool pickWith(const std::function<void()>& start, const std::function<void()>& inside)
    {
        QObject once;
        connect(m_button.data(), &WidgetColorPickerButton::pickingStarted, &once, [this, inside, &once] {
            m_button->disconnect(&once);
            QTimer::singleShot(0, this, [this, inside] {
                PickingStage::moveCursor(m_stage->target, spot);
                inside();
            });
        });
        return runWith(
            start, [] {}, [this] { m_button->stopPicking(); });
    }

    bool clickWith(const std::function<void()>& inside)
    {
        PickingStage::moveCursor(m_button);
        return pickWith(
            [this] {
                m_stage->press();
                m_stage->release();
            },
            inside);
    }

    std::unique_ptr<PickingStage> m_stage;
    QPointer<WidgetColorPickerButton> m_button;
};

UIC_TEST_MAIN(tst_WidgetColorPickerButton)
#include "tst_WidgetColorPickerButton.moc"
