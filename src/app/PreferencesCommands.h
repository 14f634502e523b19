#pragma once

#include "app/Command.h"
#include "app/PreferencesFile.h"

namespace velm
{

// `prefs`, `prefs get`, `prefs set`, `prefs reset`. Without preferences the commands can be listed, not run.
QList<Command> preferencesCommands(PreferencesFile *preferences);

}
