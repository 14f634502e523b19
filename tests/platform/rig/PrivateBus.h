#pragma once

#include <sys/types.h>

namespace velm
{

// A session bus of the test's own that starts no services; DBUS_SESSION_BUS_ADDRESS names it from then on.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

private:
    pid_t m_daemon;
};

}
