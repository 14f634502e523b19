#pragma once

#include "app/Command.h"

#include <vector>

namespace velm
{

// A command's `arguments` taken apart.
struct CommandUsage {
    struct Argument {
        QString name; // "ID", "on|off"
        bool isRequired = true;
        bool isRepeated = false;
    };
    struct Option {
        QString name;  // without its dashes
        QString value; // the name of its value, empty when it takes none
        int group = 0; // of the options of one group no more than one may be given
    };

    explicit CommandUsage(const Command &command);

    const Option *option(const QString &name) const;
    const Argument *argument(qsizetype position) const; // nothing past the last one

    std::vector<Argument> arguments;
    std::vector<Option> options;
};

// Command words after the noun and the verb, sorted: what takes its place in order, and what has a name.
struct SortedWords {
    QStringList arguments;
    QList<std::pair<QString, QString>> options; // without their dashes
    bool wantsJson = false;
};

// Refuses options that the command does not have, options without their value, two of one group, and too few
// or too many arguments. After "--" nothing is an option.
Result<SortedWords> sortWords(const CommandUsage &usage, const QStringList &words);

// "usage: velm clip use ID [--paste]"
QString usageLine(const Command &command);

}
