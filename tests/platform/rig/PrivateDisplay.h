#pragma once

#include "platform/rig/PrivateServer.h"

#include <cstdlib>

namespace velm
{

// A display of the test's own with a window manager; DISPLAY and QT_QPA_PLATFORM name it from then on. Made
// before the application object.
class PrivateDisplay
{
public:
    PrivateDisplay()
    {
        qputenv("DISPLAY", ":" + m_server.address());
        qputenv("QT_QPA_PLATFORM", "xcb");
        // The window manager ends when its display does.
        const char *start = "openbox --sm-disable --config-file /dev/null >/dev/null 2>&1 &"
                            "timeout 10 sh -c 'until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q window;"
                            " do sleep 0.02; done'";
        if (std::system(start) != 0)
            qFatal("openbox does not start");
    }

private:
    PrivateServer m_server{"Xvfb -displayfd 1 -noreset -nolisten tcp -screen 0 1280x800x24 2>/dev/null"};
};

}
