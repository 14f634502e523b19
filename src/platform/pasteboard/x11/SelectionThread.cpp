#include "platform/pasteboard/x11/SelectionThread.h"

#include <pthread.h>

namespace velm
{

std::unique_ptr<SelectionThread> SelectionThread::start(ChangeCounter &counter,
                                                        const std::atomic<qint64> &sizeLimit, OwnBases own,
                                                        Pasteboard::NextType next, Listener listener)
{
    auto wire = SelectionWire::open();
    if (!wire)
        return nullptr;
    return std::unique_ptr<SelectionThread>(new SelectionThread(
        std::move(wire), counter, sizeLimit, std::move(own), std::move(next), std::move(listener)));
}

SelectionThread::SelectionThread(std::unique_ptr<SelectionWire> wire, ChangeCounter &counter,
                                 const std::atomic<qint64> &sizeLimit, OwnBases own,
                                 Pasteboard::NextType next, Listener listener)
    : m_wire(std::move(wire))
    , m_reader(*m_wire)
    , m_counter(counter)
    , m_sizeLimit(sizeLimit)
    , m_own(std::move(own))
    , m_next(std::move(next))
    , m_listener(std::move(listener))
    , m_thread([this] { run(); })
{}

SelectionThread::~SelectionThread()
{
    m_wire->end();
    m_thread.join();
}

void SelectionThread::run()
{
    pthread_setname_np(pthread_self(), "velm.pasteboard");
    while (const auto change = m_wire->waitForChange())
        handle(*change);
}

void SelectionThread::handle(const OwnerChange &change)
{
    if (isOwn(change.owner) || change.owner == XCB_WINDOW_NONE) {
        const bool isCounted = m_counter.takeExpected();
        if (isCounted)
            return;
        const quint64 number = m_counter.step();
        if (change.owner == XCB_WINDOW_NONE)
            m_listener.abandoned(number);
        return;
    }
    const quint64 number = m_counter.step();
    m_listener.changed(number);
    auto content = m_reader.read(change, m_next, Bytes{m_sizeLimit});
    if (!content)
        return;
    content->change = number;
    m_listener.read(std::move(*content), change.time);
}

bool SelectionThread::isOwn(xcb_window_t window) const
{
    const quint32 base = window & ~xcb_get_setup(m_wire->xcb())->resource_id_mask;
    return m_own.contains(base);
}

}
