#include "platform/runloop/QtRunLoop.h"

#include <QSemaphore>
#include <QThread>

namespace velm
{

namespace
{

// One thread with an event loop of its own; it starts with its first work, so an unused queue costs nothing.
class ThreadQueue final : public SerialQueue
{
public:
    explicit ThreadQueue(const char *label) { m_thread.setObjectName(QString::fromLatin1(label)); }

    ~ThreadQueue() override
    {
        if (!m_thread.isRunning())
            return;
        drain();
        m_thread.quit();
        m_thread.wait();
    }

    void enqueue(Task task) override
    {
        start();
        QMetaObject::invokeMethod(&m_context, std::move(task), Qt::QueuedConnection);
    }

    void drain() override
    {
        Q_ASSERT(QThread::currentThread() != &m_thread);
        if (!m_thread.isRunning())
            return;
        QSemaphore reached;
        QMetaObject::invokeMethod(
            &m_context, [&reached] { reached.release(); }, Qt::QueuedConnection);
        reached.acquire();
    }

private:
    void start()
    {
        std::call_once(m_started, [this] {
            m_context.moveToThread(&m_thread);
            m_thread.start(QThread::LowPriority);
        });
    }

    QThread m_thread;
    QObject m_context;
    std::once_flag m_started;
};

}

QtRunLoop::QtRunLoop()
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(this, &QtRunLoop::runDue);
}

RunLoop::TimerId QtRunLoop::schedule(Instant due, Task task)
{
    Q_ASSERT(QThread::currentThread() == thread());
    const TimerId id{++m_lastId};
    m_byId[m_lastId] = m_timers.emplace(due, Timer{id, std::move(task)});
    rearm();
    return id;
}

void QtRunLoop::cancel(TimerId id)
{
    const auto found = m_byId.find(static_cast<quint64>(id));
    if (found == m_byId.end())
        return;
    m_timers.erase(found->second);
    m_byId.erase(found);
    rearm();
}

void QtRunLoop::post(Task task) { QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection); }

std::unique_ptr<SerialQueue> QtRunLoop::makeQueue(const char *label)
{
    return std::make_unique<ThreadQueue>(label);
}

void QtRunLoop::runDue()
{
    const Instant reached = now();
    while (!m_timers.empty() && m_timers.begin()->first <= reached) {
        auto first = m_timers.extract(m_timers.begin());
        m_byId.erase(static_cast<quint64>(first.mapped().id));
        first.mapped().task();
    }
    rearm();
}

void QtRunLoop::rearm()
{
    if (m_timers.empty()) {
        m_timer.stop();
        return;
    }
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(m_timers.begin()->first - now());
    m_timer.start(std::max(wait, std::chrono::milliseconds::zero()));
}

}
