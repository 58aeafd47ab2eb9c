#include "RealInput.h"
#include "TestMain.h"

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <WidgetToolkit/OvPixmapWidget.h>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PropertyPanel.h>
#include <gallery/StyleController.h>
#include <gallery/Walk.h>

namespace {

/// Stands for the browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    Q_INVOKABLE void open(const QUrl& url) { opened += url; }

    QList<QUrl> opened;
};

/// One for each scale that the tests are run at.
bool saveScreenshot(const QString& name)
{
    const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
    return RealInput::saveScreenshot(scale > 1 ? QStringLiteral("%1@%2x").arg(name).arg(scale) : name);
}

/// What the screen shows of @p widget.
QImage seen(const QWidget* widget)
{
    QScreen* const screen = widget->screen();
    const QPoint corner = widget->mapToGlobal(QPoint()) - screen->geometry().topLeft();
    return screen->grabWindow(0, corner.x(), corner.y(), widget->width(), widget->height()).toImage();
}

/// Waits until @p widget has been in one place for some turns of the event loop: pages and bubbles find
/// their sizes in several.
bool standsStill(const QWidget* widget)
{
    QPoint place;
    int turns = 0;
    return QTest::qWaitFor([&] {
        const QPoint now = widget->mapToGlobal(QPoint());
        turns = now == place ? turns + 1 : 0;
        place = now;
        return turns > 3;
    });
}

} // namespace

/**
 * What a user does with guides in the gallery's window: opens, reads, follows links, closes, and walks
 * through the gallery.
 */
class tst_Guides : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void cleanup() { m_window.reset(); }

    void guideIsReadAndItsLinkFollowed()
    {
        Browser browser;
        QVERIFY(openPage("guide-button"));
        QSignalSpy followed(m_button, &GuideButton::learnMoreClicked);
        QVERIFY(openGuide());
        QVERIFY(saveScreenshot(QStringLiteral("guide-popup")));
        // The arrow touches the button, and the pop-up lies below.
        QCOMPARE(popup()->targetPoint(),
                 m_button->mapToGlobal(QPoint(m_button->width() / 2, m_button->height())));
        QCOMPARE(popup()->geometry().top(), popup()->targetPoint().y());

        const auto* const link = popup()->findChild<QLabel*>(QStringLiteral("learnMoreLabel"));
        QVERIFY(RealInput::click(link, QPoint(15, link->height() / 2)));
        QTRY_COMPARE(browser.opened.size(), 1);
        QCOMPARE(browser.opened.first().host(), QStringLiteral("doc.qt.io"));
        QCOMPARE(followed.size(), 1);
        QVERIFY(popup()->isVisible());
    }

    void pictureMovesOnTheScreen()
    {
        QVERIFY(openPage("guide-button"));
        QVERIFY(openGuide());
        const auto* const picture = popup()->findChild<OvPixmapWidget*>();
        const QImage first = seen(picture);
        QTRY_VERIFY(seen(picture) != first);
    }

    void escapeCloses()
    {
        QVERIFY(openPage("guide-button"));
        QVERIFY(openGuide());
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!popup()->isVisible());
        QVERIFY(m_window->isActiveWindow());
        // And again, with a new one.
        QVERIFY(openGuide());
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!popup()->isVisible());
    }

    void clickElsewhereCloses()
    {
        QVERIFY(openPage("guide-button"));
        QVERIFY(openGuide());
        // A click on the guide does not.
        const auto* const title = popup()->findChild<QLabel*>(QStringLiteral("headerLabel"));
        QVERIFY(RealInput::click(title));
        // The key is sure to arrive after the click, and reaches only a pop-up that is still open.
        QVERIFY(RealInput::key(QStringLiteral("Tab")));
        QTRY_COMPARE(QApplication::focusWidget(),
                     popup()->findChild<QLabel*>(QStringLiteral("learnMoreLabel")));
        QVERIFY(popup()->isVisible());
        QVERIFY(RealInput::click(m_window.get(), QPoint(m_window->width() - 40, m_window->height() - 40)));
        QTRY_VERIFY(!popup()->isVisible());
    }

    void clickOnTheButtonCloses()
    {
        QVERIFY(openPage("guide-button"));
        QSignalSpy clicked(m_button, &QAbstractButton::clicked);
        QVERIFY(openGuide());
        QCOMPARE(clicked.size(), 1);
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(!popup()->isVisible());
        // The next click is sure to arrive after it, and opens.
        QVERIFY(openGuide());
        QCOMPARE(clicked.size(), 2);
    }

    void byKeyboardAlone()
    {
        Browser browser;
        QVERIFY(openPage("guide-button"));
        m_button->setFocus();
        QVERIFY(RealInput::key(QStringLiteral("space")));
        QTRY_VERIFY(popup() && popup()->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        const auto* const link = popup()->findChild<QLabel*>(QStringLiteral("learnMoreLabel"));
        QVERIFY(isOnTheScreen(popup()));
        const QImage unmarked = seen(link);
        QVERIFY(RealInput::key(QStringLiteral("Tab")));
        QTRY_COMPARE(QApplication::focusWidget(), link);
        QTRY_VERIFY(seen(link) != unmarked);
        QVERIFY(saveScreenshot(QStringLiteral("guide-popup-keyboard")));
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_COMPARE(browser.opened.size(), 1);
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!popup()->isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), m_button);
        QVERIFY(RealInput::key(QStringLiteral("space")));
        QTRY_VERIFY(popup()->isVisible());
    }

    void buttonsOfABubble()
    {
        QVERIFY(openPage("dialog-guide"));
        auto* const bubble = m_window->page()->findChild<DialogGuideWidget*>();
        QVERIFY(bubble && bubble->isEnabled());
        QTRY_VERIFY(isOnTheScreen(bubble));
        QSignalSpy main(bubble, &DialogGuideWidget::mainClicked);
        QSignalSpy secondary(bubble, &DialogGuideWidget::secondaryClicked);
        QSignalSpy close(bubble, &DialogGuideWidget::closeClicked);
        QVERIFY(clickOn(bubble, "mainButton"));
        QTRY_COMPARE(main.size(), 1);
        QVERIFY(clickOn(bubble, "secondaryButton"));
        QTRY_COMPARE(secondary.size(), 1);
        QVERIFY(clickOn(bubble, "closeButton"));
        QTRY_COMPARE(close.size(), 1);
        QVERIFY(bubble->isVisible());
    }

    void walkThroughTheGallery()
    {
        QVERIFY(openPage("dialog-guide"));
        const auto buttons = m_window->page()->findChildren<QPushButton*>();
        const auto starter = std::find_if(buttons.cbegin(), buttons.cend(), [](const QPushButton* button) {
            return button->text() == QLatin1String("Start the tour");
        });
        QVERIFY(starter != buttons.cend());
        QVERIFY(RealInput::click(*starter));

        const QStringList stops = {QStringLiteral("pageSearch"), QStringLiteral("styleSwitch"),
                                   QStringLiteral("propertyPanel"), QStringLiteral("signalLog")};
        const auto isAt = [this](const QString& stop) {
            const DialogGuideWidget* const bubble = walkBubble();
            return bubble && bubble->parentWidget()->objectName() == stop;
        };
        for (int i = 0; i < stops.size(); ++i) {
            QTRY_VERIFY2(isAt(stops.at(i)), qPrintable(stops.at(i)));
            QVERIFY(QTest::qWaitForWindowExposed(walkBubble()));
            QVERIFY(isOnTheScreen(walkBubble()));
            QVERIFY(saveScreenshot(QStringLiteral("walk-%1").arg(i + 1)));
            // The arrow points into what is explained.
            const QWidget* const target = walkBubble()->parentWidget();
            QVERIFY(target->rect().contains(target->mapFromGlobal(walkBubble()->targetPoint())));
            if (i == 1) {
                QVERIFY(clickOn(walkBubble(), "secondaryButton"));
                QTRY_VERIFY(isAt(stops.first()));
                QVERIFY(QTest::qWaitForWindowExposed(walkBubble()));
                QVERIFY(isOnTheScreen(walkBubble()));
                QVERIFY(clickOn(walkBubble(), "mainButton"));
                QTRY_VERIFY(isAt(stops.at(1)));
                QVERIFY(QTest::qWaitForWindowExposed(walkBubble()));
                QVERIFY(isOnTheScreen(walkBubble()));
            }
            QVERIFY(clickOn(walkBubble(), "mainButton"));
        }
        QTRY_VERIFY(!m_window->findChild<Walk*>());
        QTRY_COMPARE(m_window->findChildren<DialogGuideWidget*>().size(), 2);
    }

    void walkIsClosed()
    {
        QVERIFY(openPage("dialog-guide"));
        Walk::start(m_window.get(), {{QStringLiteral("pageSearch"), QStringLiteral("Here"),
                                      QStringLiteral("It is."), QString()},
                                     {QStringLiteral("noSuchWidget"), QString(), QString(), QString()}});
        QTRY_VERIFY(walkBubble());
        QVERIFY(QTest::qWaitForWindowExposed(walkBubble()));
        QVERIFY(isOnTheScreen(walkBubble()));
        // The other stop has no target: this is the first and the last one.
        QVERIFY(!walkBubble()->findChild<QPushButton*>(QStringLiteral("secondaryButton"))->isVisible());
        QVERIFY(clickOn(walkBubble(), "closeButton"));
        QTRY_VERIFY(!m_window->findChild<Walk*>());
    }

    void walkEndsWithItsTarget()
    {
        QVERIFY(openPage("dialog-guide"));
        Walk::start(m_window.get(),
                    {{QStringLiteral("signalLog"), QStringLiteral("Here"), QString(), QString()}});
        QTRY_VERIFY(walkBubble());
        m_window->showPage(QStringLiteral("guide"));
        QTRY_VERIFY(!m_window->findChild<Walk*>());
    }

    // Near each edge of each screen, those of other scales included.
    void guideOnEveryScreen()
    {
        StyleController style;
        QVERIFY(style.setStyle(QStringLiteral("dark")));
        for (const QScreen* screen : QGuiApplication::screens()) {
            const QRect area = screen->availableGeometry();
            const QPointF places[] = {{0, 0}, {1, 0}, {0.5, 0.5}, {0, 1}, {1, 1}};
            for (const QPointF& place : places) {
                GuideButton button;
                m_button = &button;
                button.setText(QStringLiteral("?"));
                button.setWindowFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
                button.setGuideInfo(std::make_unique<GuideInfo>(
                    QStringLiteral("Trim"), QStringLiteral("Drag the end of a clip."), QString(), QString()));
                const QSize size(40, 30);
                button.setGeometry(QRect(area.left() + qRound(place.x() * (area.width() - size.width())),
                                         area.top() + qRound(place.y() * (area.height() - size.height())),
                                         size.width(), size.height()));
                button.show();
                QVERIFY(QTest::qWaitForWindowExposed(&button));
                QVERIFY(openGuide());
                const QPoint tip = button.mapToGlobal(QPoint(button.width() / 2, button.height()));
                QCOMPARE(popup()->targetPoint(), tip);
                // One pixel below the last one of the screen the arrow cannot go.
                QVERIFY(area.contains(popup()->geometry()));
                QVERIFY(popup()->geometry().adjusted(0, 0, 0, 1).contains(tip));
                QVERIFY(RealInput::key(QStringLiteral("Escape")));
                QTRY_VERIFY(!popup()->isVisible());
            }
        }
        m_button = nullptr;
    }

private:
    bool openPage(const char* id)
    {
        CommandLine start;
        start.page = QString::fromLatin1(id);
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(40, 40, 1100, 700);
        m_button = m_window->page()->findChild<GuideButton*>();
        return RealInput::showAndActivate(m_window.get()) && standsStill(m_window->page()->properties());
    }

    bool openGuide()
    {
        return RealInput::click(m_button) &&
               QTest::qWaitFor([this] { return popup() && popup()->isVisible(); }) &&
               QTest::qWaitForWindowExposed(popup()) && isOnTheScreen(popup());
    }

    PointingWidget* popup() const { return m_button->findChild<PointingWidget*>(); }

    /// The bubble's surface, beside its content.
    bool isOnTheScreen(const PointingWidget* bubble) const
    {
        const QRect content = bubble->contentFrame()->geometry();
        const QPoint beside(content.left() + 3, content.center().y());
        return bubble->isVisible() &&
               QTest::qWaitFor([&] { return RealInput::pixel(bubble, beside) == bubble->backgroundColor(); });
    }

    DialogGuideWidget* walkBubble() const
    {
        auto* bubble = m_window->findChild<DialogGuideWidget*>(QStringLiteral("walkBubble"));
        return bubble && bubble->isVisible() ? bubble : nullptr;
    }

    bool clickOn(const QWidget* parent, const char* name) const
    {
        const auto* const widget = parent->findChild<QWidget*>(QLatin1String(name));
        return widget && widget->isVisible() && standsStill(widget) && RealInput::click(widget);
    }

    std::unique_ptr<MainWindow> m_window;
    GuideButton* m_button = nullptr;
};

UIC_TEST_MAIN(tst_Guides)
#include "tst_Guides.moc"
