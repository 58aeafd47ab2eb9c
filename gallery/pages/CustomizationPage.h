#pragma once

#include "../Page.h"

/// Shows headings in a weight that suits the language.
class CustomizationPage : public Page
{
    Q_OBJECT

public:
    explicit CustomizationPage(QWidget* parent = nullptr);

    static PageInfo info();
};
