#include "clipboard/Fingerprint.h"

#include <QCryptographicHash>
#include <QStringEncoder>

#include <algorithm>

namespace velm
{

namespace
{

constexpr qsizetype pieceSize = 32 * 1024;    // code units that are encoded at once
constexpr qsizetype pictureCharacters = 2048; // of the picture's Base64 text, from its beginning

}

QString sha256Hex(QStringView text)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QStringEncoder encoder(QStringEncoder::Utf8);
    QByteArray piece(encoder.requiredSpace(pieceSize), Qt::Uninitialized);
    for (qsizetype at = 0; at < text.size(); at += pieceSize) {
        const QStringView part = text.sliced(at, std::min(pieceSize, text.size() - at));
        const char *end = encoder.appendToBuffer(piece.data(), part);
        hash.addData(QByteArrayView(piece.constData(), end - piece.constData()));
    }
    return QString::fromLatin1(hash.result().toHex());
}

QString fileFingerprint(const QStringList &paths) { return sha256Hex(paths.join(u'|')); }

QString pictureFingerprint(const QByteArray &png)
{
    constexpr qsizetype bytesPerFourCharacters = 3;
    const QByteArray base64 =
        png.first(std::min(png.size(), pictureCharacters / 4 * bytesPerFourCharacters)).toBase64();
    return sha256Hex(QString::fromLatin1(base64));
}

}
