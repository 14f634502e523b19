#include "program/CommandClient.h"

#include "app/CommandArguments.h"
#include "app/CommandUsage.h"
#include "program/BusName.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFile>

#include <chrono>
#include <cstdio>

namespace velm
{

namespace
{

// A sort of a large folder is waited for; a hung program is not waited for for ever.
constexpr std::chrono::minutes callLimit{10};

void print(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

int printAnswer(const CommandReply &reply)
{
    print(stdout, reply.out);
    print(stderr, reply.err);
    return reply.status;
}

// A connection of the client's own: the shared one belongs to the application object that follows.
QDBusConnection clientBus()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("velm-client"));
}

QDBusMessage callRunning(const QStringList &words)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(bus::name, bus::path, bus::interface, QStringLiteral("Run"));
    call << words;
    const auto limit = std::chrono::duration_cast<std::chrono::milliseconds>(callLimit);
    return clientBus().call(call, QDBus::Block, static_cast<int>(limit.count()));
}

QString readStandardInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(input.readAll());
}

bool isRightUsage(const Command *command, const QStringList &words)
{
    return command && sortWords(CommandUsage(*command), words.mid(nameLength(*command)));
}

}

int runCommand(const CommandTable &table, const QStringList &words)
{
    const Command *command = table.find(words);
    if (!isRightUsage(command, words)) {
        int status = static_cast<int>(ExitStatus::WrongUsage);
        table.run(words, [&status](const CommandReply &reply) { status = printAnswer(reply); });
        return status;
    }
    const QDBusMessage answer =
        callRunning(resolveArguments(*command, words, QDir::currentPath(), readStandardInput));
    const QList<QVariant> values = answer.arguments();
    if (answer.type() != QDBusMessage::ReplyMessage || values.size() != 3) {
        print(stderr, QStringLiteral("velm: Velm is not running and could not be started\n"));
        return static_cast<int>(ExitStatus::NotRunning);
    }
    return printAnswer({values[0].toInt(), values[1].toString(), values[2].toString()});
}

bool openRunning()
{
    const QDBusConnection connection = clientBus();
    if (!connection.isConnected() || !connection.interface()->isServiceRegistered(bus::name))
        return false;
    return callRunning({QStringLiteral("open")}).type() == QDBusMessage::ReplyMessage;
}

}
