#pragma once

#include "platform/runloop/RunLoop.h"

#include <deque>
#include <map>
#include <mutex>

namespace velm
{

// A run loop whose clock moves only when told to. Each task runs at its own due time, in order; background
// work runs on the caller's thread as a task of its own, so a run is the same twice.
class VirtualRunLoop final : public RunLoop
{
public:
    explicit VirtualRunLoop(QDateTime wallTime = QDateTime({2026, 11, 21}, {14, 32}));

    // Moves both clocks on, running what falls due on the way and all that is posted meanwhile.
    void advance(Duration duration);

    // Runs what is posted and what is due now.
    void settle() { advance(Duration::zero()); }

    // The machine sleeps: the wall clock moves, timers do not.
    void suspend(Duration duration);

    // The wall clock is set, by hand or from the network; timers do not notice.
    void setWallTime(const QDateTime &wallTime) { m_wallTime = wallTime; }

    // Timers that wait. Posted tasks and background work do not count.
    int armedTimers() const { return static_cast<int>(m_timers.size()); }

    Instant now() const override { return m_now; }
    QDateTime wallTime() const override { return m_wallTime; }
    TimerId schedule(Instant due, Task task) override;
    void cancel(TimerId id) override;
    void post(Task task) override;
    std::unique_ptr<SerialQueue> makeQueue(const char *label) override;

private:
    void runPosted();
    void moveTo(Instant instant);

    struct Timer {
        TimerId id;
        Task task;
    };
    Instant m_now;
    QDateTime m_wallTime;
    quint64 m_lastId = 0;
    std::multimap<Instant, Timer> m_timers;
    std::mutex m_postedMutex;
    std::deque<Task> m_posted;
};

}
