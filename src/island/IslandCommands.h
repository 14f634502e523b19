#pragma once

#include "app/Command.h"

#include <QList>

#include <functional>

namespace velm
{

class IslandController;

// The words of the settings' status line, such as "Right now: the display is asleep".
using StatusLine = std::function<QString()>;

// `open`, `close`, `settings`, `status`, `activity`, `dismiss`. Without an island the commands can be listed,
// not run; without a status line the machine counts as idle.
QList<Command> islandCommands(IslandController *island, StatusLine statusLine = {});

}
