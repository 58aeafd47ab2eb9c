#include "HighlightFramePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <GuiHelper/HighlightFrame.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

using Orvane::Gui::HighlightFrame;

namespace {

constexpr int SmallestHeight = 60;
constexpr int LargestHeight = 160;
constexpr int WidestBorder = 20;

QFrame* makeTarget(QWidget* parent)
{
    auto* target = new QFrame(parent);
    target->setObjectName(QStringLiteral("highlightTarget"));
    target->setFrameShape(QFrame::StyledPanel);
    target->setFixedHeight(SmallestHeight);
    target->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(target);
    layout->addWidget(new QLabel(HighlightFramePage::tr("The target"), target), 1);
    layout->addWidget(new QPushButton(HighlightFramePage::tr("Still works"), target));
    return target;
}

QWidget* overlayOf(const QWidget* target)
{
    return target->findChild<QWidget*>(QStringLiteral("highlightFrame"), Qt::FindDirectChildrenOnly);
}

} // namespace

PageInfo HighlightFramePage::info()
{
    return {QStringLiteral("highlight-frame"),
            tr("Highlight frame"),
            PageGroup::Bubbles,
            {tr("outline"), tr("overlay")},
            {QStringLiteral("HighlightFrame")},
            &createPage<HighlightFramePage>};
}

HighlightFramePage::HighlightFramePage(QWidget* parent)
    : Page(info(),
           tr("Outlines a widget without its notice: it follows the target through moves, resizes and "
              "hiding, lies over all its children and takes neither mouse nor focus."),
           parent)
    , m_targets(addTwins<QFrame>(QString(), &makeTarget))
{
    setHighlighted(true);
    describeStyling(overlayOf(m_targets.enabled), tr("The outline, a child of the widget that it "
                                                     "highlights."));

    properties()->addSwitch(tr("Highlighted"), true, [this](bool on) { setHighlighted(on); });
    QWidget* const overlay = overlayOf(m_targets.enabled);
    overlay->ensurePolished();
    const auto color = overlay->property("borderColor").value<QColor>();
    properties()->addColor(QStringLiteral("borderColor"), color, [this](const QColor& chosen) {
        m_color = chosen;
        applyLook();
    });
    const int width = overlay->property("borderWidth").toInt();
    properties()->addNumber(QStringLiteral("borderWidth"), 0, WidestBorder, width, [this](int chosen) {
        m_width = chosen;
        applyLook();
    });
    properties()->addNumber(
        tr("Height of the target"), SmallestHeight, LargestHeight, SmallestHeight,
        [this](int height) { m_targets.each([height](QFrame* target) { target->setFixedHeight(height); }); });
    properties()->addSwitch(tr("Visible"), true, [this](bool on) {
        m_targets.each([on](QFrame* target) { target->setVisible(on); });
    });
    signalLog()->watch(m_targets.enabled->findChild<QPushButton*>(), QStringLiteral("button"));
}

HighlightFramePage::~HighlightFramePage() = default;

void HighlightFramePage::setHighlighted(bool on)
{
    m_enabledFrame = on ? std::make_unique<HighlightFrame>(m_targets.enabled) : nullptr;
    m_disabledFrame = on ? std::make_unique<HighlightFrame>(m_targets.disabled) : nullptr;
    applyLook();
}

void HighlightFramePage::applyLook()
{
    m_targets.each([this](QFrame* target) {
        if (QWidget* const overlay = overlayOf(target)) {
            if (m_color) {
                overlay->setProperty("borderColor", *m_color);
            }
            if (m_width) {
                overlay->setProperty("borderWidth", *m_width);
            }
        }
    });
}
