// Internal: the window with which Pipette covers one screen.

#pragma once

#include <QGraphicsView>
#include <QPixmap>

#include <memory>

/**
 * Covers exactly one screen with a window that is all but transparent, and turns what the user does there
 * into two signals.
 *
 * All views of one pick show the same scene, in coordinates of the desktop, with the loupe as its only item,
 * and each hides it when the cursor leaves or another window becomes active. A view is created hidden, on the
 * right screen already. A style sheet can give it the cursor of the pick with all three
 * properties; without them, or with an empty size, it is the arrow.
 */
class PipetteScreenView : public QGraphicsView
{
    Q_OBJECT
    /// The picture of the cursor, scaled to fit into cursorSize.
    Q_PROPERTY(QPixmap cursorPixmap READ cursorPixmap WRITE setCursorPixmap)
    Q_PROPERTY(QSize cursorSize READ cursorSize WRITE setCursorSize)
    /// The point of the cursor in the scaled picture: the width is x, the height is y.
    Q_PROPERTY(QSize cursorHotSpot READ cursorHotSpot WRITE setCursorHotSpot)

public:
    /// @p scene is not owned, may be null, and may be deleted first; its bottom item is the loupe.
    /// @p screenGeometry is that of the screen, in coordinates of the desktop.
    PipetteScreenView(QGraphicsScene* scene, const QRect& screenGeometry);
    ~PipetteScreenView() override;

    QPixmap cursorPixmap() const;
    QSize cursorSize() const;
    QSize cursorHotSpot() const;

    /// What the view shows below the overlay where no compositor lets the screen show through.
    void setStillPicture(const QPixmap& picture);

    /// Raises and activates it. Returns false if that has deleted it.
    bool comeToFront();

Q_SIGNALS:
    /// The user picked the point @p cursorPos of the desktop, or gave up, or the window is closed.
    void pickingFinished(QPoint cursorPos, bool isSucceeded);

    /// The loupe belongs to @p cursorPos of the desktop now.
    void loupePosChanged(QPoint cursorPos);

public Q_SLOTS:
    void setCursorPixmap(const QPixmap& pixmap);
    void setCursorSize(QSize size);
    void setCursorHotSpot(QSize hotSpot);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;

private:
    void setLoupeVisible(bool visible);
    void placeLoupe(const QPoint& cursorPos);
    void showAtCursor(QEvent* event);
    void rebuildCursor();
    void returnOnce();

    class Private;
    const std::unique_ptr<Private> d;
};
