#include "platform/overlay/x11/X11Overlay.h"

#include "platform/x11/NativePixels.h"
#include "platform/x11/X11Connection.h"

#include <QGuiApplication>
#include <QScreen>

#include <xcb/shape.h>
#include <xcb/xfixes.h>

namespace velm
{

namespace
{

QScreen *qtScreen(const ScreenInfo &info)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (screen->name() == info.connector && screen->geometry() == info.geometry)
            return screen;
    }
    return QGuiApplication::primaryScreen();
}

}

X11Overlay::X11Overlay(X11Connection &connection, RunLoop &loop)
    : m_connection(connection), m_keyboard(connection), m_stacking(connection, loop)
{
    const auto *shape = xcb_get_extension_data(connection.xcb(), &xcb_shape_id);
    m_canShape = shape && shape->present;
    watchCompositor();
    connect(&connection, &X11Connection::received, this, &X11Overlay::handle);
    connect(&m_keyboard, &KeyboardLoan::lost, this, &Overlay::keyboardLost);
}

void X11Overlay::attach(QWindow *window)
{
    m_window = window;
    if (!window) {
        m_keyboard.setBorrower(XCB_WINDOW_NONE);
        m_stacking.setWindow(XCB_WINDOW_NONE);
        return;
    }
    // Both are fixed once the server knows the window.
    if (window->handle())
        window->destroy();
    window->setFlags(Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                     Qt::Tool);
    QSurfaceFormat format = window->requestedFormat();
    format.setAlphaBufferSize(8);
    window->setFormat(format);
}

void X11Overlay::present(const ScreenInfo &screen)
{
    if (!m_window)
        return;
    const QRect area = screen.geometry;
    m_window->setScreen(qtScreen(screen));
    m_window->setPosition(area.left() + (area.width() - m_window->width()) / 2, area.top());
    if (!m_window->handle()) {
        m_window->create();
        m_connection.awaitToolkit();
        applyShapes(); // before the first click can hit it
    }
    m_keyboard.setBorrower(xWindow());
    m_stacking.setWindow(xWindow());
    m_window->show();
    m_window->raise();
    m_connection.awaitToolkit();
    applyShapes(); // the scale may be another one here
}

void X11Overlay::setInputRegion(const QRegion &region)
{
    m_inputRegion = region;
    applyShapes();
}

void X11Overlay::setPaintedShape(const QRegion &region)
{
    m_paintedShape = region;
    if (!m_isBlending)
        applyShapes();
}

void X11Overlay::takeKeyboard() { m_keyboard.take(); }

void X11Overlay::returnKeyboard() { m_keyboard.giveBack(); }

OverlayAbilities X11Overlay::abilities() const
{
    return {.clickThrough = m_canShape, .keyboardOnDemand = true, .allWorkspaces = true};
}

// A compositor announces itself by owning a selection.
void X11Overlay::watchCompositor()
{
    xcb_connection_t *xcb = m_connection.xcb();
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(m_connection.screenNumber());
    m_compositor = m_connection.atom(name.constData());
    m_isBlending = seesCompositor();
    const auto *xfixes = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    if (!xfixes || !xfixes->present)
        return;
    m_connection.reply(xcb_xfixes_query_version_reply, xcb_xfixes_query_version(xcb, 5, 0));
    m_xfixesEvent = xfixes->first_event;
    xcb_xfixes_select_selection_input(xcb, m_connection.root(), m_compositor,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

void X11Overlay::handle(const xcb_generic_event_t *event)
{
    if (!m_xfixesEvent || eventType(event) != m_xfixesEvent + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    if (eventAs<xcb_xfixes_selection_notify_event_t>(event)->selection != m_compositor)
        return;
    const bool blends = seesCompositor();
    if (blends == m_isBlending)
        return;
    m_isBlending = blends;
    applyShapes();
    Q_EMIT blendingChanged();
}

bool X11Overlay::seesCompositor()
{
    const auto owner = m_connection.reply(xcb_get_selection_owner_reply,
                                          xcb_get_selection_owner(m_connection.xcb(), m_compositor));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

void X11Overlay::applyShapes()
{
    const xcb_window_t window = xWindow();
    if (!m_canShape || window == XCB_WINDOW_NONE)
        return;
    const auto set = [this, window](xcb_shape_sk_t kind, const QRegion &region) {
        const auto pixels = toPixels(region, m_window->devicePixelRatio());
        xcb_shape_rectangles(m_connection.xcb(), XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window,
                             0, 0, static_cast<uint32_t>(pixels.size()), pixels.constData());
    };
    set(XCB_SHAPE_SK_INPUT, m_inputRegion);
    if (m_paintedShape && !m_isBlending)
        set(XCB_SHAPE_SK_BOUNDING, *m_paintedShape);
    else
        xcb_shape_mask(m_connection.xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0,
                       XCB_PIXMAP_NONE);
    m_connection.flush();
}

xcb_window_t X11Overlay::xWindow() const
{
    return m_window && m_window->handle() ? static_cast<xcb_window_t>(m_window->winId())
                                          : xcb_window_t{XCB_WINDOW_NONE};
}

}
