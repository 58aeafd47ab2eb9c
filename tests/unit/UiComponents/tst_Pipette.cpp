#include "FakePlatform.h"
#include "FakePrivacy.h"
#include "FreedMemory.h"
#include "OnEvent.h"
#include "PaintCount.h"
#include "PipetteWindows.h"
#include "TestMain.h"

#include <UiComponents/LoupeWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PipetteScreenView.h>

#include <array>
#include <functional>
#include <memory>

using Orvane::Util::AccessStatus;

namespace {

constexpr QSize loupeSize(117, 117);

/// A window of pixels that all differ. The off-screen platform reads the first window that there is.
class PixelWindow : public QWidget
{
public:
    PixelWindow()
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry(QGuiApplication::primaryScreen()->geometry());
    }

    static QColor pixelAt(const QPoint& point)
    {
        return {point.x() % 251, point.y() % 241, (point.x() / 8 + point.y() / 8) % 120};
    }

    /// The same as the pipette has it, which takes a picture to have been darkened.
    static QColor pickedAt(const QPoint& point)
    {
        const QColor pixel = pixelAt(point);
        const double factor = 1.0 / (1.0 - QColor(0, 0, 0, 1).alphaF());
        return QColor::fromRgbF(pixel.redF() * factor, pixel.greenF() * factor, pixel.blueF() * factor);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QImage image(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y) {
            for (int x = 0; x < width(); ++x) {
                image.setPixelColor(x, y, pixelAt({x, y}));
            }
        }
        QPainter(this).drawImage(0, 0, image);
    }
};

template <typename Widget>
QList<Widget*> alive()
{
    QList<Widget*> found;
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (auto* one = qobject_cast<Widget*>(widget)) {
            found.append(one);
        }
    }
    return found;
}

QList<PipetteScreenView*> shownViews()
{
    QList<PipetteScreenView*> found;
    const auto views = alive<PipetteScreenView>();
    for (PipetteScreenView* view : views) {
        if (view->isVisible()) {
            found.append(view);
        }
    }
    return found;
}

void deleteDeferred()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool nothingIsLeft()
{
    deleteDeferred();
    return alive<PipetteScreenView>().isEmpty() && alive<LoupeWidget>().isEmpty() &&
           !QGuiApplication::overrideCursor();
}

/// What a pipette says, in order.
class Protocol
{
public:
    void watch(Pipette* pipette)
    {
        QObject::connect(pipette, &Pipette::pickingStarted, pipette,
                         [this] { lines += QStringLiteral("started"); });
        QObject::connect(pipette, &Pipette::pickingStopped, pipette,
                         [this] { lines += QStringLiteral("stopped"); });
        QObject::connect(pipette, &Pipette::colorSelected, pipette,
                         [this](const QColor& color) { lines += color.name(); });
    }

    QStringList lines;
};

const QString started = QStringLiteral("started");
const QString stopped = QStringLiteral("stopped");

QGraphicsItem* loupeItem()
{
    const auto loupes = alive<LoupeWidget>();
    return loupes.isEmpty() ? nullptr : loupes.last()->graphicsProxyWidget();
}

/// Counts how often a view was raised since it was shown, which raises it too.
class RaiseWatch : public QObject
{
public:
    RaiseWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (!qobject_cast<PipetteScreenView*>(object)) {
            return false;
        }
        if (event->type() == QEvent::Show) {
            raises = 0;
        } else if (event->type() == QEvent::ZOrderChange) {
            ++raises;
        }
        return false;
    }

    int raises = 0;
};

void release(PipetteScreenView* view, const QPoint& point, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(view->windowHandle(), button, Qt::NoModifier, point);
}

/// A point that the loupe, as it stands now, covers.
QPoint underTheLoupe(const QGraphicsItem* item)
{
    return item->sceneBoundingRect().center().toPoint();
}

} // namespace

using Act = std::function<void(PipetteScreenView*)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(std::function<void(Pipette*)>)

class tst_Pipette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Q_INIT_RESOURCE(styles);
        qApp->setStyleSheet(
            QStringLiteral("LoupeWidget { min-width: 117px; max-width: 117px; min-height: 117px;"
                           " max-height: 117px; }"));
    }

    void init()
    {
        QCursor::setPos(400, 300);
        FakePrivacy::reset();
        m_window = std::make_unique<PixelWindow>();
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_pipette = std::make_unique<Pipette>();
        m_protocol.lines.clear();
        m_protocol.watch(m_pipette.get());
    }

    void cleanup()
    {
        m_pipette.reset();
        m_window.reset();
        QVERIFY(nothingIsLeft());
    }

    void newPipetteShowsNothing()
    {
        QVERIFY(!m_pipette->currentColor().isValid());
        QVERIFY(alive<PipetteScreenView>().isEmpty());
        QObject parent;
        const Pipette child(&parent);
        QCOMPARE(child.parent(), &parent);
    }

    void missingPermissionIsAskedFor_data()
    {
        QTest::addColumn<int>("status");
        QTest::newRow("denied") << int(AccessStatus::Denied);
        QTest::newRow("not available") << int(AccessStatus::Unavailable);
        QTest::newRow("a number of the host's") << 17;
        QTest::newRow("negative") << -1;
    }

    void missingPermissionIsAskedFor()
    {
        QFETCH(int, status);
        FakePrivacy::screenAccess = AccessStatus(status);
        m_pipette->startPicking();
        QCOMPARE(FakePrivacy::requests, QVector<int>{5});
        QCOMPARE(m_protocol.lines, QStringList());
        QVERIFY(alive<PipetteScreenView>().isEmpty());

        FakePrivacy::screenAccess = AccessStatus::Granted;
        m_pipette->startPicking();
        QCOMPARE(FakePrivacy::requests, QVector<int>{5});
        QCOMPARE(m_protocol.lines, QStringList{started});
        QCOMPARE(shownViews().size(), 1);
    }

    void startCoversEveryScreen()
    {
        bool wereUp = false;
        connect(m_pipette.get(), &Pipette::pickingStarted, this, [&wereUp] {
            const auto views = shownViews();
            wereUp = views.size() == QGuiApplication::screens().size();
        });
        m_pipette->startPicking();
        QVERIFY(wereUp);
        QCOMPARE(m_protocol.lines, QStringList{started});
        const auto views = shownViews();
        const QList<QScreen*> screens = QGuiApplication::screens();
        QCOMPARE(views.size(), screens.size());
        QRect desktop;
        for (int i = 0; i < views.size(); ++i) {
            QCOMPARE(views.at(i)->geometry(), screens.at(i)->geometry());
            QCOMPARE(views.at(i)->scene(), views.first()->scene());
            desktop |= screens.at(i)->geometry();
        }
        QCOMPARE(views.first()->scene()->sceneRect(), QRectF(desktop));
        QCOMPARE(views.first()->scene()->items().size(), 1);
        QCOMPARE(alive<LoupeWidget>().size(), 1);
        QVERIFY(loupeItem()->isVisible());
    }

    void startActivatesTheScreenUnderTheCursor()
    {
        // Platforms activate each window that is shown, so what the pipette does itself shows in the order
        // only.
        RaiseWatch watch;
        const auto atStart = std::make_shared<int>(0);
        connect(m_pipette.get(), &Pipette::pickingStarted, this,
                [&watch, atStart] { *atStart = watch.raises; });
        m_pipette->startPicking();
        QCOMPARE(*atStart, 1);
        PipetteScreenView* const view = shownViews().first();
        QVERIFY(QTest::qWaitForWindowActive(view));
        QTRY_VERIFY(view->hasFocus());
        QCOMPARE(view->geometry(), QGuiApplication::primaryScreen()->geometry());

        // Beside all screens, the first one.
        m_pipette->stopPicking();
        deleteDeferred();
        QCursor::setPos(-3000, -3000);
        m_pipette->startPicking();
        QVERIFY(QTest::qWaitForWindowActive(shownViews().first()));
    }

    void startResetsTheColor()
    {
        start();
        release(shownViews().first(), QPoint(600, 500));
        QVERIFY(m_pipette->currentColor().isValid());
        const QColor& color = m_pipette->currentColor();
        m_pipette->startPicking();
        QVERIFY(!m_pipette->currentColor().isValid());
        QVERIFY(!color.isValid());
        m_pipette->stopPicking();
        QVERIFY(!m_pipette->currentColor().isValid());
    }

    void stopWhileIdleIsReported()
    {
        m_pipette->stopPicking();
        QCOMPARE(m_protocol.lines, QStringList{stopped});
        m_pipette->stopPicking();
        QCOMPARE(m_protocol.lines, (QStringList{stopped, stopped}));
    }

    void stopEndsAPick()
    {
        start();
        m_pipette->stopPicking();
        QCOMPARE(m_protocol.lines, (QStringList{started, stopped}));
        QVERIFY(shownViews().isEmpty());
        // They vanish with the next turn of the event loop, not before.
        QCOMPARE(alive<PipetteScreenView>().size(), 1);
        QCOMPARE(alive<LoupeWidget>().size(), 1);
        QCoreApplication::processEvents();
        QVERIFY(nothingIsLeft());
    }

    void secondStartAddsASecondSet()
    {
        start();
        PipetteScreenView* const first = shownViews().first();
        m_pipette->startPicking();
        QCOMPARE(shownViews().size(), 2);
        QCOMPARE(alive<LoupeWidget>().size(), 2);
        QVERIFY(shownViews().first()->scene() != shownViews().last()->scene());
        QCOMPARE(m_protocol.lines, (QStringList{started, started}));

        // Either set ends both.
        Q_EMIT first->pickingFinished(QPoint(600, 500), true);
        QCOMPARE(m_protocol.lines,
                 (QStringList{started, started, PixelWindow::pickedAt({600, 500}).name(), stopped}));
        QVERIFY(shownViews().isEmpty());
        // Not a second time through a connection of the first set.
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        QCOMPARE(m_protocol.lines.size(), 4);
    }

    void releasePicks()
    {
        start();
        const QPoint point(600, 500);
        QTest::mousePress(shownViews().first()->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
        QCOMPARE(m_protocol.lines, QStringList{started});
        QTest::mouseRelease(shownViews().first()->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
        const QColor expected = PixelWindow::pickedAt(point);
        QCOMPARE(m_protocol.lines, (QStringList{started, expected.name(), stopped}));
        QCOMPARE(m_pipette->currentColor(), expected);
        QCOMPARE(m_pipette->currentColor().alphaF(), 1.0);
        QVERIFY(shownViews().isEmpty());
    }

    void whiteIsScaled()
    {
        QWidget white;
        white.setPalette(QPalette(Qt::white));
        m_window.reset();
        white.setGeometry(QGuiApplication::primaryScreen()->geometry());
        white.show();
        QVERIFY(QTest::qWaitForWindowExposed(&white));
        start();
        release(shownViews().first(), QPoint(600, 500));
        const QColor color = m_pipette->currentColor();
        QVERIFY(qAbs(color.redF() - 255.0 / 254.0) < 1e-3);
        QVERIFY(qAbs(color.greenF() - 255.0 / 254.0) < 1e-3);
        QVERIFY(qAbs(color.blueF() - 255.0 / 254.0) < 1e-3);
        QCOMPARE(color.alphaF(), 1.0);
        QCOMPARE(color.name(), QStringLiteral("#ffffff"));
    }

    void otherInputDoesNothing()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        release(view, QPoint(600, 500), Qt::RightButton);
        release(view, QPoint(600, 500), Qt::MiddleButton);
        QWheelEvent wheel(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view->viewport(), &wheel);
        QCOMPARE(m_protocol.lines, QStringList{started});
        QVERIFY(view->isVisible());
    }

    void everyReleaseOnAScreenPicks_data()
    {
        QTest::addColumn<bool>("isSettled");
        QTest::addColumn<bool>("isUnderTheLoupe");
        QTest::newRow("before the first turn of the event loop") << false << false;
        QTest::newRow("there, under the loupe") << false << true;
        QTest::newRow("under the loupe") << true << true;
    }

    void everyReleaseOnAScreenPicks()
    {
        QFETCH(bool, isSettled);
        QFETCH(bool, isUnderTheLoupe);
        if (isSettled) {
            start();
        } else {
            m_pipette->startPicking();
        }
        PipetteScreenView* const view = shownViews().first();
        const QPoint point = isUnderTheLoupe ? underTheLoupe(loupeItem()) : QPoint(600, 500);
        QMouseEvent event(QEvent::MouseButtonRelease, point, point, point, Qt::LeftButton, Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &event);
        QCOMPARE(m_protocol.lines, (QStringList{started, PixelWindow::pickedAt(point).name(), stopped}));
    }

    // As the arithmetic has it for a picture without pixels.
    void withoutPictureEverythingIsBlack()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        m_window.reset();
        view->move(3000, 3000);
        Q_EMIT view->loupePosChanged(QPoint(700, 500));
        QCOMPARE(loupeItem()->pos().toPoint(), QPoint(700 - loupeSize.width(), 500 - loupeSize.height()));
        QCOMPARE(alive<LoupeWidget>().first()->findChild<QLabel*>()->text(), QStringLiteral("#000000"));
        Q_EMIT view->pickingFinished(QPoint(600, 500), true);
        QCOMPARE(m_protocol.lines, (QStringList{started, QStringLiteral("#000000"), stopped}));
        QCOMPARE(m_pipette->currentColor(), QColor(Qt::black));
    }

    // What has no compositor shows no window through another: the screens stand still as they were.
    void withoutCompositorThePictureStands()
    {
        const PlatformName name(QStringLiteral("xcb"));
        const QPoint point(200, 230);
        const QColor color = PixelWindow::pixelAt(point);
        QVERIFY(color.red() > 128 && color.green() > 128);
        start();
        PipetteScreenView* const first = shownViews().first();
        QImage seen(first->size(), QImage::Format_ARGB32_Premultiplied);
        first->QWidget::render(&seen, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(seen.pixelColor(point), QColor(color.red() - 1, color.green() - 1, color.blue()));
        // Another set finds the screen below the first, not the first.
        m_window.reset();
        m_pipette->startPicking();
        QList<PipetteScreenView*> views = shownViews();
        views.removeOne(first);
        Q_EMIT views.first()->pickingFinished(point, true);
        QCOMPARE(m_protocol.lines, (QStringList{started, started, color.name(), stopped}));
    }

    // The views ask for it at the start and when the cursor enters, and at no other time.
    void hostsWindowKeepsTheActivation()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        view->setAttribute(Qt::WA_UnderMouse, false);
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
        // Longer than anything that could ask for it again.
        QVERIFY(!QTest::qWaitFor([this] { return !m_window->isActiveWindow(); }, 300));
        QCOMPARE(m_protocol.lines, QStringList{started});
    }

    void ends_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("reports"); // of the view; its own closing is none
        const auto row = [](const char* name, const Act& act, int reports = 0) {
            QTest::newRow(name) << act << reports;
        };
        // Comes as a shortcut override and as a key press.
        row(
            "Escape", [](PipetteScreenView* view) { QTest::keyPress(view->windowHandle(), Qt::Key_Escape); },
            1);
        row(
            "key", [](PipetteScreenView* view) { QTest::keyPress(view->windowHandle(), Qt::Key_F5); }, 1);
        // As a window manager closes it, or QApplication::closeAllWindows().
        row(
            "closed", [](PipetteScreenView* view) { view->close(); }, 1);
        row(
            "on no screen",
            [](PipetteScreenView* view) { Q_EMIT view->pickingFinished(QPoint(-5, 300), true); }, 1);
        row("application quits", [](PipetteScreenView*) {
            QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
            QCOMPARE(QCoreApplication::exec(), 0);
        });
        for (const auto state : {Qt::ApplicationInactive, Qt::ApplicationHidden, Qt::ApplicationSuspended}) {
            row(qPrintable(QStringLiteral("another application, state %1").arg(state)),
                [state](PipetteScreenView*) {
                    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
                    QVERIFY(!shownViews().isEmpty());
                    Q_EMIT qGuiApp->applicationStateChanged(state);
                    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationHidden);
                });
        }
        QScreen* const screen = QGuiApplication::primaryScreen();
        row("screen added", [screen](PipetteScreenView*) { Q_EMIT qGuiApp->screenAdded(screen); });
        row("screen removed", [screen](PipetteScreenView*) { Q_EMIT qGuiApp->screenRemoved(screen); });
        row("screen resized",
            [screen](PipetteScreenView*) { Q_EMIT screen->geometryChanged(QRect(0, 0, 640, 480)); });
        row("screen scaled", [screen](PipetteScreenView*) {
            Q_EMIT screen->logicalDotsPerInchChanged(192.0);
            Q_EMIT screen->logicalDotsPerInchChanged(96.0);
        });
    }

    // Without a colour.
    void ends()
    {
        QFETCH(Act, act);
        start();
        QSignalSpy reports(shownViews().first(), &PipetteScreenView::pickingFinished);
        act(shownViews().first());
        QTEST(int(reports.count()), "reports");
        QCOMPARE(m_protocol.lines, (QStringList{started, stopped}));
        QVERIFY(!m_pipette->currentColor().isValid());
        QVERIFY(shownViews().isEmpty());
        QVERIFY(nothingIsLeft());
    }

    void newsOfAWindowManager_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<int>("kind"); // of an X event
        QTest::addColumn<Qt::ApplicationState>("state");
        QTest::addColumn<bool>("ends");
        const QByteArray ofX("xcb_generic_event_t");
        constexpr int property = 28;
        constexpr int sent = 0x80;
        QTest::newRow("a property") << ofX << property << Qt::ApplicationInactive << true;
        QTest::newRow("a property, sent") << ofX << (property | sent) << Qt::ApplicationInactive << true;
        QTest::newRow("another event") << ofX << property + 1 << Qt::ApplicationInactive << false;
        QTest::newRow("another system")
            << QByteArray("windows_generic_MSG") << property << Qt::ApplicationInactive << false;
        QTest::newRow("in the active application") << ofX << property << Qt::ApplicationActive << false;
    }

    // An inactive application, of which Qt says nothing, has lost the keyboard.
    void newsOfAWindowManager()
    {
        QFETCH(const QByteArray, type);
        QFETCH(const int, kind);
        QFETCH(const Qt::ApplicationState, state);
        QFETCH(const bool, ends);
        start();
        const UntoldState untold(state);
        QCOMPARE(m_protocol.lines, QStringList{started});
        std::array<uchar, 32> event = {static_cast<uchar>(kind)};
        long result = 0;
        QVERIFY(!QAbstractEventDispatcher::instance()->filterNativeEvent(type, event.data(), &result));
        QCOMPARE(m_protocol.lines, ends ? (QStringList{started, stopped}) : QStringList{started});
        QCOMPARE(shownViews().isEmpty(), ends);
    }

    void viewThatTheCursorComesTo_data()
    {
        QTest::addColumn<bool>("isCovered"); // the other screen
        QTest::addColumn<bool>("isThere");   // the cursor
        QTest::addColumn<bool>("isPressed");
        QTest::addColumn<int>("raises");
        QTest::newRow("below another application's window") << true << true << false << 1;
        QTest::newRow("on top") << false << true << false << 0;
        QTest::newRow("elsewhere") << true << false << false << 0;
        QTest::newRow("during a drag") << true << true << true << 0;
    }

    // A view on top is told by Qt that the cursor enters it, and comes to the front by itself.
    void viewThatTheCursorComesTo()
    {
        QFETCH(const bool, isCovered);
        QFETCH(const bool, isThere);
        QFETCH(const bool, isPressed);
        QFETCH(const int, raises);
        const QRect first = QGuiApplication::primaryScreen()->geometry();
        const QRect second = first.translated(first.width(), 0);
        SecondScreen screen(second);
        m_pipette->startPicking();
        PipetteScreenView* left = nullptr;
        PipetteScreenView* entered = nullptr;
        const auto views = shownViews();
        for (PipetteScreenView* const view : views) {
            (view->geometry() == second ? entered : left) = view;
        }
        QVERIFY(left && entered);
        QVERIFY(QTest::qWaitForWindowActive(left));
        QCoreApplication::processEvents();
        if (isPressed) {
            QTest::mousePress(left->windowHandle(), Qt::LeftButton, {}, QPoint(600, 500));
        }
        int raised = 0;
        const OnEvent watch(QEvent::ZOrderChange, entered, [&raised] { ++raised; });
        screen.setCovered(isCovered);
        QCursor::setPos(isThere ? second.center() : first.center());
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(left, &leave);
        QCOMPARE(raised, raises);
        if (isPressed) {
            QTest::mouseRelease(left->windowHandle(), Qt::LeftButton, {}, QPoint(600, 500));
        }
        m_pipette->stopPicking();
    }

    // An application that shows nothing else goes on after a pick.
    void lastWindowIsNotTheOverlay()
    {
        m_window.reset();
        QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
        start();
        m_pipette->stopPicking();
        QCoreApplication::processEvents();
        deleteDeferred();
        QCOMPARE(lastClosed.count(), 0);
    }

    void modalDialogBlocksNothing()
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.setGeometry(10, 10, 100, 100);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        start();
        release(shownViews().first(), QPoint(600, 500));
        QCOMPARE(m_protocol.lines, (QStringList{started, PixelWindow::pickedAt({600, 500}).name(), stopped}));
    }

    void lateEventsEndNothing()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        m_pipette->stopPicking();
        m_protocol.lines.clear();
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        static_cast<QObject*>(view)->event(&escape);
        view->blockSignals(false);
        Q_EMIT view->pickingFinished(QPoint(600, 500), true);
        Q_EMIT view->loupePosChanged(QPoint(600, 500));
        QCOMPARE(m_protocol.lines, QStringList());
        // Nor does what is left of one pick end the next.
        m_pipette->startPicking();
        Q_EMIT view->pickingFinished(QPoint(600, 500), true);
        QCOMPARE(m_protocol.lines, QStringList{started});
    }

    void loupeFollowsTheCursor_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::addColumn<QPoint>("place");
        const int side = loupeSize.width();
        QTest::newRow("middle") << QPoint(400, 300) << QPoint(400, 300 - side);
        QTest::newRow("left edge") << QPoint(0, 300) << QPoint(0, 300 - side);
        QTest::newRow("bottom edge") << QPoint(400, 599) << QPoint(400, 599 - side);
        QTest::newRow("within a loupe of the top") << QPoint(400, side - 1) << QPoint(400, side - 1);
        QTest::newRow("a loupe below the top") << QPoint(400, side) << QPoint(400, 0);
        QTest::newRow("within a loupe of the right edge")
            << QPoint(800 - side, 300) << QPoint(800 - 2 * side, 300 - side);
        QTest::newRow("a loupe from the right edge")
            << QPoint(799 - side, 300) << QPoint(799 - side, 300 - side);
        QTest::newRow("top right corner") << QPoint(799, 0) << QPoint(799 - side, 0);
    }

    void loupeFollowsTheCursor()
    {
        QFETCH(QPoint, cursor);
        QFETCH(QPoint, place);
        start();
        QTest::mouseMove(shownViews().first()->windowHandle(), cursor);
        QTRY_COMPARE(loupeItem()->pos(), QPointF(place));
        LoupeWidget* const loupe = alive<LoupeWidget>().first();
        QCOMPARE(loupe->size(), loupeSize);
    }

    void loupeIsPaintedOnceForAMove()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        auto* label = alive<LoupeWidget>().first()->findChild<QLabel*>();
        PaintCount paints(alive<LoupeWidget>().first());
        for (const QPoint& point : {QPoint(300, 200), QPoint(600, 500), QPoint(310, 210)}) {
            paints.count = 0;
            QTest::mouseMove(view->windowHandle(), point);
            QTRY_COMPARE(label->text(), PixelWindow::pickedAt(point).name());
            QTRY_VERIFY(paints.count > 0);
            // Nor later, for the picture or the name alone.
            for (int i = 0; i < 5; ++i) {
                QCoreApplication::processEvents();
            }
            QCOMPARE(paints.count, 1);
        }
    }

    void everyMoveIsAnsweredAtOnce_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("no sheet") << QString();
        QTest::newRow("large") << qApp->styleSheet();
        QFile reference(QStringLiteral(":/styles/dark.qss"));
        QVERIFY(reference.open(QIODevice::ReadOnly));
        QTest::newRow("reference sheet") << QString::fromUtf8(reference.readAll());
        QTest::newRow("rim, name in a corner") << QStringLiteral(
            "LoupeWidget { background: transparent; border: 6px solid #ff00ff; min-width: 105px;"
            " max-width: 105px; min-height: 105px; max-height: 105px; }"
            "LoupeWidget > #colorNameLabel { qproperty-alignment: \"AlignLeft | AlignBottom\"; }");
    }

    // Label and picture are read right after each move; what is painted in between does not matter.
    void everyMoveIsAnsweredAtOnce()
    {
        QFETCH(QString, sheet);
        constexpr int moves = 30;
        const QString former = qApp->styleSheet();
        qApp->setStyleSheet(sheet);
        const auto restore = qScopeGuard([former] { qApp->setStyleSheet(former); });
        start();
        const QScreen* const screen = QGuiApplication::primaryScreen();
        const QRect area = screen->geometry();
        for (const int speed : {1, 10, 40}) {
            for (const QPoint& direction : {QPoint(1, 0), QPoint(1, 1), QPoint(0, 1), QPoint(-1, 1),
                                            QPoint(-1, 0), QPoint(-1, -1), QPoint(0, -1), QPoint(1, -1)}) {
                QPoint point = area.center() - direction * speed * moves / 2;
                for (int i = 0; i < moves; ++i) {
                    point += direction * speed;
                    point = area.contains(point) ? point : area.center();
                    PipetteWindows::move(screen, point);
                    QCOMPARE(PipetteWindows::colorName(), PixelWindow::pickedAt(point).name());
                    const QImage seen = PipetteWindows::magnified(screen);
                    QVERIFY(sheet.isEmpty() || qAlpha(seen.pixel(6, 2)) == 255);
                    for (int y = 0; y < seen.height(); ++y) {
                        for (int x = 0; x < seen.width(); ++x) {
                            const QPoint at = point + QPoint(x - 6, y - 6);
                            if (qAlpha(seen.pixel(x, y)) == 255 && area.contains(at)) {
                                QCOMPARE(seen.pixel(x, y), PixelWindow::pixelAt(at).rgb());
                            }
                        }
                    }
                    QCoreApplication::processEvents();
                }
            }
        }
    }

    void loupeOnNoScreenStays()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        QTest::mouseMove(view->windowHandle(), QPoint(400, 400));
        QTRY_COMPARE(loupeItem()->pos().toPoint(), QPoint(400, 400 - loupeSize.height()));
        Q_EMIT view->loupePosChanged(QPoint(-100, 4000));
        QCOMPARE(loupeItem()->pos().toPoint(), QPoint(400, 400 - loupeSize.height()));
    }

    void loupeMayDie()
    {
        start();
        PipetteScreenView* const view = shownViews().first();
        delete alive<LoupeWidget>().first();
        QTest::mouseMove(view->windowHandle(), QPoint(500, 400));
        QCoreApplication::processEvents();
        release(view, QPoint(600, 500));
        QTRY_COMPARE(m_protocol.lines,
                     (QStringList{started, PixelWindow::pickedAt({600, 500}).name(), stopped}));
    }

    void viewMayDie()
    {
        start();
        delete shownViews().first();
        QCOMPARE(m_protocol.lines, QStringList{started});
        m_pipette->stopPicking();
        QCOMPARE(m_protocol.lines, (QStringList{started, stopped}));
    }

    void slotsOfSelected_data()
    {
        using Slot = std::function<void(Pipette*)>;
        QTest::addColumn<Slot>("slot");
        QTest::addColumn<QStringList>("rest");
        QTest::newRow("stop") << Slot([](Pipette* pipette) { pipette->stopPicking(); })
                              << QStringList{stopped};
        QTest::newRow("stop and start") << Slot([](Pipette* pipette) {
            pipette->stopPicking();
            pipette->startPicking();
        }) << QStringList{stopped, started};
        // Without an end in between, it is part of the pick that is about to end.
        QTest::newRow("start") << Slot([](Pipette* pipette) { pipette->startPicking(); })
                               << QStringList{started, stopped};
    }

    void slotsOfSelected()
    {
        QFETCH(std::function<void(Pipette*)>, slot);
        QFETCH(QStringList, rest);
        connect(m_pipette.get(), &Pipette::colorSelected, m_pipette.get(), [&] { slot(m_pipette.get()); });
        // A listener after the one that restarts is given the colour all the same.
        QColor heard;
        connect(m_pipette.get(), &Pipette::colorSelected, this,
                [&heard](const QColor& color) { heard = color; });
        start();
        release(shownViews().first(), QPoint(600, 500));
        const QColor expected = PixelWindow::pickedAt({600, 500});
        QCOMPARE(m_protocol.lines, (QStringList{started, expected.name()} + rest));
        QCOMPARE(heard, expected);
        QCOMPARE(shownViews().size(), rest.last() == started ? 1 : 0);
    }

    void slotsOfStoppedMayRestart()
    {
        int left = 3;
        connect(m_pipette.get(), &Pipette::pickingStopped, m_pipette.get(), [this, &left] {
            if (--left > 0) {
                m_pipette->startPicking();
            }
        });
        start();
        m_pipette->stopPicking();
        QCOMPARE(shownViews().size(), 1);
        QTest::keyPress(shownViews().first()->windowHandle(), Qt::Key_Escape);
        QCOMPARE(shownViews().size(), 1);
        m_pipette->stopPicking();
        QVERIFY(shownViews().isEmpty());
        QCOMPARE(m_protocol.lines, (QStringList{started, stopped, started, stopped, started, stopped}));
    }

    void pipetteMayDieWhilePicking()
    {
        start();
        m_protocol.lines.clear();
        m_pipette.reset();
        // At once, and in silence.
        QVERIFY(alive<PipetteScreenView>().isEmpty());
        QVERIFY(alive<LoupeWidget>().isEmpty());
        QCOMPARE(m_protocol.lines, QStringList());

        // With two sets.
        m_pipette = std::make_unique<Pipette>();
        m_pipette->startPicking();
        m_pipette->startPicking();
        m_pipette.reset();
        QVERIFY(alive<PipetteScreenView>().isEmpty());
        QVERIFY(alive<LoupeWidget>().isEmpty());
    }

    // What loses the focus to a view hears of it while Qt is about to go on with the view.
    void pipetteMayDieWhileAViewIsActivated()
    {
        QLineEdit edit;
        edit.show();
        QVERIFY(QTest::qWaitForWindowActive(&edit));
        QTest::keyClick(&edit, Qt::Key_A);
        QPointer<Pipette> pipette = new Pipette;
        connect(&edit, &QLineEdit::editingFinished, this, [pipette] { delete pipette; });
        pipette->startPicking();
        const FreedMemoryWatch watch;
        QTRY_VERIFY(!pipette);
        QVERIFY(shownViews().isEmpty());
        QVERIFY(nothingIsLeft());
        QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
    }

    // The keys of a pop-up go through the window of the view.
    void pipetteMayDieInAPopup()
    {
        start();
        const QPointer<PipetteScreenView> view = shownViews().first();
        QVERIFY(QTest::qWaitForWindowActive(view));
        QLineEdit edit;
        edit.setWindowFlags(Qt::Popup);
        connect(&edit, &QLineEdit::returnPressed, this, [this] { m_pipette.reset(); });
        edit.show();
        // Without the shortcut override, which would have ended the pick.
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(view->windowHandle(), &press);
        QVERIFY(!m_pipette);
        QVERIFY(view && !view->isVisible());
        QVERIFY(nothingIsLeft());
    }

    // Real handlers of Qt's run on after the pipette has deleted the view that they work for.
    void handlersOutliveThePipette()
    {
        for (const QPoint& point : {QPoint(600, 500), QPoint(0, 0), QPoint(799, 599)}) {
            auto* pipette = new Pipette;
            bool isOver = false;
            connect(pipette, &Pipette::colorSelected, this, [pipette, &isOver] {
                isOver = true;
                delete pipette;
            });
            pipette->startPicking();
            PipetteScreenView* const view = shownViews().first();
            QVERIFY(QTest::qWaitForWindowActive(view));
            QTest::mouseMove(view->windowHandle(), point);
            QCoreApplication::processEvents();
            const FreedMemoryWatch watch;
            QTest::mousePress(view->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
            QTest::mouseRelease(view->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
            QTRY_VERIFY(isOver);
            QCoreApplication::processEvents();
            QVERIFY(nothingIsLeft());
            QCOMPARE(watch.writtenAfterwards(), std::size_t(0));
        }
    }

    // It dies after everything that QGuiApplication gives: in a process of its own, whose last words are
    // read.
    void pipetteMayBeTheApplicationsChild()
    {
        if (qEnvironmentVariableIsSet("UIC_APPLICATIONS_PIPETTE")) {
            new Pipette(qApp);
            return;
        }
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("UIC_APPLICATIONS_PIPETTE"), QStringLiteral("1"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("Pipette"), QStringLiteral("pipetteMayBeTheApplicationsChild")});
        QVERIFY(process.waitForFinished());
        const QByteArray words = process.readAll();
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, words.constData());
        QVERIFY2(!words.contains("nullptr"), words.constData());
    }

private:
    /// Starts a pick and waits until it is on the screen.
    void start()
    {
        m_pipette->startPicking();
        const auto views = shownViews();
        QVERIFY(!views.isEmpty());
        QVERIFY(QTest::qWaitForWindowExposed(views.last()));
        QVERIFY(QTest::qWaitForWindowActive(views.last()));
        QCoreApplication::processEvents();
    }

    std::unique_ptr<PixelWindow> m_window;
    std::unique_ptr<Pipette> m_pipette;
    Protocol m_protocol;
};

UIC_TEST_MAIN(tst_Pipette)
#include "tst_Pipette.moc"
