#pragma once

#include "platform/x11/XcbReply.h"

#include <QObject>

#include <xcb/xcb.h>

#include <string>
#include <unordered_map>

class QSocketNotifier;

namespace velm
{

// The back-ends' own line to the X server on the main thread, beside Qt's: what they ask to be told
// arrives here and Qt never sees it. Once the server has gone, requests do nothing and replies are null.
class X11Connection : public QObject
{
    Q_OBJECT

public:
    // Null where no server answers.
    static std::unique_ptr<X11Connection> open();
    ~X11Connection() override;

    xcb_connection_t *xcb() const { return m_xcb; }
    xcb_window_t root() const { return m_screen->root; }
    int screenNumber() const { return m_screenNumber; }

    // The server is asked once for each name.
    xcb_atom_t atom(const char *name);

    // The reply to a request, or null; its error goes with it. Events that arrive meanwhile are told
    // later, from the event loop.
    template <typename Reply, typename Cookie>
    XcbReply<Reply> reply(Reply *(*wait)(xcb_connection_t *, Cookie, xcb_generic_error_t **), Cookie cookie)
    {
        xcb_generic_error_t *error = nullptr;
        XcbReply<Reply> result(wait(m_xcb, cookie, &error));
        std::free(error);
        return result;
    }

    // The value of a property that holds one window, atom or number; 0 when there is none.
    quint32 cardinal(xcb_window_t window, xcb_atom_t property, xcb_atom_t type);

    // Adds to the events of the root window that are told; several services share it.
    void selectOnRoot(quint32 eventMask);

    void flush() { xcb_flush(m_xcb); }

    // Waits until the server has done all that the toolkit has asked of it on its own line: only then can
    // a window that the toolkit has made be spoken of on this one.
    void awaitToolkit();

Q_SIGNALS:
    void received(const xcb_generic_event_t *event);

private:
    X11Connection(xcb_connection_t *xcb, int screenNumber);
    void readEvents();
    void tellQueued();
    void giveUp();

    xcb_connection_t *m_xcb;
    int m_screenNumber;
    const xcb_screen_t *m_screen;
    quint32 m_rootEvents = 0;
    QSocketNotifier *m_notifier;
    std::unordered_map<std::string, xcb_atom_t> m_atoms;
};

// The bit that tells that another client has sent the event is of no interest.
inline quint8 eventType(const xcb_generic_event_t *event) { return event->response_type & 0x7f; }

// The event as what its type says it is.
template <typename Event>
const Event *eventAs(const xcb_generic_event_t *event)
{
    return reinterpret_cast<const Event *>(event);
}

}
