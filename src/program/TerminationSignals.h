#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>

namespace velm
{

// Turns SIGTERM, SIGINT and SIGHUP into an ordinary call on the main thread, so that the program ends as
// by its own Quit. At most one object at a time.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> quit);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    int m_descriptor;
    QSocketNotifier m_notifier;
};

}
