#pragma once

#include "../Page.h"

/// Shows OvFrame and LayoutController.
class FramePage : public Page
{
    Q_OBJECT

public:
    explicit FramePage(QWidget* parent = nullptr);

    static PageInfo info();
};
