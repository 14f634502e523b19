#pragma once

#include "platform/haptics/Haptics.h"

namespace velm
{

// No trackpad here taps back.
class NullHaptics final : public Haptics
{
public:
    bool isAvailable() const override { return false; }
    void perform(HapticPattern) override {}
};

}
