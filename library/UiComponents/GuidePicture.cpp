#include "GuidePicture.h"

#include "AccessibleEvents.h"

#include <FileSystem/FS.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QMovie>
#include <QPainter>
#include <QPointer>
#include <QVariant>

namespace {

constexpr const char* stillProperty = "firstPictureOnly";

} // namespace

void GuidePicture::setPicture(const QString& path)
{
    const QMovie* const before = movie();
    setMoviePath(path);
    setFocusPolicy(movie() ? Qt::TabFocus : Qt::NoFocus);
    if (movie() != before) {
        holdIfStill();
    }
    setVisible(!path.isEmpty() && FS::exists(path));
}

void GuidePicture::restart()
{
    const QPointer<QMovie> shown = movie();
    const QPointer<GuidePicture> self = this;
    if (shown && shown->state() == QMovie::Running) {
        shown->stop();
    }
    // A slot of the movie may have deleted it.
    if (shown) {
        shown->start();
    }
    if (self) {
        holdIfStill();
    }
}

bool GuidePicture::isPlaying() const
{
    return movie() && movie()->state() == QMovie::Running;
}

void GuidePicture::toggle()
{
    QMovie* const shown = movie();
    if (!shown) {
        return;
    }
    const QPointer<GuidePicture> self = this;
    if (shown->state() == QMovie::NotRunning) {
        shown->start();
    } else {
        shown->setPaused(shown->state() == QMovie::Running);
    }
    if (self) {
        AccessibleEvents::valueChanged(this);
    }
}

void GuidePicture::showEvent(QShowEvent* event)
{
    OvPixmapWidget::showEvent(event);
    holdIfStill();
}

void GuidePicture::paintEvent(QPaintEvent* event)
{
    OvPixmapWidget::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        m_focus.paint(painter);
    }
}

void GuidePicture::focusInEvent(QFocusEvent* event)
{
    m_focus.focusIn(*event);
    OvPixmapWidget::focusInEvent(event);
}

void GuidePicture::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space) {
        toggle();
    } else {
        OvPixmapWidget::keyPressEvent(event);
    }
}

void GuidePicture::mousePressEvent(QMouseEvent* event)
{
    // Accepted, or the release would not be sent here.
    event->setAccepted(event->button() == Qt::LeftButton && movie());
}

void GuidePicture::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        toggle();
    }
}

/// A style without animations does not stand for a wish for less motion: some never animate.
bool GuidePicture::isToBeStill() const
{
    for (const QWidget* guide = this; guide; guide = guide->isWindow() ? nullptr : guide->parentWidget()) {
        if (guide->property(stillProperty).isValid()) {
            return guide->property(stillProperty).toBool();
        }
    }
    return QCoreApplication::instance()->property(stillProperty).toBool();
}

void GuidePicture::holdIfStill()
{
    const QPointer<QMovie> shown = movie();
    if (!shown || !isToBeStill() || !isVisible()) {
        return;
    }
    // Only a start shows the first frame again and continues from there later.
    shown->stop();
    if (shown) {
        shown->start();
    }
    if (shown) {
        shown->setPaused(true);
    }
}
