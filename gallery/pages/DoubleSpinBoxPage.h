#pragma once

#include "../Page.h"

/// Shows OvDoubleSpinBox.
class DoubleSpinBoxPage : public Page
{
    Q_OBJECT

public:
    explicit DoubleSpinBoxPage(QWidget* parent = nullptr);

    static PageInfo info();
};
