#pragma once

#include <QString>

namespace velm
{

// The desktop's file manager.
class FileManager
{
public:
    virtual ~FileManager() = default;

    // Opens a window on the folder that holds the path, with the path selected.
    virtual void reveal(const QString &path) = 0;
};

}
