#pragma once

#include "platform/screens/Screens.h"

#include <QSizeF>

namespace velm
{

// The notch of the screen that the island is on, in points: the camera housing's own size, or a pill of a
// fixed width where there is none.
struct NotchMetrics {
    ScreenInfo screen = {};
    QSizeF notchSize = {};
    bool isHardware = false; // measured from a real housing

    bool operator==(const NotchMetrics &) const = default;

    static NotchMetrics measure(const ScreenInfo &screen);

    // The first built-in one, else the primary, else the first; an empty one while there is none.
    static ScreenInfo preferredScreen(const QList<ScreenInfo> &screens);
};

}
