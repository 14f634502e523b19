#include "platform/sound/synthesis/WavFile.h"

#include <cmath>
#include <cstdint>
#include <fstream>

namespace velm
{

namespace
{

// All numbers of the format are little endian.
void number(std::string &out, uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.push_back(static_cast<char>(value >> (8 * i) & 0xff));
}

}

bool writeWav(const std::string &path, const Samples &samples)
{
    constexpr uint32_t sampleBytes = 2;
    const auto dataBytes = static_cast<uint32_t>(samples.size()) * sampleBytes;
    constexpr uint32_t formatBytes = 16;
    std::string out = "RIFF";
    number(out, 4 + 8 + formatBytes + 8 + dataBytes, 4);
    out += "WAVEfmt ";
    number(out, formatBytes, 4);
    number(out, 1, 2); // PCM
    number(out, 1, 2); // one channel
    number(out, sampleRate, 4);
    number(out, sampleRate * sampleBytes, 4);
    number(out, sampleBytes, 2);
    number(out, 8 * sampleBytes, 2);
    out += "data";
    number(out, dataBytes, 4);
    for (const double sample : samples)
        number(out, static_cast<uint32_t>(std::lround(sample * INT16_MAX)), sampleBytes);
    std::ofstream file(path, std::ios::binary);
    file << out;
    file.close();
    return file.good();
}

}
