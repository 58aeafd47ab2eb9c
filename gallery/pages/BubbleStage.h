#pragma once

#include <EditorWidgets/PointingWidget.h>

#include <QFrame>

/// A frame with a marked spot and a bubble, a child of the frame, that points at it.
class BubbleStage : public QFrame
{
    Q_OBJECT

public:
    /// @p spot is the place of the mark, in parts of the stage's size: sides are where they say in
    /// right-to-left layouts too.
    BubbleStage(const QString& text, const QPointF& spot, const QSize& smallest, QWidget* parent);
    ~BubbleStage() override;

    PointingWidget* bubble() const { return m_bubble; }

    /// The mark in global coordinates.
    QPoint spot() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const QPointF m_spot;
    PointingWidget* const m_bubble;
};

/// Gives @p bubble a line of text.
void fillBubble(PointingWidget* bubble, const QString& text);
