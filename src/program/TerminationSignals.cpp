#include "program/TerminationSignals.h"

#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace velm
{

namespace
{

constexpr int handledSignals[]{SIGTERM, SIGINT, SIGHUP};
int wakeDescriptor = -1;

// Only async-signal-safe calls here.
void wakeMainThread(int)
{
    const quint64 one = 1;
    [[maybe_unused]] const auto written = write(wakeDescriptor, &one, sizeof one);
}

}

TerminationSignals::TerminationSignals(std::function<void()> quit)
    : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), m_notifier(m_descriptor, QSocketNotifier::Read)
{
    wakeDescriptor = m_descriptor;
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this, quit = std::move(quit)] {
        m_notifier.setEnabled(false);
        quit();
    });
    for (const int signal : handledSignals)
        std::signal(signal, wakeMainThread);
    std::signal(SIGPIPE, SIG_IGN); // a reader that goes away is an error of write(), not our end
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : handledSignals)
        std::signal(signal, SIG_DFL);
    wakeDescriptor = -1;
    close(m_descriptor);
}

}
