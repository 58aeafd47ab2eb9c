#pragma once

#include "../Page.h"

/// Shows OvComboBox.
class ComboBoxPage : public Page
{
    Q_OBJECT

public:
    explicit ComboBoxPage(QWidget* parent = nullptr);

    static PageInfo info();
};
