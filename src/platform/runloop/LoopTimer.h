#pragma once

#include "platform/runloop/RunLoop.h"

namespace velm
{

// A timer as a member: at most one task is armed, starting again replaces it, and it stops when destroyed.
class LoopTimer
{
public:
    explicit LoopTimer(RunLoop &loop) : m_loop(loop) {}
    ~LoopTimer() { stop(); }
    LoopTimer(const LoopTimer &) = delete;
    LoopTimer &operator=(const LoopTimer &) = delete;

    void startOnce(RunLoop::Duration delay, RunLoop::Task task);

    // The first run is after one interval. Runs that were missed (a busy or suspended machine) are not
    // made up for: the next one is due one interval after the last due time that has passed.
    void startEvery(RunLoop::Duration interval, RunLoop::Task task);

    void stop();

    bool isActive() const { return m_id != RunLoop::TimerId::None; }

private:
    void fire();
    void arm(RunLoop::Instant due);

    RunLoop &m_loop;
    RunLoop::TimerId m_id = RunLoop::TimerId::None;
    RunLoop::Duration m_interval{0};
    RunLoop::Instant m_due;
    RunLoop::Task m_task;
};

}
