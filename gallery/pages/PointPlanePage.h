#pragma once

#include "../Page.h"

/// Shows PointSelectionPlane.
class PointPlanePage : public Page
{
    Q_OBJECT

public:
    explicit PointPlanePage(QWidget* parent = nullptr);

    static PageInfo info();
};
