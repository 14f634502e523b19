#include "platform/pasteboard/x11/SelectionRequest.h"

#include <algorithm>

namespace velm
{

namespace
{

constexpr quint32 wordSize = 4;                        // properties are addressed in these
constexpr quint32 sliceWords = 1024 * 1024 / wordSize; // what is on its way is held twice

}

SelectionRequest::SelectionRequest(SelectionWire &wire, xcb_window_t requestor, RunLoop::Instant deadline)
    : m_wire(wire), m_requestor(requestor), m_property(wire.atom("VELM_CONTENT")), m_deadline(deadline)
{}

SelectionAnswer SelectionRequest::run(xcb_atom_t target, xcb_timestamp_t time, Bytes limit)
{
    m_bytes = QByteArray(""); // empty is not null: that is kept for what was refused
    xcb_convert_selection(m_wire.xcb(), m_requestor, m_wire.clipboard(), target, m_property, time);
    auto kind = awaitAnswer(target);
    if (kind != SelectionAnswer::Complete)
        return {kind, {}};
    switch (takeProperty(limit)) {
    case Slice::Whole:
        break;
    case Slice::Increments:
        kind = takeIncrements(limit);
        break;
    case Slice::TooLarge:
        kind = SelectionAnswer::TooLarge;
        break;
    case Slice::Gone:
        kind = SelectionAnswer::Broken;
        break;
    }
    if (kind != SelectionAnswer::Complete)
        return {kind, {}};
    return {kind, std::move(m_bytes)};
}

SelectionAnswer::Kind SelectionRequest::awaitAnswer(xcb_atom_t target)
{
    const auto deadline = progressDeadline();
    while (const auto event = m_wire.waitForEvent(deadline)) {
        if ((event->response_type & 0x7f) != XCB_SELECTION_NOTIFY)
            continue;
        const auto *answer = reinterpret_cast<const xcb_selection_notify_event_t *>(event.get());
        if (answer->requestor != m_requestor || answer->target != target)
            m_wire.discardAnswer(event.get());
        else if (answer->property != m_property)
            return SelectionAnswer::Refused;
        else
            return SelectionAnswer::Complete;
    }
    return SelectionAnswer::Broken;
}

// Appends the property's bytes. The server deletes it with the last of them, which asks the owner for the
// next piece where there are pieces.
SelectionRequest::Slice SelectionRequest::takeProperty(Bytes limit)
{
    quint32 offset = 0;
    while (true) {
        const auto cookie = xcb_get_property(m_wire.xcb(), 1, m_requestor, m_property,
                                             XCB_GET_PROPERTY_TYPE_ANY, offset, sliceWords);
        const XcbReply<xcb_get_property_reply_t> slice(xcb_get_property_reply(m_wire.xcb(), cookie, nullptr));
        if (!slice || slice->type == XCB_ATOM_NONE)
            return Slice::Gone;
        const auto *bytes = static_cast<const char *>(xcb_get_property_value(slice.get()));
        const int length = xcb_get_property_value_length(slice.get());
        if (slice->type == m_wire.atom("INCR")) {
            const bool isSaid = slice->format == 32 && length >= static_cast<int>(wordSize);
            m_announced = isSaid ? *reinterpret_cast<const quint32 *>(bytes) : 0;
            return Slice::Increments;
        }
        const qint64 atLeast = m_bytes.size() + length + slice->bytes_after;
        if (atLeast > limit.count)
            return Slice::TooLarge;
        if (m_bytes.capacity() < atLeast)
            m_bytes.reserve(std::max<qint64>(atLeast, m_bytes.size() * 3 / 2));
        m_bytes.append(bytes, length);
        if (slice->bytes_after == 0)
            return Slice::Whole;
        offset += sliceWords;
    }
}

// An empty piece is the end. What was announced is the least that comes, not the most.
SelectionAnswer::Kind SelectionRequest::takeIncrements(Bytes limit)
{
    const qint64 announced = m_announced;
    if (announced > limit.count)
        return SelectionAnswer::TooLarge;
    m_bytes.reserve(announced);
    while (true) {
        if (!awaitIncrement())
            return SelectionAnswer::Broken;
        const qint64 before = m_bytes.size();
        const Slice slice = takeProperty(limit);
        if (slice == Slice::TooLarge)
            return SelectionAnswer::TooLarge;
        if (slice != Slice::Whole)
            return SelectionAnswer::Broken;
        if (m_bytes.size() == before)
            return before >= announced ? SelectionAnswer::Complete : SelectionAnswer::Broken;
    }
}

bool SelectionRequest::awaitIncrement()
{
    const auto deadline = progressDeadline();
    while (const auto event = m_wire.waitForEvent(deadline)) {
        if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY) {
            m_wire.discardAnswer(event.get());
            continue;
        }
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
        if (change->window == m_requestor && change->atom == m_property &&
            change->state == XCB_PROPERTY_NEW_VALUE)
            return true;
    }
    return false;
}

RunLoop::Instant SelectionRequest::progressDeadline() const
{
    return std::min<RunLoop::Instant>(RunLoop::Clock::now() + patience, m_deadline);
}

}
