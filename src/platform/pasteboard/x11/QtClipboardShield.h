#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xfixes.h>

#include <optional>

namespace velm
{

class X11Connection;

// Keeps the toolkit from reading other programs' copies by itself: any text field does so at every change of
// the clipboard, on the main thread, and waits many seconds for an owner that hangs. The toolkit learns of
// a copy only once it has been read without trouble and one of our windows has the keyboard, that is, when
// the person may paste into it.
class QtClipboardShield : public QObject, public QAbstractNativeEventFilter
{
public:
    // The resource base tells the toolkit's own windows.
    QtClipboardShield(X11Connection &connection, quint32 toolkitBase);
    ~QtClipboardShield() override;

    // What another program has copied at this time of the server's was read without trouble. The toolkit's
    // own notice of it may come before or after.
    void trust(xcb_timestamp_t time);

    bool nativeEventFilter(const QByteArray &kind, void *message, qintptr *result) override;

private:
    bool mayPass(const xcb_xfixes_selection_notify_event_t &notice) const;
    void letThrough();

    X11Connection &m_connection;
    quint32 m_toolkitBase;
    quint32 m_baseMask;
    quint8 m_ownerEvent;
    xcb_atom_t m_clipboard;
    std::optional<xcb_xfixes_selection_notify_event_t> m_withheld;
    xcb_timestamp_t m_trusted = XCB_CURRENT_TIME;
};

}
