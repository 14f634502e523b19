#include "island/IslandOutline.h"

#include "island/IslandGeometry.h"

#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>

namespace velm
{

namespace
{

// The right half from the top edge down; corners are as QML's shape draws them: they begin at 1.2 times
// the radius, with handles at 0.4.
QPainterPath rightHalf(const IslandOutline &outline)
{
    const double right = outline.body.width() / 2;
    const double bottom = outline.body.height();
    const double reach = std::min({outline.corner * 1.2, right, bottom});
    const double handle = reach * 0.4;
    const double shoulder = std::min(outline.shoulder, bottom - reach);
    QPainterPath path;
    path.lineTo(right + shoulder, 0);
    path.arcTo(QRectF(right, 0, 2 * shoulder, 2 * shoulder), 90, 90);
    path.lineTo(right, bottom - reach);
    path.cubicTo({right, bottom - handle}, {right - handle, bottom}, {right - reach, bottom});
    path.lineTo(0, bottom);
    path.closeSubpath();
    return path;
}

}

QRegion IslandOutline::region() const
{
    if (body.isEmpty())
        return {};
    const QRegion right(rightHalf(*this).toFillPolygon().toPolygon());
    // Mirrored by whole pixels, since rounding treats the two sides differently.
    QRegion whole = right;
    for (const QRect &rect : right)
        whole += QRect(-rect.right() - 1, rect.y(), rect.width(), rect.height());
    return whole.translated(int(IslandGeometry::windowSize.width()) / 2, 0);
}

}
