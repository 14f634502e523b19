#include "platform/overlay/x11/StackingGuard.h"

#include "platform/x11/NativePixels.h"
#include "platform/x11/X11Connection.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace velm
{

namespace
{

constexpr auto settleDelay = 100ms; // whoever raises a window often raises several
constexpr auto truce = 3s;          // rises further apart than this are not one quarrel
constexpr int mostRisesInRow = 3;

}

StackingGuard::StackingGuard(X11Connection &connection, RunLoop &loop)
    : m_connection(connection), m_loop(loop), m_pending(loop)
{
    // Visibility events would do with fewer wakeups, but the server redirects windows with an alpha channel
    // and holds them for visible whatever lies above.
    connection.selectOnRoot(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    connect(&connection, &X11Connection::received, this, &StackingGuard::handle);
}

void StackingGuard::setWindow(xcb_window_t window)
{
    m_window = window;
    if (window == XCB_WINDOW_NONE)
        m_pending.stop();
}

void StackingGuard::handle(const xcb_generic_event_t *event)
{
    if (m_window == XCB_WINDOW_NONE || m_pending.isActive())
        return;
    if (eventType(event) == XCB_MAP_NOTIFY) {
        if (eventAs<xcb_map_notify_event_t>(event)->window != m_window)
            considerSoon();
    } else if (eventType(event) == XCB_CONFIGURE_NOTIFY) {
        if (eventAs<xcb_configure_notify_event_t>(event)->window != m_window)
            considerSoon();
    }
}

void StackingGuard::considerSoon()
{
    if (m_loop.now() - m_lastRise > truce)
        m_risesInRow = 0;
    const bool isQuarrel = m_risesInRow >= mostRisesInRow;
    m_pending.startOnce(isQuarrel ? RunLoop::Duration(truce) : settleDelay, [this] {
        if (!shouldRise())
            return;
        ++m_risesInRow;
        m_lastRise = m_loop.now();
        const quint32 above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(m_connection.xcb(), m_window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        m_connection.flush();
    });
}

bool StackingGuard::shouldRise()
{
    const auto own = viewableArea(m_window);
    if (!own)
        return false;
    bool isCovered = false;
    for (const xcb_window_t window : windowsAbove()) {
        const auto area = viewableArea(window);
        if (!area || !area->intersects(*own))
            continue;
        if (coversAScreen(*area) && !isManaged(window))
            return false;
        isCovered = true;
    }
    return isCovered;
}

QList<xcb_window_t> StackingGuard::windowsAbove()
{
    QList<xcb_window_t> above;
    const auto tree =
        m_connection.reply(xcb_query_tree_reply, xcb_query_tree(m_connection.xcb(), m_connection.root()));
    if (!tree)
        return above;
    const xcb_window_t *bottomUp = xcb_query_tree_children(tree.get());
    for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0 && bottomUp[i] != m_window; --i)
        above.append(bottomUp[i]);
    return above;
}

std::optional<QRect> StackingGuard::viewableArea(xcb_window_t window)
{
    xcb_connection_t *xcb = m_connection.xcb();
    const auto attributes = xcb_get_window_attributes(xcb, window);
    const auto geometry = xcb_get_geometry(xcb, window);
    const auto state = m_connection.reply(xcb_get_window_attributes_reply, attributes);
    const auto area = m_connection.reply(xcb_get_geometry_reply, geometry);
    if (!state || !area || state->map_state != XCB_MAP_STATE_VIEWABLE ||
        state->_class == XCB_WINDOW_CLASS_INPUT_ONLY)
        return {};
    return QRect(area->x, area->y, area->width, area->height);
}

// Window managers mark every window of theirs with WM_STATE; it may be inside a frame.
bool StackingGuard::isManaged(xcb_window_t topLevel)
{
    const xcb_atom_t mark = m_connection.atom("WM_STATE");
    const auto isMarked = [this, mark](xcb_window_t window) {
        return m_connection.cardinal(window, mark, mark) != 0;
    };
    if (isMarked(topLevel))
        return true;
    const auto tree = m_connection.reply(xcb_query_tree_reply, xcb_query_tree(m_connection.xcb(), topLevel));
    if (!tree)
        return false;
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    return std::any_of(children, children + xcb_query_tree_children_length(tree.get()), isMarked);
}

}
