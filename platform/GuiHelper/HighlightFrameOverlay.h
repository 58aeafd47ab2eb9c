// Internal: the outline that HighlightFrame lays over its target.
// Style sheets write the properties; no notification is needed.
// clazy:excludeall=qproperty-without-notify

#pragma once

#include <QColor>
#include <QWidget>

/// Covers its parent and paints a border along the edge. Its mask is that border, so that Qt does not paint
/// the rest of the parent a second time.
class HighlightFrameOverlay : public QWidget
{
    Q_OBJECT
    /// Invalid (the default): the highlight colour of the palette.
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    /// In pixels; 0 or less paints nothing.
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth)

public:
    HighlightFrameOverlay();
    ~HighlightFrameOverlay() override;

    QColor borderColor() const;
    void setBorderColor(const QColor& color);

    int borderWidth() const;
    void setBorderWidth(int width);

    /// Resizes to the parent's rect().
    void coverParent();

    /// Removes the border from the screen at once, for good.
    void erase();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateMask();

    QColor m_borderColor;
    int m_borderWidth = 2;
    bool m_isErasing = false;
    bool m_isErased = false;
};
