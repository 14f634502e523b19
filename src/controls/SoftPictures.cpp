#include "controls/SoftPictures.h"

#include <QHash>
#include <QPainter>
#include <QRadialGradient>

#include <cmath>
#include <utility>
#include <vector>

namespace velm
{

namespace
{
constexpr double blurRadius = 6;     // points, of one box; three boxes make the soft edge
constexpr double shadowReach = 36;   // points; where the blur has ended
constexpr int boxPasses = 3;         // close enough to a Gaussian
constexpr double lightFalloff = 2.2; // the exponent of how the light fades outwards
constexpr int lightStops = 10;       // enough that no ring is seen
constexpr QImage::Format painted = QImage::Format_ARGB32_Premultiplied;

// One box pass over the rows of an alpha picture; the result is transposed, so that two make both directions.
QImage boxBlurred(const QImage &source, int radius)
{
    QImage result(source.height(), source.width(), QImage::Format_Alpha8);
    const int width = source.width();
    std::vector<uchar *> columns;
    columns.reserve(static_cast<size_t>(width));
    for (int x = 0; x < width; ++x)
        columns.push_back(result.scanLine(x));
    for (int y = 0; y < source.height(); ++y) {
        const uchar *line = source.constScanLine(y);
        int sum = 0;
        for (int x = -radius; x < width + radius; ++x) {
            const int entering = x + radius;
            const int leaving = x - radius - 1;
            sum += entering < width ? line[entering] : 0;
            sum -= leaving >= 0 && leaving < width ? line[leaving] : 0;
            if (x >= 0 && x < width)
                columns[static_cast<size_t>(x)][y] = static_cast<uchar>(sum / (2 * radius + 1));
        }
    }
    return result;
}

SoftShadow makeShadow(double radius, double scale)
{
    SoftShadow shadow;
    shadow.reach = qRound(shadowReach * scale);
    shadow.core = shadow.reach * 2 + qRound(radius * scale);
    const int side = shadow.core * 2 + 1;
    QImage alpha(side, side, QImage::Format_Alpha8);
    alpha.fill(0);
    QPainter painter(&alpha);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const int inset = shadow.reach;
    painter.drawRoundedRect(alpha.rect().adjusted(inset, inset, -inset, -inset), radius * scale,
                            radius * scale);
    painter.end();
    for (int pass = 0; pass < 2 * boxPasses; ++pass)
        alpha = boxBlurred(alpha, qRound(blurRadius * scale));
    shadow.picture = QImage(side, side, painted);
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(shadow.picture.scanLine(y));
        for (int x = 0; x < side; ++x)
            line[x] = qRgba(0, 0, 0, alpha.constScanLine(y)[x]);
    }
    return shadow;
}
}

SoftShadow softShadow(double radius, double scale)
{
    static QHash<std::pair<int, int>, SoftShadow> made;
    constexpr int percent = 100; // keys are whole numbers
    const std::pair key(qRound(radius * percent), qRound(scale * percent));
    const auto known = made.constFind(key);
    return known != made.constEnd() ? *known : *made.insert(key, makeShadow(radius, scale));
}

QImage softLight(const QColor &colour, const QSize &size)
{
    QRadialGradient gradient(0.5, 0.5, 0.5);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    for (int stop = 0; stop <= lightStops; ++stop) {
        const double way = static_cast<double>(stop) / lightStops;
        QColor faded = colour;
        faded.setAlphaF(static_cast<float>(std::pow(1 - way, lightFalloff)));
        gradient.setColorAt(way, faded);
    }
    QImage picture(size, painted);
    picture.fill(Qt::transparent);
    QPainter(&picture).fillRect(picture.rect(), gradient);
    return picture;
}

}
