#include "app/CommandHelp.h"
#include "platform/DisplayChoice.h"
#include "platform/runloop/QtRunLoop.h"
#include "program/Application.h"
#include "program/CommandClient.h"
#include "program/Commands.h"
#include "program/QmlModules.h"
#include "program/Renderer.h"
#include "program/SelfTest.h"
#include "program/StartMode.h"
#include "program/TerminationSignals.h"

#include <QApplication>
#include <QDir>
#include <QLockFile>

#include <cstdio>

namespace velm
{

namespace
{

QStringList wordsAfterName(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    return words;
}

int fail(const QString &sentence)
{
    fprintf(stderr, "velm: %s\n", qPrintable(sentence));
    return static_cast<int>(ExitStatus::Refused);
}

// The modes without a display draw into memory, whatever desktop they are started from.
int runWithoutDisplay(int &argc, char **argv, const StartRequest &request)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(request.scale));
    QApplication application(argc, argv);
    prepareQml();
    return request.mode == StartMode::SelfTest ? runSelfTest() : renderPictures(request.folder);
}

int runClient(int &argc, char **argv, const StartRequest &request)
{
    const QCoreApplication application(argc, argv);
    return runCommand(commandTable(nullptr), request.words);
}

int runResident(int &argc, char **argv)
{
    {
        const QCoreApplication application(argc, argv);
        if (openRunning())
            return static_cast<int>(ExitStatus::Done);
    }
    if (const auto display = chooseDisplay(); !display)
        return fail(display.sentence());

    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    prepareQml();
    QtRunLoop loop;
    Application velm(loop, makePlatform(loop), {QStringLiteral("Velm"), PreferencesFile::defaultPath()});
    // Without a bus there is nobody to ask whether another instance writes to the same files.
    QLockFile lock(velm.store().dir().filePath(QStringLiteral(".lock")));
    if (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError)
        return fail(QStringLiteral("Velm is already running, out of reach of this session's bus"));
    velm.start();
    if (velm.isSecond())
        return openRunning() ? static_cast<int>(ExitStatus::Done)
                             : fail(QStringLiteral("another Velm is starting"));
    const TerminationSignals signals([&velm] { velm.quit(); });
    return application.exec();
}

int run(int argc, char **argv)
{
    const StartRequest request = startRequest(wordsAfterName(argc, argv));
    switch (request.mode) {
    case StartMode::Version:
        puts("Velm " VELM_VERSION);
        return 0;
    case StartMode::Help:
        fputs(qUtf8Printable(programHelp(commandTable(nullptr).commands())), stdout);
        return 0;
    case StartMode::SelfTest:
    case StartMode::Render:
        return runWithoutDisplay(argc, argv, request);
    case StartMode::Command:
        return runClient(argc, argv, request);
    case StartMode::Resident:
        return runResident(argc, argv);
    }
    return 0;
}

}

}

int main(int argc, char **argv) { return velm::run(argc, argv); }
