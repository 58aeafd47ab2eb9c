#include "PortalStage.h"
#include "RealInput.h"
#include "TestMain.h"

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/Pipette.h>
#include <WidgetToolkit/OvFrame.h>

#include <QDBusServiceWatcher>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PageRegistry.h>
#include <numeric>

namespace {

/// A portal on the session's bus, with a connection of its own.
struct Desktop
{
    Desktop()
    {
        // Qt logs when it has asked who that is before it hears that somebody is.
        QDBusServiceWatcher watcher(TestPortal::name(), QDBusConnection::sessionBus(),
                                    QDBusServiceWatcher::WatchForRegistration);
        QSignalSpy registered(&watcher, &QDBusServiceWatcher::serviceRegistered);
        QVERIFY(portal.start());
        QVERIFY(!registered.isEmpty() || registered.wait());
    }
    ~Desktop()
    {
        portal.stop();
        QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
    }

    TestPortal portal =
        TestPortal(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal")));
};

/// Whether the compositor shows @p window, in the middle of the screen, as it paints itself. Pictures may
/// move on meanwhile.
bool isShown(QWidget& window, const QString& screenshot)
{
    const QDir folder(qEnvironmentVariable("UIC_SCREENSHOTS", QDir::tempPath()));
    if (!RealInput::saveScreenshot(screenshot)) {
        return false;
    }
    const QImage screen(folder.filePath(screenshot + QStringLiteral(".png")));
    QRect place(QPoint(), window.size());
    place.moveTopLeft(QPoint(screen.width() - place.width(), screen.height() - place.height()) / 2);
    const QImage shown = screen.copy(place).convertToFormat(QImage::Format_RGB32);
    const QImage painted = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (shown.size() != painted.size()) {
        return false;
    }
    qint64 equal = 0;
    for (int y = 0; y < shown.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(shown.constScanLine(y));
        const auto* const other = reinterpret_cast<const QRgb*>(painted.constScanLine(y));
        equal += std::inner_product(line, line + shown.width(), other, 0, std::plus<>(), std::equal_to<>());
    }
    constexpr double nearlyAll = 0.98;
    return double(equal) > nearlyAll * shown.width() * shown.height();
}

} // namespace

/**
 * The gallery on Wayland, where no program reads the screen: the compositor shows every page, and a colour of
 * the screen comes from the desktop's portal.
 */
class tst_Wayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QGuiApplication::platformName().startsWith(QLatin1String("wayland")));
        GalleryApplication::prepare();
    }

    void cleanup() { m_window.reset(); }

    void everyPageIsShown_data()
    {
        QTest::addColumn<QString>("page");

        const auto pages = PageRegistry::pages();
        for (const PageInfo& page : pages) {
            QTest::newRow(qPrintable(page.id)) << page.id;
        }
    }

    void everyPageIsShown()
    {
        QFETCH(const QString, page);
        QVERIFY(open(page));
        QTRY_VERIFY(isShown(*m_window, QStringLiteral("wayland-") + page));
    }

    // Its place on the screen is not known, but that it is there is.
    void popupsStayWithTheirWindow()
    {
        QWidget window;
        window.setWindowTitle(QStringLiteral("Small"));
        window.resize(560, 440);
        ColorPickerWidget panel(&window, false);
        panel.adjustSize();
        panel.move(window.width() - panel.width(), window.height() - panel.height());
        QVERIFY(RealInput::showAndActivate(&window));

        PointingWidget bubble(&window);
        bubble.contentFrame()->setFixedSize(150, 60);
        bubble.pointTo(window.mapToGlobal(QPoint(100, window.height() - 20)));
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QCOMPARE(bubble.effectiveArrowSide(), PointingWidget::ArrowSide::Bottom);
        QVERIFY(window.geometry().contains(bubble.geometry()));

        QVERIFY(RealInput::click(panel.findChild<QToolButton*>(QStringLiteral("addCustomColorButton"))));
        QWidget* selector = nullptr;
        QTRY_VERIFY((selector = QApplication::activePopupWidget()));
        QTRY_VERIFY(window.geometry().contains(selector->geometry()));
        QVERIFY(QTest::qWaitForWindowExposed(selector));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("wayland-popups")));
    }

    void buttonsSayThatThereIsNoPortal()
    {
        QVERIFY(open(QStringLiteral("pipette")));
        const auto* const start = m_window->page()->findChild<QPushButton*>(QStringLiteral("startPipette"));
        QTRY_VERIFY(!start->isEnabled());
        QCOMPARE(start->toolTip(), Pipette::unavailableReason());
        ColorPickerWidget panel(nullptr, false);
        QVERIFY(!panel.findChild<QToolButton*>(QStringLiteral("pipetteButton"))->isEnabled());

        const Desktop desktop;
        QTRY_VERIFY(start->isEnabled());
        QVERIFY(panel.findChild<QToolButton*>(QStringLiteral("pipetteButton"))->isEnabled());
    }

    void pipettePicksThroughThePortal()
    {
        Desktop desktop;
        QVERIFY(open(QStringLiteral("pipette")));
        const auto* const start = m_window->page()->findChild<QPushButton*>(QStringLiteral("startPipette"));
        const auto* const picked = m_window->page()->findChild<QListWidget*>(QStringLiteral("pickedColors"));
        QTRY_VERIFY(start->isEnabled());
        QVERIFY(RealInput::click(start));
        QTRY_COMPARE(desktop.portal.requests.size(), 1);
        // Qt 5.15 cannot tell the portal which window asks.
        QCOMPARE(desktop.portal.parents, QStringList{QString()});
        desktop.portal.respond(0, QColor(18, 52, 86));
        QTRY_COMPARE(picked->count(), 1);
        QCOMPARE(picked->item(0)->text(), QStringLiteral("#123456"));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("wayland-picked")));
    }

    void pipetteStopsThePortal()
    {
        Desktop desktop;
        Pipette pipette;
        QSignalSpy started(&pipette, &Pipette::pickingStarted);
        QSignalSpy stopped(&pipette, &Pipette::pickingStopped);
        QTRY_COMPARE(Pipette::unavailableReason(), QString());
        pipette.startPicking();
        QCOMPARE(started.count(), 1);
        QTRY_COMPARE(desktop.portal.requests.size(), 1);
        pipette.stopPicking();
        QCOMPARE(stopped.count(), 1);
        QTRY_VERIFY(desktop.portal.requests.constFirst()->isClosed);
    }

private:
    bool open(const QString& page)
    {
        CommandLine start;
        start.page = page;
        m_window = std::make_unique<MainWindow>(start);
        return RealInput::showAndActivate(m_window.get());
    }

    std::unique_ptr<MainWindow> m_window;
};

UIC_TEST_MAIN(tst_Wayland)
#include "tst_Wayland.moc"
