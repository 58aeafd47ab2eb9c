#pragma once

#include "../Page.h"

/// Shows PointingWidget on all sides, and one that is driven by hand.
class PointingPage : public Page
{
    Q_OBJECT

public:
    explicit PointingPage(QWidget* parent = nullptr);

    static PageInfo info();
};
