#pragma once

#include "platform/sound/SoundPlayer.h"

namespace velm
{

// Silence.
class NullSoundPlayer final : public SoundPlayer
{
public:
    void play(Sound) override {}
};

}
