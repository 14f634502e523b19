#include "platform/runloop/VirtualRunLoop.h"

#include <algorithm>

namespace velm
{

namespace
{

// Keeps its work until the loop comes round to it, as a thread would, but in the loop's own order.
class VirtualQueue final : public SerialQueue
{
public:
    explicit VirtualQueue(VirtualRunLoop &loop) : m_loop(loop) {}

    void enqueue(Task task) override
    {
        m_tasks->push_back(std::move(task));
        m_loop.post([tasks = m_tasks] { runOne(*tasks); });
    }

    void drain() override
    {
        while (!m_tasks->empty())
            runOne(*m_tasks);
    }

private:
    static void runOne(std::deque<Task> &tasks)
    {
        if (tasks.empty())
            return; // drained meanwhile
        const Task task = std::move(tasks.front());
        tasks.pop_front();
        task();
    }

    VirtualRunLoop &m_loop;
    // Shared with the posted tasks, which may outlive the queue.
    std::shared_ptr<std::deque<Task>> m_tasks = std::make_shared<std::deque<Task>>();
};

}

VirtualRunLoop::VirtualRunLoop(QDateTime wallTime) : m_wallTime(std::move(wallTime)) {}

void VirtualRunLoop::advance(Duration duration)
{
    const Instant end = m_now + duration;
    runPosted();
    while (!m_timers.empty() && m_timers.begin()->first <= end) {
        auto first = m_timers.extract(m_timers.begin());
        moveTo(std::max(m_now, first.key()));
        first.mapped().task();
        runPosted();
    }
    moveTo(end);
}

void VirtualRunLoop::suspend(Duration duration)
{
    m_wallTime = m_wallTime.addMSecs(std::chrono::duration_cast<std::chrono::milliseconds>(duration).count());
}

RunLoop::TimerId VirtualRunLoop::schedule(Instant due, Task task)
{
    const TimerId id{++m_lastId};
    m_timers.emplace(due, Timer{id, std::move(task)});
    return id;
}

void VirtualRunLoop::cancel(TimerId id)
{
    std::erase_if(m_timers, [id](const auto &entry) { return entry.second.id == id; });
}

void VirtualRunLoop::post(Task task)
{
    const std::lock_guard lock(m_postedMutex);
    m_posted.push_back(std::move(task));
}

std::unique_ptr<SerialQueue> VirtualRunLoop::makeQueue(const char *)
{
    return std::make_unique<VirtualQueue>(*this);
}

void VirtualRunLoop::runPosted()
{
    while (true) {
        Task task;
        {
            const std::lock_guard lock(m_postedMutex);
            if (m_posted.empty())
                return;
            task = std::move(m_posted.front());
            m_posted.pop_front();
        }
        task();
    }
}

void VirtualRunLoop::moveTo(Instant instant)
{
    const auto step = std::chrono::duration_cast<std::chrono::milliseconds>(instant.time_since_epoch()) -
                      std::chrono::duration_cast<std::chrono::milliseconds>(m_now.time_since_epoch());
    m_wallTime = m_wallTime.addMSecs(step.count());
    m_now = instant;
}

}
