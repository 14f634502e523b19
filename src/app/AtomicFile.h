#pragma once

#include "platform/Result.h"

#include <QDateTime>
#include <QIODevice>
#include <QString>

#include <functional>

namespace velm
{

// Replaces the file in one step, so that a reader sees the old bytes or the new ones: a temporary file in the
// same folder, readable by the user alone, is written, synchronised and renamed. Where the path is a link,
// the file that it leads to is replaced. When `write` gives false or the disk fails, all stays as it was.
Outcome replaceFile(const QString &path, const std::function<bool(QIODevice &)> &write);

// Removes the temporary files of writers that were killed more than an hour ago.
void removeAbandonedFiles(const QString &folder, const QDateTime &now);

// Makes the folder, with those above it, for the user alone; takes the rights of others from one that stands.
void makePrivateFolder(const QString &path);

}
