#pragma once

#include "../Page.h"

/// Shows OvSpinBox.
class SpinBoxPage : public Page
{
    Q_OBJECT

public:
    explicit SpinBoxPage(QWidget* parent = nullptr);

    static PageInfo info();
};
