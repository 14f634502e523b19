#include "app/Command.h"

#include <QJsonDocument>

namespace velm
{

namespace
{

constexpr int refusedStatus = 1;

}

Command::Run now(std::function<CommandReply(const CommandCall &)> answer)
{
    return [answer = std::move(answer)](const CommandCall &call, const Command::Reply &reply) {
        reply(answer(call));
    };
}

CommandReply printed(const QString &out)
{
    const bool isEnded = out.isEmpty() || out.endsWith(u'\n');
    return {.out = isEnded ? out : out + u'\n'};
}

CommandReply printed(const QJsonObject &out)
{
    return {.out = QString::fromUtf8(QJsonDocument(out).toJson())};
}

CommandReply printed(const QJsonArray &out)
{
    return {.out = QString::fromUtf8(QJsonDocument(out).toJson())};
}

CommandReply refused(const QString &sentence)
{
    return {.status = refusedStatus, .err = QStringLiteral("velm: %1\n").arg(sentence)};
}

CommandReply replyTo(const Outcome &outcome)
{
    return outcome ? CommandReply() : refused(outcome.sentence());
}

}
