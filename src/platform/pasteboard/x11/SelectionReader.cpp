#include "platform/pasteboard/x11/SelectionReader.h"

namespace velm
{

namespace
{

constexpr std::chrono::seconds patienceForAll{10}; // with an owner that creeps
constexpr qsizetype mostTypes = 256;               // an office suite offers some forty
constexpr Bytes mostBytesOfTypes{64 * 1024};

// A hung owner that wakes up answers to a window that must still be there: many programs do not survive
// an answer to none.
constexpr size_t mostRetired = 64;

// What the target list names that is no content (ICCCM section 2.6.2 and the clipboard manager's protocol).
bool isBookkeeping(const QString &type)
{
    static const QStringList names{
        QStringLiteral("TARGETS"),       QStringLiteral("MULTIPLE"),
        QStringLiteral("TIMESTAMP"),     QStringLiteral("SAVE_TARGETS"),
        QStringLiteral("DELETE"),        QStringLiteral("INSERT_PROPERTY"),
        QStringLiteral("LENGTH"),        QStringLiteral("INSERT_SELECTION"),
        QStringLiteral("LIST_LENGTH"),   QStringLiteral("HOST_NAME"),
        QStringLiteral("CLIENT_WINDOW"), QStringLiteral("OWNER_OS"),
        QStringLiteral("USER"),          QStringLiteral("PROCESS"),
        QStringLiteral("TASK"),          QStringLiteral("CLASS"),
        QStringLiteral("NAME"),
    };
    return names.contains(type);
}

}

std::optional<PasteboardContent> SelectionReader::read(const OwnerChange &owner,
                                                       const Pasteboard::NextType &next, Bytes limit)
{
    PasteboardContent content{.change = 0, .types = {}, .data = {}, .outcome = PasteboardOutcome::Failed};
    if (m_wire.hasNewerOwner())
        return content;
    SelectionRequest request(m_wire, requestor(), RunLoop::Clock::now() + patienceForAll);
    const auto types = readTypes(request, owner.time);
    if (types) {
        content.types = *types;
        content.outcome = PasteboardOutcome::Read;
        readWanted(request, owner.time, next, limit, content);
    }
    if (content.outcome != PasteboardOutcome::Read) {
        content.data.clear();
        retireRequestor();
    } else if (content.data.isEmpty()) {
        return {};
    }
    return content;
}

void SelectionReader::readWanted(SelectionRequest &request, xcb_timestamp_t time,
                                 const Pasteboard::NextType &next, Bytes limit, PasteboardContent &content)
{
    // Asking for more types than are offered would never end.
    while (content.data.size() <= content.types.size()) {
        const QString type = next(content.types, content.data);
        if (type.isEmpty())
            return;
        const SelectionAnswer answer = request.run(m_wire.atom(type.toLatin1().constData()), time, limit);
        if (answer.kind == SelectionAnswer::TooLarge)
            content.outcome = PasteboardOutcome::TooLarge;
        else if (answer.kind == SelectionAnswer::Broken)
            content.outcome = PasteboardOutcome::Failed;
        if (content.outcome != PasteboardOutcome::Read)
            return;
        limit.count -= answer.bytes.size();
        content.data.append({type, answer.bytes});
    }
}

std::optional<QStringList> SelectionReader::readTypes(SelectionRequest &request, xcb_timestamp_t time)
{
    const SelectionAnswer answer = request.run(m_wire.atom("TARGETS"), time, mostBytesOfTypes);
    if (answer.kind == SelectionAnswer::Refused)
        return QStringList{QStringLiteral("UTF8_STRING"), QStringLiteral("STRING")}; // older than the list
    if (answer.kind != SelectionAnswer::Complete)
        return {};
    const auto *atoms = reinterpret_cast<const xcb_atom_t *>(answer.bytes.constData());
    const qsizetype count = answer.bytes.size() / static_cast<qsizetype>(sizeof(xcb_atom_t));
    QStringList types = m_wire.names(QList<xcb_atom_t>(atoms, atoms + std::min(count, mostTypes)));
    types.removeIf([](const QString &type) { return isBookkeeping(type); });
    return types;
}

xcb_window_t SelectionReader::requestor()
{
    if (m_requestor != XCB_WINDOW_NONE)
        return m_requestor;
    m_requestor = xcb_generate_id(m_wire.xcb());
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_wire.xcb(), 0, m_requestor, m_wire.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    return m_requestor;
}

// After a request that was given up its window may still be answered to: the next content gets a new one,
// so that nothing late is ever taken for it.
void SelectionReader::retireRequestor()
{
    const quint32 none = XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(m_wire.xcb(), m_requestor, XCB_CW_EVENT_MASK, &none);
    xcb_delete_property(m_wire.xcb(), m_requestor, m_wire.atom("VELM_CONTENT"));
    m_retired.push_back(m_requestor);
    m_requestor = XCB_WINDOW_NONE;
    if (m_retired.size() <= mostRetired)
        return;
    xcb_destroy_window(m_wire.xcb(), m_retired.front());
    m_retired.pop_front();
}

}
