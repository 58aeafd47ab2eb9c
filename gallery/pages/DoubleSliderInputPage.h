#pragma once

#include "../Page.h"

/// Shows DoubleSliderInputWidget.
class DoubleSliderInputPage : public Page
{
    Q_OBJECT

public:
    explicit DoubleSliderInputPage(QWidget* parent = nullptr);

    static PageInfo info();
};
