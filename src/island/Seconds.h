#pragma once

#include "platform/runloop/RunLoop.h"

#include <algorithm>
#include <chrono>

namespace velm
{

// Seconds as people write them, fractions included.
using Seconds = std::chrono::duration<double>;

// What the run loop can wait for: what is below zero or no number is none, what is beyond a year is a year.
inline RunLoop::Duration loopDelay(Seconds seconds)
{
    constexpr Seconds longest = std::chrono::years(1);
    if (!(seconds > Seconds::zero()))
        return RunLoop::Duration::zero();
    return std::chrono::duration_cast<RunLoop::Duration>(std::min(seconds, longest));
}

}
