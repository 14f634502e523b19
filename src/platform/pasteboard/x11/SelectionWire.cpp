#include "platform/pasteboard/x11/SelectionWire.h"

#include <xcb/xfixes.h>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace velm
{

std::unique_ptr<SelectionWire> SelectionWire::open()
{
    int screen = 0;
    xcb_connection_t *xcb = xcb_connect(nullptr, &screen);
    if (xcb_connection_has_error(xcb)) {
        xcb_disconnect(xcb);
        return nullptr;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    while (screen-- > 0 && screens.rem > 1)
        xcb_screen_next(&screens);
    std::unique_ptr<SelectionWire> wire(new SelectionWire(xcb, screens.data->root));
    return wire->watchOwner() ? std::move(wire) : nullptr;
}

SelectionWire::SelectionWire(xcb_connection_t *xcb, xcb_window_t root)
    : m_xcb(xcb), m_root(root), m_endFd(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{}

SelectionWire::~SelectionWire()
{
    xcb_disconnect(m_xcb);
    close(m_endFd);
}

std::optional<OwnerChange> SelectionWire::waitForChange()
{
    while (m_changes.empty()) {
        if (const auto event = poll())
            discardAnswer(event.get());
        else if (m_changes.empty() && !sleep({}))
            return {};
    }
    if (m_isEnded)
        return {};
    const OwnerChange change = m_changes.front();
    m_changes.pop_front();
    return change;
}

XcbReply<xcb_generic_event_t> SelectionWire::waitForEvent(RunLoop::Instant deadline)
{
    while (true) {
        if (auto event = poll())
            return event;
        if (!m_changes.empty() || !sleep(deadline))
            return nullptr;
    }
}

bool SelectionWire::hasNewerOwner()
{
    while (m_changes.empty()) {
        const auto event = poll();
        if (event)
            discardAnswer(event.get());
        else if (m_changes.empty())
            return false;
    }
    return true;
}

void SelectionWire::discardAnswer(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != XCB_SELECTION_NOTIFY)
        return;
    const auto *answer = reinterpret_cast<const xcb_selection_notify_event_t *>(event);
    if (answer->property == XCB_ATOM_NONE)
        return;
    xcb_delete_property(m_xcb, answer->requestor, answer->property);
    xcb_flush(m_xcb);
}

xcb_atom_t SelectionWire::atom(const char *name)
{
    const auto known = m_atoms.find(name);
    if (known != m_atoms.end())
        return known->second;
    const auto cookie = xcb_intern_atom(m_xcb, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const XcbReply<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(m_xcb, cookie, nullptr));
    return answer ? m_atoms.emplace(name, answer->atom).first->second : xcb_atom_t{XCB_ATOM_NONE};
}

QStringList SelectionWire::names(const QList<xcb_atom_t> &atoms)
{
    std::unordered_map<xcb_atom_t, xcb_get_atom_name_cookie_t> asked;
    for (const xcb_atom_t atom : atoms) {
        if (!m_names.contains(atom) && !asked.contains(atom))
            asked.emplace(atom, xcb_get_atom_name(m_xcb, atom));
    }
    for (const auto &[atom, cookie] : asked) {
        xcb_generic_error_t *error = nullptr;
        const XcbReply<xcb_get_atom_name_reply_t> answer(xcb_get_atom_name_reply(m_xcb, cookie, &error));
        const XcbReply<xcb_generic_error_t> refused(error);
        if (answer)
            m_names[atom] = QString::fromLatin1(xcb_get_atom_name_name(answer.get()),
                                                xcb_get_atom_name_name_length(answer.get()));
    }
    QStringList names;
    for (const xcb_atom_t atom : atoms) {
        const auto name = m_names.find(atom);
        if (name != m_names.end() && !names.contains(name->second))
            names.append(name->second);
    }
    return names;
}

void SelectionWire::end()
{
    m_isEnded = true;
    const quint64 one = 1;
    [[maybe_unused]] const auto written = ::write(m_endFd, &one, sizeof one);
}

bool SelectionWire::watchOwner()
{
    const auto *extension = xcb_get_extension_data(m_xcb, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return false;
    const auto cookie = xcb_xfixes_query_version(m_xcb, 5, 0);
    const XcbReply<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(m_xcb, cookie, nullptr));
    if (!version)
        return false;
    m_ownerEvent = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    xcb_xfixes_select_selection_input(m_xcb, m_root, clipboard(),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    // Once an answer has come, the server has taken the request in: no later copy is missed.
    const XcbReply<xcb_get_input_focus_reply_t> reached(
        xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr));
    return reached != nullptr;
}

// The next event that is not about the owner; null when none is here yet, or the next one is about it.
XcbReply<xcb_generic_event_t> SelectionWire::poll()
{
    xcb_flush(m_xcb); // first: a full socket makes it read events too
    XcbReply<xcb_generic_event_t> event(xcb_poll_for_event(m_xcb));
    if (event && noteOwner(event.get()))
        return nullptr;
    return event;
}

bool SelectionWire::noteOwner(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != m_ownerEvent)
        return false;
    const auto *change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
    if (change->selection != clipboard())
        return false;
    const bool isGone = change->subtype != XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER;
    m_changes.push_back(
        {isGone ? xcb_window_t{XCB_WINDOW_NONE} : change->owner, change->selection_timestamp});
    return true;
}

// False when the time is up, it was told to end, or the server has gone.
bool SelectionWire::sleep(std::optional<RunLoop::Instant> deadline)
{
    if (xcb_connection_has_error(m_xcb))
        return false;
    int patience = -1;
    if (deadline) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - RunLoop::Clock::now());
        if (left <= std::chrono::milliseconds::zero())
            return false;
        patience = static_cast<int>(left.count());
    }
    pollfd sources[] = {{xcb_get_file_descriptor(m_xcb), POLLIN, 0}, {m_endFd, POLLIN, 0}};
    const int ready = ::poll(sources, 2, patience);
    if (ready == 0 || sources[1].revents != 0)
        return false;
    return ready > 0 || errno == EINTR;
}

}
