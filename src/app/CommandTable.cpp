#include "app/CommandTable.h"

#include "app/CommandHelp.h"
#include "app/CommandUsage.h"

#include <algorithm>

namespace velm
{

namespace
{

constexpr int usageStatus = 2;

CommandReply wrongUsage(const QString &sentence, const QString &usage)
{
    return {.status = usageStatus, .err = QStringLiteral("velm: %1\n%2\n").arg(sentence, usage)};
}

bool asksForHelp(const QStringList &words)
{
    const qsizetype end = words.indexOf(QStringLiteral("--"));
    return words.first(end < 0 ? words.size() : end).contains(QStringLiteral("--help"));
}

CommandCall call(const SortedWords &sorted)
{
    CommandCall call{sorted.arguments, sorted.wantsJson};
    for (const auto &[name, value] : sorted.options)
        call.options.insert(name, value);
    return call;
}

}

void CommandTable::run(const QStringList &words, const Command::Reply &reply) const
{
    const Command *command = find(words);
    if (asksForHelp(words)) {
        const QList<Command> about = words.size() > 1 && command && !command->verb.isEmpty()
                                         ? QList<Command>{*command}
                                         : ofNoun(words.value(0));
        return reply(printed(about.isEmpty() ? programHelp(m_commands) : commandHelp(about)));
    }
    if (!command)
        return reply(unknown(words));
    const Result<SortedWords> sorted = sortWords(CommandUsage(*command), words.mid(nameLength(*command)));
    if (!sorted)
        return reply(wrongUsage(sorted.sentence(), usageLine(*command)));
    command->run(call(*sorted), reply);
}

const Command *CommandTable::find(const QStringList &words) const
{
    const QString noun = words.value(0);
    const QString verb = words.value(1);
    const auto withVerb = [&](const QString &wanted) {
        const auto found = std::find_if(m_commands.begin(), m_commands.end(), [&](const Command &command) {
            return command.noun == noun && command.verb == wanted;
        });
        return found == m_commands.end() ? nullptr : &*found;
    };
    const Command *found = verb.isEmpty() ? nullptr : withVerb(verb);
    return found ? found : withVerb(QString());
}

CommandReply CommandTable::unknown(const QStringList &words) const
{
    const QList<Command> nearest = ofNoun(words.value(0));
    if (nearest.isEmpty())
        return wrongUsage(QStringLiteral("there is no command \"%1\"").arg(words.value(0)),
                          QStringLiteral("usage: velm NOUN VERB [ARGUMENTS]; velm --help names them all"));
    QStringList verbs;
    for (const Command &command : nearest)
        verbs.append(command.verb);
    const QString sentence = words.size() < 2
                                 ? QStringLiteral("what to do is missing")
                                 : QStringLiteral("there is no command \"%1 %2\"").arg(words[0], words[1]);
    return wrongUsage(sentence, QStringLiteral("usage: velm %1 %2").arg(words[0], verbs.join(u'|')));
}

QList<Command> CommandTable::ofNoun(const QString &noun) const
{
    QList<Command> found;
    std::copy_if(m_commands.begin(), m_commands.end(), std::back_inserter(found),
                 [&](const Command &command) { return command.noun == noun; });
    return found;
}

qsizetype nameLength(const Command &command) { return command.verb.isEmpty() ? 1 : 2; }

}
