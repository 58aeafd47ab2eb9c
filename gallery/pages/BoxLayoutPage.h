#pragma once

#include "../Page.h"

/// Shows the layouts and their helpers.
class BoxLayoutPage : public Page
{
    Q_OBJECT

public:
    explicit BoxLayoutPage(QWidget* parent = nullptr);

    static PageInfo info();
};
