#pragma once

#include "../Page.h"

/// Shows OvDoubleSlider.
class DoubleSliderPage : public Page
{
    Q_OBJECT

public:
    explicit DoubleSliderPage(QWidget* parent = nullptr);

    static PageInfo info();
};
