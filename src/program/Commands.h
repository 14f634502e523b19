#pragma once

#include "app/CommandTable.h"

namespace velm
{

class Application;

// Every command of the program. Without an application the table can be read (for help, usage and
// completions) but not run.
CommandTable commandTable(Application *application);

}
