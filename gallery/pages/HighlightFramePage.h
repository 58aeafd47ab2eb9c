#pragma once

#include "../Page.h"

#include <QColor>

#include <memory>

namespace Orvane::Gui {
class HighlightFrame;
}

/// Shows HighlightFrame on a small form that moves and changes.
class HighlightFramePage : public Page
{
    Q_OBJECT

public:
    explicit HighlightFramePage(QWidget* parent = nullptr);
    ~HighlightFramePage() override;

    static PageInfo info();

private:
    void setHighlighted(bool on);
    void applyLook();

    Twins<QFrame> m_targets;
    std::unique_ptr<Orvane::Gui::HighlightFrame> m_enabledFrame;
    std::unique_ptr<Orvane::Gui::HighlightFrame> m_disabledFrame;
    QColor m_color = QColor(226, 92, 60);
    int m_width = 2;
};
