#pragma once

#include "../Page.h"

/// Shows FormatFileSize().
class FormatFileSizePage : public Page
{
    Q_OBJECT

public:
    explicit FormatFileSizePage(QWidget* parent = nullptr);

    static PageInfo info();
};
