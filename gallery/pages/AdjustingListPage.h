#pragma once

#include "../Page.h"

/// Shows AdjustingListView with a list that is loaded row by row.
class AdjustingListPage : public Page
{
    Q_OBJECT

public:
    explicit AdjustingListPage(QWidget* parent = nullptr);

    static PageInfo info();
};
