#pragma once

#include "platform/login/LoginItem.h"

namespace velm
{

// An entry in the person's autostart folder (freedesktop.org, Autostart).
class XdgLoginItem final : public LoginItem
{
public:
    Outcome add() override;
    Outcome remove() override;
};

}
