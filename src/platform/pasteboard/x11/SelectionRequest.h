#pragma once

#include "platform/Bytes.h"
#include "platform/pasteboard/x11/SelectionWire.h"

#include <QByteArray>

namespace velm
{

// The answer to one request for the clipboard's content as one type.
struct SelectionAnswer {
    enum Kind {
        Complete,
        Refused, // the owner does not give this type
        TooLarge,
        Broken, // no answer in time, a new owner, or less than was said
    };
    Kind kind = Broken;
    QByteArray bytes;
};

// Asks the clipboard's owner for one type and takes in its answer, whole or piece by piece (INCR, ICCCM
// section 2.7.2). The requestor window must have been used for nothing that is still going on.
class SelectionRequest
{
public:
    // An owner that shows no progress for so long hangs; one that creeps is left at the deadline.
    static constexpr std::chrono::seconds patience{2};

    SelectionRequest(SelectionWire &wire, xcb_window_t requestor, RunLoop::Instant deadline);

    SelectionAnswer run(xcb_atom_t target, xcb_timestamp_t time, Bytes limit);

private:
    enum class Slice { Whole, Increments, TooLarge, Gone };

    SelectionAnswer::Kind awaitAnswer(xcb_atom_t target);
    Slice takeProperty(Bytes limit);
    SelectionAnswer::Kind takeIncrements(Bytes limit);
    bool awaitIncrement();
    RunLoop::Instant progressDeadline() const;

    SelectionWire &m_wire;
    xcb_window_t m_requestor;
    xcb_atom_t m_property;
    RunLoop::Instant m_deadline;
    QByteArray m_bytes;
    qint64 m_announced = 0;
};

}
