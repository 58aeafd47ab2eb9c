#pragma once

#include <QWidget>

/// Asks for 20 x 10 pixels.
class SizedWidget : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {20, 10}; }
};
