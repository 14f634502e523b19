#include "platform/rig/PrivateBus.h"

#include "platform/rig/StartProgram.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryFile>

namespace velm
{

PrivateBus::PrivateBus()
{
    QTemporaryFile configuration;
    if (!configuration.open())
        qFatal("no temporary file");
    configuration.write("<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
                        "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
                        "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                        "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                        "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
    configuration.flush();
    const QByteArray file = "--config-file=" + QFile::encodeName(configuration.fileName());
    const StartedProgram daemon =
        startAndReadLine({"dbus-daemon", file.constData(), "--nofork", "--print-address=3"});
    if (daemon.line.isEmpty())
        qFatal("dbus-daemon does not start");
    m_daemon = daemon.pid;
    qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.line);
}

PrivateBus::~PrivateBus() { endProgram(m_daemon); }

}
