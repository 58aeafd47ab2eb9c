#pragma once

#include "../Page.h"

/// Shows both forms of Util::bindWidgets().
class BindWidgetsPage : public Page
{
    Q_OBJECT

public:
    explicit BindWidgetsPage(QWidget* parent = nullptr);

    static PageInfo info();
};
