#include "NativeScreens.h"
#include "PipetteWindows.h"
#include "PixelPattern.h"
#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/Pipette.h>
#include <UiComponents/ScreenGrabber.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <memory>

using namespace PipetteWindows;

namespace {

constexpr int loupeSize = 117;

// In a color that the pattern has only by accident, with its corners over the pixels that it magnifies, and
// its name in one of them.
const QString rimmedLoupe = QStringLiteral(
    "LoupeWidget { background: transparent; border: 6px solid #ff00ff; min-width: 105px; max-width: 105px;"
    " min-height: 105px; max-height: 105px; }"
    "LoupeWidget > #colorNameLabel { qproperty-alignment: \"AlignLeft | AlignBottom\"; color: #00ff00; }");
const QString sizedLoupe =
    QStringLiteral("LoupeWidget { min-width: 117px; max-width: 117px; min-height: 117px; max-height: 117px; }"
                   "LoupeWidget > #colorNameLabel { qproperty-alignment: \"AlignHCenter | AlignTop\"; }");

QString darkSheet()
{
    QFile file(QStringLiteral(":/styles/dark.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QRgb patternAt(const QPoint& point)
{
    const QPoint pixel = NativeScreens::pixelAt(point);
    return PixelPattern::colorAt(pixel.x(), pixel.y());
}

/// @p color under a black of alpha 1.
QRgb darkened(QRgb color)
{
    const auto channel = [](int value) { return value >= 128 ? value - 1 : value; };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

/// Whether @p picked is what can be known of @p color: below the overlay 127 and 128 are the same.
bool isSame(const QColor& picked, QRgb color)
{
    return picked.isValid() && picked.alpha() == 255 && darkened(picked.rgb()) == darkened(color);
}

QRgb screenAtPoint(const QPoint& point)
{
    QScreen* const screen = QGuiApplication::screenAt(point);
    const QPoint local = point - screen->geometry().topLeft();
    return screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage().pixel(0, 0);
}

/// Whether the overlay is seen over the screen, away from the loupe.
bool isCovered(const QScreen* screen)
{
    const QRect area = screen->geometry();
    const QPoint places[] = {area.topLeft() + QPoint(5, 5), area.bottomLeft() + QPoint(5, -5)};
    return std::any_of(std::begin(places), std::end(places), [](QPoint point) {
        // The first pixel whose color shows whether something dark lies over it.
        while (darkened(patternAt(point)) == patternAt(point)) {
            point.rx() += 1;
        }
        return screenAtPoint(point) == darkened(patternAt(point));
    });
}

/// What the label and the loupe's picture have wrong for the cursor at @p point; empty when they are right.
QString mistakeAt(const QPoint& point)
{
    const QScreen* const screen = QGuiApplication::screenAt(point);
    const QString name = colorName();
    if (!isSame(QColor(name), patternAt(point))) {
        return QStringLiteral("%1 instead of %2").arg(name, QColor(patternAt(point)).name());
    }
    const QPoint corner = screen->geometry().topLeft();
    const QPoint first = corner + (QPointF(point - corner - QPoint(loupePixels / 2, loupePixels / 2)) *
                                   screen->devicePixelRatio())
                                      .toPoint();
    const QImage seen = magnified(screen);
    const QRect desktop = NativeScreens::geometry(screen);
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QPoint at = first + QPoint(x, y);
            const QRgb pattern = PixelPattern::colorAt(at.x(), at.y());
            const bool isOfInterest = qAlpha(seen.pixel(x, y)) == 255 && desktop.contains(at);
            if (isOfInterest && darkened(seen.pixel(x, y)) != darkened(darkened(pattern)) &&
                darkened(seen.pixel(x, y)) != darkened(pattern)) {
                return QStringLiteral("pixel %1, %2").arg(x).arg(y);
            }
        }
    }
    return {};
}

/// The view that was raised last.
class LastRaised : public QObject
{
public:
    LastRaised() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::ZOrderChange && object->inherits("PipetteScreenView")) {
            view = static_cast<QWidget*>(object);
        }
        return false;
    }

    const QWidget* view = nullptr;
};

bool xdotool(const QStringList& arguments)
{
    constexpr int longForATool = 30000;
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    return process.waitForStarted() &&
           QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, longForATool) &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QStringList moving(const QPoint& global)
{
    const QPoint pixel = NativeScreens::pixelAt(global);
    return {QStringLiteral("mousemove"), QString::number(pixel.x()), QString::number(pixel.y())};
}

bool moveMouse(const QPoint& global)
{
    return xdotool(moving(global)) && QTest::qWaitFor([global] { return QCursor::pos() == global; });
}

/// Before any program can follow the move.
bool moveMouseAndClick(const QPoint& global)
{
    // Without a delay the tool would wait 100 ms after the click.
    return xdotool(moving(global) << QStringLiteral("click") << QStringLiteral("--delay")
                                  << QStringLiteral("0") << QStringLiteral("1"));
}

} // namespace

/**
 * The screen pipette as a user has it, over the pixels of another application. Each run is on other screens.
 */
class tst_ScreenPipette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Q_INIT_RESOURCE(styles);
        QVERIFY(!darkSheet().isEmpty());
        m_pattern = std::make_unique<PixelPattern>();
        QVERIFY(m_pattern->show(NativeScreens::desktop()));
    }

    void init()
    {
        qApp->setStyleSheet(sizedLoupe);
        // A new one: now and then Qt takes the focus that the window manager gives back to the old one for
        // that of a window that has just been closed, and forgets it.
        m_host = std::make_unique<QWidget>();
        m_host->setGeometry(
            QRect(QGuiApplication::primaryScreen()->geometry().topLeft() + QPoint(40, 40), QSize(100, 60)));
        QVERIFY(RealInput::showAndActivate(m_host.get()));
        m_pipette = std::make_unique<Pipette>();
        m_selected = std::make_unique<QSignalSpy>(m_pipette.get(), &Pipette::colorSelected);
        m_stopped = std::make_unique<QSignalSpy>(m_pipette.get(), &Pipette::pickingStopped);
    }

    void cleanup()
    {
        m_pipette.reset();
        m_host.reset();
        QVERIFY(views().isEmpty());
    }

    // A window that is shown, hidden and shown again within one turn may never be mapped.
    void everyStartCoversTheScreens()
    {
        const auto screens = QGuiApplication::screens();
        const int starts = screens.size() > 1 ? 24 : 100;
        for (int i = 0; i < starts; ++i) {
            QScreen* const screen = screens.at(i % screens.size());
            QCursor::setPos(screen, screen->geometry().center() + QPoint(i % 7, 0));
            const LastRaised raised;
            m_pipette->startPicking();
            QCOMPARE(raised.view->geometry(), screen->geometry());
            m_pipette->stopPicking();
            QVERIFY2(start(), qPrintable(QString::number(i)));
            QCOMPARE(views().size(), screens.size());
            m_pipette->stopPicking();
            QVERIFY(views().isEmpty());
            QCOMPARE(m_stopped->count(), 2 * (i + 1));
        }
    }

    void everyMoveIsAnsweredAtOnce_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<bool>("isSettled");
        QTest::newRow("no sheet") << QString() << true;
        QTest::newRow("reference sheet") << darkSheet() << true;
        QTest::newRow("rim, name in a corner") << rimmedLoupe << true;
        QTest::newRow("from the start") << rimmedLoupe << false;
    }

    // Label and picture are read right after each move, which never waits for the last one to be on the
    // screen.
    void everyMoveIsAnsweredAtOnce()
    {
        QFETCH(QString, sheet);
        QFETCH(bool, isSettled);
        constexpr int moves = 15;
        constexpr int frame = 16;
        qApp->setStyleSheet(sheet);
        const QScreen* const screen = QGuiApplication::screens().constLast();
        const QRect area = screen->geometry();
        // The loupe has the scale of the screen that the cursor is on.
        QVERIFY(moveMouse(area.center()));
        QVERIFY(start());
        if (isSettled) {
            settle();
        }
        for (const int speed : {1, 10, 80}) {
            for (const QPoint& direction : {QPoint(1, 0), QPoint(1, 1), QPoint(0, 1), QPoint(-1, 1),
                                            QPoint(-1, 0), QPoint(-1, -1), QPoint(0, -1), QPoint(1, -1)}) {
                if (!isSettled) {
                    m_pipette->stopPicking();
                    m_pipette->startPicking();
                }
                QPoint point = area.center() - direction * speed * moves / 2;
                for (int i = 0; i < moves; ++i) {
                    point += direction * speed;
                    if (!area.contains(point)) {
                        point = area.center();
                    }
                    PipetteWindows::move(screen, point);
                    const QString mistake = mistakeAt(point);
                    QVERIFY2(mistake.isEmpty(), qPrintable(QStringLiteral("move %1 of (%2, %3): %4")
                                                               .arg(i)
                                                               .arg(direction.x() * speed)
                                                               .arg(direction.y() * speed)
                                                               .arg(mistake)));
                    QTest::qWait(frame);
                }
            }
        }
    }

    void pixelsAtRest()
    {
        QVERIFY(start());
        settle();
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            QVERIFY(moveMouse(screen->geometry().center()));
            for (int i = 0; i < 100; ++i) {
                const QPoint point = randomPoint(screen->geometry().adjusted(7, 7, -7, -7));
                PipetteWindows::move(screen, point);
                QCOMPARE(mistakeAt(point), QString());
            }
        }
    }

    // Six points from an edge the picture of what is around the cursor ends.
    void pixelsAtTheEdges()
    {
        const auto screens = QGuiApplication::screens();
        for (const bool isSettled : {false, true}) {
            QVERIFY(start());
            if (isSettled) {
                settle();
            }
            for (const QScreen* screen : screens) {
                const QRect area = screen->geometry();
                QVERIFY(moveMouse(area.center()));
                for (const QPoint& point :
                     {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight(),
                      QPoint(area.center().x(), area.top() + 1), QPoint(area.right() - 1, area.center().y()),
                      QPoint(area.left() + 5, area.center().y()),
                      QPoint(area.center().x(), area.bottom() - 5)}) {
                    PipetteWindows::move(screen, point);
                    QCOMPARE(mistakeAt(point), QString());
                }
            }
            m_pipette->stopPicking();
        }
    }

    void picks()
    {
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            for (int i = 0; i < 25; ++i) {
                QVERIFY(start());
                QVERIFY(clickAt(randomPoint(screen->geometry())));
            }
        }
    }

    void picksAtRest()
    {
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            const QRect area = screen->geometry();
            for (const QPoint& point : {randomPoint(area), area.topLeft(), area.bottomRight()}) {
                QVERIFY(moveMouse(point));
                QVERIFY(start());
                settle();
                QVERIFY(clickAt(point));
            }
        }
    }

    void picksBeforeTheFirstTurn()
    {
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            for (int i = 1; i <= 10; ++i) {
                const QPoint point = randomPoint(screen->geometry());
                m_pipette->startPicking();
                release(screen, point);
                QCOMPARE(m_selected->count(), m_stopped->count());
                QVERIFY(isSame(m_pipette->currentColor(), patternAt(point)));
            }
        }
    }

    void picksWhereTheLoupeIs_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::newRow("reference sheet") << darkSheet();
        QTest::newRow("rim, name in a corner") << rimmedLoupe;
        QTest::newRow("without a rim") << sizedLoupe;
    }

    // Where it stands, where it has just been, and at a top edge, where its corner lies on the pixel.
    void picksWhereTheLoupeIs()
    {
        QFETCH(QString, sheet);
        qApp->setStyleSheet(sheet);
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            const QRect area = screen->geometry();
            for (const QPoint& first : {area.center(), QPoint(area.center().x(), area.top() + 3)}) {
                QVERIFY(moveMouse(first));
                for (const bool hasMoved : {false, true}) {
                    QVERIFY(start());
                    settle();
                    PipetteWindows::move(screen, first);
                    // On the screen, until then it cannot be in the way.
                    QTRY_VERIFY(screenAtPoint(loupePlace().center()) !=
                                darkened(patternAt(loupePlace().center())));
                    const QRect place = loupePlace();
                    if (hasMoved) {
                        PipetteWindows::move(screen, first - QPoint(250, -200));
                    }
                    const QPoint point = randomPoint(place);
                    release(screen, point);
                    QVERIFY(isSame(m_pipette->currentColor(), patternAt(point)));
                }
            }
        }
    }

    void nextPickReadsNothingOfTheLast()
    {
        const QScreen* const screen = QGuiApplication::screens().constLast();
        const QPoint center = screen->geometry().center();
        QVERIFY(moveMouse(center));
        for (int i = 0; i < 20; ++i) {
            QVERIFY2(start(), qPrintable(QString::number(i)));
            PipetteWindows::move(screen, center);
            const QRect place = loupePlace();
            QTRY_VERIFY(screenAtPoint(place.center()) != patternAt(place.center()));
            m_pipette->stopPicking();
            m_pipette->startPicking();
            for (const QPoint& point :
                 {place.center(), randomPoint(place), randomPoint(screen->geometry())}) {
                PipetteWindows::move(screen, point);
                QCOMPARE(mistakeAt(point), QString());
            }
            m_pipette->stopPicking();
        }
    }

    void changesAreSeen_data()
    {
        QTest::addColumn<bool>("isNextPick");
        QTest::newRow("below a mouse that rests") << false;
        QTest::newRow("by a pick that begins as one ends") << true;
    }

    // As of a video.
    void changesAreSeen()
    {
        QFETCH(bool, isNextPick);
        const QRgb colors[] = {qRgb(10, 200, 30), qRgb(240, 20, 250)};
        const auto show = [this](QRgb color) {
            m_host->setPalette(QColor(color));
            m_host->repaint();
        };
        const QScreen* const screen = QGuiApplication::primaryScreen();
        m_host->resize(500, 400);
        show(colors[0]);
        const QPoint point = m_host->mapToGlobal(QPoint(100, 300));
        const QPoint other = m_host->mapToGlobal(QPoint(400, 350));
        QTRY_COMPARE(screenAtPoint(point), colors[0]);
        QVERIFY(moveMouse(point));
        QVERIFY(start());
        settle();
        PipetteWindows::move(screen, point);
        QVERIFY(isSame(QColor(colorName()), colors[0]));
        show(colors[1]);
        QTRY_COMPARE(screenAtPoint(point), darkened(colors[1]));
        QTRY_COMPARE(screenAtPoint(other), darkened(colors[1]));
        if (isNextPick) {
            m_pipette->stopPicking();
            m_pipette->startPicking();
        }
        for (const QPoint& place : {point, other}) {
            PipetteWindows::move(screen, place);
            QVERIFY2(isSame(QColor(colorName()), colors[1]), qPrintable(colorName()));
        }
        const QRect loupe(other - QPoint(0, loupeSize), QSize(loupeSize, loupeSize));
        const auto isLoupeSeen = [&] {
            for (int y = loupe.top(); y <= loupe.bottom(); ++y) {
                if (screenAtPoint({loupe.center().x(), y}) != darkened(colors[1])) {
                    return true;
                }
            }
            return false;
        };
        QTRY_VERIFY(isLoupeSeen());
        PipetteWindows::move(screen, loupe.center());
        QVERIFY2(isSame(QColor(colorName()), colors[1]), qPrintable(colorName()));
        release(screen, point);
        QVERIFY(isSame(m_pipette->currentColor(), colors[1]));
    }

    void loupeChangesTheScreen()
    {
        const auto screens = QGuiApplication::screens();
        if (screens.size() < 2) {
            return;
        }
        const QPoint first = screens.at(0)->geometry().center();
        const QPoint second = screens.at(1)->geometry().center();
        QVERIFY(moveMouse(first));
        QVERIFY(start());
        for (const QPoint& point : {second, first, second}) {
            QVERIFY(moveMouse(point));
            QTRY_COMPARE(loupePlace(), QRect(point - QPoint(0, loupeSize), QSize(loupeSize, loupeSize)));
            // Not on the other one any more.
            const QPoint other = point == first ? second : first;
            const QPoint inOther = other + QPoint(loupeSize / 2, -loupeSize / 2);
            QTRY_COMPARE(darkened(screenAtPoint(inOther)), darkened(darkened(patternAt(inOther))));
            QCOMPARE(mistakeAt(point), QString());
        }
    }

    // As long as another screen has the focus some window managers have a full-screen window above everything
    // else on its own screen.
    void fullScreenWindowIsPickedFrom()
    {
        const auto screens = QGuiApplication::screens();
        const QScreen* const screen = screens.last();
        PixelPattern film;
        QVERIFY(film.show(QRect(screen->geometry().topLeft() + QPoint(30, 40), QSize(200, 100)),
                          PixelPattern::Window::FullScreen));
        QVERIFY(PixelPattern::activate());
        QTRY_VERIFY(!m_host->isActiveWindow());
        QVERIFY(RealInput::showAndActivate(m_host.get()));
        for (const QPoint& point :
             {screen->geometry().topLeft() + QPoint(10, 10), screen->geometry().center()}) {
            QVERIFY(moveMouse(screens.first()->geometry().center()));
            m_pipette->startPicking();
            QTRY_VERIFY(isCovered(screens.first()));
            QVERIFY(moveMouse(point));
            QTRY_VERIFY(isCovered(screen));
            QTRY_VERIFY(loupePlace().isValid());
            QVERIFY(clickAt(point));
        }
    }

    void keysEndWithoutAColor_data()
    {
        QTest::addColumn<QString>("key");
        for (const char* key : {"Escape", "a", "ctrl+s", "F5"}) {
            QTest::newRow(key) << QString::fromLatin1(key);
        }
    }

    void keysEndWithoutAColor()
    {
        QFETCH(QString, key);
        QVERIFY(moveMouse(QGuiApplication::screens().constLast()->geometry().center()));
        QVERIFY(start());
        QTRY_VERIFY(QApplication::focusWidget() && QApplication::focusWidget()->window() != m_host.get());
        QVERIFY(RealInput::key(key));
        QTRY_COMPARE(m_stopped->count(), 1);
        QVERIFY(views().isEmpty());
        // The key arrives in two shapes: whatever was on its way is there once the next one has been typed.
        QTRY_VERIFY(m_host->isActiveWindow());
        QVERIFY(RealInput::key(key));
        QVERIFY(!m_pipette->currentColor().isValid());
        QCOMPARE(m_stopped->count(), 1);
        QCOMPARE(m_selected->count(), 0);
    }

    // Between two windows a slow window manager has the keyboard with nobody, and Qt reports the application
    // inactive.
    void focusMayComeLate()
    {
        const auto manager = static_cast<pid_t>(qEnvironmentVariableIntValue("UIC_WINDOW_MANAGER"));
        QVERIFY(manager > 0);
        QVERIFY(start());
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != m_host.get());
        QVERIFY(managerHasCaughtUp());
        QCOMPARE(kill(manager, SIGSTOP), 0);
        const auto goOn = qScopeGuard([manager] { kill(manager, SIGCONT); });
        const QString root = QStringLiteral(
            "xdotool windowfocus $(xwininfo -root | sed -n 's/.*Window id: \\(0x[0-9a-f]*\\).*/\\1/p')");
        QCOMPARE(QProcess::execute(QStringLiteral("sh"), {QStringLiteral("-c"), root}), 0);
        QTRY_COMPARE(QGuiApplication::applicationState(), Qt::ApplicationInactive);
        QCOMPARE(m_stopped->count(), 0);
        kill(manager, SIGCONT);
        QTRY_COMPARE(QGuiApplication::applicationState(), Qt::ApplicationActive);
        QVERIFY(clickAt(QGuiApplication::screens().constLast()->geometry().center()));
    }

    // Qt has long said that the application is inactive by then.
    void anotherApplicationMayComeLate()
    {
        const auto manager = static_cast<pid_t>(qEnvironmentVariableIntValue("UIC_WINDOW_MANAGER"));
        QVERIFY(manager > 0);
        PixelPattern other;
        QVERIFY(other.show(QRect(m_host->geometry().bottomRight() + QPoint(50, 50), QSize(60, 40)),
                           PixelPattern::Window::Ordinary));
        QVERIFY(RealInput::showAndActivate(m_host.get()));
        QVERIFY(start());
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != m_host.get());
        QVERIFY(managerHasCaughtUp());
        QCOMPARE(kill(manager, SIGSTOP), 0);
        const auto goOn = qScopeGuard([manager] { kill(manager, SIGCONT); });
        QVERIFY(PixelPattern::focus());
        QTRY_COMPARE(QGuiApplication::applicationState(), Qt::ApplicationInactive);
        QCOMPARE(m_stopped->count(), 0);
        kill(manager, SIGCONT);
        QTRY_COMPARE(m_stopped->count(), 1);
        QVERIFY(views().isEmpty());
        QCOMPARE(m_selected->count(), 0);
    }

    // Nobody is in front there, and the views stay where they are.
    void anotherVirtualDesktopEndsThePick()
    {
        const auto goTo = [](const QString& desktop) {
            return RealInput::xdotool(QStringLiteral("set_desktop ") + desktop);
        };
        QVERIFY(start());
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != m_host.get());
        // By itself it says nothing: some window managers set it when the cursor comes to another screen.
        const auto set = [](const QString& desktop) {
            const QString name = QStringLiteral("_NET_CURRENT_DESKTOP");
            return QProcess::execute(QStringLiteral("xprop"),
                                     {QStringLiteral("-root"), QStringLiteral("-f"), name,
                                      QStringLiteral("32c"), QStringLiteral("-set"), name, desktop}) == 0;
        };
        QVERIFY(set(QStringLiteral("1")));
        QVERIFY(!QTest::qWaitFor([this] { return m_stopped->count() > 0; }, 400));
        QVERIFY(set(QStringLiteral("0")));
        QVERIFY(goTo(QStringLiteral("1")));
        auto goBack = qScopeGuard([&goTo] { goTo(QStringLiteral("0")); });
        QTRY_COMPARE(m_stopped->count(), 1);
        goBack.dismiss();
        QVERIFY(goTo(QStringLiteral("0")));
        const QPoint middle = QGuiApplication::screens().constLast()->geometry().center();
        QTRY_COMPARE(screenAtPoint(middle), patternAt(middle));
        QVERIFY(views().isEmpty());
        QCOMPARE(m_selected->count(), 0);
    }

    void activatedWindowOfTheHostStaysActive()
    {
        QVERIFY(moveMouse(QGuiApplication::screens().constLast()->geometry().center()));
        QVERIFY(start());
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != m_host.get());
        QVERIFY(managerHasCaughtUp());
        m_host->activateWindow();
        QTRY_VERIFY(m_host->isActiveWindow());
        QVERIFY(!QTest::qWaitFor([this] { return !m_host->isActiveWindow(); }, 400));
        QCOMPARE(m_stopped->count(), 0);
    }

    void anotherApplicationEndsThePick_data()
    {
        QTest::addColumn<int>("window");
        QTest::newRow("ordinary") << int(PixelPattern::Window::Ordinary);
        // It takes the whole screen from the view, which must not take it back.
        QTest::newRow("full screen") << int(PixelPattern::Window::FullScreen);
    }

    void anotherApplicationEndsThePick()
    {
        QFETCH(int, window);
        PixelPattern other;
        QVERIFY(other.show(QRect(m_host->geometry().bottomRight() + QPoint(50, 50), QSize(60, 40)),
                           static_cast<PixelPattern::Window>(window)));
        QVERIFY(PixelPattern::activate());
        QTRY_VERIFY(!m_host->isActiveWindow());
        QVERIFY(moveMouse(QGuiApplication::primaryScreen()->geometry().center()));
        QVERIFY(RealInput::showAndActivate(m_host.get()));
        QVERIFY(start());
        QTRY_VERIFY(QApplication::activeWindow() && QApplication::activeWindow() != m_host.get());
        QVERIFY(PixelPattern::activate());
        QTRY_COMPARE(m_stopped->count(), 1);
        QVERIFY(views().isEmpty());
        QCOMPARE(m_selected->count(), 0);
    }

    void movedScreenEndsThePick()
    {
        const auto screens = QGuiApplication::screens();
        if (screens.size() < 2) {
            return;
        }
        // The server keeps the desktop's corner where it is.
        const QScreen* const screen =
            *std::max_element(screens.cbegin(), screens.cend(), [](const QScreen* one, const QScreen* other) {
                return one->geometry().x() < other->geometry().x();
            });
        const QPoint place = screen->geometry().topLeft();
        const auto move = [screen](const QPoint& to) {
            return NativeScreens::xrandr({QStringLiteral("--output"), screen->name(), QStringLiteral("--pos"),
                                          QStringLiteral("%1x%2").arg(to.x()).arg(to.y())});
        };
        QVERIFY(start());
        const QPoint moved = place - QPoint(10, 0);
        QVERIFY(move(moved));
        QTRY_COMPARE(screen->geometry().topLeft(), moved);
        QTRY_COMPARE(m_stopped->count(), 1);
        QVERIFY(views().isEmpty());
        QVERIFY(move(place));
        QTRY_COMPARE(screen->geometry().topLeft(), place);
        QCOMPARE(m_stopped->count(), 1);
        QCOMPARE(m_selected->count(), 0);
    }

    void removedScreenEndsThePick()
    {
        const auto screens = QGuiApplication::screens();
        if (screens.size() < 2) {
            return;
        }
        const QString output = screens.last()->name();
        // All of them: the server moves those that remain.
        QStringList layout;
        for (const QScreen* screen : screens) {
            const QRect place = NativeScreens::geometry(screen);
            layout << QStringLiteral("--output") << screen->name() << QStringLiteral("--mode")
                   << QStringLiteral("%1x%2").arg(place.width()).arg(place.height())
                   << QStringLiteral("--pos") << QStringLiteral("%1x%2").arg(place.x()).arg(place.y());
        }
        const int count = screens.size();
        QVERIFY(start());
        QVERIFY(NativeScreens::xrandr({QStringLiteral("--output"), output, QStringLiteral("--off")}));
        QTRY_COMPARE(QGuiApplication::screens().size(), count - 1);
        QTRY_COMPARE(m_stopped->count(), 1);
        QVERIFY(views().isEmpty());

        // The others can be picked from; a new one ends the pick, too.
        QVERIFY(start());
        QVERIFY(NativeScreens::xrandr(layout));
        QTRY_COMPARE(QGuiApplication::screens().size(), count);
        QTRY_COMPARE(m_stopped->count(), 2);
        QVERIFY(views().isEmpty());
        m_pattern.reset();
        m_pattern = std::make_unique<PixelPattern>();
        QVERIFY(m_pattern->show(NativeScreens::desktop()));
        const QPoint point = QGuiApplication::screens().constLast()->geometry().center();
        QVERIFY(start());
        QVERIFY(moveMouseAndClick(point));
        QTRY_COMPARE(m_selected->count(), 1);
        QVERIFY(isSame(m_pipette->currentColor(), patternAt(point)));
    }

private:
    /// Starts a pick, and waits until its windows are painted.
    bool start()
    {
        m_pipette->startPicking();
        return QTest::qWaitFor([] {
            const auto screens = QGuiApplication::screens();
            return std::all_of(screens.cbegin(), screens.cend(), [](const QScreen* screen) {
                const QWidget* const view = viewOf(screen);
                return view && view->windowHandle()->isExposed() &&
                       view->windowHandle()->geometry() == screen->geometry();
            });
        });
    }

    /// Waits until the window manager has done what it was asked to, such as to activate a view: it takes the
    /// host's new title after that.
    bool managerHasCaughtUp()
    {
        static int count = 0;
        const QString title = QStringLiteral("title %1").arg(++count);
        m_host->setWindowTitle(title);
        return QTest::qWaitFor([&] {
            QProcess xprop;
            xprop.start(QStringLiteral("xprop"), {QStringLiteral("-id"), QString::number(m_host->winId()),
                                                  QStringLiteral("_NET_WM_VISIBLE_NAME")});
            return xprop.waitForFinished() && xprop.readAll().contains(title.toUtf8());
        });
    }

    /// Until the pipette reads the screen itself.
    void settle() { QTest::qWait(ScreenGrabber::settleTime + 100); }

    bool clickAt(const QPoint& point)
    {
        const int before = m_stopped->count();
        return moveMouseAndClick(point) &&
               QTest::qWaitFor([this, before] { return m_stopped->count() > before; }) &&
               m_stopped->count() == before + 1 && m_selected->count() == before + 1 &&
               isSame(m_selected->last().at(0).value<QColor>(), patternAt(point));
    }

    /// Where the application has no window.
    QPoint randomPoint(const QRect& within)
    {
        // With its frame, which may not be known yet.
        const QRect taken = m_host->frameGeometry().adjusted(-20, -40, 20, 20);
        QPoint point;
        do {
            point = within.topLeft() +
                    QPoint(m_random.bounded(within.width()), m_random.bounded(within.height()));
        } while (taken.contains(point));
        return point;
    }

    QRandomGenerator m_random{7};
    std::unique_ptr<PixelPattern> m_pattern;
    std::unique_ptr<QWidget> m_host;
    std::unique_ptr<Pipette> m_pipette;
    std::unique_ptr<QSignalSpy> m_selected;
    std::unique_ptr<QSignalSpy> m_stopped;
};

UIC_TEST_MAIN(tst_ScreenPipette)
#include "tst_ScreenPipette.moc"
