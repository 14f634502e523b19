#include "island/IslandGeometry.h"

#include "app/Characters.h"

#include <algorithm>

namespace velm
{

namespace
{

constexpr QSizeF catchingSize{360, 132};
constexpr QSizeF expandedSize{660, 430};

// Past the notch, together for both sides; below it.
constexpr QSizeF peekMargin{130, 36};
constexpr QSizeF activityMargin{90, 38};

// Width of an activity: what stands around its texts, an average character, and where texts are cut.
constexpr double activityFrame = 200;
constexpr double characterWidth = 6.5;
constexpr double widestTexts = 430;

constexpr double hitPad = 12; // while closed, for a pointer that aims at the edge
constexpr double pressMargin = 6;
constexpr double triggerSide = 14;
constexpr double triggerBelow = 8;

QSizeF activitySize(const LiveActivity &activity, const QSizeF &notch)
{
    const auto characters = characterCount(activity.leading) + characterCount(activity.trailingText());
    const double texts = std::min(double(characters) * characterWidth + activityFrame, widestTexts);
    return {std::max(notch.width() + activityMargin.width(), texts),
            notch.height() + activityMargin.height()};
}

// Hanging from the middle of the screen's top edge.
QRectF atTopOf(const QRectF &screen, const QSizeF &size)
{
    return {QPointF(screen.x() + (screen.width() - size.width()) / 2, screen.y()), size};
}

}

QSizeF IslandGeometry::islandSize() const
{
    switch (mode) {
    case IslandMode::Peek:
        return metrics.notchSize + peekMargin;
    case IslandMode::Catching:
        return catchingSize;
    case IslandMode::Expanded:
        return expandedSize;
    case IslandMode::Idle:
        break;
    }
    return activity ? activitySize(*activity, metrics.notchSize) : metrics.notchSize;
}

QRectF IslandGeometry::hitRect() const
{
    const double pad = mode == IslandMode::Expanded ? 0 : hitPad;
    const QSizeF size = islandSize() + QSizeF(pad, pad);
    return {QPointF((windowSize.width() - size.width()) / 2, windowSize.height() - size.height()), size};
}

QRegion IslandGeometry::inputRegion() const
{
    if (ignoresMouse())
        return {};
    QRectF fromTop = hitRect();
    fromTop.moveTop(windowSize.height() - fromTop.y() - fromTop.height());
    return fromTop.toAlignedRect();
}

QRectF IslandGeometry::windowFrame() const { return atTopOf(metrics.screen.geometry, windowSize); }

QRectF IslandGeometry::hoverTrigger() const
{
    return atTopOf(metrics.screen.geometry, metrics.notchSize)
        .adjusted(-triggerSide, 0, triggerSide, triggerBelow);
}

QRectF IslandGeometry::pressArea() const
{
    return atTopOf(metrics.screen.geometry, islandSize())
        .adjusted(-pressMargin, -pressMargin, pressMargin, pressMargin);
}

bool covers(const QRectF &area, QPoint pixel)
{
    return pixel.x() >= area.left() && pixel.x() < area.right() && pixel.y() >= area.top() &&
           pixel.y() < area.bottom();
}

}
