#pragma once

#include <QPoint>
#include <QWidget>

class OvFrame;

/// The studio's own bubble: a plain frame, whose upper left corner is at the spot.
class PointingWidget : public QWidget
{
    Q_OBJECT

public:
    enum class ArrowSide { Top = 0, Right = 1, Bottom = 2, Left = 3 };
    enum class ArrowPosition { Start = 0, Center = 1, End = 2 };

    explicit PointingWidget(QWidget* parent = nullptr);
    ~PointingWidget() override;

    void pointTo(const QPoint& globalPos);
    QPoint targetPoint() const;
    void setArrowSide(ArrowSide side, ArrowPosition position);
    void setArrowOffset(int pixels);
    OvFrame* contentFrame() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    OvFrame* m_content;
    QPoint m_target;
};
