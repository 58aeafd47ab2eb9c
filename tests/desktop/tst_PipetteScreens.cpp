#include "NativeScreens.h"
#include "PipetteWindows.h"
#include "PixelPattern.h"
#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/Pipette.h>

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QProcess>
#include <QRandomGenerator>
#include <QScreen>

#include <algorithm>
#include <cmath>

/**
 * The pipette over another application's pixels, on screens of several sizes, places and scales: the colour
 * is that of the very pixel, and the loupe shows its neighbours. Each run is on other screens.
 */
class tst_PipetteScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyScreenIsCovered();
    void pickedPixelIsTheVeryPixel();
    void cornersOfEveryScreen();
    void loupeShowsTheNeighbours();
    void labelIsThePixelByItself();
    void loupeMovesIntoItsOwnPlace();
    void loupeStaysOnItsScreen();
    void loupeChangesTheScreen();
    void fullScreenWindowIsPickedFrom();
    void escapeEndsWithoutAColour();
    void anyKeyEndsWithoutAColour();
    void anotherApplicationEndsThePick_data();
    void anotherApplicationEndsThePick();
    void movedScreenEndsThePick();
    void removedScreenEndsThePick();

private:
    bool start();
    bool pick(const QPoint& point);
    bool pickOnEach(const std::function<QVector<QPoint>(const QScreen*)>& pointsOf);

    std::unique_ptr<PixelPattern> m_pattern;
    std::unique_ptr<QWidget> m_host;
    std::unique_ptr<Pipette> m_pipette;
};

namespace {

constexpr int LoupePixels = 13;
constexpr int Magnification = 9;
constexpr int LoupeSize = LoupePixels * Magnification;

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

/// Whether @p picked is what can be known of @p color: below the pipette's windows 127 and 128 are the same.
bool isPickOf(const QColor& picked, QRgb color)
{
    return picked.alpha() == 255 && darkened(picked.rgb()) == darkened(color);
}

QRgb screenAtPoint(const QPoint& point)
{
    QScreen* screen = QGuiApplication::screenAt(point);
    const QPoint local = point - screen->geometry().topLeft();
    return screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage().pixel(0, 0);
}

QWidget* loupe()
{
    const auto all = QApplication::allWidgets();
    const auto found = std::find_if(all.cbegin(), all.cend(),
                                    [](const QWidget* widget) { return widget->inherits("LoupeWidget"); });
    return found == all.cend() ? nullptr : *found;
}

/// Where the loupe is, in global coordinates; null while it is hidden.
QRect loupeRect()
{
    const QWidget* widget = loupe();
    const QGraphicsProxyWidget* proxy = widget ? widget->graphicsProxyWidget() : nullptr;
    return proxy && proxy->isVisible() ? proxy->sceneBoundingRect().toRect() : QRect();
}

/// @p seen, an opaque pixel of the screen, as it is without the pipette's windows.
QColor uncovered(QRgb seen)
{
    constexpr double Factor = 255.0 / 254.0;
    const QColor color(seen);
    return QColor::fromRgbF(color.redF() * Factor, color.greenF() * Factor, color.blueF() * Factor);
}

bool isCovered(const QScreen* screen)
{
    // The loupe may lie over one of two places that are further apart than it is large.
    const QRect area = screen->geometry();
    const QPoint places[] = {area.topLeft() + QPoint(5, 5), area.bottomLeft() + QPoint(5, -5)};
    return std::any_of(std::begin(places), std::end(places), [](QPoint point) {
        // The first pixel whose colour shows whether something dark lies over it.
        while (darkened(patternAt(point)) == patternAt(point)) {
            point.rx() += 1;
        }
        return screenAtPoint(point) == darkened(patternAt(point));
    });
}

bool allAreCovered()
{
    const auto screens = QGuiApplication::screens();
    return std::all_of(screens.cbegin(), screens.cend(), isCovered);
}

bool noneIsCovered()
{
    const auto screens = QGuiApplication::screens();
    return std::none_of(screens.cbegin(), screens.cend(), isCovered);
}

/// The first pixel that the loupe, as it stands on the screen, shows in another colour than the pattern has
/// around @p cursor; empty when there is none.
QString firstWrongPixel(const QPoint& cursor)
{
    QScreen* screen = QGuiApplication::screenAt(cursor);
    const qreal scale = screen->devicePixelRatio();
    const QPoint corner = screen->geometry().topLeft();
    const QRect place = loupeRect().translated(-corner);
    const QImage seen = screen->grabWindow(0, place.x(), place.y(), place.width(), place.height()).toImage();
    const QPoint origin = (QPointF(place.topLeft()) * scale).toPoint();
    const QPoint first =
        corner + (QPointF(cursor - corner - QPoint(LoupePixels / 2, LoupePixels / 2)) * scale).toPoint();
    // The picture is of so many of the screen's own pixels, and each is drawn as a square of this size.
    const int pixels = qRound(LoupePixels * scale);
    const double side = LoupeSize * scale / pixels;
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            // Well inside of the circle.
            if (std::hypot(x + 0.5 - pixels / 2.0, y + 0.5 - pixels / 2.0) > pixels / 2.0 - 2 * scale) {
                continue;
            }
            const QPoint middle(int(place.x() * scale + (x + 0.5) * side) - origin.x(),
                                int(place.y() * scale + (y + 0.5) * side) - origin.y());
            if (seen.pixel(middle) != darkened(PixelPattern::colorAt(first.x() + x, first.y() + y))) {
                return QStringLiteral("%1, %2").arg(x).arg(y);
            }
        }
    }
    return {};
}

// The pipette goes on meanwhile, as it does for a user: Qt takes a focus that is back within a tenth of a
// second for one that never went, unless it did not get to see that, and a focus that goes ends a pick.
bool xdotool(const QStringList& arguments)
{
    constexpr int LongForATool = 30000;
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    return process.waitForStarted() &&
           QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, LongForATool) &&
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

bool clickMouse()
{
    return xdotool({QStringLiteral("click"), QStringLiteral("1")});
}

/// Before any program can follow the move.
bool moveMouseAndClick(const QPoint& global)
{
    return xdotool(moving(global) << QStringLiteral("click") << QStringLiteral("1"));
}

/// The points of @p screen that are not under the test's own window.
bool isFree(const QPoint& point, const QWidget& host)
{
    return !host.frameGeometry().adjusted(-2, -2, 2, 2).contains(point);
}

} // namespace

void tst_PipetteScreens::initTestCase()
{
    qRegisterMetaType<Qt::ApplicationState>();
    QVERIFY(QGuiApplication::screens().size() > 1);
    qApp->setStyleSheet(QStringLiteral("LoupeWidget { min-width: %1px; max-width: %1px; min-height: %1px;"
                                       " max-height: %1px; background: transparent; border: none; }"
                                       "LoupeWidget QLabel { color: transparent; background: transparent; }")
                            .arg(LoupeSize));
}

void tst_PipetteScreens::init()
{
    m_pattern = std::make_unique<PixelPattern>();
    QVERIFY(m_pattern->show(NativeScreens::desktop()));
    m_host = std::make_unique<QWidget>();
    const QRect primary = QGuiApplication::primaryScreen()->geometry();
    m_host->setGeometry(QRect(primary.topLeft() + QPoint(150, 150), QSize(100, 60)));
    QVERIFY(RealInput::showAndActivate(m_host.get()));
    m_pipette = std::make_unique<Pipette>();
}

void tst_PipetteScreens::cleanup()
{
    m_pipette.reset();
    m_host.reset();
    m_pattern.reset();
    QTRY_VERIFY(pipetteWindows().isEmpty());
}

/// Starts a pick and waits until it can be seen.
bool tst_PipetteScreens::start()
{
    // The compositor may still show the overlays of the last pick, and the window manager may not have given
    // the focus back yet: a change of it ends a pick.
    const auto isActive = [this] { return m_host->isActiveWindow(); };
    constexpr int LongForAWindowManager = 1000;
    if (!QTest::qWaitFor(noneIsCovered) ||
        !(QTest::qWaitFor(isActive, LongForAWindowManager) || RealInput::showAndActivate(m_host.get()))) {
        return false;
    }
    m_pipette->startPicking();
    return QTest::qWaitFor(allAreCovered);
}

/// Picks the colour at @p point and says whether it is the right one. Where a window manager takes a tenth of
/// a second to hand the focus from one window to the next, Qt has the application inactive meanwhile, and
/// that ends the pick: it is begun again.
bool tst_PipetteScreens::pick(const QPoint& point)
{
    constexpr int MostStarts = 4;
    for (int starts = 0; starts < MostStarts; ++starts) {
        const QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
        const QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
        const QSignalSpy states(qGuiApp, &QGuiApplication::applicationStateChanged);
        const bool isDone = start() && moveMouse(point) && clickMouse() &&
                            QTest::qWaitFor([&stopped] { return stopped.count() == 1; });
        if (stopped.count() == 1 && selected.isEmpty() && !states.isEmpty()) {
            qInfo() << "the focus came late at" << point;
            continue;
        }
        if (!isDone || selected.count() != 1) {
            qInfo() << "no pick at" << point << selected.count() << stopped.count();
            return false;
        }
        const auto picked = selected.at(0).at(0).value<QColor>();
        const bool isRight = isPickOf(picked, patternAt(point)) && m_pipette->currentColor() == picked;
        if (!isRight) {
            qInfo() << "at" << point << "picked" << picked.name() << "instead of"
                    << QColor(patternAt(point)).name();
        }
        return isRight;
    }
    return false;
}

bool tst_PipetteScreens::pickOnEach(const std::function<QVector<QPoint>(const QScreen*)>& pointsOf)
{
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QVector<QPoint> points = pointsOf(screen);
        for (const QPoint& point : points) {
            if (!pick(point)) {
                return false;
            }
        }
    }
    return true;
}

void tst_PipetteScreens::everyScreenIsCovered()
{
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        QVERIFY(moveMouse(screen->geometry().center()));
        QVERIFY(start());
        QCOMPARE(pipetteWindows().size(), screens.size());
        // A window manager may have moved a view that returns.
        QTRY_VERIFY(std::all_of(screens.cbegin(), screens.cend(), [](const QScreen* other) {
            const QWidgetList all = pipetteWindows();
            return std::any_of(all.cbegin(), all.cend(), [other](const QWidget* view) {
                return view->geometry() == other->geometry();
            });
        }));
        // The one under the cursor has the keyboard.
        QTRY_VERIFY(QApplication::activeWindow() &&
                    QApplication::activeWindow()->geometry() == screen->geometry());
        m_pipette->stopPicking();
        QTRY_VERIFY(pipetteWindows().isEmpty());
    }
}

void tst_PipetteScreens::pickedPixelIsTheVeryPixel()
{
    constexpr int PicksPerScreen = 100;
    QRandomGenerator random(4);
    QVERIFY(pickOnEach([&random, this](const QScreen* screen) {
        QVector<QPoint> points;
        while (points.size() < PicksPerScreen) {
            const QPoint point =
                screen->geometry().topLeft() +
                QPoint(random.bounded(screen->size().width()), random.bounded(screen->size().height()));
            if (isFree(point, *m_host)) {
                points.append(point);
            }
        }
        return points;
    }));
}

void tst_PipetteScreens::cornersOfEveryScreen()
{
    QVERIFY(pickOnEach([](const QScreen* screen) {
        const QRect area = screen->geometry();
        return QVector<QPoint>{area.topLeft(),
                               area.topRight(),
                               area.bottomLeft(),
                               area.bottomRight(),
                               QPoint(area.center().x(), area.top() + 1),
                               QPoint(area.right() - 1, area.center().y())};
    }));
}

void tst_PipetteScreens::loupeShowsTheNeighbours()
{
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect area = screen->geometry();
        // Where the loupe lies above right, and where it lies below left over the cursor's own pixels.
        for (const QPoint& cursor : {area.center(), QPoint(area.right() - 20, area.top() + 20)}) {
            QVERIFY(start());
            QVERIFY(moveMouse(cursor));
            QTRY_VERIFY(loupeRect().isValid());
            QTRY_COMPARE(firstWrongPixel(cursor), QString());
            m_pipette->stopPicking();
            QTRY_VERIFY(pipetteWindows().isEmpty());
        }
    }
}

// The label is made from the loupe's picture: the pixel in its middle has to be that of a grab of its own,
// which a fractional scale rounds in another way.
void tst_PipetteScreens::labelIsThePixelByItself()
{
    constexpr int PlacesPerScreen = 12;
    QRandomGenerator random(5);
    const auto screens = QGuiApplication::screens();
    QVERIFY(start());
    for (const QScreen* screen : screens) {
        const QRect inner = screen->geometry().adjusted(7, LoupeSize + 7, -LoupeSize - 7, -7);
        for (int i = 0; i < PlacesPerScreen; ++i) {
            const QPoint cursor =
                inner.topLeft() + QPoint(random.bounded(inner.width()), random.bounded(inner.height()));
            QVERIFY(moveMouse(cursor));
            QTRY_VERIFY(loupeRect().isValid() && loupeRect().bottomLeft() == cursor - QPoint(0, 1));
            const auto* label = loupe()->findChild<QLabel*>(QStringLiteral("colorNameLabel"));
            QTRY_COMPARE(label->text(), uncovered(screenAtPoint(cursor)).name());
        }
    }
}

void tst_PipetteScreens::loupeMovesIntoItsOwnPlace()
{
    // Straight into where the loupe stands, and a click as soon as the cursor is there.
    const QPoint from = QGuiApplication::screens().last()->geometry().center();
    for (const QPoint& step : {QPoint(30, -30), QPoint(60, -60), QPoint(7, -7), QPoint(100, -10)}) {
        QVERIFY(start());
        QVERIFY(moveMouse(from));
        QTRY_VERIFY(loupeRect().contains(from + QPoint(30, -30)));
        QTRY_VERIFY(screenAtPoint(from + QPoint(58, -58)) != darkened(patternAt(from + QPoint(58, -58))));
        const QPoint to = from + step;
        const QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
        QVERIFY(moveMouseAndClick(to));
        QTRY_COMPARE(selected.count(), 1);
        QVERIFY(isPickOf(selected.at(0).at(0).value<QColor>(), patternAt(to)));
        QTRY_VERIFY(pipetteWindows().isEmpty());
    }
}

void tst_PipetteScreens::loupeStaysOnItsScreen()
{
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect area = screen->geometry();
        QVERIFY(start());
        const QSize size(LoupeSize, LoupeSize);
        const auto isAt = [size](const QPoint& corner) { return loupeRect() == QRect(corner, size); };

        const QPoint middle = area.center();
        QVERIFY(moveMouse(middle));
        QTRY_VERIFY(isAt(middle - QPoint(0, LoupeSize)));
        const QPoint right(area.right() - 10, middle.y());
        QVERIFY(moveMouse(right));
        QTRY_VERIFY(isAt(right - QPoint(LoupeSize, LoupeSize)));
        const QPoint top(middle.x(), area.top() + 10);
        QVERIFY(moveMouse(top));
        QTRY_VERIFY(isAt(top));
        const QPoint corner(area.right() - 10, area.top() + 10);
        QVERIFY(moveMouse(corner));
        QTRY_VERIFY(isAt(corner - QPoint(LoupeSize, 0)));
        m_pipette->stopPicking();
        QTRY_VERIFY(pipetteWindows().isEmpty());
    }
}

void tst_PipetteScreens::loupeChangesTheScreen()
{
    const QPoint first = QGuiApplication::screens().at(0)->geometry().center();
    const QPoint second = QGuiApplication::screens().at(1)->geometry().center();
    QVERIFY(moveMouse(first));
    QVERIFY(start());
    const QSize size(LoupeSize, LoupeSize);
    for (const QPoint& point : {second, first, second}) {
        QVERIFY(moveMouse(point));
        QTRY_COMPARE(loupeRect(), QRect(point - QPoint(0, LoupeSize), size));
        // Not on the other one any more.
        const QPoint other = point == first ? second : first;
        const QPoint inOther = other + QPoint(LoupeSize / 2, -LoupeSize / 2);
        QTRY_COMPARE(screenAtPoint(inOther), darkened(patternAt(inOther)));
    }
}

void tst_PipetteScreens::fullScreenWindowIsPickedFrom()
{
    const QScreen* screen = QGuiApplication::screens().last();
    PixelPattern film;
    QVERIFY(film.show(QRect(screen->geometry().topLeft() + QPoint(30, 40), QSize(200, 100)),
                      PixelPattern::Window::FullScreen));
    QVERIFY(PixelPattern::activate());
    QTRY_VERIFY(!m_host->isActiveWindow());
    QVERIFY(RealInput::showAndActivate(m_host.get()));
    // As long as another screen has the focus some window managers put a full-screen window above everything
    // else on its own screen: the view there has to come to the cursor.
    const QPoint elsewhere = QGuiApplication::screens().first()->geometry().center();
    for (const QPoint& point : {screen->geometry().topLeft() + QPoint(10, 10), screen->geometry().center()}) {
        QVERIFY(moveMouse(elsewhere));
        QTRY_VERIFY(noneIsCovered());
        const QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
        m_pipette->startPicking();
        QTRY_VERIFY(isCovered(QGuiApplication::screens().first()));
        QVERIFY(moveMouse(point));
        QTRY_VERIFY(isCovered(screen));
        QTRY_VERIFY(loupeRect().isValid());
        QVERIFY(clickMouse());
        QTRY_COMPARE(selected.count(), 1);
        QVERIFY(isPickOf(selected.at(0).at(0).value<QColor>(), patternAt(point)));
        QTRY_VERIFY(pipetteWindows().isEmpty());
    }
}

void tst_PipetteScreens::escapeEndsWithoutAColour()
{
    const QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
    const QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
    QVERIFY(moveMouse(QGuiApplication::screens().last()->geometry().center()));
    QVERIFY(start());
    QTRY_VERIFY(QApplication::focusWidget());
    QVERIFY(RealInput::key(QStringLiteral("Escape")));
    QTRY_COMPARE(stopped.count(), 1);
    QTRY_VERIFY(pipetteWindows().isEmpty());
    // The key arrives in two shapes: whatever was on its way is there once the next one has been typed.
    QTRY_VERIFY(m_host->isActiveWindow());
    QVERIFY(RealInput::key(QStringLiteral("Escape")));
    QVERIFY(!m_pipette->currentColor().isValid());
    QCOMPARE(stopped.count(), 1);
    QCOMPARE(selected.count(), 0);
}

void tst_PipetteScreens::anyKeyEndsWithoutAColour()
{
    const QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
    QVERIFY(start());
    QTRY_VERIFY(QApplication::focusWidget());
    QVERIFY(RealInput::key(QStringLiteral("ctrl+s")));
    QTRY_COMPARE(stopped.count(), 1);
    QVERIFY(!m_pipette->currentColor().isValid());
}

void tst_PipetteScreens::anotherApplicationEndsThePick_data()
{
    QTest::addColumn<int>("window");
    QTest::newRow("ordinary") << int(PixelPattern::Window::Ordinary);
    // It takes the whole screen from the view, which must not take it back.
    QTest::newRow("full screen") << int(PixelPattern::Window::FullScreen);
}

void tst_PipetteScreens::anotherApplicationEndsThePick()
{
    QFETCH(int, window);
    PixelPattern other;
    QVERIFY(other.show(QRect(m_host->geometry().bottomRight() + QPoint(50, 50), QSize(60, 40)),
                       static_cast<PixelPattern::Window>(window)));
    QVERIFY(PixelPattern::activate());
    QTRY_VERIFY(!m_host->isActiveWindow());
    QVERIFY(moveMouse(QGuiApplication::primaryScreen()->geometry().center()));
    QVERIFY(RealInput::showAndActivate(m_host.get()));
    const QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
    const QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
    QVERIFY(start());
    QTRY_VERIFY(QApplication::activeWindow());
    QVERIFY(PixelPattern::activate());
    QTRY_COMPARE(stopped.count(), 1);
    QTRY_VERIFY(pipetteWindows().isEmpty());
    QCOMPARE(selected.count(), 0);
}

void tst_PipetteScreens::movedScreenEndsThePick()
{
    // The server keeps the desktop's corner where it is.
    const auto screens = QGuiApplication::screens();
    const QScreen* screen =
        *std::max_element(screens.cbegin(), screens.cend(), [](const QScreen* one, const QScreen* other) {
            return one->geometry().x() < other->geometry().x();
        });
    const QPoint place = screen->geometry().topLeft();
    const auto move = [screen](const QPoint& to) {
        return NativeScreens::xrandr({QStringLiteral("--output"), screen->name(), QStringLiteral("--pos"),
                                      QStringLiteral("%1x%2").arg(to.x()).arg(to.y())});
    };
    const QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
    const QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
    QVERIFY(start());
    const QPoint moved = place - QPoint(10, 0);
    QVERIFY(move(moved));
    QTRY_COMPARE(screen->geometry().topLeft(), moved);
    QTRY_COMPARE(stopped.count(), 1);
    QTRY_VERIFY(pipetteWindows().isEmpty());
    QVERIFY(move(place));
    QTRY_COMPARE(screen->geometry().topLeft(), place);
    QCOMPARE(stopped.count(), 1);
    QCOMPARE(selected.count(), 0);
}

void tst_PipetteScreens::removedScreenEndsThePick()
{
    const QString output = QGuiApplication::screens().last()->name();
    // All of them: the server moves those that remain.
    QStringList layout;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect place = NativeScreens::geometry(screen);
        layout << QStringLiteral("--output") << screen->name() << QStringLiteral("--mode")
               << QStringLiteral("%1x%2").arg(place.width()).arg(place.height()) << QStringLiteral("--pos")
               << QStringLiteral("%1x%2").arg(place.x()).arg(place.y());
    }
    const int count = QGuiApplication::screens().size();

    const QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
    QVERIFY(start());
    QVERIFY(NativeScreens::xrandr({QStringLiteral("--output"), output, QStringLiteral("--off")}));
    QTRY_COMPARE(QGuiApplication::screens().size(), count - 1);
    QTRY_COMPARE(stopped.count(), 1);
    QTRY_VERIFY(pipetteWindows().isEmpty());

    // The others can be picked from; a new one ends the pick, too.
    QVERIFY(start());
    QVERIFY(NativeScreens::xrandr(layout));
    QTRY_COMPARE(QGuiApplication::screens().size(), count);
    QTRY_COMPARE(stopped.count(), 2);
    QTRY_VERIFY(pipetteWindows().isEmpty());
    m_pattern.reset();
    m_pattern = std::make_unique<PixelPattern>();
    QVERIFY(m_pattern->show(NativeScreens::desktop()));
    QVERIFY(pick(QGuiApplication::screens().last()->geometry().center()));
}

UIC_TEST_MAIN(tst_PipetteScreens)
#include "tst_PipetteScreens.moc"
