#pragma once

#include "../Page.h"

/// Shows convertComboBoxToTessel().
class TesselComboBoxPage : public Page
{
    Q_OBJECT

public:
    explicit TesselComboBoxPage(QWidget* parent = nullptr);

    static PageInfo info();
};
