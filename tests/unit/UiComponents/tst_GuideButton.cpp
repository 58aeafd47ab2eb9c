#include "FreedMemory.h"
#include "GuideStage.h"
#include "OnEvent.h"
#include "TestMain.h"
#include "TimerCounter.h"

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvPixmapWidget.h>

#include <functional>
#include <limits>
#include <memory>

namespace {

std::unique_ptr<GuideInfo> info(const QString& title)
{
    return std::make_unique<GuideInfo>(
        title, QStringLiteral("What it is for."),
        QStringLiteral("<a href=\"%1:x\">Learn more</a>").arg(UrlHandler::scheme()), animation());
}

/// In a window of its own, big enough to be clicked.
std::unique_ptr<GuideButton> makeButton(QWidget* parent = nullptr)
{
    auto button = std::make_unique<GuideButton>(parent);
    button->setGuideInfo(info(QStringLiteral("Trim")));
    button->setGeometry(300, 200, 41, 24);
    return button;
}

/// As makeButton(), with its pop-up open.
std::unique_ptr<GuideButton> openGuide()
{
    auto button = makeButton();
    button->show();
    button->click();
    return button;
}

QList<PointingWidget*> popups(const GuideButton& button)
{
    return button.findChildren<PointingWidget*>();
}

PointingWidget* popup(const GuideButton& button)
{
    return popups(button).value(0);
}

GuideWidget* guide(const GuideButton& button)
{
    return button.findChild<GuideWidget*>();
}

QString shownTitle(const GuideButton& button)
{
    QTextDocument text;
    text.setHtml(guide(button)->findChild<QLabel*>(QStringLiteral("headerLabel"))->text());
    return text.toPlainText();
}

QPoint middleOfLowerEdge(const GuideButton& button)
{
    return button.mapToGlobal(QPoint(button.width() / 2, button.height()));
}

} // namespace

Q_DECLARE_METATYPE(GuideInfo)
Q_DECLARE_METATYPE(std::function<void(QWidget*)>)

class tst_GuideButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickWithoutInfoDoesNothing()
    {
        GuideButton button;
        QVERIFY(!button.hasGuideInfo());
        button.show();
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(popups(button).size(), 0);
    }

    void clearedInfoClosesNothingAndOpensNothing()
    {
        const auto button = openGuide();
        const QPointer<PointingWidget> open = popup(*button);
        button->setGuideInfo(nullptr);
        QVERIFY(!button->hasGuideInfo());
        QVERIFY(open && open->isVisible());
        button->click();
        QCOMPARE(popups(*button), QList<PointingWidget*>({open.data()}));
        QVERIFY(open->isVisible());
        open->close();
        button->click();
        QVERIFY(!open->isVisible());
    }

    void clickOpensThePopup()
    {
        const auto button = makeButton();
        QVERIFY(button->hasGuideInfo());
        QVERIFY(!popup(*button));
        button->show();
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QVERIFY(popup(*button));
        QVERIFY(popup(*button)->isVisible());
        QCOMPARE(QApplication::activePopupWidget(), popup(*button));
        QCOMPARE(shownTitle(*button), QStringLiteral("Trim"));
        QCOMPARE(movie(*button)->state(), QMovie::Running);
    }

    void popupHasItsNamesAndFlags()
    {
        const auto button = openGuide();
        QCOMPARE(popup(*button)->parentWidget(), button.get());
        QCOMPARE(popup(*button)->objectName(), QStringLiteral("pointingWidget"));
        QCOMPARE(guide(*button)->objectName(), QStringLiteral("guideWidget"));
        QCOMPARE(int(popup(*button)->windowFlags()), 0x40000809);
        QVERIFY(popup(*button)->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(popup(*button)->arrowSide(), PointingWidget::ArrowSide::Top);
        QCOMPARE(popup(*button)->arrowPosition(), PointingWidget::ArrowPosition::Center);
    }

    void guideFillsThePopup()
    {
        const auto button = openGuide();
        const OvFrame* const frame = popup(*button)->contentFrame();
        QVERIFY(qobject_cast<OvVBoxLayout*>(frame->layout()));
        QCOMPARE(frame->layout()->contentsMargins(), QMargins());
        QCOMPARE(frame->layout()->spacing(), 0);
        QCOMPARE(frame->layout()->count(), 1);
        QCOMPARE(frame->layout()->itemAt(0)->widget(), guide(*button));
        QCOMPARE(guide(*button)->geometry(), frame->rect());
        const auto labels = guide(*button)->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            QVERIFY2(label->height() >= label->heightForWidth(label->width()),
                     qPrintable(label->objectName()));
        }
    }

    void arrowIsBelowTheMiddle()
    {
        const auto button = openGuide();
        // The width is odd: the division rounds down.
        QCOMPARE(popup(*button)->targetPoint(), button->mapToGlobal(QPoint(20, 24)));
        QCOMPARE(popup(*button)->geometry().top(), middleOfLowerEdge(*button).y());
        QVERIFY(qAbs(popup(*button)->geometry().center().x() - middleOfLowerEdge(*button).x()) <= 1);
    }

    void disabledButtonOpensNothing()
    {
        const auto button = makeButton();
        button->setEnabled(false);
        button->show();
        QTest::mouseClick(button.get(), Qt::LeftButton);
        button->click();
        QCOMPARE(popups(*button).size(), 0);
    }

    void eachClickBuildsAnew()
    {
        const auto button = openGuide();
        const QPointer<PointingWidget> first = popup(*button);
        const QPointer<GuideWidget> firstGuide = guide(*button);
        button->click();
        QVERIFY(!first);
        QVERIFY(!firstGuide);
        QCOMPARE(popups(*button).size(), 1);
        QVERIFY(popup(*button)->isVisible());
        // After it was closed, too.
        const QPointer<PointingWidget> second = popup(*button);
        second->close();
        QVERIFY(second);
        button->click();
        QVERIFY(!second);
        QCOMPARE(popups(*button).size(), 1);
        QCOMPARE(button->findChildren<GuideWidget*>().size(), 1);
    }

    void whileThePopupAppears_data()
    {
        QTest::addColumn<bool>("isClicked");
        QTest::addColumn<bool>("isDeleted");
        QTest::newRow("clicked again") << true << false;
        QTest::newRow("deleted") << false << true;
        QTest::newRow("clicked again, and deleted then") << true << true;
    }

    void whileThePopupAppears()
    {
        QFETCH(bool, isClicked);
        QFETCH(bool, isDeleted);
        QWidget window;
        QLineEdit edit(&window);
        auto button = makeButton(&window);
        window.resize(400, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit.setFocus();
        // Opening a pop-up takes the focus.
        int losses = 0;
        const OnEvent watch(QEvent::FocusOut, &edit, [&] {
            if (++losses == 1) {
                QEventLoop loop;
                QTimer::singleShot(0, &loop, [&] {
                    if (isClicked) {
                        button->setGuideInfo(info(QStringLiteral("Second")));
                        button->click();
                    } else {
                        button.reset();
                    }
                    loop.quit();
                });
                loop.exec();
            } else if (isDeleted) {
                button.reset();
            }
        });
        const FreedMemoryWatch memory;
        button->click();
        QVERIFY(losses > 0);
        QVERIFY(isDeleted == !button);
        if (button) {
            QCOMPARE(popups(*button).size(), 1);
            QVERIFY(popup(*button)->isVisible());
            QCOMPARE(shownTitle(*button), QStringLiteral("Second"));
        }
        QCOMPARE(QApplication::activePopupWidget() != nullptr, !isDeleted);
        QVERIFY(memory.deleted() > 0);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }

    void newInfoIsShownAtTheNextClick()
    {
        const auto button = openGuide();
        button->setGuideInfo(info(QStringLiteral("Slip")));
        QCOMPARE(shownTitle(*button), QStringLiteral("Trim"));
        button->click();
        QCOMPARE(shownTitle(*button), QStringLiteral("Slip"));
    }

    void popupDeletedByOthers()
    {
        const auto button = openGuide();
        delete popup(*button);
        button->hide();
        button->show();
        button->click();
        QCOMPARE(popups(*button).size(), 1);
        QVERIFY(popup(*button)->isVisible());
    }

    void offsetTakesEffectAtTheNextClick()
    {
        const auto button = openGuide();
        const int middle = popup(*button)->x();
        QVERIFY(button->setProperty("popupOffset", 15));
        QCOMPARE(button->property("popupOffset").toInt(), 15);
        QCOMPARE(popup(*button)->arrowOffset(), 0);
        QCOMPARE(popup(*button)->x(), middle);
        button->click();
        QCOMPARE(popup(*button)->arrowOffset(), 15);
        QCOMPARE(popup(*button)->targetPoint(), middleOfLowerEdge(*button));
        // The arrow goes to the right within the bubble, so the bubble goes to the left.
        QCOMPARE(popup(*button)->x(), middle - 15);
    }

    void extremeOffsets_data()
    {
        QTest::addColumn<int>("offset");
        QTest::newRow("min") << std::numeric_limits<int>::min();
        QTest::newRow("far left") << -10000;
        QTest::newRow("far right") << 10000;
        QTest::newRow("max") << std::numeric_limits<int>::max();
    }

    void extremeOffsets()
    {
        QFETCH(int, offset);
        const auto button = makeButton();
        button->show();
        button->setProperty("popupOffset", offset);
        button->click();
        QCOMPARE(popup(*button)->arrowOffset(), offset);
        QVERIFY(button->screen()->availableGeometry().contains(popup(*button)->geometry()));
    }

    // The guide has its name before its texts are measured, so that a width by name counts.
    void sheetReachesThePopupByItsNames()
    {
        qApp->setStyleSheet(
            QStringLiteral("#pointingWidget { qproperty-radius: 11; }"
                           "GuideButton > PointingWidget #guideWidget { min-width: 330px; max-width: 330px; }"
                           "#guideWidget > #descriptionLabel { padding: 0 7px; }"));
        {
            const auto button = makeButton();
            auto text = info(QStringLiteral("Trim"));
            text->description = QStringLiteral("frame ").repeated(60);
            button->setGuideInfo(std::move(text));
            button->show();
            button->click();
            QCOMPARE(popup(*button)->radius(), 11);
            QCOMPARE(guide(*button)->width(), 330);
            const auto* description = guide(*button)->findChild<QLabel*>(QStringLiteral("descriptionLabel"));
            QCOMPARE(description->minimumHeight(), description->heightForWidth(330));
            QCOMPARE(description->height(), description->minimumHeight());
        }
        qApp->setStyleSheet(QString());
    }

    void closes_data()
    {
        using Act = std::function<void(QWidget*)>; // with the pop-up
        QTest::addColumn<Act>("act");
        QTest::addColumn<bool>("closes");
        const auto clickAt = [](QPoint (*point)(QWidget*)) -> Act {
            return [point](QWidget* popup) {
                QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, point(popup));
            };
        };
        QTest::newRow("click on the guide")
            << clickAt([](QWidget* popup) { return popup->rect().center(); }) << false;
        QTest::newRow("click beside the arrow") << clickAt([](QWidget*) { return QPoint(2, 1); }) << true;
        QTest::newRow("click elsewhere") << clickAt([](QWidget* popup) {
            const QWidget* const window = popup->parentWidget()->window();
            return popup->mapFromGlobal(window->mapToGlobal(QPoint(5, 5)));
        }) << true;
        const auto row = [](const char* name, const Act& act) { QTest::newRow(name) << act << true; };
        row("Escape", [](QWidget* popup) { QTest::keyClick(popup->windowHandle(), Qt::Key_Escape); });
        row("button hidden", [](QWidget* popup) { popup->parentWidget()->hide(); });
        row("window hidden", [](QWidget* popup) { popup->parentWidget()->window()->hide(); });
        // The window system hides what a minimised window holds; bubbles leave that to it.
        row("minimised", [](QWidget* popup) {
            QHideEvent hidden;
            QSpontaneKeyEvent::setSpontaneous(&hidden);
            QApplication::instance()->notify(popup->parentWidget(), &hidden);
        });
        // The pop-up would hear no Escape and no click, and nobody else would either.
        row("disabled", [](QWidget* popup) { popup->parentWidget()->setEnabled(false); });
    }

    void closes()
    {
        QFETCH(std::function<void(QWidget*)>, act);
        QFETCH(bool, closes);
        QWidget window;
        window.setGeometry(100, 100, 700, 500);
        const auto button = makeButton(&window);
        window.show();
        button->click();
        const QPointer<PointingWidget> open = popup(*button);
        act(open);
        QVERIFY(open);
        QCOMPARE(open->isVisible(), !closes);
        QCOMPARE(QApplication::activePopupWidget() != nullptr, !closes);
        QVERIFY(!closes || movie(*button)->state() == QMovie::NotRunning);
        // For good.
        button->setEnabled(true);
        window.hide();
        button->show();
        window.show();
        QVERIFY(!open->isVisible());
    }

    void escapeGivesTheFocusBack()
    {
        QWidget window;
        QLineEdit other(&window);
        const auto button = makeButton(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button->setFocus();
        QTest::keyClick(button.get(), Qt::Key_Space);
        QTest::keyClick(popup(*button)->windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("learnMoreLabel"));
        QTest::keyClick(popup(*button)->windowHandle(), Qt::Key_Escape);
        QVERIFY(!popup(*button)->isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), button.get());
    }

    void buttonMovedWhileOpen()
    {
        QWidget window;
        window.setGeometry(100, 50, 600, 400);
        const auto button = makeButton(&window);
        window.show();
        button->click();
        button->move(button->pos() - QPoint(60, 40));
        QCOMPARE(popup(*button)->targetPoint(), middleOfLowerEdge(*button));
        QCOMPARE(popup(*button)->y(), middleOfLowerEdge(*button).y());
        window.move(130, 70);
        QCOMPARE(popup(*button)->targetPoint(), middleOfLowerEdge(*button));
        QVERIFY(popup(*button)->isVisible());
    }

    void buttonResizedWhileOpen()
    {
        const auto button = openGuide();
        const QPoint spot = popup(*button)->targetPoint();
        button->resize(200, 60);
        QVERIFY(popup(*button)->isVisible());
        QCOMPARE(popup(*button)->targetPoint(), spot);
    }

    // Counted against the timers of an open pop-up, so that the counting is seen to work.
    void closedPopupCostsNothing()
    {
        const auto button = openGuide();
        TimerCounter timers;
        QVERIFY(timers.countDuring(50) > 5);
        popup(*button)->close();
        QCoreApplication::processEvents();
        QCOMPARE(timers.countDuring(50), 0);
        QCOMPARE(startedTimers(button.get()), 0);
        QVERIFY(movie(*button)->state() != QMovie::Running);
        button->click();
        button->hide();
        QCoreApplication::processEvents();
        QCOMPARE(timers.countDuring(50), 0);
        QCOMPARE(startedTimers(button.get()), 0);
        QVERIFY(movie(*button)->state() != QMovie::Running);
    }

    void neverLargerThanTheScreen_data()
    {
        QTest::addColumn<GuideInfo>("info");
        const QString word(10000, QLatin1Char('w'));
        const QString words = QStringLiteral("word ").repeated(20000);
        const QString picture = QStringLiteral("<img src=\"x.png\" width=99999 height=99999>");
        QTest::newRow("a long word") << GuideInfo({}, word, {}, {});
        QTest::newRow("a long title") << GuideInfo(word, {}, {}, {});
        QTest::newRow("a long link") << GuideInfo({}, {}, QStringLiteral("<a href=\"x\">%1</a>").arg(word),
                                                  {});
        QTest::newRow("many words") << GuideInfo(words, words, words, {});
        QTest::newRow("a picture") << GuideInfo({}, picture, picture, {});
        QTest::newRow("an animation") << GuideInfo({}, {}, {}, QStringLiteral(UIC_TEST_DATA "/huge.gif"));
    }

    void neverLargerThanTheScreen()
    {
        QFETCH(GuideInfo, info);
        const auto button = makeButton();
        button->setGuideInfo(std::make_unique<GuideInfo>(info));
        button->show();
        button->click();
        for (int turns = 0; turns < 3; ++turns) {
            QVERIFY(button->screen()->availableGeometry().contains(popup(*button)->geometry()));
            QVERIFY(!popup(*button)->grab().isNull());
            QCoreApplication::processEvents();
        }
    }

    void rightToLeft()
    {
        const auto button = makeButton();
        button->setLayoutDirection(Qt::RightToLeft);
        button->setProperty("popupOffset", 20);
        button->show();
        button->click();
        QCOMPARE(popup(*button)->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(guide(*button)->layoutDirection(), Qt::RightToLeft);
        QCOMPARE(popup(*button)->targetPoint(), middleOfLowerEdge(*button));
        // Mirrored: the arrow goes to the left.
        QVERIFY(popup(*button)->geometry().center().x() > middleOfLowerEdge(*button).x());
    }

    void shorterTextMakesAnOpenPopupLower()
    {
        const auto button = makeButton();
        auto longText = info(QStringLiteral("Trim"));
        longText->description = QStringLiteral("frame ").repeated(100);
        button->setGuideInfo(std::move(longText));
        button->show();
        button->click();
        const int before = popup(*button)->height();
        guide(*button)->setInfo(*info(QStringLiteral("Trim")));
        QTRY_VERIFY(popup(*button)->height() < before - 100);
        QTRY_COMPARE(guide(*button)->geometry(), popup(*button)->contentFrame()->rect());
        QCOMPARE(popup(*button)->targetPoint(), middleOfLowerEdge(*button));
        QCOMPARE(popup(*button)->y(), middleOfLowerEdge(*button).y());
    }

    void linkIsPassedOn()
    {
        UrlHandler handler;
        const auto button = makeButton();
        button->show();
        QSignalSpy clicked(button.get(), &GuideButton::learnMoreClicked);
        button->click();
        clickLink(*button);
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(handler.opened, QList<QUrl>({QUrl(UrlHandler::scheme() + QStringLiteral(":x"))}));
        QVERIFY(popup(*button)->isVisible());
        // The next pop-up is heard once, too.
        button->click();
        clickLink(*button);
        QCOMPARE(clicked.size(), 2);
    }

    // The pop-up is deleted in the middle of its own mouse event.
    void reopenedByItsLink()
    {
        UrlHandler handler;
        const auto button = openGuide();
        connect(button.get(), &GuideButton::learnMoreClicked, button.get(), &QAbstractButton::click);
        const QPointer<PointingWidget> first = popup(*button);
        {
            const FreedMemoryWatch memory;
            clickLink(*button);
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QVERIFY(!first);
        QCOMPARE(popups(*button).size(), 1);
        QVERIFY(popup(*button)->isVisible());
    }

    // Deleting the old pop-up gives the focus back to the window.
    void infoTakenAwayWhenTheFocusMoves()
    {
        QWidget window;
        QLineEdit edit(&window);
        const auto button = makeButton(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit.setFocus();
        button->click();
        QTest::keyClick(popup(*button)->windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("learnMoreLabel"));
        const auto taking = connect(qApp, &QApplication::focusChanged, button.get(),
                                    [&button] { button->setGuideInfo(nullptr); });
        button->click();
        disconnect(taking);
        QVERIFY(!button->hasGuideInfo());
        QCOMPARE(popups(*button).size(), 1);
        QCOMPARE(shownTitle(*button), QStringLiteral("Trim"));
    }
};

UIC_TEST_MAIN(tst_GuideButton)
#include "tst_GuideButton.moc"
