#pragma once

#include "clipboard/ClipFolder.h"
#include "clipboard/ClipItem.h"
#include "platform/pasteboard/Pasteboard.h"

#include <optional>

namespace velm
{

// Where and when something was copied.
struct ClipSource {
    QString program;
    QString identifier;
    QDateTime date;
};

// What became of a copy.
struct TakenClip {
    ClipItem item;
    TextMeasure measure; // of its text
};

// Makes a clip of what was read of the pasteboard: decodes, classifies and fingerprints it, and writes the
// picture of one. Absent when there is nothing to keep, as with a text of white space only. Takes a while
// with pictures and big texts: not for the main thread.
std::optional<TakenClip> takeIn(PasteboardContent content, const ClipSource &source,
                                const ClipFolder &folder);

}
