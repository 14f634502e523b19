#pragma once

#include "platform/x11/XcbReply.h"

#include <QByteArray>
#include <QList>
#include <QRect>

#include <xcb/xcb.h>

namespace velm
{

// Another program's window, by a connection of its own: it has a class, may be managed or not, and
// remembers the clicks and keys that reach it.
class ForeignWindow
{
public:
    enum class Kind { Managed, Unmanaged };

    ForeignWindow(const QByteArray &windowClass, const QRect &area, Kind kind = Kind::Managed);
    ~ForeignWindow();

    void raise();
    void focus();
    void activate(); // as a pager would
    void own(const QByteArray &selection);
    void disown(const QByteArray &selection);

    // What has reached it so far.
    int clicks();
    QList<QPair<xcb_keycode_t, uint16_t>> keys(); // with the modifiers that were down

    bool hasFocus();
    bool isActive();
    xcb_window_t id() const { return m_window; }

    // Of all top-level windows at a place, whether the first is above the second.
    bool isAbove(xcb_window_t other);

    // The number of rectangles and what they bound, of the window's shape of this kind.
    QRect shapeOf(xcb_window_t window, uint8_t kind);

private:
    void takeEvents();
    xcb_atom_t atom(const QByteArray &name);
    xcb_window_t topLevelOf(xcb_window_t window);
    xcb_window_t activeWindow();

    xcb_connection_t *m_xcb;
    xcb_window_t m_root;
    xcb_window_t m_window;
    int m_clicks = 0;
    QList<QPair<xcb_keycode_t, uint16_t>> m_keys;
};

}
