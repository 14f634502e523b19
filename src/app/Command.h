#pragma once

#include "platform/Result.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

#include <functional>

namespace velm
{

// What a command line gets back: the exit status, and the two texts that are printed as they are.
struct CommandReply {
    int status = 0;
    QString out = {};
    QString err = {};

    bool operator==(const CommandReply &) const = default;
};

// A command line taken apart: what follows the noun and the verb. `options` has the names without their
// dashes; an option that takes no value has an empty one.
struct CommandCall {
    QStringList arguments;
    bool wantsJson = false;
    QMap<QString, QString> options = {};
};

// One command of the command line, beside the feature that it drives. `arguments` is written as people read
// it, and checked as it is written: "ID [--paste]", "PATH… [--group G]", "DIR on|off",
// "[--seconds N | --sticky]". PATH and DIR are paths, TEXT can be "-" for the standard input.
struct Command {
    using Reply = std::function<void(CommandReply)>;
    using Run = std::function<void(const CommandCall &, Reply)>;

    QString noun;
    QString verb; // may be empty
    QString arguments;
    QString help; // one line, without a full stop
    Run run;
};

// For a command that answers at once.
Command::Run now(std::function<CommandReply(const CommandCall &)> answer);

CommandReply printed(const QString &out); // with a final line feed where it has none
CommandReply printed(const QJsonObject &out);
CommandReply printed(const QJsonArray &out);
CommandReply refused(const QString &sentence); // status 1
CommandReply replyTo(const Outcome &outcome);  // status 0 and nothing printed, or refused

}
