#pragma once

#include "../Page.h"

/// Shows what the platform lets the program do.
class PrivacyAccessPage : public Page
{
    Q_OBJECT

public:
    explicit PrivacyAccessPage(QWidget* parent = nullptr);

    static PageInfo info();
};
