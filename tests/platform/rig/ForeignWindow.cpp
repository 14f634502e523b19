#include "platform/rig/ForeignWindow.h"

namespace velm
{

ForeignWindow::ForeignWindow(const QByteArray &windowClass, const QRect &area, Kind kind)
    : m_xcb(xcb_connect(nullptr, nullptr))
    , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data->root)
    , m_window(xcb_generate_id(m_xcb))
{
    const quint32 values[] = {kind == Kind::Unmanaged ? 1u : 0u, XCB_EVENT_MASK_BUTTON_PRESS};
    xcb_create_window(m_xcb, XCB_COPY_FROM_PARENT, m_window, m_root, static_cast<int16_t>(area.x()),
                      static_cast<int16_t>(area.y()), static_cast<uint16_t>(area.width()),
                      static_cast<uint16_t>(area.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    const QByteArray names = windowClass.toLower() + '\0' + windowClass + '\0';
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<uint32_t>(names.size()), names.constData());
    // Where it is put is where it stays (WM_NORMAL_HINTS: position and size by the person).
    const quint32 hints[18] = {3};
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, m_window, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, 18, hints);
    xcb_map_window(m_xcb, m_window);
    hasFocus();
}

ForeignWindow::~ForeignWindow() { xcb_disconnect(m_xcb); }

void ForeignWindow::raise()
{
    const quint32 above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(m_xcb, m_window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    hasFocus();
}

void ForeignWindow::activate()
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_window;
    message.type = atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = 2;
    xcb_send_event(m_xcb, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    hasFocus();
}

int ForeignWindow::clicks()
{
    hasFocus(); // what was sent before is here now
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb)})
        m_clicks += (event->response_type & 0x7f) == XCB_BUTTON_PRESS ? 1 : 0;
    return m_clicks;
}

bool ForeignWindow::hasFocus()
{
    const XcbReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr));
    return focus && focus->focus == m_window;
}

bool ForeignWindow::isAbove(xcb_window_t other)
{
    const xcb_window_t mine = topLevelOf(m_window);
    const xcb_window_t theirs = topLevelOf(other);
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_xcb, xcb_query_tree(m_xcb, m_root), nullptr));
    const xcb_window_t *bottomUp = xcb_query_tree_children(tree.get());
    for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i) {
        if (bottomUp[i] == mine || bottomUp[i] == theirs)
            return bottomUp[i] == mine;
    }
    return false;
}

xcb_atom_t ForeignWindow::atom(const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(m_xcb, 0, static_cast<uint16_t>(name.size()), name.constData());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_xcb, cookie, nullptr));
    return reply->atom;
}

xcb_window_t ForeignWindow::topLevelOf(xcb_window_t window)
{
    while (true) {
        const XcbReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(m_xcb, xcb_query_tree(m_xcb, window), nullptr));
        if (!tree || tree->parent == m_root || tree->parent == XCB_WINDOW_NONE)
            return window;
        window = tree->parent;
    }
}

}
