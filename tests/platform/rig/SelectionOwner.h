#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <xcb/xcb.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace velm
{

// Another program that copies: a client of its own, on a thread of its own, that answers for the clipboard
// well or badly.
class SelectionOwner
{
public:
    struct Manners {
        bool answers = true; // else it tells its types and hangs when asked for content
        qsizetype incrementAbove = 1 << 18;
        qsizetype increment = 1 << 16;
        qint64 announcedMore = 0; // than it sends; less when negative
        qsizetype diesAfter = -1; // bytes sent in increments
    };

    SelectionOwner();
    ~SelectionOwner();

    void copy(const QList<PasteboardData> &content) { copy(content, Manners()); }
    void copy(const QList<PasteboardData> &content, const Manners &manners);

    // Answers now what it kept waiting.
    void wakeUp();

    // Goes, and leaves nothing.
    void leave();

private:
    struct Transfer {
        xcb_window_t requestor;
        xcb_atom_t property;
        xcb_atom_t type;
        QByteArray bytes;
        qsizetype sent = 0;
    };

    void run();
    void handle(const xcb_generic_event_t *event);
    void answer(const xcb_selection_request_event_t &request);
    bool give(const xcb_selection_request_event_t &request, xcb_atom_t property);
    void giveTargets(xcb_window_t requestor, xcb_atom_t property);
    void put(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type, const QByteArray &bytes);
    void sendIncrement(const xcb_property_notify_event_t &wanted);
    void claim();
    void doOnThread(std::function<void()> task);
    xcb_atom_t atom(const QByteArray &name);

    xcb_connection_t *m_xcb = nullptr;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    QList<PasteboardData> m_content;
    Manners m_manners;
    QList<xcb_selection_request_event_t> m_waiting;
    QList<Transfer> m_transfers;
    std::map<QByteArray, xcb_atom_t> m_atoms;
    std::mutex m_mutex;
    std::function<void()> m_task;
    int m_wakeFd;
    std::atomic<bool> m_ends = false;
    std::thread m_thread;
};

}
