#pragma once

#include <QWidget>

class BlendCanvas;
class ColorBlendingComboBox;

/// The chooser of the blending mode above the canvas that it works on.
class BlendStage : public QWidget
{
    Q_OBJECT

public:
    explicit BlendStage(QWidget* parent = nullptr);
    ~BlendStage() override;

    ColorBlendingComboBox* comboBox() const { return m_comboBox; }
    BlendCanvas* canvas() const { return m_canvas; }

private:
    ColorBlendingComboBox* const m_comboBox;
    BlendCanvas* const m_canvas;
};
