#include "platform/pasteboard/x11/X11Pasteboard.h"

#include "platform/pasteboard/x11/LazyMimeData.h"
#include "platform/pasteboard/x11/QtClipboardShield.h"
#include "platform/pasteboard/x11/SelectionThread.h"
#include "platform/x11/X11Connection.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace std::chrono_literals;

namespace velm
{

namespace
{

// The toolkit claims the clipboard with the time of the last event that it has seen, which the server
// refuses while the notice of a later copy still waits in its queue.
constexpr std::chrono::milliseconds retryDelays[] = {0ms, 5ms, 20ms, 100ms, 500ms};

}

X11Pasteboard::X11Pasteboard(X11Connection &connection, RunLoop &loop)
    : m_connection(connection), m_retry(loop)
{}

X11Pasteboard::~X11Pasteboard() = default;

void X11Pasteboard::watch(NextType next)
{
    if (m_reading)
        return;
    const auto later = [this](auto task) {
        QMetaObject::invokeMethod(this, std::move(task), Qt::QueuedConnection);
    };
    SelectionThread::Listener listener;
    listener.changed = [this, later](quint64 change) { later([this, change] { Q_EMIT changed(change); }); };
    listener.read = [this, later](PasteboardContent content, xcb_timestamp_t copied) {
        later([this, content = std::move(content), copied] {
            if (content.outcome == PasteboardOutcome::Read)
                m_shield->trust(copied);
            Q_EMIT read(content);
        });
    };
    listener.abandoned = [this, later](quint64 change) {
        later([this, change] { Q_EMIT abandoned(change); });
    };
    m_reading =
        SelectionThread::start(m_counter, m_sizeLimit, {toolkitBase()}, std::move(next), std::move(listener));
    if (m_reading)
        m_shield = std::make_unique<QtClipboardShield>(m_connection, toolkitBase());
    else
        qWarning("[Velm] the X server does not tell of copies (no XFIXES)");
}

void X11Pasteboard::write(const PasteboardOffer &content)
{
    if (m_retry.isActive()) {
        m_retry.stop();
        m_counter.expectNone();
    }
    m_counter.step();
    if (content.empty() && owner() == XCB_WINDOW_NONE)
        return;
    // Before the claim: the notice may be there before it returns.
    if (m_reading)
        m_counter.expectNotice();
    claim(content, 0);
}

void X11Pasteboard::claim(const PasteboardOffer &content, size_t attempt)
{
    if (content.empty())
        QGuiApplication::clipboard()->clear();
    else
        QGuiApplication::clipboard()->setMimeData(new LazyMimeData(content));
    const xcb_window_t now = owner();
    if (content.empty() ? now == XCB_WINDOW_NONE : isToolkits(now))
        return;
    if (attempt < std::size(retryDelays)) {
        m_retry.startOnce(retryDelays[attempt], [this, content, attempt] { claim(content, attempt + 1); });
        return;
    }
    m_counter.expectNone();
    qWarning("[Velm] the clipboard could not be taken");
}

xcb_window_t X11Pasteboard::owner() const
{
    const xcb_atom_t clipboard = m_connection.atom("CLIPBOARD");
    const auto answer = m_connection.reply(xcb_get_selection_owner_reply,
                                           xcb_get_selection_owner(m_connection.xcb(), clipboard));
    return answer ? answer->owner : xcb_window_t{XCB_WINDOW_NONE};
}

bool X11Pasteboard::isToolkits(xcb_window_t window) const
{
    return (window & ~xcb_get_setup(m_connection.xcb())->resource_id_mask) == toolkitBase();
}

quint32 X11Pasteboard::toolkitBase() const
{
    const auto *x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? xcb_get_setup(x11->connection())->resource_id_base : 0;
}

}
