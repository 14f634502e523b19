#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace velm
{

// How the owner treats the programs that ask for what it has copied.
enum class Manners {
    Proper,    // all that was said, in pieces where it is large
    Concealed, // the same, marked as a password manager's
    Late,      // the same, after a while
    Silent,    // never answers
    Short,     // says a large size, sends little, and ends the transfer in good order
    Stalled,   // says a large size, sends one piece and no more
    Dying,     // says a large size, sends one piece and exits
    Vanishing  // exits when it is asked for the content
};

// A program that copies texts: the owner of the CLIPBOARD selection on a connection of its own, so that it
// can misbehave in ways that no toolkit would.
class SelectionOwner
{
public:
    explicit SelectionOwner(Manners manners, std::chrono::milliseconds lateness = {});
    ~SelectionOwner();
    SelectionOwner(const SelectionOwner &) = delete;
    SelectionOwner &operator=(const SelectionOwner &) = delete;

    // Takes the selection anew with this text.
    void copy(std::string text);

    // Answers what has been asked, without waiting.
    void serve();

    int descriptor() const { return xcb_get_file_descriptor(m_connection); }
    bool isOwner() const { return m_isOwner; }
    bool isConnected() const { return xcb_connection_has_error(m_connection) == 0; }

    // How many copies some program has read to their end.
    std::uint64_t readCopies() const { return m_readCopies; }

private:
    struct Transfer {
        std::string bytes;
        std::size_t sent = 0;
        xcb_atom_t target = XCB_NONE;
    };
    using TransferKey = std::pair<xcb_window_t, xcb_atom_t>;

    xcb_atom_t atom(const char *name) const;
    void answer(const xcb_selection_request_event_t &request);
    void answerTargets(const xcb_selection_request_event_t &request);
    bool answerContent(const xcb_selection_request_event_t &request);
    void beginTransfer(const xcb_selection_request_event_t &request);
    void continueTransfer(const xcb_property_notify_event_t &event);
    void notify(const xcb_selection_request_event_t &request, xcb_atom_t property);
    void countRead();
    bool isHonest() const { return m_manners <= Manners::Late; }

    Manners m_manners;
    std::chrono::milliseconds m_lateness;
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
    xcb_atom_t m_clipboard, m_targets, m_utf8, m_incr, m_hint;
    std::string m_text;
    std::map<TransferKey, Transfer> m_transfers;
    std::uint64_t m_copy = 0, m_lastReadCopy = 0, m_readCopies = 0;
    bool m_isOwner = false;
};

}
