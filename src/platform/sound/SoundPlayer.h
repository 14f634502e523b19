#pragma once

#include <QString>

namespace velm
{

enum class Sound { Pop, Glass, Tink, Bottle };

// Plays one of the program's own short sounds; silence where there is no device.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    virtual void play(Sound sound) = 0;
};

}
