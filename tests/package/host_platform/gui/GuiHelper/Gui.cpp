#include "HighlightFrame.h"

namespace Orvane::Gui {

HighlightFrame::HighlightFrame(QWidget* target)
    : m_band(new QRubberBand(QRubberBand::Rectangle, target))
{
    m_band->setGeometry(target->rect());
    m_band->show();
}

HighlightFrame::~HighlightFrame()
{
    delete m_band;
}

} // namespace Orvane::Gui
