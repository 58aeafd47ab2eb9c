#include "PortalStage.h"
#include "RealInput.h"
#include "RunScript.h"
#include "TestMain.h"
#include "WaylandInput.h"

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PopupColorPicker.h>
#include <WidgetToolkit/OvFrame.h>

#include <QDBusServiceWatcher>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PageRegistry.h>
#include <gallery/StyleController.h>
#include <numeric>

namespace {

constexpr int patience = 60000; // ms, for another program to start
const QColor green(0, 128, 0);

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

QRect placeOf(const QWidget& widget)
{
    return {WaylandInput::placeOf(&widget, {}), widget.size()};
}

/// Whether the compositor shows @p window where it is known to be, as it paints itself. Pictures may move on
/// meanwhile.
bool isShown(QWidget& window, const QString& screenshot)
{
    const QDir folder(qEnvironmentVariable("UIC_SCREENSHOTS", QDir::tempPath()));
    if (!RealInput::saveScreenshot(screenshot)) {
        return false;
    }
    const QImage screen(folder.filePath(screenshot + QStringLiteral(".png")));
    const QImage shown = screen.copy(placeOf(window)).convertToFormat(QImage::Format_RGB32);
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
        QVERIFY(StyleController().setStyle(QStringLiteral("dark")));
    }

    void cleanup() { m_window.reset(); }

    void runStartsTheGallery()
    {
        RunScript script;
        QVERIFY(script.start({QStringLiteral("--page"), QStringLiteral("pipette")}));
        QTRY_COMPARE_WITH_TIMEOUT(script.shell(), QStringLiteral("xdg_shell"), patience);
        QVERIFY(script.packages().contains("qtwayland5"));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("wayland-run")));
    }

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
        bubble.contentFrame()->setStyleSheet(QStringLiteral("background: %1;").arg(green.name()));
        bubble.pointTo(window.mapToGlobal(QPoint(100, window.height() - 20)));
        bubble.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bubble));
        QCOMPARE(bubble.effectiveArrowSide(), PointingWidget::ArrowSide::Bottom);
        QVERIFY(placeOf(window).contains(placeOf(bubble)));
        QTRY_COMPARE(RealInput::pixel(bubble.contentFrame(), QPoint(75, 30)), green);
        bubble.hide();

        QVERIFY(RealInput::click(panel.findChild<QToolButton*>(QStringLiteral("addCustomColorButton"))));
        QWidget* selector = nullptr;
        QTRY_VERIFY((selector = QApplication::activePopupWidget()));
        QVERIFY(QTest::qWaitForWindowExposed(selector));
        QTRY_VERIFY(isShown(*selector, QStringLiteral("wayland-selector")));
        QVERIFY(placeOf(window).contains(placeOf(*selector)));
    }

    void panelStaysWithItsField_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("field");

        const QSize large(700, 700);
        QTest::newRow("room below") << large << QPoint(20, 30);
        QTest::newRow("room above") << large << QPoint(640, 670);
        QTest::newRow("room at the side") << large << QPoint(20, 350);
        QTest::newRow("a window that is too small") << QSize(150, 100) << QPoint(20, 30);
    }

    void panelStaysWithItsField()
    {
        QFETCH(const QSize, size);
        QFETCH(const QPoint, field);
        QWidget window;
        window.resize(size);
        ColorPickerButton button(&window);
        button.setPicker(new PopupColorPicker);
        button.move(field);
        QVERIFY(RealInput::showAndActivate(&window));
        QVERIFY(RealInput::click(&button));
        QWidget* panel = nullptr;
        QTRY_VERIFY((panel = QApplication::activePopupWidget()));
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        QTRY_VERIFY(isShown(*panel, QStringLiteral("wayland-panel")));
        if (panel->height() > size.height()) {
            QCOMPARE(placeOf(*panel).topLeft(), placeOf(window).topLeft());
            return;
        }
        QVERIFY(placeOf(window).contains(placeOf(*panel)));
        QVERIFY(!placeOf(button).intersects(placeOf(*panel)));
        constexpr int near = 8;
        QVERIFY(placeOf(button).adjusted(-near, -near, near, near).intersects(placeOf(*panel)));
    }

    void buttonsSayThatThereIsNoPortal()
    {
        QVERIFY(open(QStringLiteral("pipette")));
        const auto* const start = m_window->page()->findChild<QPushButton*>(QStringLiteral("startPipette"));
        QTRY_VERIFY(!start->isEnabled());
        QCOMPARE(start->toolTip(), Pipette::unavailableReason());
        ColorPickerWidget panel(nullptr, false);
        const auto* const button = panel.findChild<QToolButton*>(QStringLiteral("pipetteButton"));
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->toolTip(), Pipette::unavailableReason());

        const Desktop desktop;
        QTRY_VERIFY(start->isEnabled());
        QVERIFY(button->isEnabled());
        QCOMPARE(button->toolTip(), QString());
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
        QCOMPARE(start->toolTip(), QString());

        QVERIFY(RealInput::click(start));
        QTRY_COMPARE(desktop.portal.requests.size(), 2);
        constexpr uint endedOtherwise = 2;
        desktop.portal.respond(1, endedOtherwise, {});
        QTRY_VERIFY(!start->toolTip().isEmpty());
        QVERIFY(start->isEnabled());
        QCOMPARE(picked->count(), 1);
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
