#pragma once

#include "island/IslandMode.h"
#include "island/LiveActivity.h"
#include "island/NotchMetrics.h"

#include <QRectF>
#include <QRegion>

namespace velm
{

// Where the island is and what it covers, from a snapshot of its state; all lengths in points.
struct IslandGeometry {
    IslandMode mode = IslandMode::Idle;
    NotchMetrics metrics = {};
    std::optional<LiveActivity> activity = {};

    static constexpr QSizeF windowSize{800, 500};

    QSizeF islandSize() const;

    // Where the island takes clicks: window content with its origin at the bottom left, as a person
    // measures up from the desk.
    QRectF hitRect() const;

    // The same for the window system, origin at the top left; empty while the island lets all pass.
    QRegion inputRegion() const;

    // Closed, the island lets clicks, scrolls and hovers pass to what lies below.
    bool ignoresMouse() const { return mode < IslandMode::Catching; }

    // In the desktop's points, origin at the top left, like all below.
    QRectF windowFrame() const;

    // The pointer in here brings the peek: the notch and a margin around it.
    QRectF hoverTrigger() const;

    // A press in here is meant for the open panel; anywhere else it closes it.
    QRectF pressArea() const;
};

// Whether the pixel lies in the area; its right and bottom edges belong to the neighbour.
bool covers(const QRectF &area, QPoint pixel);

}
