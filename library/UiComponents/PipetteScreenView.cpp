#include "PipetteScreenView.h"

#include "ScreenReader.h"

#include <QCursor>
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
    {
    }

    /// The item, if it is still there: it dies with its widget and with its scene.
    QGraphicsItem* loupe() const;
    void setLoupeVisible(bool visible);
    void rebuildCursor();
    void focusSoon();
    void showAtCursor(QEvent* event);
    void stayInPlace();
    QScreen* ownScreen() const;
    void report(const QPoint& cursorPos, bool isSucceeded);

    PipetteScreenView* const owner;
    QGraphicsItem* const loupeItem;
    QPixmap cursorPixmap;
    QSize cursorSize;
    QSize cursorHotSpot;
    QCursor cursor;

    QRect area; // of the screen
    QPixmap stillPicture;
    int returnsLeft = 0;
    bool hasReported = false;
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

void PipetteScreenView::Private::report(const QPoint& cursorPos, bool isSucceeded)
{
    hasReported = true;
    Q_EMIT owner->pickingFinished(cursorPos, isSucceeded);
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

    const QBrush overlay(ScreenReader::overlayColor(), Qt::SolidPattern);
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
        d->report(QCursor::pos(), false);
        return true;
    case QEvent::Close: {
        const QPointer<PipetteScreenView> self = this;
        const bool result = QGraphicsView::event(event);
        // What the user did before may have closed it.
        if (self && !d->hasReported) {
            d->report(QCursor::pos(), false);
        }
        return result;
    }
    case QEvent::Resize:
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
        d->report(QCursor::pos(), false);
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
        d->report(event->globalPos(), true);
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

void PipetteScreenView::drawBackground(QPainter* painter, const QRectF& rect)
{
    if (!d->stillPicture.isNull()) {
        painter->drawPixmap(sceneRect().topLeft(), d->stillPicture);
    }
    QGraphicsView::drawBackground(painter, rect);
}
