#include "platform/x11/X11Connection.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QSocketNotifier>

#include <cstring>

namespace velm
{

namespace
{

const xcb_screen_t *screenOf(xcb_connection_t *connection, int number)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (number-- > 0 && screens.rem > 1)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data : nullptr;
}

}

std::unique_ptr<X11Connection> X11Connection::open()
{
    int screenNumber = 0;
    xcb_connection_t *xcb = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(xcb) || !screenOf(xcb, screenNumber)) {
        xcb_disconnect(xcb);
        return nullptr;
    }
    return std::unique_ptr<X11Connection>(new X11Connection(xcb, screenNumber));
}

X11Connection::X11Connection(xcb_connection_t *xcb, int screenNumber)
    : m_xcb(xcb)
    , m_screenNumber(screenNumber)
    , m_screen(screenOf(xcb, screenNumber))
    , m_notifier(new QSocketNotifier(xcb_get_file_descriptor(xcb), QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &X11Connection::readEvents);
    // Waiting for a reply takes events off the socket, which then no longer wakes the loop for them; and
    // what was asked since must not wait in the buffer either. The loop either blocks or only looks in.
    const auto *loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &X11Connection::tellQueued);
    connect(loop, &QAbstractEventDispatcher::awake, this, &X11Connection::tellQueued);
}

X11Connection::~X11Connection()
{
    delete m_notifier;
    xcb_disconnect(m_xcb);
}

xcb_atom_t X11Connection::atom(const char *name)
{
    const auto known = m_atoms.find(name);
    if (known != m_atoms.end())
        return known->second;
    const auto length = static_cast<uint16_t>(std::strlen(name));
    const auto answer = reply(xcb_intern_atom_reply, xcb_intern_atom(m_xcb, 0, length, name));
    if (!answer)
        return XCB_ATOM_NONE;
    return m_atoms.emplace(name, answer->atom).first->second;
}

quint32 X11Connection::cardinal(xcb_window_t window, xcb_atom_t property, xcb_atom_t type)
{
    const auto answer =
        reply(xcb_get_property_reply, xcb_get_property(m_xcb, 0, window, property, type, 0, 1));
    if (!answer || answer->format != 32 || xcb_get_property_value_length(answer.get()) < 4)
        return 0;
    return *static_cast<const quint32 *>(xcb_get_property_value(answer.get()));
}

void X11Connection::selectOnRoot(quint32 eventMask)
{
    m_rootEvents |= eventMask;
    xcb_change_window_attributes(m_xcb, root(), XCB_CW_EVENT_MASK, &m_rootEvents);
    flush();
}

void X11Connection::awaitToolkit()
{
    const auto *toolkit = qApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!toolkit)
        return;
    xcb_connection_t *xcb = toolkit->connection();
    const XcbReply<xcb_get_input_focus_reply_t> reached(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

void X11Connection::readEvents()
{
    while (XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_xcb)})
        Q_EMIT received(event.get());
    flush();
    if (xcb_connection_has_error(m_xcb))
        giveUp();
}

void X11Connection::tellQueued()
{
    while (XcbReply<xcb_generic_event_t> event{xcb_poll_for_queued_event(m_xcb)})
        Q_EMIT received(event.get());
    flush();
}

// A dead socket stays readable for ever.
void X11Connection::giveUp()
{
    if (!m_notifier->isEnabled())
        return;
    m_notifier->setEnabled(false);
    qWarning("[Velm] the X server has closed the connection");
}

}
