#pragma once

#include "../Page.h"

/// Shows ColorInputWidget with a real picker.
class ColorInputPage : public Page
{
    Q_OBJECT

public:
    explicit ColorInputPage(QWidget* parent = nullptr);

    static PageInfo info();
};
