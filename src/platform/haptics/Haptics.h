#pragma once

namespace velm
{

enum class HapticPattern { Alignment, LevelChange };

// Taps the trackpad.
class Haptics
{
public:
    virtual ~Haptics() = default;

    // Where false, the preference is hidden.
    virtual bool isAvailable() const = 0;
    virtual void perform(HapticPattern pattern) = 0;
};

}
