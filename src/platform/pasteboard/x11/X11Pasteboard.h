#pragma once

#include "platform/pasteboard/Pasteboard.h"
#include "platform/pasteboard/x11/ChangeCounter.h"
#include "platform/runloop/LoopTimer.h"

#include <xcb/xcb.h>

#include <atomic>

namespace velm
{

class QtClipboardShield;
class SelectionThread;
class X11Connection;

// The CLIPBOARD selection. Other programs' copies are read by a thread with a connection of its own; ours
// are offered through the toolkit, which answers for them on the main thread.
class X11Pasteboard final : public Pasteboard
{
public:
    X11Pasteboard(X11Connection &connection, RunLoop &loop);
    ~X11Pasteboard() override;

    void watch(NextType next) override;
    quint64 changeCount() const override { return m_counter.count(); }
    void setSizeLimit(Bytes limit) override { m_sizeLimit = limit.count; }
    void write(const PasteboardOffer &offer) override;

private:
    void claim(const PasteboardOffer &content, size_t attempt);
    xcb_window_t owner() const;
    bool isToolkits(xcb_window_t window) const;
    quint32 toolkitBase() const;

    X11Connection &m_connection;
    ChangeCounter m_counter;
    std::atomic<qint64> m_sizeLimit = mebibytes(64).count;
    LoopTimer m_retry;
    std::unique_ptr<QtClipboardShield> m_shield;
    std::unique_ptr<SelectionThread> m_reading;
};

}
