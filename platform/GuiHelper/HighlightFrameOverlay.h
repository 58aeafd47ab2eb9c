// Internal: the outline that HighlightFrame lays over its target.
// Its properties are written by style sheets, and nobody waits for them to change.
// clazy:excludeall=qproperty-without-notify

#pragma once

#include <QColor>
#include <QWidget>

/// A child widget that covers its parent and paints nothing but a border along the edge. It is masked to
/// that border: what the parent paints inside costs no second painting.
class HighlightFrameOverlay : public QWidget
{
    Q_OBJECT
    /// Invalid (the default): the highlight colour of the palette.
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor)
    /// In pixels; 0 paints nothing, less counts as 0.
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth)

public:
    HighlightFrameOverlay();
    ~HighlightFrameOverlay() override;

    QColor borderColor() const;
    void setBorderColor(const QColor& color);

    int borderWidth() const;
    void setBorderWidth(int width);

    /// Takes the whole of the parent's area.
    void coverParent();

    /// Paints the parent without the border, now: it is not painted any more.
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
