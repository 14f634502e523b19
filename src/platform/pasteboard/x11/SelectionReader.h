#pragma once

#include "platform/pasteboard/Pasteboard.h"
#include "platform/pasteboard/x11/SelectionRequest.h"

namespace velm
{

// Reads what the clipboard's owner has to give: its types first, then those that are wanted, one after the
// other. Given up when the clipboard changes hands meanwhile: the content is gone then.
class SelectionReader
{
public:
    explicit SelectionReader(SelectionWire &wire) : m_wire(wire) {}

    // Nothing when nothing of it was wanted.
    std::optional<PasteboardContent> read(const OwnerChange &owner, const Pasteboard::NextType &next,
                                          Bytes limit);

private:
    void readWanted(SelectionRequest &request, xcb_timestamp_t time, const Pasteboard::NextType &next,
                    Bytes limit, PasteboardContent &content);
    std::optional<QStringList> readTypes(SelectionRequest &request, xcb_timestamp_t time);
    xcb_window_t requestor();
    void retireRequestor();

    SelectionWire &m_wire;
    xcb_window_t m_requestor = XCB_WINDOW_NONE;
    std::deque<xcb_window_t> m_retired;
};

}
