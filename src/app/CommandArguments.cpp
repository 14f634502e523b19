#include "app/CommandArguments.h"

#include "app/CommandTable.h"
#include "app/CommandUsage.h"

#include <QDir>

#include <algorithm>

namespace velm
{

namespace
{

struct Surroundings {
    const QString &workingDirectory;
    const std::function<QString()> &readStandardInput;

    QString resolved(const QString &placeholder, const QString &word) const
    {
        if (placeholder == QLatin1String("PATH") || placeholder == QLatin1String("DIR"))
            return QDir::cleanPath(QDir(workingDirectory).absoluteFilePath(word));
        if (placeholder != QLatin1String("TEXT") || word != QLatin1String("-"))
            return word;
        const QString text = readStandardInput();
        return text.endsWith(u'\n') ? text.chopped(1) : text;
    }
};

bool looksLikeOption(const QString &word) { return word.startsWith(QLatin1String("--")); }

}

QStringList resolveArguments(const Command &command, const QStringList &words,
                             const QString &workingDirectory,
                             const std::function<QString()> &readStandardInput)
{
    const CommandUsage usage(command);
    const qsizetype name = nameLength(command);
    const Result<SortedWords> sorted = sortWords(usage, words.mid(name));
    if (!sorted)
        return words;
    const Surroundings surroundings{workingDirectory, readStandardInput};
    QStringList resolved = words.first(name);
    if (sorted->wantsJson)
        resolved.append(QStringLiteral("--json"));
    for (const auto &[option, value] : sorted->options) {
        const QString placeholder = usage.option(option)->value;
        resolved.append(QStringLiteral("--") + option);
        if (!placeholder.isEmpty())
            resolved.append(surroundings.resolved(placeholder, value));
    }
    QStringList arguments = sorted->arguments;
    for (qsizetype i = 0; i < arguments.size(); ++i)
        arguments[i] = surroundings.resolved(usage.argument(i)->name, arguments[i]);
    if (std::any_of(arguments.begin(), arguments.end(), looksLikeOption))
        resolved.append(QStringLiteral("--"));
    return resolved + arguments;
}

}
