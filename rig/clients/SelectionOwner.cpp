#include "SelectionOwner.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <thread>

namespace velm
{

namespace
{

// Well under the 256 KiB that a request may hold on every server.
constexpr std::size_t pieceSize = 200 * 1024;
constexpr std::uint32_t saidSize = 1'000'000; // what the ill-mannered say

template <typename T>
using Owned = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Owned<T> owned(T *pointer)
{
    return {pointer, &std::free};
}

}

SelectionOwner::SelectionOwner(Manners manners, std::chrono::milliseconds lateness)
    : m_manners(manners), m_lateness(lateness), m_connection(xcb_connect(nullptr, nullptr))
{
    if (!isConnected())
        std::exit(1);
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_window = xcb_generate_id(m_connection);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    m_clipboard = atom("CLIPBOARD");
    m_targets = atom("TARGETS");
    m_utf8 = atom("UTF8_STRING");
    m_incr = atom("INCR");
    m_hint = atom("x-kde-passwordManagerHint");
}

SelectionOwner::~SelectionOwner() { xcb_disconnect(m_connection); }

xcb_atom_t SelectionOwner::atom(const char *name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : XCB_NONE;
}

void SelectionOwner::copy(std::string text)
{
    m_text = std::move(text);
    ++m_copy;
    m_isOwner = true;
    xcb_set_selection_owner(m_connection, m_window, m_clipboard, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void SelectionOwner::serve()
{
    while (const auto event = owned(xcb_poll_for_event(m_connection))) {
        switch (event->response_type & 0x7f) {
        case XCB_SELECTION_REQUEST:
            answer(*reinterpret_cast<xcb_selection_request_event_t *>(event.get()));
            break;
        case XCB_SELECTION_CLEAR:
            m_isOwner = false;
            break;
        case XCB_PROPERTY_NOTIFY:
            continueTransfer(*reinterpret_cast<xcb_property_notify_event_t *>(event.get()));
            break;
        default:
            break;
        }
    }
    xcb_flush(m_connection);
}

void SelectionOwner::answer(const xcb_selection_request_event_t &request)
{
    if (m_manners == Manners::Silent)
        return;
    if (m_manners == Manners::Late)
        std::this_thread::sleep_for(m_lateness);
    if (request.target == m_targets)
        answerTargets(request);
    else
        notify(request, answerContent(request) ? request.property : static_cast<xcb_atom_t>(XCB_NONE));
}

void SelectionOwner::answerTargets(const xcb_selection_request_event_t &request)
{
    const xcb_atom_t offered[]{m_targets, m_utf8, m_hint};
    const std::uint32_t count = m_manners == Manners::Concealed ? 3 : 2;
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        XCB_ATOM_ATOM, 32, count, offered);
    notify(request, request.property);
}

bool SelectionOwner::answerContent(const xcb_selection_request_event_t &request)
{
    if (request.target == m_hint && m_manners == Manners::Concealed) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property, m_hint,
                            8, 6, "secret");
        return true;
    }
    if (request.target != m_utf8)
        return false;
    if (m_manners == Manners::Vanishing)
        std::exit(0);
    if (!isHonest() || m_text.size() > pieceSize) {
        beginTransfer(request);
        return true;
    }
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property, m_utf8, 8,
                        static_cast<std::uint32_t>(m_text.size()), m_text.data());
    countRead();
    return true;
}

void SelectionOwner::beginTransfer(const xcb_selection_request_event_t &request)
{
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_connection, request.requestor, XCB_CW_EVENT_MASK, &events);
    const auto size = isHonest() ? static_cast<std::uint32_t>(m_text.size()) : saidSize;
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property, m_incr, 32,
                        1, &size);
    m_transfers[{request.requestor, request.property}] = {m_text, 0, request.target};
}

void SelectionOwner::continueTransfer(const xcb_property_notify_event_t &event)
{
    const auto found = m_transfers.find({event.window, event.atom});
    if (event.state != XCB_PROPERTY_DELETE || found == m_transfers.end())
        return;
    Transfer &transfer = found->second;
    if (m_manners == Manners::Stalled && transfer.sent > 0)
        return;
    if (m_manners == Manners::Dying && transfer.sent > 0)
        std::exit(0);
    const std::size_t length = std::min(pieceSize, transfer.bytes.size() - transfer.sent);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, event.window, event.atom, transfer.target, 8,
                        static_cast<std::uint32_t>(length), transfer.bytes.data() + transfer.sent);
    transfer.sent += length;
    if (length == 0) {
        m_transfers.erase(found);
        countRead();
    }
}

void SelectionOwner::notify(const xcb_selection_request_event_t &request, xcb_atom_t property)
{
    xcb_selection_notify_event_t event{};
    event.response_type = XCB_SELECTION_NOTIFY;
    event.time = request.time;
    event.requestor = request.requestor;
    event.selection = request.selection;
    event.target = request.target;
    event.property = property;
    xcb_send_event(m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
}

void SelectionOwner::countRead()
{
    if (m_lastReadCopy == m_copy)
        return;
    m_lastReadCopy = m_copy;
    ++m_readCopies;
}

}
