#include "model/Scheduler.h"

#include <QTimer>

#include <algorithm>

namespace {

class SystemScheduler final : public Scheduler {
public:
    // UTC: the local time zone is only looked up where an hour of the day
    // matters, which keeps the once-a-second path cheap.
    QDateTime now() const override { return QDateTime::currentDateTimeUtc(); }
    void after(int ms, QObject *context, std::function<void()> action) override
    {
        QTimer::singleShot(ms, context, std::move(action));
    }
};

} // namespace

Scheduler &Scheduler::system()
{
    static SystemScheduler scheduler;
    return scheduler;
}

ManualScheduler::ManualScheduler(QDateTime start)
    : m_now(std::move(start))
{
}

void ManualScheduler::after(int ms, QObject *context, std::function<void()> action)
{
    m_queue.append({m_now.addMSecs(ms), m_seq++, context, context != nullptr, std::move(action)});
}

void ManualScheduler::advance(qint64 ms)
{
    const QDateTime end = m_now.addMSecs(ms);
    for (;;) {
        auto next = std::min_element(m_queue.begin(), m_queue.end(), [](const Item &a, const Item &b) {
            return a.due != b.due ? a.due < b.due : a.seq < b.seq;
        });
        if (next == m_queue.end() || next->due > end)
            break;
        Item item = std::move(*next);
        m_queue.erase(next);
        m_now = std::max(m_now, item.due);
        if (!item.hadContext || item.context)
            item.action();
    }
    m_now = end;
}
