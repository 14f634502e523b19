#pragma once

#include "platform/files/FileManager.h"

namespace velm
{

// Shows nothing.
class NullFileManager final : public FileManager
{
public:
    void reveal(const QString &) override {}
};

}
