#include "PipetteScreenView.h"

#include "LoupeTrail.h"
#include "ScreenSample.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QEvent>
#include <QGraphicsItem>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

constexpr int lagOfCompositors = 60; // milliseconds

// How often a view goes back to its screen before it leaves the last word to the window manager.
constexpr int mostReturns = 10;

void makeBare(QWidget* widget)
{
    widget->setStyleSheet(QStringLiteral("border: none; background: transparent; "
                                         "margin: 0px 0px 0px 0px; padding: 0px 0px 0px 0px;"));
    widget->ensurePolished();
}

QGraphicsItem* bottomItem(const QGraphicsScene* scene)
{
    const QList<QGraphicsItem*> items = scene ? scene->items(Qt::DescendingOrder) : QList<QGraphicsItem*>();
    return items.isEmpty() ? nullptr : items.last();
}

} // namespace

class PipetteScreenView::Private
{
public:
    explicit Private(PipetteScreenView* view)
        : owner(view)
        , loupeItem(bottomItem(view->scene()))
        , trail(screenLag())
    {
        clock.start();
    }

    /// The item, if it is still there: it dies with its widget and with its scene.
    QGraphicsItem* loupe() const;
    void setLoupeVisible(bool visible);
    std::optional<LoupeTrail::Place> paintedPlace() const;
    void rebuildCursor();
    void focusSoon();
    void showAtCursor(QEvent* event);
    void stayInPlace();
    QScreen* ownScreen() const;
    void repaintLoupe(const QRect& part);

    PipetteScreenView* const owner;
    QGraphicsItem* const loupeItem;
    QPixmap cursorPixmap;
    QSize cursorSize;
    QSize cursorHotSpot;
    QCursor cursor;

    QRect area; // of the screen
    QPixmap stillPicture;
    int returnsLeft = 0;
    QRect keptFree;
    LoupeTrail trail;
    QElapsedTimer clock;
    std::optional<qint64> coveredAt;
};

QGraphicsItem* PipetteScreenView::Private::loupe() const
{
    const QGraphicsScene* const scene = owner->scene();
    return scene && loupeItem && scene->items().contains(loupeItem) ? loupeItem : nullptr;
}

void PipetteScreenView::Private::setLoupeVisible(bool visible)
{
    if (QGraphicsItem* const item = loupe()) {
        item->setVisible(visible);
    }
}

std::optional<LoupeTrail::Place> PipetteScreenView::Private::paintedPlace() const
{
    const QGraphicsItem* const item = loupe();
    if (!item || !item->isVisible() || item->effectiveOpacity() <= 0.0 ||
        !item->sceneBoundingRect().intersects(owner->sceneRect())) {
        return std::nullopt;
    }
    return LoupeTrail::Place{item->scenePos().toPoint(), keptFree};
}

void PipetteScreenView::Private::rebuildCursor()
{
    if (cursorPixmap.isNull() || cursorSize.isEmpty() || !cursorHotSpot.isValid()) {
        cursor = QCursor();
    } else {
        cursor = QCursor(cursorPixmap.scaled(cursorSize, Qt::KeepAspectRatio, Qt::SmoothTransformation),
                         cursorHotSpot.width(), cursorHotSpot.height());
    }
    owner->setCursor(cursor);
}

void PipetteScreenView::Private::focusSoon()
{
    QTimer::singleShot(0, owner, [this] { owner->setFocus(); });
}

void PipetteScreenView::Private::showAtCursor(QEvent* event)
{
    const QPointer<PipetteScreenView> self = owner;
    Q_EMIT owner->loupePosChanged(QCursor::pos());
    if (!self) {
        return;
    }
    setLoupeVisible(true);
    event->accept();
    owner->setCursor(cursor);
}

/// A window manager that puts a frame around the window moves it about. Now and then Qt is left with a place
/// in between, and would take the mouse to be on another screen: to be told the right one, it has to ask for
/// it.
void PipetteScreenView::Private::stayInPlace()
{
    if (returnsLeft == 0 || !owner->isVisible() || owner->windowHandle()->geometry() == area) {
        return;
    }
    --returnsLeft;
    QTimer::singleShot(0, owner, [this] {
        if (owner->isVisible() && owner->windowHandle()->geometry() != area) {
            // First of all: the fixed size that Qt tells the window manager is in pixels of this screen.
            owner->windowHandle()->setScreen(ownScreen());
            owner->setGeometry(area);
        }
    });
}

/// The screen that the view covers; the primary one when there is none like it any more.
QScreen* PipetteScreenView::Private::ownScreen() const
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.cbegin(), screens.cend(),
                                    [this](const QScreen* screen) { return screen->geometry() == area; });
    return found == screens.cend() ? QGuiApplication::primaryScreen() : *found;
}

void PipetteScreenView::Private::repaintLoupe(const QRect& part)
{
    QGraphicsItem* const item = loupe();
    const QRectF touched =
        item ? item->boundingRect() & QRectF(part).translated(-item->scenePos()) : QRectF();
    if (!touched.isEmpty()) {
        // Costs nothing where the item has moved, as it nearly always has.
        item->update(touched);
    }
}

PipetteScreenView::PipetteScreenView(QGraphicsScene* scene, const QRect& screenGeometry)
    : QGraphicsView(scene)
    , d(std::make_unique<Private>(this))
{
    setAttribute(Qt::WA_MouseTracking);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_NoSystemBackground);

    // The native window is made where the corner is: a pixel inside, so that no rounding takes it to the
    // screen next to it.
    resize(10, 10);
    move(screenGeometry.topLeft() + QPoint(1, 1));

    setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setSceneRect(QRectF(screenGeometry));
    setViewportUpdateMode(QGraphicsView::SmartViewportUpdate);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    makeBare(this);
    makeBare(viewport());

    setViewportMargins(0, 0, 0, 0);
    // A native window that is mapped, unmapped and mapped again within one turn may stay unmapped: some
    // window managers take the answer to the second step for one to the third. So the first two stay inside
    // of Qt.
    setAttribute(Qt::WA_DontShowOnScreen);
    show();
    setAttribute(Qt::WA_DontShowOnScreen, false); // or the native window would not get its geometry
    setGeometry(screenGeometry);
    setFixedSize(size());
    hide();

    const QBrush overlay(ScreenSample::overlayColor(), Qt::SolidPattern);
    setBackgroundBrush(overlay);
    if (scene) {
        scene->setBackgroundBrush(overlay);
    }
    d->area = screenGeometry;
    d->returnsLeft = mostReturns;
}

PipetteScreenView::~PipetteScreenView() = default;

QPixmap PipetteScreenView::cursorPixmap() const
{
    return d->cursorPixmap;
}

QSize PipetteScreenView::cursorSize() const
{
    return d->cursorSize;
}

QSize PipetteScreenView::cursorHotSpot() const
{
    return d->cursorHotSpot;
}

void PipetteScreenView::setStillPicture(const QPixmap& picture)
{
    d->stillPicture = picture;
    viewport()->update();
}

void PipetteScreenView::keepFree(const QRect& area)
{
    if (area == d->keptFree) {
        return;
    }
    const QRect former = std::exchange(d->keptFree, area);
    d->repaintLoupe(former);
    d->repaintLoupe(area);
}

std::optional<int> PipetteScreenView::untilFree(const QRect& area, const QRegion& shape) const
{
    // What another view shows there is not this one's affair.
    return area.intersects(d->area) ? d->trail.untilFree(area, shape, d->clock.elapsed()) : 0;
}

std::optional<int> PipetteScreenView::untilCovered() const
{
    if (screenLag() == 0) {
        return 0;
    }
    if (!d->coveredAt) {
        return std::nullopt;
    }
    return static_cast<int>(qMax(qint64(0), *d->coveredAt + screenLag() - d->clock.elapsed()));
}

int PipetteScreenView::screenLag()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen") ? 0 : lagOfCompositors;
}

void PipetteScreenView::setCursorPixmap(const QPixmap& pixmap)
{
    d->cursorPixmap = pixmap;
    d->rebuildCursor();
}

void PipetteScreenView::setCursorSize(QSize size)
{
    d->cursorSize = size;
    d->rebuildCursor();
}

void PipetteScreenView::setCursorHotSpot(QSize hotSpot)
{
    d->cursorHotSpot = hotSpot;
    d->rebuildCursor();
}

bool PipetteScreenView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        d->showAtCursor(event);
        return true;
    case QEvent::Enter: {
        const QPointer<PipetteScreenView> self = this;
        raise();
        if (self) {
            activateWindow();
        }
        if (!self) {
            return true;
        }
        setCursor(d->cursor);
        d->focusSoon();
        d->showAtCursor(event);
        return true;
    }
    case QEvent::WindowActivate:
        d->focusSoon();
        d->showAtCursor(event);
        return true;
    case QEvent::Leave:
    case QEvent::WindowDeactivate:
        d->setLoupeVisible(false);
        event->accept();
        return true;
    case QEvent::Wheel:
        event->accept();
        return true;
    case QEvent::ShortcutOverride:
        event->accept();
        Q_EMIT pickingFinished(QCursor::pos(), false);
        return true;
    case QEvent::Close: {
        const QPointer<PipetteScreenView> self = this;
        const bool result = QGraphicsView::event(event);
        if (self) {
            Q_EMIT pickingFinished(QCursor::pos(), false);
        }
        return result;
    }
    case QEvent::Resize:
        // Where a native window has grown, its pixels are arbitrary until they are painted.
        d->coveredAt.reset();
        viewport()->update();
        Q_FALLTHROUGH();
    case QEvent::Move: {
        const bool result = QGraphicsView::event(event);
        d->stayInPlace();
        return result;
    }
    default:
        return QGraphicsView::event(event);
    }
}

void PipetteScreenView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT pickingFinished(QCursor::pos(), false);
    }
}

void PipetteScreenView::mouseMoveEvent(QMouseEvent* event)
{
    setCursor(d->cursor);
    const bool isInside = geometry().contains(event->globalPos());
    if (isInside) {
        const QPointer<PipetteScreenView> self = this;
        Q_EMIT loupePosChanged(event->globalPos());
        if (!self) {
            return;
        }
    }
    const QGraphicsItem* const item = d->loupe();
    if (item && item->isVisible() != isInside) {
        d->setLoupeVisible(isInside);
    }
}

void PipetteScreenView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        Q_EMIT pickingFinished(event->globalPos(), true);
    }
}

void PipetteScreenView::showEvent(QShowEvent*)
{
    const QPoint cursorPos = QCursor::pos();
    const QPointer<PipetteScreenView> self = this;
    if (cursorPos.x() >= geometry().left() && cursorPos.x() <= geometry().right()) {
        Q_EMIT loupePosChanged(cursorPos);
    }
    if (self) {
        d->setLoupeVisible(true);
    }
}

void PipetteScreenView::paintEvent(QPaintEvent* event)
{
    QGraphicsView::paintEvent(event);
    const qint64 now = d->clock.elapsed();
    if (!d->coveredAt) {
        d->coveredAt = now;
    }
    d->trail.paint(d->paintedPlace(), now);
}

void PipetteScreenView::drawBackground(QPainter* painter, const QRectF& rect)
{
    if (!d->stillPicture.isNull()) {
        painter->drawPixmap(sceneRect().topLeft(), d->stillPicture);
    }
    QGraphicsView::drawBackground(painter, rect);
}

void PipetteScreenView::drawForeground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawForeground(painter, rect);
    const QGraphicsItem* const item = d->loupe();
    if (!item) {
        return;
    }
    // The loupe's corner may lie over the pixels that it magnifies.
    const QRectF covered = item->sceneBoundingRect() & QRectF(d->keptFree);
    if (!covered.isEmpty()) {
        painter->save();
        painter->setClipRect(covered, Qt::IntersectClip);
        painter->setCompositionMode(QPainter::CompositionMode_Source);
        painter->fillRect(covered, Qt::transparent);
        painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
        drawBackground(painter, covered);
        painter->restore();
    }
}
