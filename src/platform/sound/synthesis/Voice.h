#pragma once

#include <chrono>
#include <vector>

namespace velm
{

// Sound as numbers from -1 to 1, 44,100 a second.
using Samples = std::vector<double>;
constexpr int sampleRate = 44100;

// One decaying partial of a struck thing.
struct Partial {
    double hertz;
    double loudness;
    std::chrono::milliseconds halfLife;
    double glide = 0; // hertz by which it rises (or falls) until it has died away
};

// A touch of noise as of a finger or a cork, softened by a low pass.
struct Breath {
    double loudness = 0;
    double cutoffHertz = 1000;
    std::chrono::milliseconds halfLife{10};
};

struct Voice {
    std::chrono::milliseconds length;
    std::vector<Partial> partials;
    Breath breath;
};

// Plays the voice: soft at both ends, its highest peak at `peak` (1 is full scale).
Samples render(const Voice &voice, double peak);

}
