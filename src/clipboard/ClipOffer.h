#pragma once

#include "clipboard/ClipFolder.h"
#include "clipboard/ClipItem.h"
#include "platform/pasteboard/Pasteboard.h"

namespace velm
{

// The types under which a clip goes back to the pasteboard. Empty for a picture that is not there any more.
PasteboardOffer pasteboardOffer(const ClipItem &item, const ClipFolder &folder);

}
