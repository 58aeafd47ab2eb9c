#include "Walk.h"

#include <utility>

namespace {

/// Points at the middle of its parent, or of the parent's edge where it has more room beside it.
class StepBubble : public DialogGuideWidget
{
public:
    explicit StepBubble(QWidget* target)
        : DialogGuideWidget(target)
    {
        setObjectName(QStringLiteral("walkBubble"));
        setAttribute(Qt::WA_DeleteOnClose);
    }

protected:
    void adjustPositions() override
    {
        const QWidget* const target = parentWidget();
        if (!target) {
            return;
        }
        const QRect inWindow(target->mapTo(target->window(), QPoint()), target->size());
        const int middle = target->window()->height() / 2;
        const bool isHigh = inWindow.center().y() < middle;
        setArrowSide(isHigh ? ArrowSide::Top : ArrowSide::Bottom, ArrowPosition::Center);
        // A little inside the target.
        constexpr int inset = 6;
        const QPoint spot(target->width() / 2, isHigh ? qMin(target->height() - inset, middle / 2) : inset);
        pointTo(target->mapToGlobal(spot));
    }
};

} // namespace

Walk* Walk::start(QWidget* window, const QVector<WalkStep>& steps)
{
    delete window->findChild<Walk*>(QString(), Qt::FindDirectChildrenOnly);
    auto* walk = new Walk(window, steps);
    const int first = walk->neighbour(-1, 1);
    if (first < steps.size()) {
        walk->show(first);
        return walk;
    }
    delete walk;
    return nullptr;
}

Walk::Walk(QWidget* window, QVector<WalkStep> steps)
    : QObject(window)
    , m_window(window)
    , m_steps(std::move(steps))
{
}

Walk::~Walk()
{
    delete m_bubble;
}

QWidget* Walk::target(int step) const
{
    const auto found = m_window->findChildren<QWidget*>(m_steps.at(step).target);
    for (QWidget* widget : found) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

/// The next step with a target; without one, the index beyond the last or before the first step.
int Walk::neighbour(int step, int direction) const
{
    do {
        step += direction;
    } while (step >= 0 && step < m_steps.size() && !target(step));
    return step;
}

void Walk::show(int step)
{
    if (step < 0 || step >= m_steps.size()) {
        end();
        return;
    }
    if (m_bubble) {
        m_bubble->disconnect(this);
        m_bubble->close();
    }
    const int next = neighbour(step, 1);
    const int previous = neighbour(step, -1);
    const bool isLast = next >= m_steps.size();
    const WalkStep& what = m_steps.at(step);
    m_bubble = new StepBubble(target(step));
    m_bubble->setInfo(
        {what.title, what.description, isLast ? tr("Done") : tr("Next"), tr("Back"), what.movie});
    m_bubble->setSecondaryButtonVisible(previous >= 0);
    // The neighbour is found at the click: pages change meanwhile.
    connect(m_bubble, &DialogGuideWidget::mainClicked, this, [this, step] { show(neighbour(step, 1)); });
    connect(m_bubble, &DialogGuideWidget::secondaryClicked, this, [this, step] {
        const int before = neighbour(step, -1);
        if (before >= 0) {
            show(before);
        }
    });
    connect(m_bubble, &DialogGuideWidget::closeClicked, this, &Walk::end);
    connect(m_bubble, &QObject::destroyed, this, [this] {
        // Not cleared yet, and no longer a bubble.
        m_bubble.clear();
        end();
    });
    m_bubble->show();
}

void Walk::end()
{
    if (m_bubble) {
        m_bubble->disconnect(this);
        m_bubble->close();
    }
    deleteLater();
}
