#pragma once

#include <QSlider>

/// The studio's own slider.
class OvCustomSlider : public QSlider
{
    Q_OBJECT

public:
    explicit OvCustomSlider(QWidget* parent = nullptr);
    ~OvCustomSlider() override;
};
