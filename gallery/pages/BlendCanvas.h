#pragma once

#include <UiComponents/BlendingMode.h>

#include <QImage>
#include <QWidget>

/**
 * Paints a landscape and on it a layer of coloured lights, blended in a mode.
 *
 * The layer does not cover the lower edge, where the landscape is seen as it is.
 */
class BlendCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit BlendCanvas(QWidget* parent = nullptr);
    ~BlendCanvas() override;

    BlendingMode mode() const { return m_mode; }
    void setMode(BlendingMode mode);

    /// Of the layer, 0 to 1.
    double opacity() const { return m_opacity; }
    void setOpacity(double opacity);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BlendingMode m_mode = BlendingMode::SourceOver;
    double m_opacity = 1;
    /// For the size and scale it was made for; null when something has changed since.
    QImage m_picture;
};
