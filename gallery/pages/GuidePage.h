#pragma once

#include "../Page.h"

#include <UiComponents/GuideInfo.h>

class GuideWidget;

/// Shows GuideWidget by itself, with all its texts at hand.
class GuidePage : public Page
{
    Q_OBJECT

public:
    explicit GuidePage(QWidget* parent = nullptr);

    static PageInfo info();

    /// Stops the pictures on their first frame.
    void prepareForPicture() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void apply();

    Twins<GuideWidget> m_twins;
    GuideInfo m_info;
    QString m_linkText;
};

/// Stops the animated pictures below @p widget on their first frame.
void rest(const QWidget* widget);
