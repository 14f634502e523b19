#pragma once

#include <QObject>

#include <xcb/xcb.h>

namespace velm
{

class X11Connection;

// The keyboard, borrowed by a window that the window manager does not know, and given back to the window
// that the person was typing in.
class KeyboardLoan : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardLoan(X11Connection &connection);

    // The window that borrows; none while there is no window.
    void setBorrower(xcb_window_t window);

    void take();
    void giveBack();

Q_SIGNALS:
    // Another window has taken the keyboard while it was out.
    void lost();

private:
    struct Lender {
        xcb_window_t active = XCB_WINDOW_NONE; // as the window manager says; toolkits focus a child of it
        xcb_window_t focus = XCB_WINDOW_NONE;
    };

    void handle(const xcb_generic_event_t *event);
    void settleLoss();
    xcb_window_t heir();
    xcb_window_t activeWindow();
    xcb_window_t focusedWindow();
    void activate(xcb_window_t window);

    X11Connection &m_connection;
    xcb_atom_t m_activeWindow;
    xcb_window_t m_borrower = XCB_WINDOW_NONE;
    Lender m_lender;
    bool m_isOut = false;
};

}
