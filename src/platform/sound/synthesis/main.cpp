#include "platform/sound/synthesis/WavFile.h"

#include <cstdio>
#include <map>

using namespace std::chrono_literals;

namespace
{

using velm::Voice;

constexpr double peak = 0.3; // -10.5 dBFS: heard, not startling

// Struck glass and metal ring in partials that are no whole multiples; a bottle and a drop glide.
const std::map<std::string, Voice> voices{
    {"pop", {110ms, {{420, 1.0, 22ms, 260}, {840, 0.25, 12ms, 300}}, {0.15, 1800, 6ms}}},
    {"glass",
     {250ms,
      {{1318.5, 1.0, 60ms}, {1975.5, 0.45, 45ms}, {3520, 0.18, 26ms}, {5274, 0.06, 14ms}},
      {0.05, 5000, 4ms}}},
    {"tink", {80ms, {{2093, 1.0, 14ms}, {4310, 0.22, 8ms}}, {0.06, 6000, 3ms}}},
    {"bottle", {190ms, {{294, 1.0, 40ms, -50}, {590, 0.22, 22ms, -90}}, {0.35, 700, 28ms}}},
};

}

// velm-sounds FOLDER: synthesises the program's sounds into it.
int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: velm-sounds FOLDER\n", stderr);
        return 2;
    }
    for (const auto &[name, voice] : voices) {
        const std::string path = std::string(argv[1]) + "/" + name + ".wav";
        if (velm::writeWav(path, velm::render(voice, peak)))
            continue;
        std::fprintf(stderr, "velm-sounds: %s cannot be written\n", path.c_str());
        return 1;
    }
    return 0;
}
