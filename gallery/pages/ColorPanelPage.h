#pragma once

#include "../Page.h"

/// Shows ColorPickerWidget by itself.
class ColorPanelPage : public Page
{
    Q_OBJECT

public:
    explicit ColorPanelPage(QWidget* parent = nullptr);

    static PageInfo info();
};
