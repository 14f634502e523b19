#pragma once

#include <QColor>
#include <QImage>

namespace velm
{

// The soft shadow of a body with round corners, in device pixels. `reach` is how far it goes beyond the body
// on every side; `core` is the square from a corner of the picture that a nine-patch must not stretch.
struct SoftShadow {
    QImage picture;
    int reach = 0;
    int core = 0;
};

// Blurred once for each radius (points) and scale, then handed out again.
SoftShadow softShadow(double radius, double scale);

// A round light of the colour that fills the size (device pixels) and fades out to its edge.
QImage softLight(const QColor &colour, const QSize &size);

}
