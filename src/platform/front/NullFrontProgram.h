#pragma once

#include "platform/front/FrontProgram.h"

namespace velm
{

// A display system that does not tell which window is active.
class NullFrontProgram final : public FrontProgram
{
public:
    std::optional<ProgramInfo> current() const override { return {}; }
};

}
