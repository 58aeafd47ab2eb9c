#pragma once

#include <EditorWidgets/EditorWidgetsExport.h>

#include <QColor>
#include <QWidget>

#include <memory>

class OvFrame;

// Style sheets write the properties; no notification is needed.
// clazy:excludeall=qproperty-without-notify

/**
 * A bubble with an arrow that points at a spot. Lay out the content in contentFrame():
 *
 *     auto* bubble = new PointingWidget(button);
 *     (new OvVBoxLayout(bubble->contentFrame()))->addWidget(new QLabel(tr("Start here")));
 *     bubble->setArrowSide(PointingWidget::ArrowSide::Top, PointingWidget::ArrowPosition::Center);
 *     bubble->pointTo(button->mapToGlobal(QPoint(button->width() / 2, button->height())));
 *     bubble->show();
 *
 * **Window.** A bubble is a frameless window (`Qt::Tool`), shown without being activated. With
 * `setWindowFlags(Qt::Popup | …)` it closes on Escape, on a click outside the painted bubble, and when it is
 * disabled; with `setWindowFlags(Qt::Widget)` it is a child that keeps inside its parent, and nobody else
 * lays it out, no layout and no splitter. Only the painted bubble takes the mouse: a click beside the arrow
 * goes to what lies there.
 *
 * **Place.** The arrow's tip is the target. The bubble stays in the available area of the target's screen (or
 * the nearest one; a child, in the parent): without room the arrow goes to the opposite side, and the bubble
 * slides along that side while the arrow leans to the target. Only a target outside the area, or without room
 * on both sides, is not touched. A bubble whose minimum size exceeds the area shows its beginning. It is
 * placed anew when its size, its layout direction or the screens change; a move() by other code lasts until
 * then or the next pointTo().
 *
 * **Parent.** The bubble moves with its parent and the parent's ancestors, and hides with it; unless it is a
 * pop-up it comes back with it. Shown while the parent is hidden, it appears with the parent.
 *
 * **Size.** It follows its content's size hint, within its minimum and maximum size and the area; give it a
 * maximum width to make long texts wrap. A window cuts off content that insists on more than the screen has.
 * The content keeps clear of border, arrow and rounded corners; further margins are the layout's.
 *
 * **Style sheet.** The properties below are for `qproperty-`; contentFrame() is named "contentFrame". Sides
 * are not mirrored; start, end and offset on top and bottom are, from right to left.
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

    /// The arrow's place on its side: near the left or upper corner, in the middle, near the other corner.
    enum class ArrowPosition { Start = 0, Center = 1, End = 2 };
    Q_ENUM(ArrowPosition)

    /// @p parent owns the bubble, which follows it and inherits font, palette and layout direction from it.
    /// Without a parent the target is a spot of the desktop. The arrow is centred on top by default.
    explicit PointingWidget(QWidget* parent = nullptr);
    ~PointingWidget() override;

    /// Places the bubble so that the tip of its arrow is at @p globalPos, without showing it. The same point
    /// again causes no repaint. Coordinates are clamped to 2^28. On Wayland, where a program does not know
    /// the screen around its windows, a bubble with a parent is a `Qt::ToolTip`, its area is the parent's
    /// window, and it appears anew where it is moved to.
    void pointTo(const QPoint& globalPos);

    /// The target in global coordinates: the point last given to pointTo(), which moves with the parent.
    /// Before the first call it is the parent's upper left corner, and the bubble stays where it was put.
    QPoint targetPoint() const;

    /// Chooses the side and the place on it. Values outside the enumerations are ignored.
    void setArrowSide(ArrowSide side, ArrowPosition position);
    ArrowSide arrowSide() const;
    ArrowPosition arrowPosition() const;

    /// The side that carries the arrow now: arrowSide() or, without room there, the opposite one.
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
    class EDITORWIDGETS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
