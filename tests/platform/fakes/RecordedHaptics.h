#pragma once

#include "platform/haptics/Haptics.h"

#include <QList>

namespace velm
{

// Remembers the taps instead of giving them.
class RecordedHaptics final : public Haptics
{
public:
    bool isAvailable() const override { return available; }
    void perform(HapticPattern pattern) override { performed.append(pattern); }

    bool available = true;
    QList<HapticPattern> performed;
};

}
