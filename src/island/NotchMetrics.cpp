#include "island/NotchMetrics.h"

#include <QLatin1StringView>

#include <algorithm>
#include <array>

namespace velm
{

namespace
{

constexpr double pillWidth = 190;
constexpr int lowestPill = 32; // a menu bar's height, where the screen reserves less

// What is narrower or flatter is a gap between two areas, no housing.
constexpr double narrowestHousing = 60;
constexpr double flattestHousing = 10;

// The kernel's names of the connectors that panels inside a machine are wired to.
constexpr std::array builtInConnectors{QLatin1StringView("eDP"), QLatin1StringView("LVDS"),
                                       QLatin1StringView("DSI")};

bool isBuiltIn(const ScreenInfo &screen)
{
    return std::ranges::any_of(builtInConnectors, [&screen](QLatin1StringView name) {
        return screen.connector.startsWith(name, Qt::CaseInsensitive);
    });
}

std::optional<QSizeF> housingSize(const ScreenInfo &screen)
{
    if (!screen.housing)
        return std::nullopt;
    const auto &[left, right] = *screen.housing;
    const QSizeF size(screen.geometry.width() - left.width() - right.width(),
                      std::max(left.height(), right.height()));
    if (size.width() <= narrowestHousing || size.height() <= flattestHousing)
        return std::nullopt;
    return size;
}

}

NotchMetrics NotchMetrics::measure(const ScreenInfo &screen)
{
    if (const auto size = housingSize(screen))
        return {.screen = screen, .notchSize = *size, .isHardware = true};
    return {.screen = screen, .notchSize = QSizeF(pillWidth, std::max(screen.topInset, lowestPill))};
}

ScreenInfo NotchMetrics::preferredScreen(const QList<ScreenInfo> &screens)
{
    auto found = std::ranges::find_if(screens, isBuiltIn);
    if (found == screens.end())
        found = std::ranges::find_if(screens, &ScreenInfo::isPrimary);
    if (found == screens.end())
        found = screens.begin();
    return found == screens.end() ? ScreenInfo{} : *found;
}

}
