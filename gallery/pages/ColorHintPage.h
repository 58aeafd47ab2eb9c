#pragma once

#include "../Page.h"

/// Shows ColorHint.
class ColorHintPage : public Page
{
    Q_OBJECT

public:
    explicit ColorHintPage(QWidget* parent = nullptr);

    static PageInfo info();
};
