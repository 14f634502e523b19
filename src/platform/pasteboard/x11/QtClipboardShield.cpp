#include "platform/pasteboard/x11/QtClipboardShield.h"

#include "platform/x11/X11Connection.h"

#include <QGuiApplication>
#include <QWindow>

namespace velm
{

QtClipboardShield::QtClipboardShield(X11Connection &connection, quint32 toolkitBase)
    : m_connection(connection)
    , m_toolkitBase(toolkitBase)
    , m_baseMask(~xcb_get_setup(connection.xcb())->resource_id_mask)
    , m_ownerEvent(static_cast<quint8>(xcb_get_extension_data(connection.xcb(), &xcb_xfixes_id)->first_event +
                                       XCB_XFIXES_SELECTION_NOTIFY))
    , m_clipboard(connection.atom("CLIPBOARD"))
{
    qApp->installNativeEventFilter(this);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &QtClipboardShield::letThrough);
}

QtClipboardShield::~QtClipboardShield() { qApp->removeNativeEventFilter(this); }

void QtClipboardShield::trust(xcb_timestamp_t time)
{
    m_trusted = time;
    letThrough();
}

// The event itself goes on, under no clipboard's name: the toolkit takes its time stamp from it, without
// which a later copy of ours would come too early for the server.
bool QtClipboardShield::nativeEventFilter(const QByteArray &kind, void *message, qintptr *)
{
    if (kind != "xcb_generic_event_t")
        return false;
    auto *event = static_cast<xcb_xfixes_selection_notify_event_t *>(message);
    if (event->response_type != m_ownerEvent || event->selection != m_clipboard)
        return false; // one that was sent, by us, has another bit set
    if ((event->owner & m_baseMask) == m_toolkitBase || mayPass(*event)) {
        m_withheld.reset();
        return false;
    }
    m_withheld = *event;
    event->selection = XCB_ATOM_NONE;
    return false;
}

bool QtClipboardShield::mayPass(const xcb_xfixes_selection_notify_event_t &notice) const
{
    return QGuiApplication::focusWindow() && notice.selection_timestamp == m_trusted;
}

void QtClipboardShield::letThrough()
{
    if (!m_withheld || !mayPass(*m_withheld))
        return;
    const QWindow *window = QGuiApplication::focusWindow();
    // Without an event mask it goes to the window's maker, which is the toolkit.
    xcb_send_event(m_connection.xcb(), 0, static_cast<xcb_window_t>(window->winId()), XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&*m_withheld));
    m_connection.flush();
    m_withheld.reset();
}

}
