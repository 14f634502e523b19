#pragma once

#include "platform/front/FrontProgram.h"

namespace velm
{

// The program that the test says the person is working in.
class FakeFrontProgram final : public FrontProgram
{
public:
    std::optional<ProgramInfo> current() const override { return program; }

    std::optional<ProgramInfo> program =
        ProgramInfo{.name = QStringLiteral("Editor"), .identifier = QStringLiteral("editor")};
};

}
