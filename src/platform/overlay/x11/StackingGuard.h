#pragma once

#include "platform/runloop/LoopTimer.h"

#include <QRect>

#include <xcb/xcb.h>

#include <optional>

namespace velm
{

class X11Connection;

// Keeps the overlay's window above what others raise over it. Two things it does not do: wage a raise war
// with a window that fights back, and rise above a window that covers a whole screen and that no window
// manager knows, for that is what a screen locker is.
class StackingGuard : public QObject
{
public:
    StackingGuard(X11Connection &connection, RunLoop &loop);

    // None while there is no window.
    void setWindow(xcb_window_t window);

private:
    void handle(const xcb_generic_event_t *event);
    void considerSoon();
    bool shouldRise();
    QList<xcb_window_t> windowsAbove();
    std::optional<QRect> viewableArea(xcb_window_t window);
    bool isManaged(xcb_window_t topLevel);

    X11Connection &m_connection;
    RunLoop &m_loop;
    LoopTimer m_pending;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    RunLoop::Instant m_lastRise;
    int m_risesInRow = 0;
};

}
