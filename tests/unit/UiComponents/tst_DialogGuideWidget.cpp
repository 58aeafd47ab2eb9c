#include "AccessibleEars.h"
#include "GuideStage.h"
#include "MarkingTranslator.h"
#include "Settle.h"
#include "TestMain.h"
#include "TimerCounter.h"

#include <ApplicationUtility/Customization.h>
#include <UiComponents/DialogGuideWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>

#include <functional>
#include <memory>

namespace {

DialogGuideInfo fullInfo()
{
    return {QStringLiteral("The timeline"), QStringLiteral("Clips lie here, one after the other."),
            QStringLiteral("Next"), QStringLiteral("Back"), animation()};
}

/// Shows what is protected, and counts.
class Bubble : public DialogGuideWidget
{
public:
    using DialogGuideWidget::DialogGuideWidget;
    using DialogGuideWidget::updateContent;

    /// Aims where the host of the test says, if it does.
    std::function<QPoint()> spot;
    int aims = 0;
    int aimsByPaints = 0;
    int paints = 0;
    int moves = 0;

    void forget()
    {
        aims = 0;
        aimsByPaints = 0;
        paints = 0;
        moves = 0;
    }

protected:
    void adjustPositions() override
    {
        ++aims;
        aimsByPaints += m_painting ? 1 : 0;
        if (spot) {
            pointTo(spot());
        } else {
            DialogGuideWidget::adjustPositions();
        }
    }

    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        m_painting = true;
        DialogGuideWidget::paintEvent(event);
        m_painting = false;
    }

    void moveEvent(QMoveEvent* event) override
    {
        ++moves;
        DialogGuideWidget::moveEvent(event);
    }

private:
    bool m_painting = false;
};

/// A window with a bubble that points at a spot of it, both shown and settled.
struct Stage
{
    Stage()
    {
        window.setGeometry(150, 100, 400, 300);
        window.show();
        bubble = new Bubble(&window);
        bubble->setInfo(fullInfo());
        bubble->pointTo(window.mapToGlobal(spot));
        bubble->show();
        settle();
        bubble->forget();
    }

    /// Shows another text than that of fullInfo(), and settles.
    void set(QString DialogGuideInfo::*field, const QString& text) const
    {
        DialogGuideInfo info = fullInfo();
        info.*field = text;
        bubble->setInfo(info);
        settle();
    }

    const QPoint spot{100, 80};
    QWidget window;
    QPointer<Bubble> bubble;
};

} // namespace

Q_DECLARE_METATYPE(DialogGuideInfo)

class tst_DialogGuideWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleHints()
    {
        const DialogGuideWidget bubble(nullptr);

        QCOMPARE(partOf<QPushButton>(bubble, "secondaryButton")->property("styleHint").toString(),
                 QStringLiteral("guideButton"));
        QCOMPARE(partOf<QPushButton>(bubble, "mainButton")->property("styleHint").toString(),
                 QStringLiteral("guideMainButton"));
    }

    void showsTheInfo()
    {
        DialogGuideWidget bubble(nullptr);
        const DialogGuideInfo info = fullInfo();
        bubble.setInfo(info);
        // Texts and visibility at once, sizes later.
        QCOMPARE(partOf<QLabel>(bubble, "headerLabel")->text(),
                 Customization::localeDependedBoldText(info.title));
        QCOMPARE(partOf<QLabel>(bubble, "descriptionLabel")->text(), info.description);
        QCOMPARE(partOf<QPushButton>(bubble, "mainButton")->text(), info.mainButtonText);
        QCOMPARE(partOf<QPushButton>(bubble, "secondaryButton")->text(), info.secondaryButtonText);
        QCOMPARE(pixmapOf(bubble)->moviePath(), info.moviePath);
        QVERIFY(!partOf<QLabel>(bubble, "headerLabel")->isHidden());
        QVERIFY(!pixmapOf(bubble)->isHidden());
        settle();
    }

    void emptyInfo()
    {
        Stage stage;
        stage.bubble->setInfo(DialogGuideInfo());
        settle();
        QVERIFY(partOf<QLabel>(*stage.bubble, "headerLabel")->isHidden());
        QVERIFY(pixmapOf(*stage.bubble)->isHidden());
        // Empty buttons stay: it is the host who hides the secondary one.
        QVERIFY(partOf<QPushButton>(*stage.bubble, "mainButton")->isVisible());
        QVERIFY(partOf<QPushButton>(*stage.bubble, "secondaryButton")->isVisible());
        QVERIFY(partOf<QToolButton>(*stage.bubble, "closeButton")->isVisible());
        QVERIFY(partOf<QPushButton>(*stage.bubble, "mainButton")->text().isEmpty());
        QCOMPARE(stage.bubble->targetPoint(), stage.window.mapToGlobal(stage.spot));
    }

    void closeAndSecondaryButtonVisible()
    {
        Stage stage;
        const auto* const close = partOf<QToolButton>(*stage.bubble, "closeButton");
        const auto* const secondary = partOf<QPushButton>(*stage.bubble, "secondaryButton");
        QVERIFY(close->isVisible());
        QVERIFY(secondary->isVisible());
        stage.bubble->setCloseButtonVisible(false);
        QVERIFY(!close->isVisible());
        QVERIFY(secondary->isVisible());
        stage.bubble->setSecondaryButtonVisible(false);
        QVERIFY(!secondary->isVisible());
        // It stays so for other infos.
        stage.bubble->setInfo(DialogGuideInfo());
        QVERIFY(!close->isVisible());
        QVERIFY(!secondary->isVisible());
        stage.bubble->setCloseButtonVisible(true);
        stage.bubble->setSecondaryButtonVisible(true);
        QVERIFY(close->isVisible());
        QVERIFY(secondary->isVisible());
        settle();
        const QRect buttons = partOf<OvFrame>(*stage.bubble, "buttonsFrame")->rect();
        QCOMPARE(partOf<QPushButton>(*stage.bubble, "mainButton")->geometry().right(), buttons.right());
        QVERIFY(secondary->geometry().right() <
                partOf<QPushButton>(*stage.bubble, "mainButton")->geometry().left());
    }

    void closeButtonStaysInItsCorner_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("no heading") << QString();
        QTest::newRow("one line") << words(1);
        QTest::newRow("several lines") << words(60);
    }

    void closeButtonStaysInItsCorner()
    {
        QFETCH(QString, title);
        Stage stage;
        stage.bubble->setFixedWidth(300);
        stage.set(&DialogGuideInfo::title, title);
        const auto* const close = partOf<QToolButton>(*stage.bubble, "closeButton");
        QCOMPARE(close->geometry().topRight(),
                 partOf<OvFrame>(*stage.bubble, "headerFrame")->rect().topRight());
        QCOMPARE(close->size(), close->sizeHint());
    }

    void sizeFollowsOneTurnLater()
    {
        Stage stage;
        const QSize before = stage.bubble->size();
        DialogGuideInfo info = fullInfo();
        info.description = words(300);
        stage.bubble->setInfo(info);
        QCOMPARE(stage.bubble->size(), before);
        QCoreApplication::processEvents();
        QVERIFY(stage.bubble->size() != before);
        const QSize after = stage.bubble->size();
        settle();
        QCOMPARE(stage.bubble->size(), after);
    }

    void heightsAreForTheWidthsOfTheFrames()
    {
        qApp->setStyleSheet(
            QStringLiteral("#descriptionFrame { qproperty-layoutMarginLeft: 11; "
                           "qproperty-layoutMarginRight: 6; } "
                           "#headerFrame { qproperty-layoutSpacing: 9; qproperty-layoutMarginLeft: 5; }"));
        {
            Stage stage;
            stage.bubble->setFixedWidth(260);
            DialogGuideInfo info = fullInfo();
            info.title = words(40);
            info.description = words(80);
            stage.bubble->setInfo(info);
            settle();
            const auto* const description = partOf<QLabel>(*stage.bubble, "descriptionLabel");
            const auto* const header = partOf<QLabel>(*stage.bubble, "headerLabel");
            const auto* const close = partOf<QToolButton>(*stage.bubble, "closeButton");
            const int descriptionWidth = partOf<OvFrame>(*stage.bubble, "descriptionFrame")->width() - 17;
            const int headerWidth =
                partOf<OvFrame>(*stage.bubble, "headerFrame")->width() - 5 - 9 - close->width();
            QCOMPARE(description->width(), descriptionWidth);
            QCOMPARE(header->width(), headerWidth);
            QCOMPARE(description->minimumHeight(), neededHeight(description, descriptionWidth));
            QCOMPARE(header->minimumHeight(), neededHeight(header, headerWidth));
            QVERIFY(description->height() >= description->minimumHeight());
            QVERIFY(header->height() >= header->minimumHeight());
        }
        qApp->setStyleSheet(QString());
    }

    void hidingTheCloseButtonWidensTheHeading()
    {
        qApp->setStyleSheet(QStringLiteral("#headerFrame { qproperty-layoutSpacing: 40; } "
                                           "#closeButton { min-width: 60px; }"));
        {
            Stage stage;
            stage.bubble->setFixedWidth(300);
            DialogGuideInfo info = fullInfo();
            info.title = words(40);
            stage.bubble->setInfo(info);
            settle();
            const auto* const header = partOf<QLabel>(*stage.bubble, "headerLabel");
            const auto* const frame = partOf<OvFrame>(*stage.bubble, "headerFrame");
            const int closeWidth = partOf<QToolButton>(*stage.bubble, "closeButton")->width();
            QVERIFY(closeWidth >= 60);
            const int narrow = header->minimumHeight();
            QCOMPARE(narrow, neededHeight(header, frame->width() - closeWidth - 40));
            stage.bubble->setCloseButtonVisible(false);
            // Nothing else happens until the content is measured again.
            QCOMPARE(header->minimumHeight(), narrow);
            stage.bubble->updateContent();
            QCOMPARE(header->minimumHeight(), neededHeight(header, frame->width()));
            QVERIFY(header->minimumHeight() < narrow);
            stage.bubble->setCloseButtonVisible(true);
            stage.bubble->updateContent();
            QCOMPARE(header->minimumHeight(), narrow);
        }
        qApp->setStyleSheet(QString());
    }

    void veryLongTexts_data()
    {
        QTest::addColumn<DialogGuideInfo>("info");
        const QString word(10000, QLatin1Char('w'));
        const QString picture = QStringLiteral("<img src=\"x.png\" width=99999 height=99999>");
        QTest::newRow("many words") << DialogGuideInfo{words(500), words(20000), words(50), words(50),
                                                       animation()};
        QTest::newRow("long words") << DialogGuideInfo{word, word, word, word, QString()};
        QTest::newRow("a picture") << DialogGuideInfo{QString(), picture, QString(), QString(), QString()};
        QTest::newRow("an animation")
            << DialogGuideInfo{{}, {}, {}, {}, QStringLiteral(UIC_TEST_DATA "/huge.gif")};
    }

    void veryLongTexts()
    {
        QFETCH(DialogGuideInfo, info);
        Stage stage;
        stage.bubble->setInfo(info);
        settle();
        QVERIFY(stage.bubble->screen()->availableGeometry().contains(stage.bubble->geometry()));
        QVERIFY(!stage.bubble->grab().isNull());
        for (const char* name : {"mainButton", "secondaryButton", "closeButton"}) {
            const auto* const button = stage.bubble->findChild<QAbstractButton*>(QLatin1String(name));
            const QRect place(button->mapTo(stage.bubble, QPoint()), button->size());
            QVERIFY2(stage.bubble->rect().contains(place), name);
        }
        stage.bubble->setInfo(fullInfo());
        settle();
        QVERIFY(stage.bubble->screen()->availableGeometry().contains(stage.bubble->geometry()));
        QCOMPARE(stage.bubble->targetPoint(), stage.window.mapToGlobal(stage.spot));
    }

    void longButtonTextIsElided()
    {
        Stage stage;
        stage.set(&DialogGuideInfo::mainButtonText, QString(1000, QLatin1Char('M')));
        auto* const button = stage.bubble->findChild<QPushButton*>(QStringLiteral("mainButton"));
        QCOMPARE(button->text(), QString(1000, QLatin1Char('M')));
        QCOMPARE(button->width(), button->screen()->availableSize().width() / 4);
        // A text that is merely too long is cut off at both edges.
        const QImage shown = button->grab().toImage();
        button->setText(QString());
        const QImage empty = button->grab().toImage();
        QVERIFY(shown != empty);
        const QRect leftEdge(0, 0, 5, button->height());
        const QRect rightEdge(button->width() - 5, 0, 5, button->height());
        QCOMPARE(shown.copy(leftEdge), empty.copy(leftEdge));
        QCOMPARE(shown.copy(rightEdge), empty.copy(rightEdge));
    }

    void infoSetWhileHidden_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<bool>("shownBefore");
        for (const bool shownBefore : {false, true}) {
            const char* const when = shownBefore ? "hidden again" : "never shown";
            QTest::addRow("%s, no sheet", when) << QString() << shownBefore;
            QTest::addRow("%s, width of a sheet", when)
                << QStringLiteral("DialogGuideWidget { min-width: 280px; max-width: 280px; }") << shownBefore;
        }
    }

    // The frames of a hidden bubble get their widths, for which texts are measured, from nobody else.
    void infoSetWhileHidden()
    {
        QFETCH(QString, sheet);
        QFETCH(bool, shownBefore);
        qApp->setStyleSheet(sheet);
        const auto reset = qScopeGuard([] { qApp->setStyleSheet(QString()); });
        Stage reference;
        DialogGuideInfo info = fullInfo();
        info.title = words(20);
        info.description = words(80);
        reference.bubble->setInfo(info);
        settle();

        QWidget window;
        window.setGeometry(150, 100, 400, 300);
        window.show();
        Bubble bubble(&window);
        if (shownBefore) {
            bubble.setInfo(fullInfo());
            bubble.show();
            settle();
            bubble.hide();
        }
        bubble.setInfo(info);
        settle();
        bubble.pointTo(window.mapToGlobal(QPoint(100, 80)));
        bubble.show();
        settle();
        QCOMPARE(bubble.size(), reference.bubble->size());
    }

    void infoChangedWhileShown()
    {
        Stage stage;
        const QPoint target = stage.window.mapToGlobal(stage.spot);
        QVector<int> heights;
        for (const int count : {1, 100, 1, 300}) {
            DialogGuideInfo info = fullInfo();
            info.description = words(count);
            stage.bubble->setInfo(info);
            settle();
            QCOMPARE(stage.bubble->targetPoint(), target);
            const QPoint tip = stage.bubble->mapFromGlobal(target);
            QVERIFY(stage.bubble->mask().contains(tip));
            const auto* const description = partOf<QLabel>(*stage.bubble, "descriptionLabel");
            QVERIFY(description->height() >= description->heightForWidth(description->width()));
            heights += stage.bubble->height();
        }
        QCOMPARE(heights.at(2), heights.at(0));
        QVERIFY(heights.at(1) > heights.at(0));
        QVERIFY(heights.at(3) > heights.at(1));
    }

    void infoSetTwiceInOneTurn()
    {
        Stage stage;
        DialogGuideInfo info = fullInfo();
        info.description = words(300);
        stage.bubble->setInfo(info);
        stage.bubble->setInfo(fullInfo());
        settle();
        QCOMPARE(partOf<QLabel>(*stage.bubble, "descriptionLabel")->text(), fullInfo().description);
        Stage reference;
        QCOMPARE(stage.bubble->size(), reference.bubble->size());
    }

    void deletedBeforeItSettles()
    {
        Stage stage;
        stage.bubble->setInfo(DialogGuideInfo());
        delete stage.bubble;
        settle();
        QVERIFY(!stage.bubble);
    }

    void clicksAreReported_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("main");
        QTest::addColumn<int>("secondary");
        QTest::addColumn<int>("close");
        QTest::newRow("main") << QStringLiteral("mainButton") << 1 << 0 << 0;
        QTest::newRow("secondary") << QStringLiteral("secondaryButton") << 0 << 1 << 0;
        QTest::newRow("close") << QStringLiteral("closeButton") << 0 << 0 << 1;
    }

    void clicksAreReported()
    {
        QFETCH(QString, button);
        Stage stage;
        QSignalSpy main(stage.bubble.data(), &DialogGuideWidget::mainClicked);
        QSignalSpy secondary(stage.bubble.data(), &DialogGuideWidget::secondaryClicked);
        QSignalSpy close(stage.bubble.data(), &DialogGuideWidget::closeClicked);
        QTest::mouseClick(stage.bubble->findChild<QAbstractButton*>(button), Qt::LeftButton);
        settle();
        QVERIFY(stage.bubble && stage.bubble->isVisible());
        QTEST(main.size(), "main");
        QTEST(secondary.size(), "secondary");
        QTEST(close.size(), "close");
    }

    void keyboardWorksTheButtons()
    {
        Stage stage;
        stage.bubble->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(stage.bubble));
        QStringList reported;
        connect(stage.bubble.data(), &DialogGuideWidget::mainClicked, this,
                [&] { reported += QStringLiteral("main"); });
        connect(stage.bubble.data(), &DialogGuideWidget::secondaryClicked, this,
                [&] { reported += QStringLiteral("secondary"); });
        connect(stage.bubble.data(), &DialogGuideWidget::closeClicked, this,
                [&] { reported += QStringLiteral("close"); });
        partOf<QToolButton>(*stage.bubble, "closeButton")->setFocus();
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reported,
                 QStringList({QStringLiteral("close"), QStringLiteral("secondary"), QStringLiteral("main")}));
    }

    void followsTheParentsEvents_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::newRow("move") << QEvent::Move;
        QTest::newRow("resize") << QEvent::Resize;
        QTest::newRow("show") << QEvent::Show;
    }

    void followsTheParentsEvents()
    {
        QFETCH(QEvent::Type, type);
        QWidget parent;
        Bubble bubble(&parent);
        QMoveEvent move(QPoint(1, 1), QPoint());
        QResizeEvent resize(QSize(10, 10), QSize());
        QShowEvent show;
        QEvent* const event = type == QEvent::Move     ? static_cast<QEvent*>(&move)
                              : type == QEvent::Resize ? static_cast<QEvent*>(&resize)
                                                       : &show;
        // Its filter leaves the event to the parent.
        QVERIFY(!bubble.eventFilter(&parent, event));
        QCOMPARE(bubble.aims, 1);
        QCoreApplication::sendEvent(&parent, event);
        QCOMPARE(bubble.aims, 2);
    }

    void otherEventsLeaveItAlone()
    {
        QWidget parent;
        QWidget stranger;
        Bubble bubble(&parent);
        const auto send = [](QWidget* receiver, QEvent::Type type) {
            QEvent event(type);
            QCoreApplication::sendEvent(receiver, &event);
        };
        for (const QEvent::Type type :
             {QEvent::HideToParent, QEvent::ShowToParent, QEvent::WindowActivate, QEvent::WindowDeactivate,
              QEvent::EnabledChange, QEvent::FontChange, QEvent::LayoutRequest, QEvent::UpdateRequest,
              QEvent::WindowTitleChange, QEvent::Enter, QEvent::Leave, QEvent::User}) {
            send(&parent, type);
            QCOMPARE(bubble.aims, 0);
        }
        // Nor those of another widget that somebody made it watch.
        stranger.installEventFilter(&bubble);
        QMoveEvent move(QPoint(1, 1), QPoint());
        QCoreApplication::sendEvent(&stranger, &move);
        QCOMPARE(bubble.aims, 0);
    }

    void parentIsReparented()
    {
        QWidget first;
        first.setGeometry(50, 50, 300, 200);
        QWidget second;
        second.setGeometry(400, 300, 300, 200);
        first.show();
        second.show();
        auto* panel = new QWidget(&first);
        panel->setGeometry(10, 10, 100, 50);
        panel->show();
        Bubble bubble(panel);
        bubble.setInfo(fullInfo());
        bubble.pointTo(panel->mapToGlobal(QPoint(20, 20)));
        bubble.show();
        settle();
        panel->setParent(&second);
        panel->show();
        settle();
        QCOMPARE(bubble.targetPoint(), panel->mapToGlobal(QPoint(20, 20)));
        QVERIFY(bubble.isVisible());
        panel->move(40, 30);
        QCOMPARE(bubble.targetPoint(), panel->mapToGlobal(QPoint(20, 20)));
        QVERIFY(bubble.mask().contains(bubble.mapFromGlobal(bubble.targetPoint())));
    }

    void bubbleIsReparented()
    {
        QWidget first;
        QWidget second;
        first.show();
        second.show();
        Bubble bubble(&first);
        bubble.setParent(&second, bubble.windowFlags());
        bubble.show();
        settle();
        bubble.forget();
        QMoveEvent move(QPoint(1, 1), QPoint());
        QCoreApplication::sendEvent(&first, &move);
        QCOMPARE(bubble.aims, 0);
        QCoreApplication::sendEvent(&second, &move);
        QCOMPARE(bubble.aims, 1);
        // Changing the flags is a change of parents to the same one.
        bubble.setWindowFlags(Qt::Widget);
        bubble.forget();
        QCoreApplication::sendEvent(&second, &move);
        QCOMPARE(bubble.aims, 1);
        bubble.setParent(nullptr, Qt::Tool);
        bubble.forget();
        QCoreApplication::sendEvent(&second, &move);
        QCOMPARE(bubble.aims, 0);
    }

    void ownResizeAims()
    {
        Stage stage;
        stage.bubble->resize(stage.bubble->size() + QSize(40, 30));
        QCOMPARE(stage.bubble->aims - stage.bubble->aimsByPaints, 1);
        QVERIFY(stage.bubble->mask().contains(stage.bubble->mapFromGlobal(stage.bubble->targetPoint())));
    }

    // A paint that moved or repainted the bubble would bring the next paint, for ever.
    void paintingAimsAndEnds()
    {
        Stage stage;
        DialogGuideInfo still = fullInfo();
        still.moviePath.clear();
        stage.bubble->setInfo(still);
        settle();
        stage.bubble->forget();
        stage.bubble->update();
        settle();
        QCOMPARE(stage.bubble->paints, 1);
        QCOMPARE(stage.bubble->aimsByPaints, 1);
        QCOMPARE(stage.bubble->moves, 0);

        // Aimed anew at every paint, with a spot that has moved meanwhile.
        stage.bubble->spot = [&] { return stage.window.mapToGlobal(QPoint(350, 250)); };
        stage.bubble->update();
        settle();
        QVERIFY(stage.bubble->paints >= 2);
        const int paints = stage.bubble->paints;
        settle();
        QCOMPARE(stage.bubble->paints, paints);
        QVERIFY(paints <= 4);
        QCOMPARE(stage.bubble->targetPoint(), stage.window.mapToGlobal(QPoint(350, 250)));
    }

    void thousandResizes()
    {
        Stage stage;
        DialogGuideInfo still = fullInfo();
        still.moviePath.clear();
        stage.bubble->setInfo(still);
        stage.bubble->setArrowSide(PointingWidget::ArrowSide::Top, PointingWidget::ArrowPosition::Start);
        stage.bubble->spot = [&] { return stage.window.mapToGlobal(QPoint(stage.window.width() / 4, 60)); };
        settle();
        stage.bubble->forget();
        for (int i = 0; i < 1000; ++i) {
            stage.window.resize(300 + 4 * (i % 100), 300);
        }
        QCOMPARE(stage.bubble->aims, 1000);
        QVERIFY(stage.bubble->moves <= 1000);
        QVERIFY(stage.bubble->moves >= 900);
        QCOMPARE(stage.bubble->paints, 0);
        settle();
        QVERIFY(stage.bubble->paints <= 1);
        QCOMPARE(stage.bubble->targetPoint(), stage.bubble->spot());
    }

    // At the edge of the screen the bubble stays and its arrow moves: it has to be painted, once a frame.
    void thousandResizesWithAnArrowThatLeans()
    {
        Stage stage;
        DialogGuideInfo still = fullInfo();
        still.moviePath.clear();
        stage.bubble->setInfo(still);
        stage.window.move(0, 100);
        stage.bubble->spot = [&] {
            return stage.window.mapToGlobal(QPoint(20 + stage.window.width() % 40, 60));
        };
        settle();
        stage.bubble->forget();
        for (int frame = 0; frame < 10; ++frame) {
            for (int i = 0; i < 100; ++i) {
                stage.window.resize(300 + i, 300);
            }
            settle();
            QCOMPARE(stage.bubble->paints, frame + 1);
        }
        QCOMPARE(stage.bubble->aims - stage.bubble->aimsByPaints, 1000);
        QCOMPARE(stage.bubble->moves, 0);
    }

    // Counted against the timers of a bubble that is shown, so that the counting is seen to work.
    void hiddenBubbleCostsNothing()
    {
        Stage stage;
        TimerCounter timers;
        QVERIFY(timers.countDuring(50) > 5);
        stage.bubble->hide();
        stage.bubble->forget();
        Bubble neverShown(&stage.window);
        neverShown.setInfo(fullInfo());
        settle();
        QCOMPARE(timers.countDuring(50), 0);
        QCOMPARE(startedTimers(stage.bubble), 0);
        QCOMPARE(startedTimers(&neverShown), 0);
        QCOMPARE(stage.bubble->paints, 0);
        stage.bubble->show();
        stage.window.hide();
        stage.bubble->setInfo(fullInfo());
        settle();
        QCOMPARE(timers.countDuring(50), 0);
        QVERIFY(movie(*stage.bubble)->state() != QMovie::Running);
    }

    void accessibleNames()
    {
        Stage stage;
        const auto closeName = [&stage] {
            return spokenName(partOf<QToolButton>(*stage.bubble, "closeButton"));
        };
        QCOMPARE(spokenName(stage.bubble), QStringLiteral("The timeline"));
        QCOMPARE(closeName(), QStringLiteral("Close"));
        {
            const MarkingTranslator translator("DialogGuideWidget");
            QCOMPARE(closeName(), QStringLiteral("<Close>"));
        }
        QCOMPARE(closeName(), QStringLiteral("Close"));
    }

    void sheetReachesAllParts()
    {
        qApp->setStyleSheet(QStringLiteral(
            "DialogGuideWidget { min-width: 300px; max-width: 300px; }"
            "DialogGuideWidget #buttonsFrame { qproperty-layoutSpacing: 17; }"
            "QPushButton[styleHint=\"guideButton\"] { min-width: 77px; max-width: 77px; }"
            "QPushButton[styleHint=\"guideMainButton\"] { min-width: 88px; max-width: 88px; }"));
        {
            Stage stage;
            QCOMPARE(stage.bubble->width(), 300);
            const auto* const main = partOf<QPushButton>(*stage.bubble, "mainButton");
            const auto* const secondary = partOf<QPushButton>(*stage.bubble, "secondaryButton");
            QVERIFY(main->minimumWidth() >= 88 && main->minimumWidth() < 99);
            QVERIFY(secondary->minimumWidth() >= 77 && secondary->minimumWidth() < 88);
            QCOMPARE(main->geometry().left() - secondary->geometry().right() - 1, 17);
        }
        qApp->setStyleSheet(QString());
    }
};

UIC_TEST_MAIN(tst_DialogGuideWidget)
#include "tst_DialogGuideWidget.moc"
