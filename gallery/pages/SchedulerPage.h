#pragma once

#include "../Page.h"

#include <QtUtility/Scheduler.h>

#include <memory>

class ResultTable;

/// Shows how a Scheduler merges requests.
class SchedulerPage : public Page
{
    Q_OBJECT

public:
    explicit SchedulerPage(QWidget* parent = nullptr);
    ~SchedulerPage() override;

    static PageInfo info();

private:
    using PageScheduler = Orvane::Util::Scheduler<SchedulerPage>;

    void setDelay(int delayMs);
    void request(int count);
    void handleCall();
    void showState();

    std::unique_ptr<PageScheduler> m_scheduler;
    ResultTable* const m_results;
    int m_requests = 0;
    int m_calls = 0;
};
