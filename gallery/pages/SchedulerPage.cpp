#include "SchedulerPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "ResultTable.h"

namespace {

constexpr int StartDelayMs = 500;
constexpr int LongestDelayMs = 5000;
constexpr int BurstSize = 1000;

} // namespace

PageInfo SchedulerPage::info()
{
    return {QStringLiteral("scheduler"),   tr("Scheduler"),
            PageGroup::Services,           {tr("timer"), tr("delay"), tr("merge"), tr("burst")},
            {QStringLiteral("Scheduler")}, &createPage<SchedulerPage>};
}

SchedulerPage::SchedulerPage(QWidget* parent)
    : Page(info(),
           tr("Merges a burst of requests into one deferred call. Later requests do not put the call off, "
              "so a steady stream of them still gets its calls."),
           parent)
    , m_results(new ResultTable)
{
    addDemonstration(QString(), m_results);
    setDelay(StartDelayMs);
    properties()->addNumber(tr("Delay in milliseconds"), 0, LongestDelayMs, StartDelayMs,
                            [this](int delayMs) { setDelay(delayMs); });
    properties()->addSwitch(tr("Enabled"), true, [this](bool on) {
        m_scheduler->setEnabled(on);
        showState();
    });
    properties()->addAction(tr("One request"), [this] { request(1); });
    properties()->addAction(tr("A burst of %1 requests").arg(BurstSize), [this] { request(BurstSize); });
}

SchedulerPage::~SchedulerPage() = default;

void SchedulerPage::setDelay(int delayMs)
{
    const bool isEnabled = !m_scheduler || m_scheduler->isEnabled();
    m_scheduler = std::make_unique<PageScheduler>(this, &SchedulerPage::handleCall, delayMs);
    m_scheduler->setEnabled(isEnabled);
    showState();
}

void SchedulerPage::request(int count)
{
    for (int i = 0; i < count; ++i) {
        m_scheduler->schedule();
    }
    m_requests += count;
    showState();
}

void SchedulerPage::handleCall()
{
    ++m_calls;
    signalLog()->addLine(QStringLiteral("call %1").arg(m_calls));
    showState();
}

void SchedulerPage::showState()
{
    m_results->setResult(tr("Requests"), QString::number(m_requests));
    m_results->setResult(tr("Calls"), QString::number(m_calls));
    m_results->setResult(tr("A call is pending"), m_scheduler->isPending() ? tr("yes") : tr("no"));
}
