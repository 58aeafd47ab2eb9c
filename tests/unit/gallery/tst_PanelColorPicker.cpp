#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>

#include <QDialog>
#include <QLineEdit>
#include <QToolButton>

#include <functional>
#include <gallery/PanelColorPicker.h>
#include <gallery/PopupPosition.h>
#include <memory>

// The off-screen platform gives every window a frame, and moves it by that once more.
constexpr QPoint OffscreenFrame(2, 2);

// Of the palette; its buttons are found by these names.
const char* const AmberName = "#ffc000";
const char* const GreenName = "#03c705";
const QColor Amber(0xff, 0xc0, 0x00);
const QColor Green(0x03, 0xc7, 0x05);

using Color = std::optional<QColor>;
using Action = std::function<void()>;
Q_DECLARE_METATYPE(Action)

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

class tst_PanelColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensBesideTheField();
    void opensLevelWithTheRightEdgeFromRightToLeft();
    void opensOnce();
    void openingChangesNoColor_data();
    void openingChangesNoColor();
    void aMixedFieldIsShownAsMixed();
    void previewIsLive();
    void closingKeepsTheColor_data();
    void closingKeepsTheColor();
    void pipetteIsHandedOnBehindTheEnd();
    void ownPopupOfThePanelKeepsItOpen();
    void stopClosesTheOwnPopupToo();
    void pressOnTheFieldIsNotReplayed();
    void picksAgainWithTheSamePanel();
    void aFieldInAnotherWindow();
    void noColorIsAnOption();
    void opacityIsAnOption();
    void aColorSetMeanwhileIsShown();
    void stopWithoutAPick();
    void stopBeforeTheEndIsReported();
    void stopFromInsideASlot();
    void withoutAField();
    void deletedInTheMiddle_data();
    void deletedInTheMiddle();
    void windowDeletedWhilePicking();
    void popupDeletedByOthers_data();
    void popupDeletedByOthers();

private:
    ColorPickerWidget* panel() const { return m_picker->panel(); }
    QWidget* popup() const { return panel() ? panel()->window() : nullptr; }
    template <typename Child>
    Child* child(const char* name) const
    {
        return panel()->findChild<Child*>(name);
    }
    QToolButton* paletteButton(const char* color) const;
    void clickElsewhere() const;

    std::unique_ptr<QWidget> m_window;
    QPointer<ColorPickerButton> m_button;
    QPointer<PanelColorPicker> m_picker;
};

void tst_PanelColorPicker::init()
{
    Settings::setUserCustomColors({});
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(100, 100, 300, 200);
    m_button = new ColorPickerButton(m_window.get());
    m_button->setGeometry(200, 10, 44, 24);
    m_picker = new PanelColorPicker(m_button);
    m_button->setPicker(m_picker);
    m_button->setColor(QColor(Qt::red));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_PanelColorPicker::cleanup()
{
    m_window.reset();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QToolButton* tst_PanelColorPicker::paletteButton(const char* color) const
{
    const auto buttons = child<QWidget>("colorMatrixPanel")->findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (button->styleSheet().contains(color)) {
            return button;
        }
    }
    return nullptr;
}

void tst_PanelColorPicker::clickElsewhere() const
{
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, QPoint(5, 195));
}

void tst_PanelColorPicker::opensBesideTheField()
{
    m_button->setColor(QColor(10, 20, 30));
    m_button->click();
    QVERIFY(popup()->isVisible());
    QVERIFY(popup()->windowFlags().testFlag(Qt::Popup));
    QCOMPARE(popup()->pos() - OffscreenFrame, popupPosition(m_button, popup()->size()));
    QCOMPARE(popup()->pos() - OffscreenFrame, m_button->mapToGlobal(QPoint(0, 30)));
    QCOMPARE(panel()->currentColor(), Color(QColor(10, 20, 30)));
    QVERIFY(m_button->isDown());
    QVERIFY(m_button->isPickingInProgress());
}

void tst_PanelColorPicker::opensLevelWithTheRightEdgeFromRightToLeft()
{
    m_button->setLayoutDirection(Qt::RightToLeft);
    m_button->move(240, 10);
    m_button->click();
    QCOMPARE(popup()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(panel()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(popup()->geometry().right() - OffscreenFrame.x(), m_button->mapToGlobal(QPoint(43, 0)).x());
}

void tst_PanelColorPicker::opensOnce()
{
    m_button->startPicking();
    m_button->startPicking();
    QCOMPARE(m_window->findChildren<ColorPickerWidget*>().size(), 1);
    QVERIFY(popup()->isVisible());
}

void tst_PanelColorPicker::openingChangesNoColor_data()
{
    QTest::addColumn<Color>("color");
    QTest::addColumn<bool>("opacity");
    QTest::newRow("a palette colour") << Color(QColor(0xff, 0x5d, 0x00)) << true;
    QTest::newRow("a free colour") << Color(QColor(1, 2, 3)) << true;
    // The panel's slider has hundredths.
    QTest::newRow("an alpha between two steps") << Color(QColor(10, 20, 30, 100)) << true;
    QTest::newRow("a translucent palette colour") << Color(QColor(255, 0, 0, 100)) << true;
    QTest::newRow("a translucent palette colour without opacity") << Color(QColor(255, 0, 0, 100)) << false;
    QTest::newRow("as HSV") << Color(QColor::fromHsv(120, 100, 90)) << true;
    QTest::newRow("no colour") << Color(QColor()) << true;
    QTest::newRow("several colours") << Color() << true;
}

void tst_PanelColorPicker::openingChangesNoColor()
{
    QFETCH(Color, color);
    QFETCH(bool, opacity);
    m_picker->setOpacityAvailable(opacity);
    m_button->setColor(color);
    QSignalSpy buttonChanged(m_button, &ColorPickerButton::colorChanged);
    QSignalSpy pickerChanged(m_picker, &AbstractColorPicker::colorChanged);
    m_button->startPicking();
    QVERIFY(popup()->isVisible());
    QCoreApplication::processEvents();
    m_button->stopPicking();
    QCOMPARE(m_button->color(), color);
    QCOMPARE(buttonChanged.count(), 0);
    QCOMPARE(pickerChanged.count(), 0);
}

void tst_PanelColorPicker::aMixedFieldIsShownAsMixed()
{
    // The picker still knows red: a field tells it of definite colours only.
    m_button->setColor(std::nullopt);
    m_button->startPicking();
    QCOMPARE(panel()->currentColor(), Color());
}

void tst_PanelColorPicker::previewIsLive()
{
    m_button->startPicking();
    QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
    paletteButton(AmberName)->click();
    QCOMPARE(m_button->color(), Color(Amber));
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_button->isPickingInProgress());
    QVERIFY(popup()->isVisible());
}

void tst_PanelColorPicker::closingKeepsTheColor_data()
{
    QTest::addColumn<Action>("close");
    QTest::newRow("stop") << Action([this] { m_button->stopPicking(); });
    QTest::newRow("Escape") << Action([this] { QTest::keyPress(popup()->windowHandle(), Qt::Key_Escape); });
    QTest::newRow("Escape in the edit") << Action([this] {
        child<QLineEdit>("currentColorValueEdit")->setFocus();
        QTest::keyPress(popup()->windowHandle(), Qt::Key_Escape);
    });
    QTest::newRow("a click elsewhere") << Action([this] { clickElsewhere(); });
    QTest::newRow("the panel's request") << Action([this] { child<QToolButton>("pipetteButton")->click(); });
    QTest::newRow("the field is hidden") << Action([this] { m_button->hide(); });
    QTest::newRow("the pop-up is hidden by others") << Action([this] { popup()->hide(); });
}

void tst_PanelColorPicker::closingKeepsTheColor()
{
    QFETCH(Action, close);
    m_button->startPicking();
    QVERIFY(QTest::qWaitForWindowExposed(popup()));
    paletteButton(AmberName)->click();

    const auto order = std::make_shared<QStringList>();
    connect(m_picker, &AbstractColorPicker::colorChanged, this, [order] { *order << "color"; });
    connect(m_picker, &AbstractColorPicker::pickingStopped, this, [order, this] {
        *order << "stopped";
        QVERIFY(!popup()->isVisible());
        QVERIFY(!m_picker->isInProgress());
        QCOMPARE(m_picker->color(), Color(Amber));
    });
    close();
    QVERIFY(!popup()->isVisible());
    QTRY_COMPARE(*order, QStringList{"stopped"});
    QCOMPARE(m_button->color(), Color(Amber));
    QVERIFY(!m_button->isDown());
    QVERIFY(!m_button->isPickingInProgress());
    QCoreApplication::processEvents();
    QCOMPARE(*order, QStringList{"stopped"});
}

void tst_PanelColorPicker::pipetteIsHandedOnBehindTheEnd()
{
    m_button->startPicking();
    const auto order = std::make_shared<QStringList>();
    connect(m_picker, &AbstractColorPicker::pickingStopped, this, [order] { *order << "stopped"; });
    connect(m_picker, &PanelColorPicker::pipetteRequested, this, [order, this] {
        *order << "pipette";
        QVERIFY(!QApplication::activePopupWidget());
        // What the host then does with its result.
        m_button->setColor(QColor(Qt::green));
    });
    child<QToolButton>("pipetteButton")->click();
    QTRY_COMPARE(*order, (QStringList{"stopped", "pipette"}));
    QCOMPARE(m_button->color(), Color(QColor(Qt::green)));

    // Once for each request.
    m_button->startPicking();
    m_button->stopPicking();
    QCOMPARE(*order, (QStringList{"stopped", "pipette", "stopped"}));
}

void tst_PanelColorPicker::ownPopupOfThePanelKeepsItOpen()
{
    m_button->startPicking();
    QVERIFY(QTest::qWaitForWindowExposed(popup()));
    QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
    m_button->setColor(QColor(12, 34, 56));
    child<QToolButton>("addCustomColorButton")->click();
    const auto* dialog = panel()->findChild<QDialog*>();
    QVERIFY(dialog->isVisible());
    QCoreApplication::processEvents();
    QVERIFY(popup()->isVisible());
    QVERIFY(m_picker->isInProgress());

    // The first click elsewhere closes the selector, the second the panel.
    clickElsewhere();
    QVERIFY(!dialog->isVisible());
    QCoreApplication::processEvents();
    QVERIFY(popup()->isVisible());
    QVERIFY(m_picker->isInProgress());
    QCOMPARE(Settings::userCustomColors(), QStringList{"#0c2238"});
    clickElsewhere();
    QTRY_COMPARE(stopped.count(), 1);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_button->color(), Color(QColor(12, 34, 56)));
}

void tst_PanelColorPicker::stopClosesTheOwnPopupToo()
{
    m_button->setColor(QColor(12, 34, 56));
    m_button->startPicking();
    child<QToolButton>("addCustomColorButton")->click();
    const auto* dialog = panel()->findChild<QDialog*>();
    QVERIFY(dialog->isVisible());
    QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
    m_button->stopPicking();
    QVERIFY(!dialog->isVisible());
    QVERIFY(!popup()->isVisible());
    QCOMPARE(stopped.count(), 1);
    QCOMPARE(Settings::userCustomColors(), QStringList{"#0c2238"});
}

void tst_PanelColorPicker::pressOnTheFieldIsNotReplayed()
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

void tst_PanelColorPicker::picksAgainWithTheSamePanel()
{
    m_button->startPicking();
    const ColorPickerWidget* const first = panel();
    m_button->stopPicking();
    m_button->setColor(Green);
    m_button->startPicking();
    QCOMPARE(panel(), first);
    QVERIFY(paletteButton(GreenName)->isChecked());
    QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
    paletteButton(AmberName)->click();
    QCOMPARE(changed.count(), 1);
}

void tst_PanelColorPicker::aFieldInAnotherWindow()
{
    m_button->startPicking();
    m_button->stopPicking();
    QWidget other;
    m_button->setParent(&other);
    m_button->show();
    other.show();
    m_button->startPicking();
    QCOMPARE(popup()->parentWidget(), &other);
    QVERIFY(popup()->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_window->findChildren<ColorPickerWidget*>().size(), 0);
}

void tst_PanelColorPicker::noColorIsAnOption()
{
    QVERIFY(!m_picker->isNullColorAllowed());
    m_button->startPicking();
    QVERIFY(!paletteButton("transparent"));
    m_picker->setNullColorAllowed(true);
    QVERIFY(!paletteButton("transparent"));
    m_button->stopPicking();

    m_button->startPicking();
    paletteButton("transparent")->click();
    QCOMPARE(m_button->color(), Color(QColor()));
}

void tst_PanelColorPicker::opacityIsAnOption()
{
    QVERIFY(m_picker->isOpacityAvailable());
    m_button->setColor(QColor(255, 0, 0, 100));
    QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
    m_button->startPicking();
    const int tall = popup()->height();
    m_picker->setOpacityAvailable(false);
    QTRY_VERIFY(popup()->height() < tall);
    QVERIFY(child<QWidget>("opacityPanel")->isHidden());
    m_picker->setOpacityAvailable(true);
    QTRY_COMPARE(popup()->height(), tall);
    QCOMPARE(changed.count(), 0);
}

void tst_PanelColorPicker::aColorSetMeanwhileIsShown()
{
    m_button->startPicking();
    QSignalSpy changed(m_picker, &AbstractColorPicker::colorChanged);
    m_button->setColor(Green);
    QVERIFY(paletteButton(GreenName)->isChecked());
    QCOMPARE(changed.count(), 0);
    m_button->setColor(QColor());
    QCOMPARE(panel()->currentColor(), Color(QColor()));
    QCOMPARE(m_button->color(), Color(QColor()));
    QCOMPARE(changed.count(), 0);
}

void tst_PanelColorPicker::stopWithoutAPick()
{
    QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
    m_picker->stop();
    QCOMPARE(stopped.count(), 0);
    QVERIFY(!panel());
}

void tst_PanelColorPicker::stopBeforeTheEndIsReported()
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

void tst_PanelColorPicker::stopFromInsideASlot()
{
    m_button->startPicking();
    QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
    connect(m_picker, &AbstractColorPicker::colorChanged, this, [this] { m_picker->stop(); });
    connect(m_picker, &AbstractColorPicker::pickingStopped, this, [this] { m_picker->stop(); });
    paletteButton(AmberName)->click();
    QCOMPARE(stopped.count(), 1);
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_button->color(), Color(Amber));
}

void tst_PanelColorPicker::withoutAField()
{
    PanelColorPicker picker(nullptr);
    picker.pick();
    QVERIFY(!picker.isInProgress());
    picker.setColor(QColor(Qt::red));
    QCOMPARE(picker.color(), Color(QColor(Qt::red)));
}

void tst_PanelColorPicker::deletedInTheMiddle_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<Action>("cause");
    QTest::addColumn<Action>("remove");
    const QVector<QPair<const char*, Action>> victims = {
        {"field", [this] { delete m_button; }},
        {"picker", [this] { m_button->setPicker(new PanelColorPicker(m_button)); }},
        {"pop-up", [this] { delete popup(); }},
        {"window", [this] { m_window.reset(); }},
    };
    const QByteArray changed = SIGNAL(colorChanged(std::optional<QColor>));
    const QByteArray stopped = SIGNAL(pickingStopped());
    for (const auto& [victim, remove] : victims) {
        // A checked button that is deleted in its own signal crashes inside Qt, hence the edit.
        QTest::addRow("%s, in a preview", victim) << changed << Action([this] {
            // The button of the new colour reports it opaque.
            m_picker->setOpacityAvailable(false);
            QTest::keyClicks(child<QLineEdit>("currentColorValueEdit"), "#123456");
        }) << remove;
        QTest::addRow("%s, at the end by Escape", victim)
            << stopped << Action([this] { QTest::keyPress(popup()->windowHandle(), Qt::Key_Escape); })
            << remove;
        QTest::addRow("%s, at the end by a click", victim)
            << stopped << Action([this] { clickElsewhere(); }) << remove;
        QTest::addRow("%s, at the end by the pipette button", victim) << stopped << Action([this] {
            QTest::mouseClick(child<QToolButton>("pipetteButton"), Qt::LeftButton);
        }) << remove;
        QTest::addRow("%s, when the pipette is asked for", victim)
            << QByteArray(SIGNAL(pipetteRequested()))
            << Action([this] { QTest::mouseClick(child<QToolButton>("pipetteButton"), Qt::LeftButton); })
            << remove;
        QTest::addRow("%s, by the colour that closing adds", victim) << changed << Action([this] {
            // The button of the new colour reports it opaque.
            m_picker->setOpacityAvailable(false);
            child<QToolButton>("addCustomColorButton")->click();
            m_picker->stop();
        }) << remove;
    }
}

void tst_PanelColorPicker::deletedInTheMiddle()
{
    QFETCH(QByteArray, signal);
    QFETCH(Action, cause);
    QFETCH(Action, remove);
    m_button->setColor(QColor(12, 34, 56, 100));
    m_button->startPicking();
    QVERIFY(QTest::qWaitForWindowExposed(popup()));
    child<QLineEdit>("currentColorValueEdit")->clear();
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

void tst_PanelColorPicker::windowDeletedWhilePicking()
{
    m_button->startPicking();
    child<QToolButton>("addCustomColorButton")->click();
    m_window.reset();
    QVERIFY(!m_button);
    QVERIFY(!m_picker);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_PanelColorPicker::popupDeletedByOthers_data()
{
    QTest::addColumn<bool>("onlyThePanel");
    QTest::newRow("pop-up") << false;
    QTest::newRow("panel") << true;
}

void tst_PanelColorPicker::popupDeletedByOthers()
{
    QFETCH(bool, onlyThePanel);
    m_button->startPicking();
    const QPointer<QWidget> open = popup();
    paletteButton(AmberName)->click();
    QSignalSpy stopped(m_button, &ColorPickerButton::pickingStopped);
    if (onlyThePanel) {
        delete panel();
    } else {
        delete popup();
    }
    QTRY_COMPARE(stopped.count(), 1);
    QVERIFY(!open || !open->isVisible());
    QCOMPARE(m_button->color(), Color(Amber));
    QVERIFY(!m_button->isDown());

    m_button->startPicking();
    QVERIFY(popup()->isVisible());
    QCOMPARE(panel()->currentColor(), Color(Amber));
}

UIC_TEST_MAIN(tst_PanelColorPicker)
#include "tst_PanelColorPicker.moc"
