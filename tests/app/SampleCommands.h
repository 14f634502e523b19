#pragma once

#include "app/CommandTable.h"

#include <optional>

namespace velm
{

// Commands of every shape, which remember how they were called.
struct SampleCommands {
    CommandTable table;
    QString ran;
    std::optional<CommandCall> call;

    SampleCommands()
    {
        add("open", "", "[TAB]");
        add("status", "", "");
        add("prefs", "", "");
        add("prefs", "get", "KEY");
        add("prefs", "set", "KEY VALUE");
        add("activity", "", "TITLE [DETAIL] [--icon S] [--seconds N | --sticky] [--id ID]");
        add("clip", "use", "ID [--paste]");
        add("clip", "list", "[--filter F] [--search TEXT]");
        add("files", "auto", "DIR on|off");
        add("todo", "add", "TEXT…");
        add("todo", "due", "ID YYYY-MM-DD|none");
        add("note", "edit", "ID TEXT");
        add("shelf", "add", "PATH… [--group G]");
    }

    // The reply of a command that replies at once, as all of these do.
    CommandReply run(const QStringList &words)
    {
        CommandReply got{.status = -1};
        table.run(words, [&](const CommandReply &reply) { got = reply; });
        return got;
    }

private:
    void add(const char *noun, const char *verb, const char *arguments)
    {
        const QString name = QLatin1String(noun) + QLatin1String(*verb ? " " : "") + QLatin1String(verb);
        table.add({{QString::fromLatin1(noun), QString::fromLatin1(verb), QString::fromUtf8(arguments),
                    QStringLiteral("what it's for"), now([this, name](const CommandCall &called) {
                        ran = name;
                        call = called;
                        return printed(name);
                    })}});
    }
};

}
