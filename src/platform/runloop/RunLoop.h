#pragma once

#include <QDateTime>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <memory>

namespace velm
{

// Work for one thread off the main one, in the order in which it was enqueued.
class SerialQueue
{
public:
    using Task = std::function<void()>;

    virtual ~SerialQueue() = default;

    // From any thread.
    virtual void enqueue(Task task) = 0;

    // Blocks until all that was enqueued before has run. Never from the queue itself.
    virtual void drain() = 0;
};

// The one source of time and of later: clocks, timers, background queues. Timers and posted tasks run on
// the main thread. The real form is QtRunLoop; VirtualRunLoop lets a test or a rendering own the clock.
class RunLoop
{
public:
    using Clock = std::chrono::steady_clock;
    using Instant = Clock::time_point;
    using Duration = std::chrono::nanoseconds;
    using Task = std::function<void()>;
    enum class TimerId : quint64 { None = 0 };

    virtual ~RunLoop() = default;

    // Monotonic; does not count time in which the machine was suspended.
    virtual Instant now() const = 0;

    // Local time zone; may jump either way.
    virtual QDateTime wallTime() const = 0;

    // Runs the task once, not before `due`. Main thread only.
    virtual TimerId schedule(Instant due, Task task) = 0;

    // Nothing happens when the task has run or the id is None. Main thread only.
    virtual void cancel(TimerId id) = 0;

    // Runs the task on the main thread, soon. From any thread.
    virtual void post(Task task) = 0;

    // The label is what a debugger shows as the thread's name (its first 15 bytes).
    virtual std::unique_ptr<SerialQueue> makeQueue(const char *label) = 0;

    // Runs `work()` on the queue, then `done(its result)` on the main thread unless `guard` has died.
    // Main thread only.
    template <typename Work, typename Done>
    void runOn(SerialQueue &queue, QObject *guard, Work work, Done done)
    {
        queue.enqueue([this, alive = QPointer<QObject>(guard), work = std::move(work),
                       done = std::move(done)]() mutable {
            auto result = std::make_shared<decltype(work())>(work());
            post([alive, result, done = std::move(done)]() mutable {
                if (alive)
                    done(std::move(*result));
            });
        });
    }
};

}
