#pragma once

#include "platform/x11/XcbReply.h"

#include <QByteArray>
#include <QRect>

#include <xcb/xcb.h>

namespace velm
{

// Another program's window, by a connection of its own: it has a class, may be managed or not, and
// counts the clicks that reach it.
class ForeignWindow
{
public:
    enum class Kind { Managed, Unmanaged };

    ForeignWindow(const QByteArray &windowClass, const QRect &area, Kind kind = Kind::Managed);
    ~ForeignWindow();

    void raise();
    void activate(); // as a pager would

    int clicks(); // that have reached it so far

    bool hasFocus();

    // Of all top-level windows at a place, whether the first is above the second.
    bool isAbove(xcb_window_t other);

private:
    xcb_atom_t atom(const QByteArray &name);
    xcb_window_t topLevelOf(xcb_window_t window);

    xcb_connection_t *m_xcb;
    xcb_window_t m_root;
    xcb_window_t m_window;
    int m_clicks = 0;
};

}
