#include "app/CommandCompletion.h"

#include "app/CommandUsage.h"

#include <QRegularExpression>

#include <algorithm>

namespace velm
{

namespace
{

enum class Paths { None, Any, Folders };

QStringList nouns(const QList<Command> &commands)
{
    QStringList found;
    for (const Command &command : commands)
        found.append(command.noun);
    found.removeDuplicates();
    return found;
}

QStringList verbs(const QList<Command> &commands, const QString &noun)
{
    QStringList found;
    for (const Command &command : commands) {
        if (command.noun == noun && !command.verb.isEmpty())
            found.append(command.verb);
    }
    return found;
}

// Of "on|off" both, of "YYYY-MM-DD|none" the word that stands for itself.
QStringList fixedWords(const QString &placeholder)
{
    static const QRegularExpression word(QStringLiteral("^[a-z][a-z-]*$"));
    return placeholder.split(u'|').filter(word);
}

QStringList wordsOf(const CommandUsage &usage)
{
    QStringList words{QStringLiteral("--json")};
    for (const CommandUsage::Option &option : usage.options)
        words.append(QStringLiteral("--") + option.name);
    for (const CommandUsage::Argument &argument : usage.arguments)
        words += fixedWords(argument.name);
    return words;
}

Paths pathsOf(const CommandUsage &usage)
{
    const auto takes = [&](QLatin1String name) {
        return std::any_of(usage.arguments.begin(), usage.arguments.end(),
                           [&](const CommandUsage::Argument &argument) { return argument.name == name; });
    };
    if (takes(QLatin1String("PATH")))
        return Paths::Any;
    return takes(QLatin1String("DIR")) ? Paths::Folders : Paths::None;
}

// A pattern for the noun and the word behind it. Commands without a verb fit any, so they stand last.
QString pattern(const Command &command)
{
    return command.verb.isEmpty() ? QStringLiteral("\"%1 \"*").arg(command.noun)
                                  : QStringLiteral("\"%1 %2\"").arg(command.noun, command.verb);
}

QList<Command> withVerbsFirst(QList<Command> commands)
{
    std::stable_partition(commands.begin(), commands.end(),
                          [](const Command &c) { return !c.verb.isEmpty(); });
    return commands;
}

QString singleQuoted(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

// The branches of bash and zsh are the same but for how they ask for paths.
QString branches(const QList<Command> &commands, const QString &anyPaths, const QString &folders)
{
    QString text;
    const QList<Command> sorted = withVerbsFirst(commands);
    for (const Command &command : sorted) {
        const CommandUsage usage(command);
        const Paths paths = pathsOf(usage);
        text +=
            QStringLiteral("        %1) offers+=\" %2\"").arg(pattern(command), wordsOf(usage).join(u' '));
        if (paths != Paths::None)
            text += QStringLiteral("; paths=%1").arg(paths == Paths::Any ? anyPaths : folders);
        text += QStringLiteral(" ;;\n");
    }
    return text;
}

QString verbBranches(const QList<Command> &commands)
{
    QString text;
    const QStringList all = nouns(commands);
    for (const QString &noun : all) {
        if (const QStringList own = verbs(commands, noun); !own.isEmpty())
            text += QStringLiteral("        %1) offers=\"%2\" ;;\n").arg(noun, own.join(u' '));
    }
    return text;
}

}

QString bashCompletion(const QList<Command> &commands)
{
    return QStringLiteral(
               "# bash completion for velm\n"
               "_velm() {\n"
               "    local current=\"${COMP_WORDS[COMP_CWORD]}\" offers=\"\" paths=\"\"\n"
               "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
               "        offers=\"%1 --help --version --selftest --render\"\n"
               "    else\n"
               "        [ \"$COMP_CWORD\" -eq 2 ] && case \"${COMP_WORDS[1]}\" in\n%2        esac\n"
               "        case \"${COMP_WORDS[1]} ${COMP_WORDS[2]}\" in\n%3        esac\n"
               "    fi\n"
               "    mapfile -t COMPREPLY < <(compgen $paths -W \"$offers\" -- \"$current\")\n"
               "}\n"
               "complete -o filenames -F _velm velm\n")
        .arg(nouns(commands).join(u' '), verbBranches(commands),
             branches(commands, QStringLiteral("-f"), QStringLiteral("-d")));
}

QString zshCompletion(const QList<Command> &commands)
{
    return QStringLiteral("#compdef velm\n"
                          "_velm() {\n"
                          "    local offers=\"\" paths=\"\"\n"
                          "    if (( CURRENT == 2 )); then\n"
                          "        offers=\"%1 --help --version --selftest --render\"\n"
                          "    else\n"
                          "        (( CURRENT == 3 )) && case \"$words[2]\" in\n%2        esac\n"
                          "        case \"$words[2] $words[3]\" in\n%3        esac\n"
                          "    fi\n"
                          "    compadd -- ${(z)offers}\n"
                          "    [[ -n $paths ]] && ${(z)paths}\n"
                          "}\n"
                          "_velm \"$@\"\n")
        .arg(nouns(commands).join(u' '), verbBranches(commands),
             branches(commands, QStringLiteral("_files"), QStringLiteral("'_files -/'")));
}

QString fishCompletion(const QList<Command> &commands)
{
    QString text = QStringLiteral("# fish completion for velm\ncomplete -c velm -f\n");
    const QStringList all = nouns(commands);
    text +=
        QStringLiteral("complete -c velm -n __fish_use_subcommand -a %1\n").arg(singleQuoted(all.join(u' ')));
    for (const Command &command : commands) {
        const CommandUsage usage(command);
        const QString isNoun = QStringLiteral("__fish_seen_subcommand_from ") + command.noun;
        const QString isVerb = QStringLiteral("; and __fish_seen_subcommand_from ") + command.verb;
        const QString condition = singleQuoted(command.verb.isEmpty() ? isNoun : isNoun + isVerb);
        if (!command.verb.isEmpty())
            text += QStringLiteral("complete -c velm -n %1 -a %2 -d %3\n")
                        .arg(singleQuoted(isNoun + QStringLiteral("; and not __fish_seen_subcommand_from ") +
                                          verbs(commands, command.noun).join(u' ')),
                             command.verb, singleQuoted(command.help));
        text += QStringLiteral("complete -c velm -n %1 -a %2\n")
                    .arg(condition, singleQuoted(wordsOf(usage).join(u' ')));
        if (const Paths paths = pathsOf(usage); paths != Paths::None)
            text += QStringLiteral("complete -c velm -n %1 %2\n")
                        .arg(condition, paths == Paths::Any
                                            ? QStringLiteral("-F")
                                            : QStringLiteral("-a '(__fish_complete_directories)'"));
    }
    return text;
}

}
