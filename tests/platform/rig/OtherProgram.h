#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

namespace velm
{

// Runs a program to its end and gives what it printed; bounded.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    // Velm may have to answer it meanwhile, so the loop goes on.
    const bool ended = QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 10000);
    if (!ended)
        process.kill();
    return process.readAllStandardOutput();
}

// A real program that copies and stays to answer for it; ended with this object.
class CopyingProgram
{
public:
    CopyingProgram(const QString &program, const QStringList &arguments, const QByteArray &input)
    {
        m_process.setStandardOutputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(program, arguments);
        m_process.write(input);
        m_process.closeWriteChannel();
    }
    ~CopyingProgram()
    {
        m_process.kill();
        m_process.waitForFinished(5000);
    }

    qint64 pid() const { return m_process.processId(); }

private:
    QProcess m_process;
};

// Wakeups of all of this process's threads so far: how often one went to sleep by itself.
inline qint64 wakeupsSoFar()
{
    qint64 sum = 0;
    const QString tasks = QStringLiteral("/proc/self/task");
    for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status(tasks + QLatin1Char('/') + task + QStringLiteral("/status"));
        if (!status.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                sum += line.mid(24).trimmed().toLongLong();
        }
    }
    return sum;
}

}
