#pragma once

#include <QObject>
#include <QRect>

#include <optional>

namespace velm
{

// The menu-bar areas left and right of a camera housing, in points.
struct HousingAreas {
    QSizeF left;
    QSizeF right;

    bool operator==(const HousingAreas &) const = default;
};

// One screen as it is now. Geometry in points (device pixels divided by the scale), in the desktop's own
// coordinates.
struct ScreenInfo {
    QString connector; // "eDP-1", "HDMI-A-1"; empty when the display system does not tell
    QRect geometry;
    int topInset = 0; // height that panels reserve at the top edge
    bool isPrimary = false;
    std::optional<HousingAreas> housing; // absent where the platform does not tell of one

    bool operator==(const ScreenInfo &) const = default;
};

// The screens of the desktop; an empty list while there is none.
class Screens : public QObject
{
    Q_OBJECT

public:
    virtual QList<ScreenInfo> all() const = 0;

Q_SIGNALS:
    // One came, went, moved, was scaled or rotated, or its work area changed.
    void changed();
};

}
