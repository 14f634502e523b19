#pragma once

#include "platform/pointer/Pointer.h"

namespace velm
{

// A display system that does not tell of the pointer.
class NullPointer final : public Pointer
{
public:
    QPoint position() const override { return {}; }
    void setFollowed(bool) override {}
    bool isGlobal() const override { return false; }
};

}
