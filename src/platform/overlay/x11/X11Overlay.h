#pragma once

#include "platform/overlay/Overlay.h"
#include "platform/overlay/x11/KeyboardLoan.h"
#include "platform/overlay/x11/StackingGuard.h"

#include <QPointer>
#include <QWindow>

#include <optional>

namespace velm
{

// The overlay as an override-redirect window: no window manager moves, decorates, focuses or hides it, and
// it is on every workspace. Clicks pass through where its input shape is not; where no compositor blends,
// its bounding shape is what is painted.
class X11Overlay final : public Overlay
{
public:
    X11Overlay(X11Connection &connection, RunLoop &loop);

    void attach(QWindow *window) override;
    void present(const ScreenInfo &screen) override;
    void setInputRegion(const QRegion &region) override;
    void setPaintedShape(const QRegion &region) override;
    void takeKeyboard() override;
    void returnKeyboard() override;
    bool isBlending() const override { return m_isBlending; }
    OverlayAbilities abilities() const override;

private:
    void watchCompositor();
    void handle(const xcb_generic_event_t *event);
    bool seesCompositor();
    void applyShapes();
    xcb_window_t xWindow() const;

    X11Connection &m_connection;
    KeyboardLoan m_keyboard;
    StackingGuard m_stacking;
    QPointer<QWindow> m_window;
    QRegion m_inputRegion;
    std::optional<QRegion> m_paintedShape; // the whole window until it is told
    bool m_canShape = false;
    quint8 m_xfixesEvent = 0;
    xcb_atom_t m_compositor = XCB_ATOM_NONE;
    bool m_isBlending = false;
};

}
