#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

namespace velm
{

// A picture as the history keeps it.
struct ClipPicture {
    QByteArray png;
    QSize size; // in points

    bool operator==(const ClipPicture &) const = default;
};

// Whether the bytes begin as a picture that can be read and is not absurdly large, and, of a PNG, whether it
// is whole. Cheap: nothing is decoded.
bool looksLikePicture(const QByteArray &bytes);

// Decodes and encodes anew, so that equal pixels make equal bytes, whatever program they come from. Absent
// when the bytes are no picture, or a broken one. Takes a while: not for the main thread.
std::optional<ClipPicture> makePicture(const QByteArray &bytes);

}
