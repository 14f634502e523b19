#pragma once

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

inline void xdotool(const QString &words)
{
    outputOf(QStringLiteral("xdotool"), words.split(QLatin1Char(' ')));
}

}
