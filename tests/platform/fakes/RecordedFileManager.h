#pragma once

#include "platform/files/FileManager.h"

#include <QStringList>

namespace velm
{

// Remembers what would have been shown in the file manager.
class RecordedFileManager final : public FileManager
{
public:
    void reveal(const QString &path) override { revealed.append(path); }

    QStringList revealed;
};

}
