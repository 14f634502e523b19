#pragma once

#include <QByteArray>
#include <QList>

#include <sys/types.h>

namespace velm
{

// A display of the test's own, with or without a window manager; DISPLAY and QT_QPA_PLATFORM name it from
// then on. Made before the application object; its programs end with it.
class PrivateDisplay
{
public:
    enum class WindowManager { None, Openbox };

    explicit PrivateDisplay(WindowManager manager);
    ~PrivateDisplay();
    PrivateDisplay(const PrivateDisplay &) = delete;
    PrivateDisplay &operator=(const PrivateDisplay &) = delete;

private:
    void startServer();
    void startOpenbox();

    QList<pid_t> m_programs;
};

}
