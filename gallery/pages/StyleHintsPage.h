#pragma once

#include "../Page.h"

/// Shows how components speak to the style sheet.
class StyleHintsPage : public Page
{
    Q_OBJECT

public:
    explicit StyleHintsPage(QWidget* parent = nullptr);

    static PageInfo info();
};
