#pragma once

#include "../Page.h"

/// Shows OvCustomSlider.
class CustomSliderPage : public Page
{
    Q_OBJECT

public:
    explicit CustomSliderPage(QWidget* parent = nullptr);

    static PageInfo info();
};
