#include "platform/runloop/LoopTimer.h"

namespace velm
{

void LoopTimer::startOnce(RunLoop::Duration delay, RunLoop::Task task)
{
    stop();
    m_interval = RunLoop::Duration::zero();
    m_task = std::move(task);
    arm(m_loop.now() + delay);
}

void LoopTimer::startEvery(RunLoop::Duration interval, RunLoop::Task task)
{
    Q_ASSERT(interval > RunLoop::Duration::zero());
    stop();
    m_interval = interval;
    m_task = std::move(task);
    arm(m_loop.now() + interval);
}

void LoopTimer::stop()
{
    m_loop.cancel(m_id);
    m_id = RunLoop::TimerId::None;
}

void LoopTimer::arm(RunLoop::Instant due)
{
    m_due = due;
    m_id = m_loop.schedule(due, [this] { fire(); });
}

void LoopTimer::fire()
{
    m_id = RunLoop::TimerId::None;
    const RunLoop::Task task = m_task; // the task may start this timer anew, or destroy it
    if (m_interval > RunLoop::Duration::zero()) {
        const auto missed = (m_loop.now() - m_due) / m_interval;
        arm(m_due + (missed + 1) * m_interval);
    }
    task();
}

}
