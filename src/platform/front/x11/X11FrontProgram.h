#pragma once

#include "platform/front/x11/DesktopEntries.h"

#include <xcb/xcb.h>

namespace velm
{

class X11Connection;

// The program of the active window, as the window manager tells it, by the window's class.
class X11FrontProgram final : public FrontProgram
{
public:
    explicit X11FrontProgram(X11Connection &connection) : m_connection(connection) {}

    std::optional<ProgramInfo> current() const override;

private:
    struct WindowClass {
        QString instance;
        QString name;
    };
    std::optional<WindowClass> classOf(xcb_window_t window) const;

    X11Connection &m_connection;
    mutable DesktopEntries m_entries;
};

}
