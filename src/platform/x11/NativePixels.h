#pragma once

#include <QPoint>
#include <QRegion>
#include <QVector>

#include <xcb/xcb.h>

namespace velm
{

// Between the X server's device pixels and the desktop's points. Each screen is scaled about its own top
// left corner, which is at the same place in both.

// A place on the desktop, in points.
QPoint toPoints(QPoint pixels);

// Whether an area in device pixels holds all of one of the screens.
bool coversAScreen(const QRect &pixels);

// A region of a window, in the window's own pixels; whatever a point touches is in it.
QVector<xcb_rectangle_t> toPixels(const QRegion &region, qreal scale);

}
