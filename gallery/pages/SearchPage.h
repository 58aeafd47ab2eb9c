#pragma once

#include "../Page.h"

/// Shows SearchWidget with a list that it filters.
class SearchPage : public Page
{
    Q_OBJECT

public:
    explicit SearchPage(QWidget* parent = nullptr);

    static PageInfo info();
};
