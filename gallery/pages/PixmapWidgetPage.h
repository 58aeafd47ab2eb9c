#pragma once

#include "../Page.h"

class OvPixmapWidget;

/// Shows OvPixmapWidget with an animated image.
class PixmapWidgetPage : public Page
{
    Q_OBJECT

public:
    explicit PixmapWidgetPage(QWidget* parent = nullptr);

    static PageInfo info();

    /// Stops the movies on their first frame.
    void prepareForPicture() override;

private:
    void watchMovie();

    Twins<OvPixmapWidget> m_twins;
};
