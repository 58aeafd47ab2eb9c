#pragma once

#include "../Page.h"

#include <QColor>

class CustomColorSelectWidget;

/// Shows CustomColorSelectWidget by itself.
class ColorSelectorPage : public Page
{
    Q_OBJECT

public:
    explicit ColorSelectorPage(QWidget* parent = nullptr);

    static PageInfo info();

    void prepareForPicture() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void setColor(const QColor& color);

    Twins<CustomColorSelectWidget> m_selectors;
    QColor m_color;
};
