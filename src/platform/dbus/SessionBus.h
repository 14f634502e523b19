#pragma once

#include <QDBusConnection>
#include <QFile>

#include <optional>

namespace velm
{

// The session's message bus; absent where the session has none. None is started for the asking.
inline std::optional<QDBusConnection> sessionBus()
{
    const bool hasAddress = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    if (!hasAddress && (runtimeFolder.isEmpty() || !QFile::exists(QFile::decodeName(runtimeFolder + "/bus"))))
        return {};
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return {};
    return bus;
}

}
