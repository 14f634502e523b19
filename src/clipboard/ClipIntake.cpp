#include "clipboard/ClipIntake.h"

#include "clipboard/ClipPicture.h"
#include "clipboard/ClipReadPlan.h"
#include "clipboard/Fingerprint.h"

namespace velm
{

namespace
{

constexpr QChar timesSign = u'×';

bool fillFiles(ClipItem &item, const QStringList &paths)
{
    if (paths.isEmpty())
        return false;
    item.kind = ClipKind::Files;
    item.filePaths = paths;
    item.text = paths.join(u'\n');
    item.fingerprint = fileFingerprint(paths);
    return true;
}

bool fillPicture(ClipItem &item, const QList<PasteboardData> &data, const ClipFolder &folder)
{
    for (const PasteboardData &read : data) {
        const auto picture = isPictureType(read.type) ? makePicture(read.bytes) : std::nullopt;
        if (!picture)
            continue;
        item.kind = ClipKind::Image;
        item.imageFile = freshId() + QStringLiteral(".png");
        item.text =
            QString::number(picture->size.width()) + timesSign + QString::number(picture->size.height());
        item.fingerprint = pictureFingerprint(picture->png);
        folder.write(*item.imageFile, picture->png); // a clip without its picture is still a clip
        return true;
    }
    return false;
}

bool fillText(ClipItem &item, QList<PasteboardData> &data)
{
    std::optional<QString> text = takeText(data);
    if (!text || QStringView(*text).trimmed().isEmpty())
        return false;
    item.text = *std::move(text);
    item.kind = ClipItem::classify(item.text);
    item.fingerprint = sha256Hex(item.text);
    return true;
}

}

std::optional<TakenClip> takeIn(PasteboardContent content, const ClipSource &source, const ClipFolder &folder)
{
    ClipItem item;
    item.id = freshId();
    item.date = source.date;
    item.sourceApp = source.program;
    item.sourceBundleID = source.identifier;
    QList<PasteboardData> data = std::exchange(content.data, {});
    if (!fillFiles(item, readFiles(data)) && !fillPicture(item, data, folder) && !fillText(item, data))
        return {};
    const TextMeasure textMeasure = item.isTextual() ? measure(item.text) : TextMeasure{};
    return TakenClip{std::move(item), textMeasure};
}

}
