#include "platform/overlay/x11/KeyboardLoan.h"

#include "platform/x11/X11Connection.h"

namespace velm
{

KeyboardLoan::KeyboardLoan(X11Connection &connection)
    : m_connection(connection), m_activeWindow(connection.atom("_NET_ACTIVE_WINDOW"))
{
    connection.selectOnRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    connect(&connection, &X11Connection::received, this, &KeyboardLoan::handle);
}

void KeyboardLoan::setBorrower(xcb_window_t window)
{
    if (window == m_borrower)
        return;
    m_borrower = window;
    m_isOut = false;
    if (window == XCB_WINDOW_NONE)
        return;
    const quint32 events = XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_change_window_attributes(m_connection.xcb(), window, XCB_CW_EVENT_MASK, &events);
    m_connection.flush();
}

void KeyboardLoan::take()
{
    if (m_borrower == XCB_WINDOW_NONE || focusedWindow() == m_borrower)
        return;
    m_lender = {.active = activeWindow(), .focus = focusedWindow()};
    m_isOut = true;
    xcb_set_input_focus(m_connection.xcb(), XCB_INPUT_FOCUS_PARENT, m_borrower, XCB_CURRENT_TIME);
    m_connection.flush();
}

void KeyboardLoan::giveBack()
{
    if (!m_isOut)
        return;
    m_isOut = false;
    if (focusedWindow() != m_borrower)
        return;
    // The window manager may think that the lender has it still, and do nothing: so the server is told too.
    xcb_set_input_focus(m_connection.xcb(), XCB_INPUT_FOCUS_PARENT, heir(), XCB_CURRENT_TIME);
    if (m_lender.active != XCB_WINDOW_NONE)
        activate(m_lender.active);
    m_connection.flush();
}

void KeyboardLoan::handle(const xcb_generic_event_t *event)
{
    if (!m_isOut)
        return;
    if (eventType(event) == XCB_FOCUS_OUT) {
        const auto *out = eventAs<xcb_focus_out_event_t>(event);
        // A grab (a menu, a window manager's shortcut) takes the keys for a while and gives them back.
        const bool isForGood =
            out->mode == XCB_NOTIFY_MODE_NORMAL || out->mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
        if (out->event == m_borrower && isForGood)
            settleLoss();
    } else if (eventType(event) == XCB_PROPERTY_NOTIFY) {
        if (eventAs<xcb_property_notify_event_t>(event)->atom == m_activeWindow)
            settleLoss();
    }
}

// The event may tell of a moment that has passed: only what holds now counts.
void KeyboardLoan::settleLoss()
{
    if (focusedWindow() == m_borrower)
        return;
    m_isOut = false;
    Q_EMIT lost();
}

// A lender that has closed meanwhile must not leave the keyboard with the borrower.
xcb_window_t KeyboardLoan::heir()
{
    const auto state = m_connection.reply(xcb_get_window_attributes_reply,
                                          xcb_get_window_attributes(m_connection.xcb(), m_lender.focus));
    const bool canHaveIt = state && state->map_state == XCB_MAP_STATE_VIEWABLE;
    return canHaveIt ? m_lender.focus : xcb_window_t{XCB_INPUT_FOCUS_POINTER_ROOT};
}

xcb_window_t KeyboardLoan::activeWindow()
{
    return m_connection.cardinal(m_connection.root(), m_activeWindow, XCB_ATOM_WINDOW);
}

xcb_window_t KeyboardLoan::focusedWindow()
{
    const auto focus = m_connection.reply(xcb_get_input_focus_reply, xcb_get_input_focus(m_connection.xcb()));
    return focus ? focus->focus : xcb_window_t{XCB_WINDOW_NONE};
}

void KeyboardLoan::activate(xcb_window_t window)
{
    constexpr quint32 asPager = 2; // as from a pager: window managers do not weigh it as focus stealing
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = m_activeWindow;
    message.data.data32[0] = asPager;
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(m_connection.xcb(), 0, m_connection.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
}

}
