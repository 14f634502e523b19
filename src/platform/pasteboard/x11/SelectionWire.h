#pragma once

#include "platform/runloop/RunLoop.h"
#include "platform/x11/XcbReply.h"

#include <QString>

#include <xcb/xcb.h>

#include <atomic>
#include <deque>
#include <optional>
#include <string>
#include <unordered_map>

namespace velm
{

// The clipboard has another owner: who, and since when by the server's clock.
struct OwnerChange {
    xcb_window_t owner = XCB_WINDOW_NONE;
    xcb_timestamp_t time = XCB_CURRENT_TIME;
};

// The reading thread's own line to the X server: it sleeps in the kernel until the clipboard changes hands,
// an answer comes, a deadline passes or it is told to end. Used by one thread, but for end().
class SelectionWire
{
public:
    // Null where no server answers or it does not tell of owners.
    static std::unique_ptr<SelectionWire> open();
    ~SelectionWire();

    xcb_connection_t *xcb() const { return m_xcb; }
    xcb_window_t root() const { return m_root; }
    xcb_atom_t clipboard() { return atom("CLIPBOARD"); }

    // Blocks. Nothing when it was told to end, or the server has gone.
    std::optional<OwnerChange> waitForChange();

    // The next event that is not about the owner. Null when there is a newer owner, the deadline has
    // passed, or it was told to end: in all three whoever waits gives up.
    XcbReply<xcb_generic_event_t> waitForEvent(RunLoop::Instant deadline);

    // Whether the owner has changed again. Other events that have arrived are of the past and dropped.
    bool hasNewerOwner();

    // Whatever a late owner still puts down is thrown away.
    void discardAnswer(const xcb_generic_event_t *event);

    xcb_atom_t atom(const char *name);
    QStringList names(const QList<xcb_atom_t> &atoms);

    // From any thread; waiting ends at once.
    void end();

private:
    explicit SelectionWire(xcb_connection_t *xcb, xcb_window_t root);
    bool watchOwner();
    XcbReply<xcb_generic_event_t> poll();
    bool noteOwner(const xcb_generic_event_t *event);
    bool sleep(std::optional<RunLoop::Instant> deadline);

    xcb_connection_t *m_xcb;
    xcb_window_t m_root;
    int m_endFd;
    std::atomic<bool> m_isEnded = false;
    quint8 m_ownerEvent = 0;
    std::deque<OwnerChange> m_changes;
    std::unordered_map<std::string, xcb_atom_t> m_atoms;
    std::unordered_map<xcb_atom_t, QString> m_names;
};

}
