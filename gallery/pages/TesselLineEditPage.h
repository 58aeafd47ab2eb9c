#pragma once

#include "../Page.h"

/// Shows TesselLineEdit and its context menu.
class TesselLineEditPage : public Page
{
    Q_OBJECT

public:
    explicit TesselLineEditPage(QWidget* parent = nullptr);

    static PageInfo info();
};
