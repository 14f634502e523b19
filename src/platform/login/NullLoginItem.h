#pragma once

#include "platform/login/LoginItem.h"

namespace velm
{

// Leaves the session's start as it is.
class NullLoginItem final : public LoginItem
{
public:
    Outcome add() override { return done(); }
    Outcome remove() override { return done(); }
};

}
