#pragma once

#include "platform/sound/SoundPlayer.h"

#include <QList>

namespace velm
{

// Remembers the sounds instead of playing them.
class RecordedSound final : public SoundPlayer
{
public:
    void play(Sound sound) override { played.append(sound); }

    QList<Sound> played;
};

}
