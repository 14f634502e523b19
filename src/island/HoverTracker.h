#pragma once

#include "island/IslandMode.h"

#include <optional>

namespace velm
{

// The preferences that hovering reads.
struct HoverPreferences {
    bool opensOnHover = true;
    bool showsPeek = true;
};

// What a move of the pointer brings about.
struct HoverEffect {
    enum class Opening { AsItWas, Scheduled, Cancelled };

    std::optional<IslandMode> mode = {}; // the mode to go to, if another
    Opening opening = Opening::AsItWas;  // of the panel, after the hover delay

    bool operator==(const HoverEffect &) const = default;
};

// Turns positions of the pointer into entries and exits of the notch. The opening is scheduled once per
// entry; a pointer that rests does nothing, so that an island closed under it stays closed.
class HoverTracker
{
public:
    HoverEffect moved(bool isOverTrigger, IslandMode mode, const HoverPreferences &preferences);

    // The island was opened or closed otherwise: the next move over the notch is an entry again.
    void forget() { m_isInside = false; }

    bool isInside() const { return m_isInside; }

private:
    bool m_isInside = false;
};

}
