#include "platform/rig/PrivateDisplay.h"

#include "platform/rig/StartProgram.h"
#include "platform/x11/XcbReply.h"

#include <QtGlobal>

#include <xcb/xcb.h>

#include <chrono>
#include <cstring>
#include <thread>

namespace velm
{

namespace
{

using namespace std::chrono_literals;

// Window managers announce themselves so (Extended Window Manager Hints).
bool hasWindowManager()
{
    xcb_connection_t *xcb = xcb_connect(nullptr, nullptr);
    const char *name = "_NET_SUPPORTING_WM_CHECK";
    const XcbReply<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(xcb, xcb_intern_atom(xcb, 0, strlen(name), name), nullptr));
    bool found = false;
    if (atom) {
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(xcb)).data->root;
        const auto cookie = xcb_get_property(xcb, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1);
        const XcbReply<xcb_get_property_reply_t> value(xcb_get_property_reply(xcb, cookie, nullptr));
        found = value && value->type == XCB_ATOM_WINDOW;
    }
    xcb_disconnect(xcb);
    return found;
}

}

PrivateDisplay::PrivateDisplay(WindowManager manager)
{
    startServer();
    if (manager == WindowManager::Openbox)
        startOpenbox();
}

PrivateDisplay::~PrivateDisplay()
{
    for (auto program = m_programs.rbegin(); program != m_programs.rend(); ++program)
        endProgram(*program);
}

void PrivateDisplay::startServer()
{
    const StartedProgram server = startAndReadLine(
        {"Xvfb", "-displayfd", "3", "-noreset", "-nolisten", "tcp", "-screen", "0", "1280x800x24"});
    if (server.line.isEmpty())
        qFatal("Xvfb does not start");
    m_programs.append(server.pid);
    qputenv("DISPLAY", ":" + server.line);
    qputenv("QT_QPA_PLATFORM", "xcb");
}

void PrivateDisplay::startOpenbox()
{
    m_programs.append(startProgram({"openbox", "--sm-disable", "--config-file", "/dev/null"}));
    for (int round = 0; round < 500 && !hasWindowManager(); ++round)
        std::this_thread::sleep_for(10ms);
    if (!hasWindowManager())
        qFatal("openbox does not start");
}

}
