#pragma once

#include <WidgetToolkit/PropertyProviderBase.h>

#include <QColor>

/// What a style sheet can set of a SampleDial.
class SampleDialStyle : public PropertyProviderBase
{
    Q_OBJECT
    Q_PROPERTY(QColor handColor READ handColor WRITE setHandColor)
    Q_PROPERTY(int handWidth READ handWidth WRITE setHandWidth)

public:
    explicit SampleDialStyle(QWidget* dial);
    ~SampleDialStyle() override;

    QColor handColor() const { return m_handColor; }
    void setHandColor(const QColor& color);
    int handWidth() const { return m_handWidth; }
    void setHandWidth(int pixels);

private:
    QColor m_handColor = QColor(47, 111, 222);
    int m_handWidth = 6;
};

/// A widget that paints a dial with the values of its property provider.
class SampleDial : public QWidget
{
    Q_OBJECT

public:
    explicit SampleDial(QWidget* parent = nullptr);
    ~SampleDial() override;

    SampleDialStyle* dialStyle() const { return m_style; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    SampleDialStyle* const m_style;
};
