#include "island/HoverTracker.h"

namespace velm
{

HoverEffect HoverTracker::moved(bool isOverTrigger, IslandMode mode, const HoverPreferences &preferences)
{
    if (mode != IslandMode::Idle && mode != IslandMode::Peek)
        return {};
    HoverEffect effect;
    if (isOverTrigger && !m_isInside) {
        if (mode == IslandMode::Idle && preferences.showsPeek)
            effect.mode = IslandMode::Peek;
        if (preferences.opensOnHover)
            effect.opening = HoverEffect::Opening::Scheduled;
    } else if (!isOverTrigger) {
        effect.opening = HoverEffect::Opening::Cancelled;
        if (mode == IslandMode::Peek)
            effect.mode = IslandMode::Idle;
    }
    m_isInside = isOverTrigger;
    return effect;
}

}
