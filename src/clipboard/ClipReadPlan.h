#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <optional>

namespace velm
{

// How much of other programs' copies is read.
enum class ClipReading {
    Nothing,
    Unmarked, // all but what is marked as confidential, passing or made by a machine
    Everything,
};

// The type to read next, given those offered and what was read so far; an empty text when it is enough. Files
// come first, then a picture, then text; each only where the one before gave nothing.
QString nextType(ClipReading reading, const QStringList &types, const QList<PasteboardData> &soFar);

// Whether the program that copied asks for it not to be kept.
bool isConcealed(const QStringList &types, const QList<PasteboardData> &data);

// What was read under these types, as far as it was.
QStringList readFiles(const QList<PasteboardData> &data);
bool isPictureType(const QString &type);

// Takes the bytes out of the data. Absent when none was read.
std::optional<QString> takeText(QList<PasteboardData> &data);

}
