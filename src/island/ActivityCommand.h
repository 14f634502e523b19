#pragma once

#include "app/Command.h"
#include "island/LiveActivity.h"

namespace velm
{

class IslandController;

// `activity`: a script's own live activity.
Command activityCommand(IslandController *island);

// The activity that the words ask for, or why there can be none.
Result<LiveActivity> activityFrom(const CommandCall &call);

}
