#include "Pipette.h"

#include "LoupePlacement.h"
#include "LoupeWidget.h"
#include "PipetteScreenView.h"
#include "ScreenSample.h"

#include <QtUtility/PrivacyAccess.h>

#include <QApplication>
#include <QCursor>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QList>
#include <QLoggingCategory>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QVector>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <utility>

Q_LOGGING_CATEGORY(logPipette, "uicomponents.pipette", QtWarningMsg)

namespace {

// How long anything waits for the screen, in milliseconds, and how often it looks meanwhile.
constexpr int longestWait = 600;
constexpr int lookInterval = 8;

// How often the pipette looks whether the cursor is on one of its windows, in milliseconds, how often it has
// to miss it there, and how often in a row it then brings a window to the cursor. When the user has made
// another application the active one, Qt says so within 100 ms, and the pick is over before.
constexpr int followInterval = 50;
constexpr int missesBeforeFollowing = 3;
constexpr int mostFollows = 10;

/// Whether the program may read the screen. Asks for the permission if not.
bool mayReadScreen()
{
    // By their numbers, which every platform shares; a host's own may have other names for them.
    constexpr auto screenCapture = static_cast<Orvane::Util::PrivacyType>(5);
    constexpr auto granted = static_cast<Orvane::Util::AccessStatus>(0);
    if (Orvane::Util::IsPrivacyAccessGranted(screenCapture) == granted) {
        return true;
    }
    Orvane::Util::RequestPrivacyAccess(screenCapture);
    return false;
}

/// The index of the screen at @p point; 0 for a point beside all of them.
int screenNumberAt(const QPoint& point)
{
    return qMax(0, QGuiApplication::screens().indexOf(QGuiApplication::screenAt(point)));
}

QVector<ScreenSample::ScreenArea> screenAreas()
{
    QVector<ScreenSample::ScreenArea> areas;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        areas.append({screen->geometry(), screen->devicePixelRatio()});
    }
    return areas;
}

} // namespace

// Context of the connections of a pick, and parent of its scene. It has no signals or slots of its own.
class Pipette::Impl : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    explicit Impl(Pipette* pipette)
        : owner(pipette)
    {
        connect(&later, &QTimer::timeout, this, [this] { lookAgain(); });
        later.setSingleShot(true);
        later.setTimerType(Qt::PreciseTimer);
        connect(&following, &QTimer::timeout, this, [this] { followCursor(); });
        following.setInterval(followInterval);
    }

    ~Impl() override;

    void start();
    void stop();

    QPointer<QGraphicsScene> scene;
    QList<PipetteScreenView*> views;
    QPointer<Pipette> owner;
    QPointer<LoupeWidget> loupe;
    QGraphicsItem* loupeItem = nullptr;
    QColor currentColor;

private:
    void addView(QScreen& screen);
    void watchScreens();
    void watchScreen(QScreen* screen);
    void stopWatching();

    void update(const QPoint& cursorPos);
    void takePicture(QScreen* screen);
    void finish(const QPoint& cursorPos, bool isSucceeded);
    void pickAndStop(const QPoint& cursorPos);
    void hideLoupes();
    void pick(const QPoint& cursorPos);
    void lookAgain();
    void followCursor();
    bool isCoveredByOthers(const PipetteScreenView& view, const QPoint& point) const;

    std::optional<int> untilFree(const QRect& area) const;
    std::optional<int> untilCovered(const QPoint& point) const;
    bool isPixelBare(const QPoint& point) const;
    void waitFor(std::optional<int> milliseconds);

    QTimer later;
    QTimer following;
    int misses = 0; // of the cursor, in a row
    int waited = 0;
    int ends = 0;
    std::optional<QPoint> cursor;      // where the loupe belongs
    std::optional<QPoint> pendingPick; // the user has picked it, and the loupe has to vanish from it first
};

Pipette::Impl::~Impl()
{
    // Windows that vanish may change what is active: nobody is to hear of it from here.
    owner.clear();
    stopWatching();
    const QList<PipetteScreenView*> remaining = std::exchange(views, {});
    qDeleteAll(remaining);
}

void Pipette::Impl::start()
{
    if (!mayReadScreen()) {
        return;
    }
    const int activeScreen = screenNumberAt(QCursor::pos());
    const QList<QScreen*> screens = QGuiApplication::screens();
    QRect desktop;
    for (const QScreen* screen : screens) {
        desktop |= screen->geometry();
    }

    scene = new QGraphicsScene(QRectF(desktop), this);
    scene->setItemIndexMethod(QGraphicsScene::NoIndex); // for one item that moves all the time
    loupe = new LoupeWidget;
    loupeItem = scene->addWidget(loupe);
    currentColor = QColor();
    loupeItem->hide();
    cursor.reset();

    const int first = views.size();
    for (QScreen* screen : screens) {
        addView(*screen);
    }
    const QList<PipetteScreenView*> added = views.mid(first);
    // A window that is shown or activated may call back into the host, where everything can happen.
    const QPointer<Impl> self = this;
    const int endsBefore = ends;
    for (PipetteScreenView* view : added) {
        view->show();
        if (!self || ends != endsBefore) {
            return;
        }
    }
    if (PipetteScreenView* const active = views.value(first + activeScreen)) {
        active->raise();
        active->activateWindow();
        if (!self || ends != endsBefore) {
            return;
        }
        active->adjustSize();
    }
    watchScreens();
    misses = 0;
    following.start();
    Q_EMIT owner->pickingStarted();
}

void Pipette::Impl::addView(QScreen& screen)
{
    auto* view = new PipetteScreenView(scene, screen.geometry());
    if (!ScreenSample::areWindowsBlended()) {
        view->setStillPicture(screen.grabWindow(0));
    }
    // Or a modal dialog that is open would keep mouse and keyboard from it.
    view->windowHandle()->setTransientParent(QGuiApplication::modalWindow());
    views.append(view);
    connect(view, &PipetteScreenView::loupePosChanged, this, [this](const QPoint& pos) { update(pos); });
    connect(view, &PipetteScreenView::pickingFinished, this,
            [this](const QPoint& pos, bool isSucceeded) { finish(pos, isSucceeded); });
    connect(view, &QObject::destroyed, this, [this, view] { views.removeAll(view); });
}

void Pipette::Impl::watchScreens()
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) {
            stop();
        }
    });
    // The views cover the screens as they were.
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this] { stop(); });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this] { stop(); });
    connect(qGuiApp, &QCoreApplication::aboutToQuit, this, [this] { stop(); });
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        watchScreen(screen);
    }
}

void Pipette::Impl::watchScreen(QScreen* screen)
{
    connect(screen, &QScreen::geometryChanged, this, [this] { stop(); });
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, [this] { stop(); });
}

void Pipette::Impl::stopWatching()
{
    if (!qGuiApp) {
        return; // a pipette of the application itself dies after it
    }
    qGuiApp->disconnect(this);
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        screen->disconnect(this);
    }
}

void Pipette::Impl::stop()
{
    ++ends;
    later.stop();
    following.stop();
    stopWatching();
    cursor.reset();
    pendingPick.reset();
    loupe = nullptr;
    loupeItem = nullptr;

    const QPointer<Impl> self = this;
    const QPointer<QGraphicsScene> finished(scene.data());
    scene = nullptr;
    const QVector<QPointer<PipetteScreenView>> closing(views.cbegin(), views.cend());
    views.clear();
    for (const QPointer<PipetteScreenView>& view : closing) {
        // Whatever still reaches it, as the key press after the shortcut that ended the pick, ends nothing.
        if (self && view) {
            view->disconnect(this);
        }
        if (view) {
            view->close();
        }
        if (view) {
            view->deleteLater();
        }
    }
    if (finished) {
        finished->deleteLater();
    }
    if (self && owner) {
        Q_EMIT owner->pickingStopped();
    }
}

void Pipette::Impl::update(const QPoint& cursorPos)
{
    if (!loupe || !loupeItem || pendingPick) {
        return;
    }
    QScreen* const screen = QGuiApplication::screenAt(cursorPos);
    if (!screen) {
        return;
    }
    cursor = cursorPos;
    loupe->setPlacement(LoupePlacement::placementAt(cursorPos, screen->geometry(), loupe->size()));
    const QSize offset = loupe->offset();
    loupeItem->setPos(QPointF(cursorPos.x() + offset.width(), cursorPos.y() + offset.height()));
    waited = 0;
    takePicture(screen);
}

/// Shows the pixels around the cursor, which is on @p screen, in the loupe.
void Pipette::Impl::takePicture(QScreen* screen)
{
    if (!loupe) {
        return;
    }
    const QSize size(ScreenSample::loupePixels, ScreenSample::loupePixels);
    const QRect area =
        ScreenSample::grabArea(*cursor, size, screen->geometry()).translated(screen->geometry().topLeft());
    // One more around it for what a fractional scale rounds.
    const QRect keptFree = area.adjusted(-1, -1, 1, 1);
    for (PipetteScreenView* view : qAsConst(views)) {
        view->keepFree(keptFree);
    }
    const std::optional<int> wait = untilFree(keptFree);
    if (wait != 0 && waited < longestWait) {
        waitFor(wait);
        return;
    }
    const QPixmap picture = ScreenSample::grab(*screen, *cursor, size);
    if (picture.isNull()) {
        return;
    }
    const QPoint center =
        ScreenSample::centerPixel(*cursor, size, screen->geometry(), picture.devicePixelRatioF());
    const QColor color = picture.toImage().pixelColor(center);
    // The list of screens is not made for each move.
    loupe->setPixmap(screen->geometry().contains(area)
                         ? picture
                         : ScreenSample::withoutOutside(picture, *cursor, size, screenAreas(),
                                                        QGuiApplication::screens().indexOf(screen)));
    loupe->setColorName(ScreenSample::withoutOverlay(color));
    const std::optional<int> covering = untilCovered(*cursor);
    if (covering != 0) {
        waitFor(covering);
    }
}

void Pipette::Impl::finish(const QPoint& cursorPos, bool isSucceeded)
{
    if (pendingPick && isSucceeded) {
        return;
    }
    if (isSucceeded && QGuiApplication::screenAt(cursorPos)) {
        waited = 0;
        if (!isPixelBare(cursorPos)) {
            pendingPick = cursorPos;
            hideLoupes();
            waitFor(std::nullopt);
            return;
        }
        pickAndStop(cursorPos);
        return;
    }
    stop();
}

void Pipette::Impl::pickAndStop(const QPoint& cursorPos)
{
    const QPointer<Impl> self = this;
    const int endsBefore = ends;
    pick(cursorPos);
    // A slot may have done so, or begun the next one.
    if (self && ends == endsBefore) {
        stop();
    }
}

/// Of all sets of views.
void Pipette::Impl::hideLoupes()
{
    const auto scenes = findChildren<QGraphicsScene*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QGraphicsScene* of : scenes) {
        const QList<QGraphicsItem*> items = of->items();
        for (QGraphicsItem* item : items) {
            // Not hide(): a move of the mouse would bring it back.
            item->setOpacity(0.0);
        }
    }
}

void Pipette::Impl::pick(const QPoint& cursorPos)
{
    QScreen* const screen = QGuiApplication::screenAt(cursorPos);
    const std::optional<QColor> color =
        screen ? ScreenSample::colorAt(*screen, cursorPos) : std::optional<QColor>();
    if (!color) {
        qCWarning(logPipette) << "No colour at" << cursorPos << "- the platform"
                              << QGuiApplication::platformName() << "gives no picture of the screen";
        return;
    }
    currentColor = *color;
    if (owner) {
        // A copy: a slot may start another pick, which resets the colour.
        const QColor selected = currentColor;
        Q_EMIT owner->colorSelected(selected);
    }
}

/// After a wait: the screen may have caught up.
void Pipette::Impl::lookAgain()
{
    if (!pendingPick) {
        QScreen* const screen = cursor ? QGuiApplication::screenAt(*cursor) : nullptr;
        if (screen) {
            takePicture(screen);
        }
        return;
    }
    if (!isPixelBare(*pendingPick) && waited < longestWait) {
        waitFor(std::nullopt);
        return;
    }
    pickAndStop(*pendingPick);
}

/// Another application's full-screen window may come to lie over a view, whose Enter is then missing.
void Pipette::Impl::followCursor()
{
    const QPoint point = QCursor::pos();
    PipetteScreenView* hidden = nullptr;
    for (PipetteScreenView* view : qAsConst(views)) {
        if (view->isVisible() && view->geometry().contains(point)) {
            if (view->underMouse()) {
                misses = 0;
                return;
            }
            hidden = view;
        }
    }
    if (!hidden || !isCoveredByOthers(*hidden, point)) {
        misses = 0;
        return;
    }
    ++misses;
    if (misses <= missesBeforeFollowing || misses > missesBeforeFollowing + mostFollows) {
        return;
    }
    const QPointer<PipetteScreenView> view = hidden;
    view->raise();
    if (view) {
        view->activateWindow();
    }
}

/// Whether the mouse is not on @p view although it could be: Qt tells of no window of this program's own
/// above it, as the host may show one, and the user is not dragging.
bool Pipette::Impl::isCoveredByOthers(const PipetteScreenView& view, const QPoint& point) const
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() ||
        QGuiApplication::modalWindow() != view.windowHandle()->transientParent()) {
        return false;
    }
    const QWindow* const top = QGuiApplication::topLevelAt(point);
    return !top || std::any_of(views.cbegin(), views.cend(), [top](const PipetteScreenView* other) {
        return other->windowHandle() == top;
    });
}

/// How long until no screen can show the loupe in @p area of the desktop; see PipetteScreenView::untilFree().
std::optional<int> Pipette::Impl::untilFree(const QRect& area) const
{
    const QRegion shape = loupe ? loupe->paintedShape() : QRegion();
    int longest = 0;
    for (const PipetteScreenView* view : views) {
        const std::optional<int> wait = view->untilFree(area, shape);
        if (!wait) {
            return std::nullopt;
        }
        longest = qMax(longest, *wait);
    }
    return longest;
}

/// How long until the screen at @p point is sure to show the overlay; see PipetteScreenView::untilCovered().
std::optional<int> Pipette::Impl::untilCovered(const QPoint& point) const
{
    for (const PipetteScreenView* view : views) {
        if (view->isVisible() && view->geometry().contains(point)) {
            return view->untilCovered();
        }
    }
    return 0;
}

/// Whether the screen shows the overlay over @p point and nothing else, and that for sure.
bool Pipette::Impl::isPixelBare(const QPoint& point) const
{
    return untilFree(QRect(point, QSize(1, 1)).adjusted(-1, -1, 1, 1)) == 0 && untilCovered(point) == 0;
}

/// Looks again in so many milliseconds, or soon.
void Pipette::Impl::waitFor(std::optional<int> milliseconds)
{
    if (waited >= longestWait) {
        return;
    }
    const int wait = qMax(lookInterval, milliseconds.value_or(0));
    waited += wait;
    later.start(wait);
}

Pipette::Pipette(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Impl>(this))
{
}

Pipette::~Pipette() = default;

void Pipette::startPicking()
{
    d->start();
}

void Pipette::stopPicking()
{
    d->stop();
}

const QColor& Pipette::currentColor() const
{
    return d->currentColor;
}
