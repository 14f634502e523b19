#pragma once

#include "app/Command.h"

namespace velm
{

// Every command with its arguments and its line of help, no wider than 80 columns.
QString commandHelp(const QList<Command> &commands);

// The text of `velm --help`: the start modes and every command.
QString programHelp(const QList<Command> &commands);

// The commands as a section of a manual page, in roff.
QString manualSection(const QList<Command> &commands);

}
