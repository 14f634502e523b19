#include "platform/x11/NativePixels.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <limits>

namespace velm
{

namespace
{

QRectF inPixels(const QScreen &screen)
{
    return {screen.geometry().topLeft(), QSizeF(screen.geometry().size()) * screen.devicePixelRatio()};
}

}

QPoint toPoints(QPoint pixels)
{
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRectF native = inPixels(*screen);
        if (!native.adjusted(0, 0, -0.5, -0.5).contains(pixels))
            continue;
        const QPointF inside = (QPointF(pixels) - native.topLeft()) / screen->devicePixelRatio();
        // A pixel belongs to the point that covers it.
        return screen->geometry().topLeft() + QPoint(qFloor(inside.x()), qFloor(inside.y()));
    }
    return pixels;
}

bool coversAScreen(const QRect &pixels)
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&pixels](const QScreen *screen) {
        return pixels.contains(inPixels(*screen).toAlignedRect());
    });
}

QVector<xcb_rectangle_t> toPixels(const QRegion &region, qreal scale)
{
    QVector<xcb_rectangle_t> rectangles;
    rectangles.reserve(region.rectCount());
    const auto coordinate = [](qreal value) {
        using Limits = std::numeric_limits<int16_t>;
        return static_cast<int16_t>(qBound<qreal>(Limits::min(), value, Limits::max()));
    };
    for (const QRect &rect : region) {
        const auto left = coordinate(std::floor(rect.left() * scale));
        const auto top = coordinate(std::floor(rect.top() * scale));
        const auto right = coordinate(std::ceil((rect.left() + rect.width()) * scale));
        const auto bottom = coordinate(std::ceil((rect.top() + rect.height()) * scale));
        rectangles.append(
            {left, top, static_cast<uint16_t>(right - left), static_cast<uint16_t>(bottom - top)});
    }
    return rectangles;
}

}
