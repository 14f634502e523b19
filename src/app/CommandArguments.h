#pragma once

#include "app/Command.h"

namespace velm
{

// The words as the running program is to get them from a client in another folder: paths (PATH, DIR) made
// absolute, and a TEXT of "-" replaced by the standard input without its last line feed. Words that the
// command does not take are left as they are, for the program to refuse.
QStringList resolveArguments(const Command &command, const QStringList &words,
                             const QString &workingDirectory,
                             const std::function<QString()> &readStandardInput);

}
