#pragma once

#include "app/Command.h"

namespace velm
{

// All commands of the command line. Answers wrong usage itself, with status 2 and the command's usage line.
class CommandTable
{
public:
    void add(const QList<Command> &commands) { m_commands += commands; }

    // Runs the command that the words name, and replies once, now or later.
    void run(const QStringList &words, const Command::Reply &reply) const;

    // Nothing when no command has that noun, or none of the noun's commands fits.
    const Command *find(const QStringList &words) const;

    const QList<Command> &commands() const { return m_commands; }

private:
    CommandReply unknown(const QStringList &words) const;
    QList<Command> ofNoun(const QString &noun) const;

    QList<Command> m_commands;
};

// How many of the words name the command: 1 or 2.
qsizetype nameLength(const Command &command);

}
