#pragma once

#include "../Page.h"

class GuideButton;

/// Shows GuideButton, which opens a guide in a pop-up.
class GuideButtonPage : public Page
{
    Q_OBJECT

public:
    explicit GuideButtonPage(QWidget* parent = nullptr);

    static PageInfo info();

    /// Opens the pop-up, and stops its picture on the first frame.
    void prepareForPicture() override;

private:
    Twins<GuideButton> m_twins;
};
