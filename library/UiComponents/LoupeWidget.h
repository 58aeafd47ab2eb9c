// Internal: the loupe that Pipette moves with the cursor.

#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * The loupe, which is round: a picture of the pixels around the cursor, enlarged to the widget's size, and
 * the name of their middle's colour in a QLabel "colorNameLabel" that lies over all of it.
 *
 * The size, the label's look and the rim come from the style sheet. The picture is clipped to the ellipse of
 * the first showing; the sheet's background and border are painted over it: make the background transparent.
 */
class LoupeWidget : public QWidget
{
    Q_OBJECT
    /// What is seen where the picture has no pixels, as beyond the edge of the desktop. Invalid, the default,
    /// paints nothing there.
    Q_PROPERTY(QColor emptyPixelsColor READ emptyPixelsColor WRITE setEmptyPixelsColor)

public:
    /// Where the loupe sits, seen from the cursor. The numbers are fixed.
    enum Placement {
        BelowRight = 0,
        BelowLeft = 1,
        AboveLeft = 2,
        AboveRight = 3, ///< where there is room
    };

    /// So many pixels of the desktop are magnified in each direction.
    static constexpr int pixels = 13;

    explicit LoupeWidget(QWidget* parent = nullptr);
    ~LoupeWidget() override;

    QColor emptyPixelsColor() const;
    void setEmptyPixelsColor(const QColor& color);

    /// A Placement; above right at first. Moves nothing.
    void setPlacement(int placement);

    /// In points of the desktop: below the cursor within one loupe's height of the screen's top, left of it
    /// within one loupe's width of the right edge. Above right, the loupe does not reach the other two.
    static Placement placementAt(const QPoint& cursor, const QRect& screen, const QSize& loupe);

    /// From the cursor to the loupe's top-left corner; nothing for a number that is no placement.
    QSize offset() const;

    /// The picture to magnify: 13 by 13 pixels of the desktop.
    void setPixmap(const QPixmap& pixmap);

    /// Shows the colour's QColor::name().
    void setColorName(const QColor& color);

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void updatePicture();

    class Private;
    const std::unique_ptr<Private> d;
};
