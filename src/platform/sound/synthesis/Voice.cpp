#include "platform/sound/synthesis/Voice.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace velm
{

namespace
{

constexpr double attackSeconds = 0.003;  // shorter is heard as a click
constexpr double releaseSeconds = 0.020; // so that nothing is cut off

double seconds(std::chrono::milliseconds duration) { return std::chrono::duration<double>(duration).count(); }

double decay(double time, std::chrono::milliseconds halfLife) { return std::exp2(-time / seconds(halfLife)); }

void add(Samples &samples, const Partial &partial)
{
    const double length = static_cast<double>(samples.size()) / sampleRate;
    double phase = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const double time = static_cast<double>(i) / sampleRate;
        samples[i] += partial.loudness * decay(time, partial.halfLife) * std::sin(phase);
        const double hertz = partial.hertz + partial.glide * time / length;
        phase += 2 * std::numbers::pi * hertz / sampleRate;
    }
}

void add(Samples &samples, const Breath &breath)
{
    std::mt19937 dice(1); // the same noise in every build
    std::uniform_real_distribution<double> noise(-1, 1);
    const double smoothing = 1 - std::exp(-2 * std::numbers::pi * breath.cutoffHertz / sampleRate);
    double low = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        low += smoothing * (noise(dice) - low);
        samples[i] += breath.loudness * decay(static_cast<double>(i) / sampleRate, breath.halfLife) * low;
    }
}

void soften(Samples &samples)
{
    const auto ramp = [](size_t i, double length) {
        return std::min(1.0, static_cast<double>(i) / (length * sampleRate));
    };
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] *= ramp(i, attackSeconds) * ramp(samples.size() - 1 - i, releaseSeconds);
}

}

Samples render(const Voice &voice, double peak)
{
    Samples samples(static_cast<size_t>(seconds(voice.length) * sampleRate));
    for (const Partial &partial : voice.partials)
        add(samples, partial);
    add(samples, voice.breath);
    soften(samples);
    double highest = 0;
    for (const double sample : samples)
        highest = std::max(highest, std::abs(sample));
    for (double &sample : samples)
        sample *= peak / highest;
    return samples;
}

}
