#include "clipboard/ClipPicture.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QtEndian>

#include <algorithm>

namespace velm
{

namespace
{

constexpr qint64 mostPixels = 64 * 1024 * 1024; // 256 MiB when decoded; two 8K screens side by side
constexpr QByteArrayView pngSignature = "\x89PNG\r\n\x1a\n";
constexpr qsizetype pngChunkFrame = 12; // length, name and checksum
constexpr qsizetype pngLengthSize = 4;

// Whether its chunks go on to the end mark.
bool isWholePng(QByteArrayView bytes)
{
    for (qsizetype at = pngSignature.size(); bytes.size() - at >= pngChunkFrame;) {
        if (bytes.sliced(at + pngLengthSize).startsWith("IEND"))
            return true;
        at += pngChunkFrame + qFromBigEndian<quint32>(bytes.data() + at);
    }
    return false;
}

bool isReasonable(QSize size)
{
    return size.width() > 0 && size.height() > 0 && qint64(size.width()) * size.height() <= mostPixels;
}

bool isOpaque(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (!std::all_of(line, line + image.width(), [](QRgb pixel) { return qAlpha(pixel) == 0xff; }))
            return false;
    }
    return true;
}

// The same pixels in the one form, without texts, resolution and colour profile.
QImage normalized(QImage image)
{
    if (image.colorSpace().isValid())
        image.convertToColorSpace(QColorSpace::SRgb);
    image.convertTo(QImage::Format_ARGB32);
    if (isOpaque(image))
        image.reinterpretAsFormat(QImage::Format_RGB32);
    QImage plain(image.constBits(), image.width(), image.height(), image.bytesPerLine(), image.format());
    plain.setDotsPerMeterX(0);
    plain.setDotsPerMeterY(0);
    plain.detach();
    return plain;
}

QByteArray encodedPng(const QImage &image)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "png");
    return writer.write(image) ? buffer.data() : QByteArray();
}

}

bool looksLikePicture(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return false;
    // Some formats do not say their size before they are decoded; the reader's own limit holds for these.
    const bool isPng = bytes.startsWith(pngSignature);
    const QSize size = reader.size();
    if ((isPng || size.isValid()) && !isReasonable(size))
        return false;
    return !isPng || isWholePng(bytes);
}

std::optional<ClipPicture> makePicture(const QByteArray &bytes)
{
    if (!looksLikePicture(bytes))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (!isReasonable(image.size()))
        return {};
    const QByteArray png = encodedPng(normalized(image));
    if (png.isEmpty())
        return {};
    return ClipPicture{png, image.size()};
}

}
