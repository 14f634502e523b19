#include "clipboard/TextDecoding.h"

#include <QStringDecoder>

#include <algorithm>
#include <vector>

namespace velm
{

namespace
{

// Bytes that are decoded at once, and a text that is worth the trouble of giving memory back in between.
constexpr qsizetype pieceSize = 4 * 1024 * 1024;
constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

bool isContinuation(char byte) { return (static_cast<uchar>(byte) & 0xc0) == 0x80; }

// Where the piece before `end` begins: not within a character, unless what stands there is none.
qsizetype pieceStart(QByteArrayView bytes, qsizetype end)
{
    qsizetype start = std::max<qsizetype>(end - pieceSize, 0);
    for (int back = 0; back < 3 && start > 0 && isContinuation(bytes[start]); ++back)
        --start;
    return start;
}

QString decodePiece(QByteArrayView piece)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(piece);
}

QString joined(std::vector<QString> lastFirst)
{
    qsizetype size = 0;
    for (const QString &piece : lastFirst)
        size += piece.size();
    QString text;
    text.reserve(size);
    for (; !lastFirst.empty(); lastFirst.pop_back())
        text += lastFirst.back();
    return text;
}

// From the end to the beginning, because memory can be given back at the end only.
QString takeBigUtf8(QByteArray bytes)
{
    std::vector<QString> pieces;
    const qsizetype first = bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    for (qsizetype end = bytes.size(); end > first;) {
        const qsizetype start = std::max(pieceStart(bytes, end), first);
        pieces.push_back(decodePiece(QByteArrayView(bytes).first(end).sliced(start)));
        if (bytes.isDetached()) { // else it is somebody's who still needs it
            bytes.truncate(start);
            bytes.squeeze();
        }
        end = start;
    }
    bytes = {};
    return joined(std::move(pieces));
}

QString takeUtf8(QByteArray bytes)
{
    if (bytes.size() > pieceSize)
        return takeBigUtf8(std::move(bytes));
    const QByteArrayView whole(bytes);
    return decodePiece(whole.startsWith(byteOrderMark) ? whole.sliced(byteOrderMark.size()) : whole);
}

// Halves of characters, which no UTF-8 can hold.
void replaceLoneSurrogates(QString &text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (!unit.isSurrogate())
            continue;
        const bool isPair = unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair)
            ++i;
        else
            text[i] = QChar::ReplacementCharacter;
    }
}

QString takeUtf16(QByteArray bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf16);
    QString text = decoder.decode(bytes);
    bytes = {};
    replaceLoneSurrogates(text);
    return text;
}

}

QString takeText(QByteArray &&bytes, TextEncoding encoding)
{
    QByteArray taken = std::move(bytes);
    bytes = {};
    switch (encoding) {
    case TextEncoding::Utf8:
        return takeUtf8(std::move(taken));
    case TextEncoding::Utf16:
        return takeUtf16(std::move(taken));
    case TextEncoding::Latin1:
        return QString::fromLatin1(taken);
    case TextEncoding::Utf8OrLatin1:
        return taken.isValidUtf8() ? takeUtf8(std::move(taken)) : QString::fromLatin1(taken);
    }
    return {};
}

}
