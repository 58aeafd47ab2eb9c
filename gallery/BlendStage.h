#pragma once

#include <UiComponents/BlendingMode.h>

#include <QImage>
#include <QWidget>

class ColorBlendingComboBox;

/**
 * Paints a landscape and on it a layer of coloured lights, blended in a mode.
 *
 * The layer leaves the lower edge of the landscape free.
 */
class BlendCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit BlendCanvas(QWidget* parent = nullptr);
    ~BlendCanvas() override;

    void setMode(BlendingMode mode);

    /// The opacity of the layer, 0 to 1.
    void setOpacity(double opacity);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void discardPicture();

    BlendingMode m_mode = BlendingMode::SourceOver;
    double m_opacity = 1;
    /// Valid for one size and scale; null after a change.
    QImage m_picture;
};

/// The selector of the blending mode above the canvas that it works on.
class BlendStage : public QWidget
{
    Q_OBJECT

public:
    explicit BlendStage(QWidget* parent = nullptr);
    ~BlendStage() override;

    /// Sets the mode of both parts.
    void setMode(BlendingMode mode);

private:
    ColorBlendingComboBox* const m_comboBox;
    BlendCanvas* const m_canvas;
};
