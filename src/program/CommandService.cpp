#include "program/CommandService.h"

#include "program/BusName.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QPointer>

namespace velm
{

CommandService::~CommandService()
{
    if (m_isRegistered)
        QDBusConnection::sessionBus().unregisterService(bus::name);
}

bool CommandService::take()
{
    QDBusConnection connection = QDBusConnection::sessionBus();
    if (!connection.isConnected())
        return true;
    connection.registerObject(bus::path, this, QDBusConnection::ExportScriptableSlots);
    const auto reply =
        connection.interface()->registerService(bus::name, QDBusConnectionInterface::DontQueueService,
                                                QDBusConnectionInterface::DontAllowReplacement);
    m_isRegistered = reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceRegistered;
    return m_isRegistered;
}

int CommandService::Run(const QStringList &arguments, QString &out, QString &err)
{
    if (!calledFromDBus()) {
        Q_UNUSED(out)
        Q_UNUSED(err)
        return 2;
    }
    setDelayedReply(true);
    m_table.run(arguments, [bus = connection(), call = message()](const CommandReply &reply) mutable {
        bus.send(call.createReply({reply.status, reply.out, reply.err}));
    });
    return 0;
}

}
