#pragma once

#include <QString>

class QDateTime;

namespace velm
{

// Puts a history to look at into the data folder of that name: every kind of clip, long and short, pinned
// and not, with a picture. Before the application is built on that folder.
void writeSampleClips(const QString &dataFolderName, const QDateTime &now);

}
