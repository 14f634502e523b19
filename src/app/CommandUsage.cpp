#include "app/CommandUsage.h"

#include <algorithm>

namespace velm
{

namespace
{

const auto dashes = QStringLiteral("--");
const auto repeatMark = QStringLiteral("…");

// "[--seconds N | --sticky] TITLE" in its parts: what stands in brackets is one.
QStringList topLevelParts(const QString &text)
{
    QStringList parts;
    bool isInBrackets = false;
    bool isInPart = false;
    for (const QChar unit : text) {
        if (unit == u' ' && !isInBrackets) {
            isInPart = false;
            continue;
        }
        if (!isInPart)
            parts.append(QString());
        isInPart = true;
        isInBrackets = (isInBrackets || unit == u'[') && unit != u']';
        parts.last().append(unit);
    }
    return parts;
}

CommandUsage::Argument parseArgument(QString text)
{
    CommandUsage::Argument argument;
    argument.isRequired = !text.startsWith(u'[');
    if (!argument.isRequired)
        text = text.mid(1, text.size() - 2);
    argument.isRepeated = text.endsWith(repeatMark);
    argument.name = argument.isRepeated ? text.chopped(repeatMark.size()) : text;
    return argument;
}

CommandUsage::Option parseOption(const QString &text, int group)
{
    const qsizetype space = text.indexOf(u' ');
    const QString name = space < 0 ? text : text.left(space);
    return {name.mid(dashes.size()), space < 0 ? QString() : text.mid(space + 1), group};
}

Refusal unknownOption(const QString &name) { return {QStringLiteral("there is no option --%1").arg(name)}; }

// Takes the words that are options out of their order; checks nothing but the options themselves.
Result<SortedWords> splitWords(const CommandUsage &usage, const QStringList &words)
{
    SortedWords sorted;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (word == dashes) {
            sorted.arguments += words.mid(i + 1);
            break;
        }
        if (!word.startsWith(dashes)) {
            sorted.arguments.append(word);
            continue;
        }
        const qsizetype equals = word.indexOf(u'=');
        const QString name = word.mid(dashes.size(), equals < 0 ? -1 : equals - dashes.size());
        if (word == QLatin1String("--json")) {
            sorted.wantsJson = true;
            continue;
        }
        const CommandUsage::Option *option = usage.option(name);
        if (!option)
            return unknownOption(name);
        const bool takesNextWord = !option->value.isEmpty() && equals < 0;
        if (takesNextWord && i + 1 == words.size())
            return Refusal{QStringLiteral("--%1 needs %2").arg(name, option->value)};
        if (option->value.isEmpty() && equals >= 0)
            return Refusal{QStringLiteral("--%1 takes no value").arg(name)};
        sorted.options.append({name, takesNextWord ? words[++i]
                                     : equals < 0  ? QString()
                                                   : word.mid(equals + 1)});
    }
    return sorted;
}

std::optional<Refusal> clash(const CommandUsage &usage, const SortedWords &sorted)
{
    QMap<int, QString> given; // group to option
    for (const auto &[name, value] : sorted.options) {
        const int group = usage.option(name)->group;
        if (const QString other = given.value(group, name); other != name)
            return Refusal{QStringLiteral("--%1 and --%2 cannot be given together").arg(other, name)};
        given.insert(group, name);
    }
    return {};
}

}

CommandUsage::CommandUsage(const Command &command)
{
    int group = 0;
    const QStringList parts = topLevelParts(command.arguments);
    for (const QString &part : parts) {
        if (!part.startsWith(QLatin1String("[--"))) {
            arguments.push_back(parseArgument(part));
            continue;
        }
        const QStringList choices = part.mid(1, part.size() - 2).split(QStringLiteral(" | "));
        for (const QString &choice : choices)
            options.push_back(parseOption(choice, group));
        ++group;
    }
}

const CommandUsage::Option *CommandUsage::option(const QString &name) const
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const Option &option) { return option.name == name; });
    return found == options.end() ? nullptr : &*found;
}

const CommandUsage::Argument *CommandUsage::argument(qsizetype position) const
{
    const auto index = static_cast<size_t>(position);
    if (index < arguments.size())
        return &arguments[index];
    return arguments.empty() || !arguments.back().isRepeated ? nullptr : &arguments.back();
}

Result<SortedWords> sortWords(const CommandUsage &usage, const QStringList &words)
{
    Result<SortedWords> sorted = splitWords(usage, words);
    if (!sorted)
        return sorted;
    if (const std::optional<Refusal> refusal = clash(usage, *sorted))
        return *refusal;
    const qsizetype given = sorted->arguments.size();
    const auto isMissing = [&](const CommandUsage::Argument &argument) {
        return argument.isRequired && &argument - usage.arguments.data() >= given;
    };
    const auto missing = std::find_if(usage.arguments.begin(), usage.arguments.end(), isMissing);
    if (missing != usage.arguments.end())
        return Refusal{QStringLiteral("%1 is missing").arg(missing->name)};
    if (given > 0 && !usage.argument(given - 1))
        return Refusal{QStringLiteral("\"%1\" is one argument too many").arg(sorted->arguments.last())};
    return sorted;
}

QString usageLine(const Command &command)
{
    QStringList words{QStringLiteral("usage: velm"), command.noun, command.verb, command.arguments};
    words.removeAll(QString());
    return words.join(u' ');
}

}
