#pragma once

#include "platform/pasteboard/x11/ChangeCounter.h"
#include "platform/pasteboard/x11/SelectionReader.h"

#include <thread>

namespace velm
{

// The thread that reads the clipboard: asleep until it changes hands, and never held up by the main one.
class SelectionThread
{
public:
    // All are called on the reading thread.
    struct Listener {
        std::function<void(quint64 change)> changed;
        std::function<void(PasteboardContent content, xcb_timestamp_t copied)> read;
        std::function<void(quint64 change)> abandoned;
    };

    // Connections whose windows count as our own, by their resource base.
    using OwnBases = QList<quint32>;

    // Null where the server does not tell of owners.
    static std::unique_ptr<SelectionThread> start(ChangeCounter &counter,
                                                  const std::atomic<qint64> &sizeLimit, OwnBases own,
                                                  Pasteboard::NextType next, Listener listener);
    ~SelectionThread();

private:
    SelectionThread(std::unique_ptr<SelectionWire> wire, ChangeCounter &counter,
                    const std::atomic<qint64> &sizeLimit, OwnBases own, Pasteboard::NextType next,
                    Listener listener);
    void run();
    void handle(const OwnerChange &change);
    bool isOwn(xcb_window_t window) const;

    std::unique_ptr<SelectionWire> m_wire;
    SelectionReader m_reader;
    ChangeCounter &m_counter;
    const std::atomic<qint64> &m_sizeLimit;
    OwnBases m_own;
    Pasteboard::NextType m_next;
    Listener m_listener;
    std::thread m_thread;
};

}
