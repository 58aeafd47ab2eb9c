#pragma once

#include "../Page.h"

/// Shows ColorPickerButton with a real picker.
class ColorPickerButtonPage : public Page
{
    Q_OBJECT

public:
    explicit ColorPickerButtonPage(QWidget* parent = nullptr);

    static PageInfo info();
};
