#pragma once

#include "../Page.h"

#include <QColor>

class ColorPlaneWidget;

/// Shows ColorPlaneWidget by itself.
class ColorPlanePage : public Page
{
    Q_OBJECT

public:
    explicit ColorPlanePage(QWidget* parent = nullptr);

    static PageInfo info();

    void prepareForPicture() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void setColor(const QColor& color);

    Twins<ColorPlaneWidget> m_planes;
    QColor m_color;
};
