#pragma once

#include "platform/front/FrontProgram.h"

namespace velm
{

// Whether the program is this one itself.
inline bool isOwn(const ProgramInfo &program)
{
    return program.identifier == QStringLiteral("app.velm.Velm");
}

}
