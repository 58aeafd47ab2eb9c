#pragma once

#include "../Page.h"

class LoupeWidget;
class PickedColors;
class Pipette;

/// Shows Pipette with the colours that it has picked, and its loupe by itself.
class PipettePage : public Page
{
    Q_OBJECT

public:
    explicit PipettePage(QWidget* parent = nullptr);
    ~PipettePage() override;

    static PageInfo info();

private:
    void addPicking();
    void addLoupes();

    Pipette* const m_pipette;
    PickedColors* const m_colors;
};
