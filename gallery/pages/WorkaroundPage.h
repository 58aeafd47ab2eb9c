#pragma once

#include "../Page.h"

/// Shows Workaround::Ui on a pop-up with rounded corners.
class WorkaroundPage : public Page
{
    Q_OBJECT

public:
    explicit WorkaroundPage(QWidget* parent = nullptr);

    static PageInfo info();
};
