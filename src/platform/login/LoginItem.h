#pragma once

#include "platform/Result.h"

namespace velm
{

// Starts the program when the person logs in.
class LoginItem
{
public:
    virtual ~LoginItem() = default;
    virtual Outcome add() = 0;
    virtual Outcome remove() = 0;
};

}
