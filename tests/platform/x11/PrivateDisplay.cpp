#include "platform/x11/PrivateDisplay.h"

#include "platform/x11/XcbReply.h"

#include <QtGlobal>

#include <xcb/xcb.h>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>

namespace velm
{

namespace
{

using namespace std::chrono_literals;

// Ends with this process whatever happens to it.
pid_t startProgram(std::initializer_list<const char *> words, int keptFd = -1)
{
    std::vector<char *> arguments;
    for (const char *word : words)
        arguments.push_back(const_cast<char *>(word));
    arguments.push_back(nullptr);
    const pid_t pid = fork();
    if (pid != 0)
        return pid;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (keptFd >= 0)
        dup2(keptFd, 3);
    execvp(arguments.front(), arguments.data());
    _exit(127);
}

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
    for (auto program = m_programs.rbegin(); program != m_programs.rend(); ++program) {
        kill(*program, SIGKILL);
        waitpid(*program, nullptr, 0);
    }
}

void PrivateDisplay::startServer()
{
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    m_programs.append(startProgram(
        {"Xvfb", "-displayfd", "3", "-noreset", "-nolisten", "tcp", "-screen", "0", "1280x800x24"}, ends[1]));
    close(ends[1]);
    QByteArray number; // comes in pieces, with a line break behind it
    char byte = 0;
    while (read(ends[0], &byte, 1) == 1 && byte != '\n')
        number.append(byte);
    close(ends[0]);
    if (number.isEmpty())
        qFatal("Xvfb does not start");
    qputenv("DISPLAY", ":" + number);
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
