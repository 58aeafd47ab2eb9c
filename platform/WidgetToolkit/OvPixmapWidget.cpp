#include "OvPixmapWidget.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QMovie>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QStyle>
#include <QStyleOption>

namespace {

// Larger pictures are scaled while they are painted, which takes no memory.
constexpr qint64 maxScaledPixels = 4096 * 4096;
// A broken movie may be read to its end for the first frame, and a few bytes may claim all of the memory.
constexpr qint64 maxBytes = 256 * 1024 * 1024;
constexpr qint64 maxPixels = 8192 * 8192;

/// Opening a pipe would block until somebody writes into it.
bool isLoadable(const QString& path)
{
    const QFileInfo file(path);
    if (path.contains(QChar(0)) || !file.isFile() || file.size() > maxBytes) {
        return false;
    }
    const QSize size = QImageReader(path).size();
    return !size.isValid() || qint64(size.width()) * size.height() <= maxPixels;
}

} // namespace

class OvPixmapWidget::Private
{
public:
    explicit Private(OvPixmapWidget* owner)
        : q(owner)
    {
    }

    QSize frameSize() const { return movie ? movie->currentPixmap().size() : QSize(0, 0); }
    void adopt(std::unique_ptr<QMovie> loaded);
    void retireMovie();
    void onStateChanged(QMovie::MovieState state);
    void pauseWhileHidden();
    void resume();
    const QPixmap& scaledFrame(const QSize& deviceSize);

    OvPixmapWidget* const q;
    QString path;
    QPointer<QMovie> movie;
    bool shown = false;
    bool playWhenShown = false; // while the movie is paused
    bool changingState = false;
    QPixmap scaled;
    bool scaledIsStale = true;
};

void OvPixmapWidget::Private::adopt(std::unique_ptr<QMovie> loaded)
{
    retireMovie();
    movie = loaded.release();
    scaled = QPixmap();
    scaledIsStale = true;
    if (movie) {
        movie->setParent(q);
        connect(movie, &QMovie::frameChanged, q, [this] {
            scaledIsStale = true;
            q->update();
        });
        connect(movie, &QMovie::resized, q, &OvPixmapWidget::updateGeometry);
        connect(movie, &QMovie::stateChanged, q, [this](QMovie::MovieState state) { onStateChanged(state); });
    }
    q->updateGeometry();
    q->update();
    pauseWhileHidden();
}

void OvPixmapWidget::Private::retireMovie()
{
    QMovie* const retired = movie;
    movie = nullptr;
    if (!retired) {
        return;
    }
    retired->blockSignals(true);
    retired->stop();
    // deleteLater(), since a slot of the movie may set the path or delete the widget. The application owns
    // the movie until then, in case no event loop runs any more.
    retired->setParent(QCoreApplication::instance());
    retired->deleteLater();
}

void OvPixmapWidget::Private::onStateChanged(QMovie::MovieState state)
{
    if (changingState) {
        return;
    }
    playWhenShown = state == QMovie::Running;
    if (playWhenShown && !shown) {
        // Queued: other slots must see the start before the pause.
        QMetaObject::invokeMethod(
            q, [this] { pauseWhileHidden(); }, Qt::QueuedConnection);
    }
}

void OvPixmapWidget::Private::pauseWhileHidden()
{
    if (!shown && movie && movie->state() == QMovie::Running) {
        playWhenShown = true;
        const QPointer<OvPixmapWidget> self(q);
        changingState = true;
        movie->setPaused(true);
        if (self) {
            changingState = false;
        }
    }
}

void OvPixmapWidget::Private::resume()
{
    if (movie && playWhenShown && movie->state() == QMovie::Paused) {
        movie->setPaused(false);
    }
}

const QPixmap& OvPixmapWidget::Private::scaledFrame(const QSize& deviceSize)
{
    if (scaledIsStale || scaled.size() != deviceSize) {
        scaled = movie->currentPixmap();
        scaled.setDevicePixelRatio(1);
        if (scaled.size() != deviceSize) {
            scaled = scaled.scaled(deviceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        if (!q->isEnabled()) {
            QStyleOption option;
            option.initFrom(q);
            scaled = q->style()->generatedIconPixmap(QIcon::Disabled, scaled, &option);
        }
        scaledIsStale = false;
    }
    return scaled;
}

OvPixmapWidget::OvPixmapWidget(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
    , d(std::make_unique<Private>(this))
{
}

OvPixmapWidget::~OvPixmapWidget()
{
    d->retireMovie();
}

QString OvPixmapWidget::moviePath() const
{
    return d->path;
}

void OvPixmapWidget::setMoviePath(const QString& path)
{
    if (path == d->path && (d->movie || path.isEmpty())) {
        return;
    }
    d->path = path;
    std::unique_ptr<QMovie> loaded;
    if (isLoadable(path)) {
        loaded = std::make_unique<QMovie>(path);
        // A file may have a valid header and no frame. Starting reads the first frame only; counting frames
        // would read the whole file, and a jump would make a later start begin with the second.
        loaded->start();
        if (loaded->currentPixmap().isNull()) {
            loaded.reset();
        }
    }
    if (loaded || d->movie) {
        d->adopt(std::move(loaded));
    }
}

QMovie* OvPixmapWidget::movie() const
{
    return d->movie;
}

QSize OvPixmapWidget::sizeHint() const
{
    return d->frameSize().grownBy(contentsMargins());
}

bool OvPixmapWidget::hasHeightForWidth() const
{
    return d->movie != nullptr;
}

int OvPixmapWidget::heightForWidth(int width) const
{
    const QSize frame = d->frameSize();
    if (frame.isEmpty()) {
        return QFrame::heightForWidth(width);
    }
    const QMargins margins = contentsMargins();
    const qint64 inner = qMax(0, width - margins.left() - margins.right());
    const qint64 height = (inner * frame.height() + frame.width() / 2) / frame.width();
    return int(qMin<qint64>(QWIDGETSIZE_MAX, height + margins.top() + margins.bottom()));
}

void OvPixmapWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    if (!painter.isActive()) {
        return; // the window is too large for a backing store
    }
    drawFrame(&painter);
    const QSize frame = d->frameSize();
    const QRect room = contentsRect();
    if (frame.isEmpty() || room.isEmpty()) {
        return;
    }
    // The device's ratio: a grab or a graphics proxy may have another one than the screen.
    const qreal ratio = painter.paintEngine()->paintDevice()->devicePixelRatioF();
    const QSize deviceRoom(qRound(room.width() * ratio), qRound(room.height() * ratio));
    const QSize deviceSize = frame.scaled(deviceRoom, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    // Whole device pixels, or QPainter would blur the scaled picture.
    const QPoint deviceTopLeft(qRound(room.x() * ratio) + (deviceRoom.width() - deviceSize.width()) / 2,
                               qRound(room.y() * ratio) + (deviceRoom.height() - deviceSize.height()) / 2);
    const QRectF target(QPointF(deviceTopLeft) / ratio, QSizeF(deviceSize) / ratio);
    const bool isLarge = qint64(deviceSize.width()) * deviceSize.height() > maxScaledPixels;
    const QSize scaledSize = isLarge ? frame : deviceSize;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, isLarge);
    painter.drawPixmap(target, d->scaledFrame(scaledSize), QRectF(QPointF(), QSizeF(scaledSize)));
}

void OvPixmapWidget::resizeEvent(QResizeEvent* event)
{
    d->scaledIsStale = true;
    QFrame::resizeEvent(event);
}

void OvPixmapWidget::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    d->shown = true;
    d->resume();
}

void OvPixmapWidget::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    d->shown = false;
    d->pauseWhileHidden();
}

void OvPixmapWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::StyleChange ||
        event->type() == QEvent::PaletteChange) {
        d->scaledIsStale = true;
    }
    QFrame::changeEvent(event);
}
