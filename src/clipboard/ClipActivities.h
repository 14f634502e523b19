#pragma once

#include "clipboard/ClipItem.h"
#include "island/LiveActivity.h"

namespace velm
{

// What the closed island says of the clipboard.
LiveActivity copiedActivity(const ClipItem &item);
LiveActivity pausedActivity();
LiveActivity resumedActivity();
LiveActivity tooLargeActivity();

}
