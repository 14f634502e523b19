#include "platform/rig/SelectionOwner.h"

#include "platform/x11/XcbReply.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <semaphore>

namespace velm
{

SelectionOwner::SelectionOwner() : m_wakeFd(eventfd(0, EFD_NONBLOCK))
{
    m_xcb = xcb_connect(nullptr, nullptr);
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data;
    m_window = xcb_generate_id(m_xcb);
    xcb_create_window(m_xcb, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    m_thread = std::thread([this] { run(); });
}

SelectionOwner::~SelectionOwner()
{
    m_ends = true;
    eventfd_write(m_wakeFd, 1);
    m_thread.join();
    xcb_disconnect(m_xcb);
    close(m_wakeFd);
}

void SelectionOwner::copy(const QList<PasteboardData> &content, const Manners &manners)
{
    doOnThread([&] {
        m_content = content;
        m_manners = manners;
        claim();
    });
}

void SelectionOwner::wakeUp()
{
    doOnThread([this] {
        m_manners.answers = true;
        for (const auto &request : std::exchange(m_waiting, {}))
            answer(request);
    });
}

void SelectionOwner::leave()
{
    doOnThread(
        [this] { xcb_set_selection_owner(m_xcb, XCB_WINDOW_NONE, atom("CLIPBOARD"), XCB_CURRENT_TIME); });
}

void SelectionOwner::run()
{
    while (!m_ends && !xcb_connection_has_error(m_xcb)) {
        {
            const std::lock_guard lock(m_mutex);
            if (m_task)
                std::exchange(m_task, {})();
        }
        while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb)})
            handle(event.get());
        xcb_flush(m_xcb);
        pollfd sources[] = {{xcb_get_file_descriptor(m_xcb), POLLIN, 0}, {m_wakeFd, POLLIN, 0}};
        poll(sources, 2, 1000);
        eventfd_t count = 0;
        eventfd_read(m_wakeFd, &count);
    }
}

void SelectionOwner::handle(const xcb_generic_event_t *event)
{
    const int type = event->response_type & 0x7f;
    if (type == XCB_SELECTION_REQUEST)
        answer(*reinterpret_cast<const xcb_selection_request_event_t *>(event));
    else if (type == XCB_PROPERTY_NOTIFY)
        sendIncrement(*reinterpret_cast<const xcb_property_notify_event_t *>(event));
}

void SelectionOwner::answer(const xcb_selection_request_event_t &request)
{
    if (!m_manners.answers && request.target != atom("TARGETS")) {
        m_waiting.append(request);
        return;
    }
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = give(request, request.property) ? request.property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(m_xcb, 0, request.requestor, 0, reinterpret_cast<const char *>(&notice));
}

bool SelectionOwner::give(const xcb_selection_request_event_t &request, xcb_atom_t property)
{
    if (request.target == atom("TARGETS")) {
        giveTargets(request.requestor, property);
        return true;
    }
    for (const PasteboardData &data : m_content) {
        if (request.target != atom(data.type.toLatin1()))
            continue;
        if (data.bytes.size() <= m_manners.incrementAbove) {
            put(request.requestor, property, request.target, data.bytes);
            return true;
        }
        const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_xcb, request.requestor, XCB_CW_EVENT_MASK, &events);
        m_transfers.append({request.requestor, property, request.target, data.bytes});
        const auto announced = static_cast<quint32>(data.bytes.size() + m_manners.announcedMore);
        xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, request.requestor, property, atom("INCR"), 32, 1,
                            &announced);
        return true;
    }
    return false;
}

void SelectionOwner::giveTargets(xcb_window_t requestor, xcb_atom_t property)
{
    QList<xcb_atom_t> targets{atom("TARGETS"), atom("TIMESTAMP"), atom("MULTIPLE"), atom("SAVE_TARGETS")};
    for (const PasteboardData &data : m_content)
        targets.append(atom(data.type.toLatin1()));
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, requestor, property, XCB_ATOM_ATOM, 32,
                        static_cast<uint32_t>(targets.size()), targets.constData());
}

void SelectionOwner::put(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type,
                         const QByteArray &bytes)
{
    xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, requestor, property, type, 8,
                        static_cast<uint32_t>(bytes.size()), bytes.constData());
}

void SelectionOwner::sendIncrement(const xcb_property_notify_event_t &wanted)
{
    if (wanted.state != XCB_PROPERTY_DELETE)
        return;
    for (qsizetype i = 0; i < m_transfers.size(); ++i) {
        Transfer &transfer = m_transfers[i];
        if (transfer.requestor != wanted.window || transfer.property != wanted.atom)
            continue;
        if (m_manners.diesAfter >= 0 && transfer.sent >= m_manners.diesAfter) {
            xcb_destroy_window(m_xcb, m_window);
            m_window = XCB_WINDOW_NONE;
            return;
        }
        const QByteArray piece = transfer.bytes.mid(transfer.sent, m_manners.increment);
        xcb_change_property(m_xcb, XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property,
                            transfer.type, 8, piece.size(), piece.constData());
        transfer.sent += piece.size();
        if (piece.isEmpty())
            m_transfers.removeAt(i);
        return;
    }
}

void SelectionOwner::claim()
{
    xcb_set_selection_owner(m_xcb, m_window, atom("CLIPBOARD"), XCB_CURRENT_TIME);
}

void SelectionOwner::doOnThread(std::function<void()> task)
{
    std::binary_semaphore isDone(0);
    {
        const std::lock_guard lock(m_mutex);
        m_task = [&] {
            task();
            // Once an answer has come, the server has seen all of it.
            const XcbReply<xcb_get_input_focus_reply_t> reached(
                xcb_get_input_focus_reply(m_xcb, xcb_get_input_focus(m_xcb), nullptr));
            isDone.release();
        };
    }
    eventfd_write(m_wakeFd, 1);
    isDone.acquire();
}

xcb_atom_t SelectionOwner::atom(const QByteArray &name)
{
    const auto known = m_atoms.find(name);
    if (known != m_atoms.end())
        return known->second;
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_xcb, xcb_intern_atom(m_xcb, 0, name.size(), name.constData()), nullptr));
    return m_atoms[name] = reply->atom;
}

}
