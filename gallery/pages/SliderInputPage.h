#pragma once

#include "../Page.h"

/// Shows SliderInputWidget.
class SliderInputPage : public Page
{
    Q_OBJECT

public:
    explicit SliderInputPage(QWidget* parent = nullptr);

    static PageInfo info();
};
