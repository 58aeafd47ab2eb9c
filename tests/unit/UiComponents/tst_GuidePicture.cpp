#include "AccessibleEars.h"
#include "GuideStage.h"
#include "TestMain.h"

#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>

namespace {

GuideInfo info()
{
    return {QStringLiteral("Trim"), QStringLiteral("Drag the <i>edge</i> &amp; go"),
            QStringLiteral("<a href='https://example.org'>More</a>"), animation()};
}

/// A guide, or a bubble of @p window.
std::unique_ptr<QWidget> makeGuide(bool isBubble, const QString& picture, QWidget* window)
{
    if (!isBubble) {
        GuideInfo text = info();
        text.moviePath = picture;
        return std::make_unique<GuideWidget>(text, nullptr);
    }
    auto bubble = std::make_unique<DialogGuideWidget>(window);
    bubble->setInfo({QStringLiteral("Trim"), QStringLiteral("Drag"), QStringLiteral("Next"),
                     QStringLiteral("Back"), picture});
    return bubble;
}

/// As those that never animate, and those that know no other.
class StillStyle : public QProxyStyle // clazy:exclude=missing-qobject-macro
{
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        const bool isOfAnimations = hint == SH_Widget_Animate || hint == SH_Widget_Animation_Duration;
        return isOfAnimations ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

} // namespace

class tst_GuidePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pausedAndResumed()
    {
        GuideWidget guide(info(), nullptr);
        guide.show();
        QApplication::setActiveWindow(&guide);
        OvPixmapWidget* const picture = pixmapOf(guide);
        QMovie* const movie = picture->movie();
        QCOMPARE(movie->state(), QMovie::Running);
        QTest::mouseClick(picture, Qt::LeftButton);
        QCOMPARE(movie->state(), QMovie::Paused);
        QTest::mouseClick(picture, Qt::LeftButton);
        QCOMPARE(movie->state(), QMovie::Running);
        QTest::mouseClick(picture, Qt::RightButton);
        QCOMPARE(movie->state(), QMovie::Running);
        // Tab gets there, and Space does the same.
        QCOMPARE(picture->focusPolicy(), Qt::TabFocus);
        picture->setFocus(Qt::TabFocusReason);
        QTest::keyClick(picture, Qt::Key_Space);
        QCOMPARE(movie->state(), QMovie::Paused);
        QTest::keyClick(picture, Qt::Key_A);
        QCOMPARE(movie->state(), QMovie::Paused);
        // From the start, at once, when the host has stopped it.
        QVERIFY(movie->jumpToFrame(1));
        movie->stop();
        QTest::mouseClick(picture, Qt::LeftButton);
        QCOMPARE(movie->state(), QMovie::Running);
        QCOMPARE(movie->currentFrameNumber(), 0);
        // Each show plays from the start.
        guide.hide();
        guide.show();
        QCOMPARE(movie->state(), QMovie::Running);
        guide.setInfo({QStringLiteral("Trim"), QString(), QString(), QString()});
        QCOMPARE(picture->focusPolicy(), Qt::NoFocus);
    }

    void isSpoken()
    {
        GuideWidget guide(info(), nullptr);
        guide.show();
        OvPixmapWidget* const picture = pixmapOf(guide);
        QAccessibleInterface& interface = reader(picture);
        QCOMPARE(interface.role(), QAccessible::Animation);
        QCOMPARE(interface.text(QAccessible::Name), QStringLiteral("Animated picture"));
        QCOMPARE(interface.text(QAccessible::Description), QStringLiteral("Playing; Space pauses it"));
        QVERIFY(interface.state().animated);
        const AccessibleEars ears;
        QAccessibleActionInterface* const actions = interface.actionInterface();
        QCOMPARE(actions->actionNames(), QStringList({QAccessibleActionInterface::pressAction(),
                                                      QAccessibleActionInterface::setFocusAction()}));
        actions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(picture->movie()->state(), QMovie::Paused);
        QCOMPARE(AccessibleEars::take(),
                 QStringList{QStringLiteral("Animated picture: Paused; Space plays it")});
        QApplication::setActiveWindow(&guide);
        actions->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(picture->hasFocus());
    }

    void firstPictureOnly_data()
    {
        QTest::addColumn<bool>("ofGuide");
        QTest::addColumn<bool>("isBubble");
        QTest::newRow("of the guide") << true << false;
        QTest::newRow("of the application") << false << false;
        QTest::newRow("of the bubble") << true << true;
        QTest::newRow("of the application, in a bubble") << false << true;
    }

    void firstPictureOnly()
    {
        QFETCH(bool, ofGuide);
        QFETCH(bool, isBubble);
        QWidget window;
        window.show();
        const std::unique_ptr<QWidget> guide = makeGuide(isBubble, animation(), &window);
        QObject* const wisher = ofGuide ? static_cast<QObject*>(guide.get()) : qApp;
        wisher->setProperty("firstPictureOnly", true);
        guide->show();
        QMovie* const movie = pixmapOf(*guide)->movie();
        QCOMPARE(movie->state(), QMovie::Paused);
        QCOMPARE(movie->currentFrameNumber(), 0);
        // The user may see the rest.
        QTest::mouseClick(pixmapOf(*guide), Qt::LeftButton);
        QCOMPARE(movie->state(), QMovie::Running);
        guide->hide();
        wisher->setProperty("firstPictureOnly", QVariant());
        if (!isBubble) {
            guide->show();
            QCOMPARE(movie->state(), QMovie::Running);
        }
    }

    void filesWithoutAPicture_data()
    {
        QTest::addColumn<QString>("path"); // empty: a file of the content
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing file") << QStringLiteral("/no/such/guide.gif") << QByteArray();
        QTest::newRow("missing resource") << QStringLiteral(":/no/such/guide.gif") << QByteArray();
        QTest::newRow("URL") << QUrl::fromLocalFile(animation()).toString() << QByteArray();
        QTest::newRow("empty file") << QString() << QByteArray();
        QTest::newRow("no image") << QString() << QByteArray("no image at all");
        QTest::newRow("header alone") << QString() << QByteArray("GIF89a\x08\x00\x08\x00", 10);
    }

    void filesWithoutAPicture()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, content);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(content);
        file.close();
        QWidget window;
        window.show();
        for (const bool isBubble : {false, true}) {
            const QString picturePath = path.isEmpty() ? file.fileName() : path;
            const std::unique_ptr<QWidget> guide = makeGuide(isBubble, picturePath, &window);
            guide->show();
            OvPixmapWidget* const picture = pixmapOf(*guide);
            QVERIFY(!picture->movie());
            // And nothing of it is said.
            const AccessibleEars ears;
            QTest::keyClick(picture, Qt::Key_Space);
            QCOMPARE(AccessibleEars::take(), QStringList());
            QCOMPARE(picture->moviePath(), picturePath);
            // A file that exists has its place, which is empty.
            QCOMPARE(picture->isVisible(), path.isEmpty());
        }
    }

    // It plays from the start at each show: that nothing else moves in a style is nobody's wish.
    void styleWithoutAnimations()
    {
        StillStyle style(QStringLiteral("fusion"));
        GuideWidget guide(info(), nullptr);
        pixmapOf(guide)->setStyle(&style);
        guide.show();
        QCOMPARE(pixmapOf(guide)->movie()->state(), QMovie::Running);
    }

    void focusIsAnOutline_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("Tab") << Qt::TabFocusReason << true;
        QTest::newRow("Tab, backwards") << Qt::BacktabFocusReason << true;
        QTest::newRow("by code") << Qt::OtherFocusReason << false;
    }

    // Fusion fills the focus rectangle.
    void focusIsAnOutline()
    {
        QFETCH(Qt::FocusReason, reason);
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
        GuideWidget guide(info(), nullptr);
        OvPixmapWidget* const picture = pixmapOf(guide);
        picture->setStyle(fusion.get());
        guide.setProperty("firstPictureOnly", true);
        guide.show();
        QApplication::setActiveWindow(&guide);
        const QImage before = picture->grab().toImage();
        picture->setFocus(reason);
        QVERIFY(picture->hasFocus());
        const QImage after = picture->grab().toImage();
        const QRect inside = picture->rect().adjusted(2, 2, -2, -2);
        QVERIFY(!inside.isEmpty());
        QCOMPARE(after.copy(inside), before.copy(inside));
        QTEST(after != before, "isShown");
    }

    void popupIsADialog()
    {
        QWidget window;
        auto* const button = new GuideButton(&window);
        button->setAccessibleName(QStringLiteral("Help"));
        button->setGuideInfo(std::make_unique<GuideInfo>(info()));
        window.show();
        QApplication::setActiveWindow(&window);
        button->setFocus();
        QCOMPARE(reader(button).childCount(), 0);
        QTest::keyClick(button, Qt::Key_Space);
        QWidget* const popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        // Qt leaves pop-ups out of the application's windows.
        QAccessibleInterface& dialog = reader(popup);
        QCOMPARE(reader(button).childCount(), 1);
        QCOMPARE(reader(button).child(0), &dialog);
        QCOMPARE(reader(button).indexOfChild(&dialog), 0);
        QCOMPARE(dialog.parent(), &reader(button));
        QCOMPARE(dialog.role(), QAccessible::Dialog);
        QCOMPARE(dialog.text(QAccessible::Name), QStringLiteral("Trim"));
        QCOMPARE(dialog.text(QAccessible::Description), QStringLiteral("Drag the edge & go. More"));
        popup->setAccessibleName(QStringLiteral("Step 2"));
        popup->setAccessibleDescription(QStringLiteral("Of 5"));
        QCOMPARE(dialog.text(QAccessible::Name), QStringLiteral("Step 2"));
        QCOMPARE(dialog.text(QAccessible::Description), QStringLiteral("Of 5"));
        QCOMPARE(QApplication::focusWidget(), popup);
        QTest::keyClick(popup, Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
        QCOMPARE(reader(button).childCount(), 0);
        QCOMPARE(QApplication::focusWidget(), button);
    }

    void bubbleByKeyboard()
    {
        QWidget window;
        window.show();
        QApplication::setActiveWindow(&window);
        DialogGuideWidget bubble(&window);
        bubble.setInfo({QStringLiteral("Trim"), QStringLiteral("Drag the edge"), QStringLiteral("Next"),
                        QStringLiteral("Back"), QString()});
        bubble.enter();
        QVERIFY(!bubble.isVisible());
        {
            const AccessibleEars ears;
            bubble.show();
            QCOMPARE(AccessibleEars::take(),
                     QStringList({QStringLiteral("Trim: Drag the edge"), QStringLiteral("Trim!")}));
        }
        QCOMPARE(reader(&bubble).role(), QAccessible::Dialog);
        QVERIFY(!bubble.isActiveWindow());
        bubble.enter();
        auto* const main = bubble.findChild<QPushButton*>(QStringLiteral("mainButton"));
        QTRY_COMPARE(QApplication::focusWidget(), main);

        QSignalSpy mainClicks(&bubble, &DialogGuideWidget::mainClicked);
        QSignalSpy secondaryClicks(&bubble, &DialogGuideWidget::secondaryClicked);
        QSignalSpy closes(&bubble, &DialogGuideWidget::closeClicked);
        QTest::keyClick(main, Qt::Key_Return);
        QCOMPARE(mainClicks.size(), 1);
        bubble.findChild<QPushButton*>(QStringLiteral("secondaryButton"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
        QCOMPARE(secondaryClicks.size(), 1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(closes.size(), 1);
        QVERIFY(bubble.isVisible());
        bubble.setCloseButtonVisible(false);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(closes.size(), 1);
        QCOMPARE(mainClicks.size(), 1);
    }
};

UIC_TEST_MAIN(tst_GuidePicture)
#include "tst_GuidePicture.moc"
