#pragma once

#include "../Page.h"

/// Shows what FileUtil and FS tell of a path.
class PathPage : public Page
{
    Q_OBJECT

public:
    explicit PathPage(QWidget* parent = nullptr);

    static PageInfo info();
};
