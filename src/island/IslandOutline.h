#pragma once

#include <QRegion>
#include <QSizeF>

namespace velm
{

// The island's black body as QML draws it at one moment, hanging from the middle of the window's top edge.
struct IslandOutline {
    QSizeF body;
    double corner = 0;   // radius of the two lower corners
    double shoulder = 0; // radius of the hollow corners beside the top edge

    bool operator==(const IslandOutline &) const = default;

    // In whole pixels of the window.
    QRegion region() const;
};

}
