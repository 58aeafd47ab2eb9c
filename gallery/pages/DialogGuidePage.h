#pragma once

#include "../Page.h"

#include <UiComponents/DialogGuideInfo.h>

class DialogGuideWidget;

/// Shows DialogGuideWidget, and walks the user through the gallery with it.
class DialogGuidePage : public Page
{
    Q_OBJECT

public:
    explicit DialogGuidePage(QWidget* parent = nullptr);

    static PageInfo info();

    /// Stops the pictures on their first frame.
    void prepareForPicture() override;

private:
    void apply();
    void startWalk();

    DialogGuideInfo m_info;
    Twins<DialogGuideWidget> m_bubbles;
};
