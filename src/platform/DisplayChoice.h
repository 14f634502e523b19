#pragma once

#include "platform/Result.h"

namespace velm
{

// Chooses the display system to start on, before the application object exists, and tells Qt of it through
// QT_QPA_PLATFORM. A choice that stands there already is kept. Gives its Qt name ("xcb", "offscreen"), or
// the sentence that says why the program cannot start.
Result<QString> chooseDisplay();

}
