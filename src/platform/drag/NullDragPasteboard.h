#pragma once

#include "platform/drag/DragPasteboard.h"

namespace velm
{

// A display system that does not tell of drags.
class NullDragPasteboard final : public DragPasteboard
{
public:
    void watch() override {}
    bool seesOtherPrograms() const override { return false; }
};

}
