// click_window: a full-screen program's window that prints what reaches it, a line each:
//
//   ready WINDOW            it is on the screen (decimal id)
//   press BUTTON X Y        a mouse button or a wheel step (4, 5), in root coordinates
//   key KEYCODE
//   focus in|out
//
// Its class is "ClickWindow", its name "click window". It ends when its standard input does.

#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace
{

xcb_atom_t atom(xcb_connection_t *connection, std::string_view name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_NONE);
}

void setText(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t property, std::string_view text)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
}

xcb_window_t showFullScreen(xcb_connection_t *connection)
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const std::uint32_t values[]{0x335577, XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_KEY_PRESS |
                                               XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, screen->width_in_pixels,
                      screen->height_in_pixels, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    setText(connection, window, XCB_ATOM_WM_NAME, "click window");
    setText(connection, window, XCB_ATOM_WM_CLASS, std::string_view("clickwindow\0ClickWindow\0", 24));
    const xcb_atom_t state = atom(connection, "_NET_WM_STATE_FULLSCREEN");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, "_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, 1, &state);
    xcb_map_window(connection, window);
    xcb_flush(connection);
    return window;
}

void print(const xcb_generic_event_t &event, xcb_window_t window)
{
    switch (event.response_type & 0x7f) {
    case XCB_MAP_NOTIFY:
        std::printf("ready %u\n", window);
        break;
    case XCB_BUTTON_PRESS: {
        const auto &press = reinterpret_cast<const xcb_button_press_event_t &>(event);
        std::printf("press %d %d %d\n", press.detail, press.root_x, press.root_y);
        break;
    }
    case XCB_KEY_PRESS:
        std::printf("key %d\n", reinterpret_cast<const xcb_key_press_event_t &>(event).detail);
        break;
    case XCB_FOCUS_IN:
        std::puts("focus in");
        break;
    case XCB_FOCUS_OUT:
        std::puts("focus out");
        break;
    default:
        break;
    }
    std::fflush(stdout);
}

}

int main()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return 1;
    const xcb_window_t window = showFullScreen(connection);
    for (;;) {
        while (auto *event = xcb_poll_for_event(connection)) {
            print(*event, window);
            std::free(event);
        }
        pollfd watched[]{{xcb_get_file_descriptor(connection), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
        poll(watched, 2, -1);
        if (watched[1].revents != 0 || xcb_connection_has_error(connection) != 0)
            return 0;
    }
}
