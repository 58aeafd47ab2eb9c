#pragma once

#include "../Page.h"

/// Shows PointSelectorWidget.
class PointSelectorPage : public Page
{
    Q_OBJECT

public:
    explicit PointSelectorPage(QWidget* parent = nullptr);

    static PageInfo info();
};
