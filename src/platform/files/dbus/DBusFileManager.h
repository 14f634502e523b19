#pragma once

#include "platform/files/FileManager.h"

#include <QObject>

namespace velm
{

// The desktop's file manager by its bus name (org.freedesktop.FileManager1); where none answers, whatever
// opens folders.
class DBusFileManager final : public QObject, public FileManager
{
public:
    void reveal(const QString &path) override;
};

}
