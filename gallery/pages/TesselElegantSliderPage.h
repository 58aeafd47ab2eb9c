#pragma once

#include "../Page.h"

/// Shows TesselElegantSlider.
class TesselElegantSliderPage : public Page
{
    Q_OBJECT

public:
    explicit TesselElegantSliderPage(QWidget* parent = nullptr);

    static PageInfo info();
};
