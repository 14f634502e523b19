#pragma once

#include <QByteArray>

#include <csignal>
#include <cstdio>

namespace velm
{

// A server of the test's own, such as a display or a bus. It ends with this object, or with the process.
class PrivateServer
{
public:
    // The command says in the first line that it prints where it is to be reached.
    explicit PrivateServer(const QByteArray &command)
        : m_output(popen(QByteArray("echo $$; exec setpriv --pdeathsig KILL " + command), "re"))
        , m_pid(readLine().toInt())
        , m_address(readLine())
    {
        if (m_pid <= 0 || m_address.isEmpty())
            qFatal("does not start: %s", command.constData());
    }
    ~PrivateServer()
    {
        kill(m_pid, SIGKILL);
        pclose(m_output);
    }
    PrivateServer(const PrivateServer &) = delete;
    PrivateServer &operator=(const PrivateServer &) = delete;

    const QByteArray &address() const { return m_address; }

private:
    QByteArray readLine()
    {
        char line[1024] = "";
        return QByteArray(fgets(line, sizeof line, m_output)).trimmed();
    }

    FILE *m_output;
    pid_t m_pid;
    QByteArray m_address;
};

}
