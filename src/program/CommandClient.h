#pragma once

#include "app/CommandTable.h"

#include <QStringList>

namespace velm
{

// Exit statuses of the command line.
enum class ExitStatus { Done = 0, Refused = 1, WrongUsage = 2, NotRunning = 3 };

// Hands the words to the running program, prints what comes back and gives its exit status. A mistake in
// the words is told without a running program.
int runCommand(const CommandTable &table, const QStringList &words);

// Opens the island of the program that runs already; false when none does.
bool openRunning();

}
