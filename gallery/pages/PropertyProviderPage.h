#pragma once

#include "../Page.h"

/// Shows PropertyProviderBase on a small widget of its own.
class PropertyProviderPage : public Page
{
    Q_OBJECT

public:
    explicit PropertyProviderPage(QWidget* parent = nullptr);

    static PageInfo info();
};
