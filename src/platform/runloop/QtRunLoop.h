#pragma once

#include "platform/runloop/RunLoop.h"

#include <QTimer>

#include <map>
#include <unordered_map>

namespace velm
{

// The run loop of the running program: all timers share one kernel timer, armed for the earliest of them,
// so that a resting program is never woken.
class QtRunLoop final : public QObject, public RunLoop
{
public:
    QtRunLoop();

    Instant now() const override { return Clock::now(); }
    QDateTime wallTime() const override { return QDateTime::currentDateTime(); }
    TimerId schedule(Instant due, Task task) override;
    void cancel(TimerId id) override;
    void post(Task task) override;
    std::unique_ptr<SerialQueue> makeQueue(const char *label) override;

private:
    void runDue();
    void rearm();

    struct Timer {
        TimerId id;
        Task task;
    };
    using Timers = std::multimap<Instant, Timer>;

    QTimer m_timer;
    Timers m_timers;
    std::unordered_map<quint64, Timers::iterator> m_byId;
    quint64 m_lastId = 0;
};

}
