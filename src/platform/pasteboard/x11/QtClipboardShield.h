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

    // Another program has copied, and then: it was read without trouble.
    void doubtContent() { m_isTrusted = false; }
    void trustContent();

    bool nativeEventFilter(const QByteArray &kind, void *message, qintptr *result) override;

private:
    void letThrough();

    X11Connection &m_connection;
    quint32 m_toolkitBase;
    quint32 m_baseMask;
    quint8 m_ownerEvent;
    xcb_atom_t m_clipboard;
    std::optional<xcb_xfixes_selection_notify_event_t> m_withheld;
    bool m_isTrusted = false;
};

}
