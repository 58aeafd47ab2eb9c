#include "BlendStage.h"

#include "BlendCanvas.h"

#include <UiComponents/ColorBlendingComboBox.h>

#include <QVBoxLayout>

BlendStage::BlendStage(QWidget* parent)
    : QWidget(parent)
    , m_comboBox(new ColorBlendingComboBox(this))
    , m_canvas(new BlendCanvas(this))
{
    setObjectName(QStringLiteral("blendStage"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_comboBox);
    layout->addWidget(m_canvas);
    connect(m_comboBox, &ColorBlendingComboBox::blendingModeChanged, m_canvas, &BlendCanvas::setMode);
}

BlendStage::~BlendStage() = default;
