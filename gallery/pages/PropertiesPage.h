#pragma once

#include "../Page.h"

class ParameterPanel;

/// Shows the value inputs together, as the panel of an editor does.
class PropertiesPage : public Page
{
    Q_OBJECT

public:
    explicit PropertiesPage(QWidget* parent = nullptr);

    static PageInfo info();

    void prepareForPicture() override;

private:
    Twins<ParameterPanel> m_panels;
};
