#pragma once

#include "platform/sound/synthesis/Voice.h"

#include <string>

namespace velm
{

// Writes one channel of 16-bit PCM (RIFF WAVE). False when the file cannot be written.
bool writeWav(const std::string &path, const Samples &samples);

}
