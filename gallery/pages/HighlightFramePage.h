#pragma once

#include "../Page.h"

#include <QColor>

#include <memory>
#include <optional>

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
    /// What the controls chose; until then the look is the sheet's.
    std::optional<QColor> m_color;
    std::optional<int> m_width;
};
