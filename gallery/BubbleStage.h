#pragma once

#include <EditorWidgets/PointingWidget.h>

#include <QFrame>

/// A frame with a marked spot and a bubble, a child of the frame, that points at it.
class BubbleStage : public QFrame
{
    Q_OBJECT

public:
    /// Takes over @p bubble. @p spot is the place of the mark, in parts of the stage's size: left stays
    /// left in right-to-left layouts.
    BubbleStage(PointingWidget* bubble, const QPointF& spot, const QSize& minimumSize, QWidget* parent);
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
