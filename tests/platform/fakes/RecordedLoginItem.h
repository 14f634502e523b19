#pragma once

#include "platform/login/LoginItem.h"

#include <optional>

namespace velm
{

// Remembers whether the program would start at login; refuses when told to.
class RecordedLoginItem final : public LoginItem
{
public:
    Outcome add() override { return set(true); }
    Outcome remove() override { return set(false); }

    bool isAdded = false;
    std::optional<Refusal> refusal;

private:
    Outcome set(bool added)
    {
        if (refusal)
            return *refusal;
        isAdded = added;
        return done();
    }
};

}
