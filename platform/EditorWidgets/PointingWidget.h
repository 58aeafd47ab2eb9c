#pragma once

#include <EditorWidgets/EditorWidgetsExport.h>

#include <QColor>
#include <QWidget>

#include <memory>

class OvFrame;

// The properties are written by style sheets, and nobody waits for them to change.
// clazy:excludeall=qproperty-without-notify

/**
 * A bubble with an arrow that points at a spot.
 *
 * Lay the content out in contentFrame(), choose the side that carries the arrow, point the bubble at a
 * spot and show it:
 *
 *     auto* bubble = new PointingWidget(button);
 *     (new OvVBoxLayout(bubble->contentFrame()))->addWidget(new QLabel(tr("Start here")));
 *     bubble->setArrowSide(PointingWidget::ArrowSide::Top, PointingWidget::ArrowPosition::Center);
 *     bubble->pointTo(button->mapToGlobal(QPoint(button->width() / 2, button->height())));
 *     bubble->show();
 *
 * # Window
 * A bubble is a frameless window of its own (`Qt::Tool`) that shows beyond its parent's rectangle and is
 * shown without being activated. With `setWindowFlags(Qt::Popup | …)` it is a pop-up, which closes on
 * Escape, on a click anywhere outside the painted bubble, and when it is disabled. With
 * `setWindowFlags(Qt::Widget)` it is a plain child that keeps inside its parent. Only the painted bubble
 * takes the mouse: a click beside the arrow goes to what lies there.
 *
 * # Place
 * The pixel at the arrow's tip is the target. The bubble stays inside the available area of the target's
 * screen (for a spot on no screen, of the nearest one; for a child, inside the parent): where there is no
 * room for it, the arrow goes to the opposite side, and the bubble slides along that side while its arrow
 * leans to the target. Only a target outside the area, or without room on both sides, is not touched. A
 * bubble that a minimum size makes larger than the area shows its beginning.
 *
 * With a parent the target is a spot of the parent: the bubble goes with it when the parent or an ancestor
 * moves or gets another parent. It hides with its parent, and comes back with it if it was showing and is
 * no pop-up; shown while the parent is hidden, it appears with the parent. It is placed anew when its size,
 * its layout direction or the screens change. A move() by other code stays until the next of these, or
 * until the next pointTo().
 *
 * # Size
 * The bubble takes the size that its content asks for whenever that changes, within its minimum and maximum
 * size and the area; give it a fixed or maximum width to make long texts wrap. A bubble that is a window cuts
 * off content that insists on more than the screen has. The content keeps clear of
 * the border, the arrow and the rounded corners; further margins are those of the content's layout, which
 * the sheet sets (see OvFrame).
 *
 * # Style
 * The properties below are meant for `qproperty-` in a style sheet. The content frame has the object name
 * "contentFrame". Font, palette and layout direction are those of the parent.
 *
 * Sides are where they say, in right-to-left layouts too; start, end and offset on the top and bottom are
 * mirrored there.
 */
class EDITORWIDGETS_EXPORT PointingWidget : public QWidget
{
    Q_OBJECT
    /// Fills the bubble. Invalid (the default): the palette's window colour.
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor)
    /// Invalid (the default): a colour between the palette's window and text colours.
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    /// In pixels, 0 (none) to 100, 1 by default. Values outside go to the nearest, here and below.
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth)
    /// Of the corners, in pixels, 0 to 1000, 6 by default; less where the bubble is too small for it.
    Q_PROPERTY(int radius READ radius WRITE setRadius)
    /// The arrow's width where it leaves the bubble, in pixels, 0 to 1000, 16 by default.
    Q_PROPERTY(int arrowWidth READ arrowWidth WRITE setArrowWidth)
    /// From there to the tip, in pixels, 0 (no arrow) to 1000, 8 by default.
    Q_PROPERTY(int arrowLength READ arrowLength WRITE setArrowLength)

public:
    /// The side of the bubble that carries the arrow. A bubble with the arrow on top lies under its target.
    enum class ArrowSide { Top = 0, Right = 1, Bottom = 2, Left = 3 };
    Q_ENUM(ArrowSide)

    /// Where along its side the arrow is: near the left or upper corner, in the middle, near the other one.
    enum class ArrowPosition { Start = 0, Center = 1, End = 2 };
    Q_ENUM(ArrowPosition)

    /// @p parent owns the bubble; it is also what the bubble follows. Without a parent the target is a
    /// spot of the desktop. The arrow starts at the top, centred.
    explicit PointingWidget(QWidget* parent = nullptr);
    ~PointingWidget() override;

    /// Places the bubble so that the tip of its arrow is at @p globalPos. It does not show it. The same
    /// point again costs little and causes no repaint. Coordinates beyond 2^28 go to the nearest, 2^28.
    void pointTo(const QPoint& globalPos);

    /// Where the arrow points now, in global coordinates: the point last given to pointTo(), having moved
    /// with the parent since. Before the first call it is the parent's upper left corner, and the bubble
    /// is where it was put.
    QPoint targetPoint() const;

    /// Chooses the side and the place on it. Values outside the enumerations are ignored.
    void setArrowSide(ArrowSide side, ArrowPosition position);
    ArrowSide arrowSide() const;
    ArrowPosition arrowPosition() const;

    /// The side that carries the arrow at present: arrowSide() or, for want of room, the opposite one.
    ArrowSide effectiveArrowSide() const;

    /// Shifts the arrow along its side by @p pixels, to the right or down; in right-to-left layouts, on
    /// the top and bottom, to the left. It goes no further than to the rounded corner. 0 by default.
    void setArrowOffset(int pixels);
    int arrowOffset() const;

    /// The frame for the content; give it a layout. The bubble owns it.
    OvFrame* contentFrame() const;

    QColor backgroundColor() const;
    void setBackgroundColor(const QColor& color);
    QColor borderColor() const;
    void setBorderColor(const QColor& color);
    int borderWidth() const;
    void setBorderWidth(int pixels);
    int radius() const;
    void setRadius(int pixels);
    int arrowWidth() const;
    void setArrowWidth(int pixels);
    int arrowLength() const;
    void setArrowLength(int pixels);

    /// At least what the corners and the arrow need.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    void setVisible(bool visible) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
