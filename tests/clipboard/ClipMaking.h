#pragma once

#include "clipboard/ClipItem.h"
#include "clipboard/Fingerprint.h"

#include <QBuffer>
#include <QImage>

namespace velm
{

inline const QDateTime noon({2026, 11, 21}, {12, 0});

inline ClipItem textClip(const QString &text, const QDateTime &date = noon)
{
    ClipItem item;
    item.id = freshId();
    item.kind = ClipItem::classify(text);
    item.text = text;
    item.sourceApp = QStringLiteral("Editor");
    item.date = date;
    item.fingerprint = sha256Hex(text);
    return item;
}

inline ClipItem clipOfKind(ClipKind kind, const QString &text)
{
    ClipItem item = textClip(text);
    item.kind = kind;
    if (kind == ClipKind::Files)
        item.filePaths = text.split(u'\n');
    return item;
}

inline QImage plainImage(QSize size, QColor color = Qt::red)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline QByteArray encoded(const QImage &image, const char *format = "PNG")
{
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

inline QStringList texts(const QList<ClipItem> &items)
{
    QStringList texts;
    for (const ClipItem &item : items)
        texts.append(item.text);
    return texts;
}

}

Q_DECLARE_METATYPE(velm::ClipKind)
