#include "clipboard/ClipOffer.h"

#include "clipboard/UriList.h"

namespace velm
{

namespace
{

const QString utf8Type = QStringLiteral("text/plain;charset=utf-8");
const QString plainType = QStringLiteral("text/plain");

// The text is encoded anew for each program that asks, not kept a second time.
void addText(PasteboardOffer &offer, const QString &text)
{
    const auto makeBytes = [text] { return text.toUtf8(); };
    offer[utf8Type] = makeBytes;
    offer[plainType] = makeBytes;
}

PasteboardOffer fileOffer(const QStringList &paths)
{
    PasteboardOffer offer;
    const QByteArray list = uriList(paths);
    offer[QStringLiteral("text/uri-list")] = [list] { return list; };
    // File managers of the GNOME family paste only what says that it is to be copied.
    offer[QStringLiteral("x-special/gnome-copied-files")] = [list] {
        return "copy\n" + QByteArray(list).replace("\r\n", "\n").trimmed();
    };
    addText(offer, paths.join(u'\n'));
    return offer;
}

PasteboardOffer pictureOffer(const QByteArray &png)
{
    if (png.isEmpty())
        return {};
    return {{QStringLiteral("image/png"), [png] { return png; }}};
}

}

PasteboardOffer pasteboardOffer(const ClipItem &item, const ClipFolder &folder)
{
    if (item.kind == ClipKind::Files)
        return fileOffer(item.filePaths);
    if (item.kind == ClipKind::Image)
        return pictureOffer(item.imageFile ? folder.read(*item.imageFile) : QByteArray());
    PasteboardOffer offer;
    addText(offer, item.text);
    return offer;
}

}
