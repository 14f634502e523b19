#pragma once

#include "platform/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace velm
{

// What stands on disk under a name: nothing, a file's bytes, or something that cannot be read as a file of
// ours.
struct StateFile {
    enum class State { Missing, Read, Unreadable };

    State state = State::Missing;
    QByteArray bytes;
};

// Never blocks: a pipe, a device or a folder is unreadable, and so is a file of more than `sizeLimit` bytes.
// A link that leads nowhere is missing.
StateFile readStateFile(const QString &path, qint64 sizeLimit);

// Keeps what stands under the path as `NAME.unreadable-yyyyMMdd-HHmmss` beside it, once for the same content.
// Gives the name of the kept file, empty where there is nothing to keep: a pipe, a folder, no file at all.
Result<QString> keepAside(const QString &path, const QDateTime &now);

}
