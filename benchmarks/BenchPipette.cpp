// What the screen pipette costs, on real screens: those of UIC_SCREENS, see benchmarks/CMakeLists.txt.

#include "Compare.h"

#include <UiComponents/LoupeWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PipetteScreenView.h>
#include <UiComponents/ScreenGrabber.h>

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Bench;

/// The macro works in the global namespace only.
static void initStyles()
{
    Q_INIT_RESOURCE(styles);
}

namespace {

constexpr int loupeSide = 117;
constexpr int updates = 10;
constexpr int trail = 10;
constexpr QSize loupePicture(LoupeWidget::pixels, LoupeWidget::pixels);

/// Where the mouse goes on each screen.
struct Place
{
    QPoint point; // of the screen
    QRgb color;   // too dark for the overlay to change it
    QString name = QColor(color).name();
};

/// Far enough from each other that no loupe is in the other's picture: the pipette never waits.
/// Of all other pixels: each has another color than those around it.
QRgb patternAt(const QPoint& point)
{
    return qRgb(point.x() % 120, point.y() % 120, (point.x() + point.y()) % 100);
}

const std::array<Place, 2> places = {{{{300, 400}, qRgb(90, 20, 60)}, {{900, 700}, qRgb(10, 80, 40)}}};

void require(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(std::string("it does not hold that ") + what);
    }
}

const QString rimmedLoupe = QStringLiteral(
    "LoupeWidget { background: transparent; border: 3px solid gray; border-radius: 58px;"
    " min-width: 111px; max-width: 111px; min-height: 111px; max-height: 111px; }"
    "LoupeWidget > #colorNameLabel { color: white; background: black; margin: 80px 20px 14px 20px; }");

QString darkSheet()
{
    initStyles();
    QFile file(QStringLiteral(":/styles/dark.qss"));
    require(file.open(QIODevice::ReadOnly), "there is a dark sheet");
    return QString::fromUtf8(file.readAll());
}

void waitUntil(const char* what, const std::function<bool()>& condition)
{
    QElapsedTimer waited;
    waited.start();
    QTimer wakes; // for what no event announces
    wakes.start(5);
    while (!condition()) {
        require(waited.elapsed() < 10000, what);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// Until the window manager has come to an end. A window that is closed before it has got the keyboard, and
/// one that is gone, may leave the application without a focus, and Qt looks 100 ms later whether there is
/// one again: that would end the pick of that moment.
void waitUntilAtRest()
{
    QElapsedTimer active;
    active.start();
    waitUntil("a window of the application stays the active one", [&active] {
        if (!QApplication::activeWindow()) {
            active.start();
        }
        return active.elapsed() > 150;
    });
}

QPoint onDesktop(const Place& place, const QScreen* screen)
{
    return screen->geometry().topLeft() + place.point;
}

QPixmap grab(const Place& place, const QSize& size)
{
    const QPoint corner = place.point - QPoint(size.width() / 2, size.height() / 2);
    return QGuiApplication::primaryScreen()->grabWindow(0, corner.x(), corner.y(), size.width(),
                                                        size.height());
}

QByteArray screenLayout()
{
    QStringList layout;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const QRect area = screen->geometry();
        layout +=
            QStringLiteral("%1x%2+%3+%4").arg(area.width()).arg(area.height()).arg(area.x()).arg(area.y());
    }
    return layout.join(QLatin1Char(' ')).toLatin1();
}

/// The application's window below all picks: each place has its colour.
class Background : public QWidget
{
public:
    Background()
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        require(screenLayout() == qgetenv("UIC_SCREENS"), "the screens are those of UIC_SCREENS");
        // One row more, or the window manager might keep it above the others as a full-screen window.
        setGeometry(QGuiApplication::primaryScreen()->virtualGeometry().adjusted(0, 0, 0, 1));
        show();
        waitUntil("the background is on the screens", [] {
            const auto screens = QGuiApplication::screens();
            return std::all_of(screens.begin(), screens.end(), [](QScreen* screen) {
                return std::all_of(places.begin(), places.end(), [screen](const Place& place) {
                    const QImage pixel =
                        screen->grabWindow(0, place.point.x(), place.point.y(), 1, 1).toImage();
                    return pixel.pixelColor(0, 0).name() == place.name;
                });
            });
        });
        activateWindow();
        waitUntilAtRest();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QImage pattern(size(), QImage::Format_RGB32);
        for (int y = 0; y < pattern.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(pattern.scanLine(y));
            for (int x = 0; x < pattern.width(); ++x) {
                line[x] = patternAt(mapToGlobal(QPoint(x, y)));
            }
        }
        painter.drawImage(0, 0, pattern);
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            for (const Place& place : places) {
                const QPoint center = mapFromGlobal(onDesktop(place, screen));
                painter.fillRect(QRect(center - QPoint(100, 100), QSize(200, 200)), QColor(place.color));
            }
        }
    }
};

/// No place of another color is near it.
constexpr QRect walkway(1150, 150, 600, 450);

/// A pipette over the background.
class Pick : public QObject
{
public:
    explicit Pick(std::shared_ptr<Background> background, const QString& sheet = rimmedLoupe)
        : m_background(std::move(background))
    {
        qApp->setStyleSheet(sheet);
        QCursor::setPos(onDesktop(places[0], QGuiApplication::primaryScreen()));
        connect(&m_pipette, &Pipette::colorSelected, this, [this](const QColor& color) {
            stopClock();
            m_selected = color.rgb();
        });
        connect(&m_pipette, &Pipette::pickingStopped, this, [this] { m_isOver = true; });
    }

    void start()
    {
        m_isOver = false;
        m_painted = {};
        m_pipette.startPicking();
        findViews();
    }

    void waitUntilShown()
    {
        waitUntil("all screens are covered", [this] {
            require(!m_isOver, "a pick goes on until it is ended");
            return std::all_of(m_views.begin(), m_views.end(),
                               [this](const QPointer<PipetteScreenView>& view) {
                                   return (QRegion(view->geometry()) - m_painted).isEmpty();
                               });
        });
    }

    /// Until clicks and moves are answered at once.
    void waitUntilSettled()
    {
        waitUntilShown();
        waitUntil("the screens show the pick, and it has the keyboard", [this] {
            require(!m_isOver, "a pick goes on until it is ended");
            return viewAt(QCursor::pos())->isActiveWindow();
        });
        QElapsedTimer settling;
        settling.start();
        waitUntil("the pipette reads the screen itself",
                  [&settling] { return settling.hasExpired(ScreenGrabber::settleTime); });
        waitUntilAtRest();
    }

    void end()
    {
        m_pipette.stopPicking();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // A new one: Qt may take the focus that the window manager gives back to the old one for that of a
        // window that has just been closed, and forget it.
        m_keeper = std::make_unique<QWidget>();
        m_keeper->setGeometry(10, 10, 50, 50);
        m_keeper->show();
        m_keeper->activateWindow();
        waitUntilAtRest();
    }

    /// Updates the loupe for a cursor at the screen's other place.
    void move(const QScreen* screen)
    {
        const Place& place = places[m_at = 1 - m_at];
        const QPoint point = onDesktop(place, screen);
        Q_EMIT viewAt(point)->loupePosChanged(point);
        require(m_name->text() == place.name, "each update of the loupe reads the screen");
    }

    /// Updates the loupe for a cursor that has gone on by @p step.
    void walk(const QPoint& step)
    {
        m_cursor += step;
        if (!walkway.contains(m_cursor)) {
            m_cursor = walkway.center();
        }
        Q_EMIT viewAt(m_cursor)->loupePosChanged(m_cursor);
        require(m_name->text() == QColor(patternAt(m_cursor)).name(),
                "each update of the loupe reads the screen");
    }

    /// Leaves a trail of paintings, as a hand that has moved for a while.
    void prepareWalk(const QPoint& step)
    {
        for (int i = 0; i < trail; ++i) {
            walk(step);
            paintNow();
        }
    }

    /// Moves the mouse from one of the screen's places to the other, with all but the last painting.
    void prepareMove(const QScreen* screen)
    {
        move(screen);
        paintNow();
        m_painted = {};
        move(screen);
    }

    /// Has the same area painted again that a move has painted. The grab waits, as that of a move, until the
    /// server has shown the last painting.
    void preparePlaces(const QScreen* screen)
    {
        prepareMove(screen);
        paintNow();
        m_painted = {};
        PipetteScreenView* const view = viewAt(screen->geometry().topLeft());
        view->viewport()->update(bothPlaces(screen, 0).translated(-view->geometry().topLeft()));
        grab(places[0], loupePicture);
    }

    void prepareEverything()
    {
        paintNow();
        m_painted = {};
        viewAt(QCursor::pos())->viewport()->update();
        grab(places[0], loupePicture);
    }

    /// Paints until nothing is left to be painted.
    void paintNow()
    {
        do {
            m_paintings = 0;
            QCoreApplication::sendPostedEvents();
        } while (m_paintings > 0);
    }

    void checkPlaces(const QScreen* screen)
    {
        const QRegion painted = m_painted;
        QCoreApplication::processEvents();
        require(m_painted == painted && (bothPlaces(screen, 0) - painted).isEmpty(), "all has been painted");
        require((painted - bothPlaces(screen, 2)).isEmpty(), "nothing but the loupe's two places is painted");
    }

    /// Shows the loupe over a point of the primary screen, and goes on.
    void passOver(const QPoint& point)
    {
        const QPoint corner = QGuiApplication::primaryScreen()->geometry().topLeft();
        for (const QPoint& cursor : {point + QPoint(-40, 40), point + QPoint(-300, 100)}) {
            Q_EMIT viewAt(corner + cursor)->loupePosChanged(corner + cursor);
            paintNow();
        }
    }

    void click()
    {
        m_selected = 0;
        const QPoint point = onDesktop(places[1], QGuiApplication::primaryScreen());
        require(!m_isOver, "a pick goes on until it is ended");
        QWidget* const viewport = viewAt(point)->viewport();
        const QPoint local = viewport->mapFromGlobal(point);
        QMouseEvent release(QEvent::MouseButtonRelease, local, local, point, Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &release);
        require(m_selected == places[1].color, "a click picks the colour at once");
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++m_paintings;
            const auto* viewport = static_cast<QWidget*>(watched);
            m_painted +=
                static_cast<QPaintEvent*>(event)->region().translated(viewport->mapToGlobal(QPoint(0, 0)));
        }
        return false;
    }

private:
    void findViews()
    {
        m_views.clear();
        const auto widgets = QApplication::allWidgets();
        for (QWidget* widget : widgets) {
            if (auto* view = qobject_cast<PipetteScreenView*>(widget)) {
                m_views.emplace_back(view);
                view->viewport()->installEventFilter(this);
            }
            if (auto* loupe = qobject_cast<LoupeWidget*>(widget)) {
                m_name = loupe->findChild<QLabel*>(QStringLiteral("colorNameLabel"));
            }
        }
        require(m_views.size() == static_cast<std::size_t>(QGuiApplication::screens().size()) && m_name,
                "each screen has a view");
    }

    PipetteScreenView* viewAt(const QPoint& point) const
    {
        const auto found = std::find_if(m_views.begin(), m_views.end(), [point](const auto& view) {
            return view && view->geometry().contains(point);
        });
        require(found != m_views.end(), "there is a view at each point of a screen");
        return *found;
    }

    /// The loupe sits above right of the mouse.
    static QRegion bothPlaces(const QScreen* screen, int around)
    {
        QRegion both;
        for (const Place& place : places) {
            const QPoint corner = onDesktop(place, screen) - QPoint(0, loupeSide);
            both += QRect(corner, QSize(loupeSide, loupeSide)).adjusted(-around, -around, around, around);
        }
        return both;
    }

    const std::shared_ptr<Background> m_background;
    std::unique_ptr<QWidget> m_keeper; // of the keyboard between two picks
    Pipette m_pipette;
    std::vector<QPointer<PipetteScreenView>> m_views;
    QPointer<QLabel> m_name;
    QRegion m_painted; // of the desktop
    int m_paintings = 0;
    std::size_t m_at = 0;
    QPoint m_cursor = walkway.center();
    QRgb m_selected = 0;
    bool m_isOver = true;
};

/// Windows of the same places and contents, for comparison.
class PlainWindows
{
public:
    explicit PlainWindows(std::shared_ptr<Background> background)
        : m_background(std::move(background))
    {
    }

    void start()
    {
        const auto screens = QGuiApplication::screens();
        for (const QScreen* screen : screens) {
            m_windows.push_back(std::make_unique<Window>());
            m_windows.back()->setGeometry(screen->geometry());
            m_windows.back()->show();
        }
        m_windows.front()->raise();
        m_windows.front()->activateWindow();
        waitUntil("plain windows cover all screens", [this] {
            return std::all_of(m_windows.begin(), m_windows.end(),
                               [](const std::unique_ptr<Window>& window) { return window->isPainted; });
        });
    }

    void end()
    {
        waitUntilAtRest();
        m_windows.clear();
        waitUntilAtRest();
    }

private:
    class Window : public QWidget
    {
    public:
        Window()
            : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
        {
            setAttribute(Qt::WA_TranslucentBackground);
        }

        bool isPainted = false;

    protected:
        void paintEvent(QPaintEvent*) override
        {
            QPainter(this).fillRect(rect(), ScreenGrabber::overlayColor());
            isPainted = true;
        }
    };

    const std::shared_ptr<Background> m_background;
    std::vector<std::unique_ptr<Window>> m_windows;
};

std::shared_ptr<Pick> settledPick(const QString& sheet = rimmedLoupe)
{
    auto pick = std::make_shared<Pick>(std::make_shared<Background>(), sheet);
    pick->start();
    pick->waitUntilSettled();
    return pick;
}

Side moves(const std::shared_ptr<Pick>& pick, const QScreen* screen)
{
    return {[pick] { pick->paintNow(); }, [pick, screen] { pick->prepareMove(screen); },
            [pick, screen] { pick->checkPlaces(screen); }};
}

/// Many at a time: the first one after a painting finds the caches full of that.
Side manyOf(const std::function<void()>& run)
{
    return {[run] {
        for (int i = 0; i < updates; ++i) {
            run();
        }
    }};
}

Pair loupeUpdate(const QString& sheet, const QPoint& step)
{
    const auto pick = settledPick(sheet);
    const auto prepare = [pick, step] { pick->prepareWalk(step); };
    return {{manyOf([pick, step] { pick->walk(step); }).run, prepare},
            {manyOf([step, at = walkway.center()]() mutable {
                 at = walkway.contains(at + step) ? at + step : walkway.center();
                 QGuiApplication::primaryScreen()->grabWindow(0, at.x() - 6, at.y() - 6, 13, 13);
             }).run,
             prepare},
            updates};
}

Pair twoGrabs()
{
    return {manyOf([at = 0U]() mutable {
                const Place& place = places[at = 1 - at];
                grab(place, loupePicture);
                grab(place, {1, 1});
            }),
            manyOf([at = 0U]() mutable { grab(places[at = 1 - at], loupePicture); }), updates};
}

Pair loupeMove()
{
    const auto pick = settledPick();
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return {moves(pick, screen),
            {[pick] { pick->paintNow(); }, [pick, screen] { pick->preparePlaces(screen); },
             [pick, screen] { pick->checkPlaces(screen); }}};
}

Pair wholeRepaint()
{
    const auto pick = settledPick();
    return {moves(pick, QGuiApplication::primaryScreen()),
            {[pick] { pick->paintNow(); }, [pick] { pick->prepareEverything(); }}};
}

Pair moveOnALargeScreen()
{
    const auto pick = settledPick();
    const auto screens = QGuiApplication::screens();
    return {moves(pick, screens.at(0)), moves(pick, screens.at(1))};
}

Pair start()
{
    auto background = std::make_shared<Background>();
    auto pick = std::make_shared<Pick>(background);
    auto windows = std::make_shared<PlainWindows>(background);
    return {{[pick] {
                 pick->start();
                 pick->waitUntilShown();
             },
             {},
             [pick] { pick->end(); }},
            {[windows] { windows->start(); }, {}, [windows] { windows->end(); }}};
}

enum class Moment { AtOnce, AtRest, WhereTheLoupeWas };

Pair click(Moment moment)
{
    auto pick = std::make_shared<Pick>(std::make_shared<Background>());
    const auto before = [pick, moment] {
        pick->start();
        if (moment == Moment::AtOnce) {
            pick->waitUntilShown();
            return;
        }
        pick->waitUntilSettled();
        if (moment == Moment::WhereTheLoupeWas) {
            pick->passOver(places[1].point);
        }
    };
    const auto after = [pick] { pick->end(); };
    return {{[pick] { pick->click(); }, before, after}, {[] { grab(places[1], {1, 1}); }, before, after}};
}

void addUpdates()
{
    const std::pair<const char*, QString> sheets[] = {
        {"no sheet", QString()}, {"the dark sheet", darkSheet()}, {"a sheet with a rim", rimmedLoupe}};
    const QPoint directions[] = {QPoint(1, 0),  QPoint(1, 1),   QPoint(0, 1),  QPoint(-1, 1),
                                 QPoint(-1, 0), QPoint(-1, -1), QPoint(0, -1), QPoint(1, -1)};
    for (const auto& [name, sheet] : sheets) {
        for (const int speed : {1, 10, 40}) {
            for (const QPoint& direction : directions) {
                const QPoint step = direction * speed;
                const std::string path = "pipette/update of the loupe by (" + std::to_string(step.x()) +
                                         ", " + std::to_string(step.y()) + ") under " + name +
                                         ", against one grab of 13 x 13";
                addRow(path, atMost(1.1), [sheet = sheet, step] { return loupeUpdate(sheet, step); });
            }
        }
    }
}

void addClicks(const std::string& screens)
{
    const std::pair<const char*, Moment> moments[] = {{"at once after the start", Moment::AtOnce},
                                                      {"at rest", Moment::AtRest},
                                                      {"where the loupe was", Moment::WhereTheLoupeWas}};
    for (const auto& [name, moment] : moments) {
        addRow("pipette/release until colorSelected on " + screens + ", " + name + ", against one grab",
               atMost(1.2), [moment = moment] { return click(moment); });
    }
}

bool addRows(const QByteArray& layout)
{
    const int screens = layout.split(' ').size();
    if (layout.startsWith("3840x2160")) {
        if (screens == 1) {
            addRow("pipette/start until 3840 x 2160 is covered, against a plain window", atMost(2.0), &start);
        } else {
            addRow("pipette/move of the loupe on 3840 x 2160, against 1920 x 1080", atMost(1.15),
                   &moveOnALargeScreen);
        }
        return true;
    }
    if (screens == 1) {
        addUpdates();
        addRow("pipette/two grabs, of 13 x 13 and of 1 x 1, against one of 13 x 13", noGoal(), &twoGrabs);
        addRow("pipette/move of the loupe, against painting its two places", atMost(1.2), &loupeMove);
        addRow("pipette/move of the loupe, against painting the screen", noGoal(), &wholeRepaint);
    }
    const std::string count = std::to_string(screens) + (screens == 1 ? " screen" : " screens");
    addRow("pipette/start until " + count + " of 1920 x 1080 covered, against plain windows", atMost(2.0),
           &start);
    addClicks(count);
    return true;
}

const bool rowsAdded = qEnvironmentVariableIsSet("UIC_SCREENS") && addRows(qgetenv("UIC_SCREENS"));

} // namespace
