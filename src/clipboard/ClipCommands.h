#pragma once

#include "app/Command.h"

namespace velm
{

class ClipboardManager;
class RunLoop;

// clip list, use, pin, delete, clear, pause, resume. Without a manager the commands can be listed, not run.
QList<Command> clipCommands(ClipboardManager *clipboard, RunLoop *loop);

}
