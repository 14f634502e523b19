#pragma once

#include "platform/pasteboard/Pasteboard.h"

namespace velm
{

// Remembers all that a pasteboard tells.
class PasteboardLog : public QObject
{
public:
    explicit PasteboardLog(Pasteboard &pasteboard)
    {
        connect(&pasteboard, &Pasteboard::changed, this, [this](quint64 change) {
            story.append(QStringLiteral("changed"));
            changes.append(change);
        });
        connect(&pasteboard, &Pasteboard::read, this, [this](const PasteboardContent &content) {
            story.append(QStringLiteral("read"));
            reads.append(content);
        });
        connect(&pasteboard, &Pasteboard::abandoned, this, [this](quint64 change) {
            story.append(QStringLiteral("abandoned"));
            abandonedAt = change;
        });
    }

    // The bytes of all that was read, one after the other.
    QList<QByteArray> texts() const
    {
        QList<QByteArray> texts;
        for (const PasteboardContent &content : reads) {
            for (const PasteboardData &data : content.data)
                texts.append(data.bytes);
        }
        return texts;
    }

    QStringList story;
    QList<quint64> changes;
    QList<PasteboardContent> reads;
    quint64 abandonedAt = 0;
};

// Wants every offered type, in order.
inline Pasteboard::NextType wantAll()
{
    return [](const QStringList &types, const QList<PasteboardData> &soFar) {
        return types.value(soFar.size());
    };
}

}
