#include "PipetteScreenView.h"

#include "ScreenGrabber.h"

#include <QCursor>
#include <QEvent>
#include <QGraphicsItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace {

void makeBare(QWidget* widget)
{
    widget->setStyleSheet(QString::fromLatin1("border: none; background: transparent; "
                                              "margin: 0px 0px 0px 0px; padding: 0px 0px 0px 0px;"));
    widget->ensurePolished();
}

} // namespace

class PipetteScreenView::Private
{
public:
    QGraphicsItem* loupeItem = nullptr;
    QPixmap cursorPixmap;
    QSize cursorSize;
    QSize cursorHotSpot;
    QCursor cursor;

    QPixmap stillPicture;
    bool mayReturn = false;
};

PipetteScreenView::PipetteScreenView(QGraphicsScene* scene, const QRect& screenGeometry)
    : QGraphicsView(scene)
    , d(std::make_unique<Private>())
{
    const QList<QGraphicsItem*> items = scene ? scene->items() : QList<QGraphicsItem*>();
    d->loupeItem = items.isEmpty() ? nullptr : items.last();
    setAttribute(Qt::WA_MouseTracking);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_NoSystemBackground);

    // The native window is created where the corner is: a pixel inside, so that rounding cannot move it to
    // the next screen.
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
    // window managers take the answer to the second step for one to the third. So the first two stay within
    // Qt.
    setAttribute(Qt::WA_DontShowOnScreen);
    show();
    setAttribute(Qt::WA_DontShowOnScreen, false); // or the native window would not get its geometry
    setGeometry(screenGeometry);
    setFixedSize(size());
    hide();

    const QBrush overlay(ScreenGrabber::overlayColor(), Qt::SolidPattern);
    setBackgroundBrush(overlay);
    if (scene) {
        scene->setBackgroundBrush(overlay);
    }
    d->mayReturn = true;
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
    rebuildCursor();
}

void PipetteScreenView::setCursorSize(QSize size)
{
    d->cursorSize = size;
    rebuildCursor();
}

void PipetteScreenView::setCursorHotSpot(QSize hotSpot)
{
    d->cursorHotSpot = hotSpot;
    rebuildCursor();
}

bool PipetteScreenView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        if (!comeToFront()) {
            return true;
        }
        setCursor(d->cursor);
        [[fallthrough]];
    case QEvent::WindowActivate:
        QTimer::singleShot(0, this, [this] { setFocus(); });
        [[fallthrough]];
    case QEvent::FocusIn:
        showAtCursor(event);
        return true;
    case QEvent::Leave:
    case QEvent::WindowDeactivate:
        setLoupeVisible(false);
        [[fallthrough]];
    case QEvent::Wheel:
        event->accept();
        return true;
    case QEvent::ShortcutOverride:
        event->accept();
        Q_EMIT pickingFinished(QCursor::pos(), false);
        return true;
    case QEvent::Move:
        if (event->spontaneous()) {
            returnOnce();
        }
        [[fallthrough]];
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
    if (geometry().contains(event->globalPos())) {
        placeLoupe(event->globalPos());
    } else {
        setLoupeVisible(false);
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
    if (cursorPos.x() >= geometry().left() && cursorPos.x() <= geometry().right()) {
        placeLoupe(cursorPos);
    } else {
        setLoupeVisible(true);
    }
}

void PipetteScreenView::closeEvent(QCloseEvent*)
{
    Q_EMIT pickingFinished(QCursor::pos(), false);
}

void PipetteScreenView::drawBackground(QPainter* painter, const QRectF& rect)
{
    painter->drawPixmap(sceneRect().topLeft(), d->stillPicture);
    // Blending with nothing would only take time.
    painter->setCompositionMode(d->stillPicture.isNull() ? QPainter::CompositionMode_Source
                                                         : QPainter::CompositionMode_SourceOver);
    QGraphicsView::drawBackground(painter, rect);
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void PipetteScreenView::setLoupeVisible(bool visible)
{
    // It is deleted with its widget, and with its scene.
    const QGraphicsScene* const shown = scene();
    if (shown && shown->items().contains(d->loupeItem)) {
        d->loupeItem->setVisible(visible);
    }
}

void PipetteScreenView::rebuildCursor()
{
    if (d->cursorPixmap.isNull() || d->cursorSize.isEmpty() || !d->cursorHotSpot.isValid()) {
        d->cursor = QCursor();
    } else {
        d->cursor =
            QCursor(d->cursorPixmap.scaled(d->cursorSize, Qt::KeepAspectRatio, Qt::SmoothTransformation),
                    d->cursorHotSpot.width(), d->cursorHotSpot.height());
    }
    setCursor(d->cursor);
}

/// Returns false if that has deleted it.
bool PipetteScreenView::comeToFront()
{
    const QPointer<PipetteScreenView> self = this;
    raise();
    if (self) {
        activateWindow();
    }
    return self;
}

void PipetteScreenView::placeLoupe(const QPoint& cursorPos)
{
    const QPointer<PipetteScreenView> self = this;
    Q_EMIT loupePosChanged(cursorPos);
    if (self) {
        setLoupeVisible(true);
    }
}

void PipetteScreenView::showAtCursor(QEvent* event)
{
    const QPointer<PipetteScreenView> self = this;
    event->accept();
    placeLoupe(QCursor::pos());
    if (self) {
        setCursor(d->cursor);
    }
}

/// Where a window manager puts a frame around the window, Qt may take the place within the frame for its
/// position, until the view sets the right one. A window manager that moves the window again is not
/// overruled.
void PipetteScreenView::returnOnce()
{
    const QRect area = sceneRect().toRect();
    if (geometry() != area && std::exchange(d->mayReturn, false)) {
        setGeometry(area);
    }
}
