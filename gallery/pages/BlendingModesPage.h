#pragma once

#include "../Page.h"

/// Shows ColorBlendingComboBox above two pictures that are blended in the chosen mode.
class BlendingModesPage : public Page
{
    Q_OBJECT

public:
    explicit BlendingModesPage(QWidget* parent = nullptr);

    static PageInfo info();
};
