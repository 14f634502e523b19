#include "clipboard/ClipFilter.h"

#include <algorithm>

namespace velm
{

namespace
{

// Code units that are put in lower case at once, so that a search makes no copy of a big text.
constexpr qsizetype pieceSize = 64 * 1024;

QString searched(const QString &search)
{
    const auto isTrimmed = [](QChar c) { return c == u' ' || c == u'\t'; };
    const auto begin = std::find_if_not(search.begin(), search.end(), isTrimmed);
    const auto end = std::find_if_not(search.rbegin(), std::make_reverse_iterator(begin), isTrimmed).base();
    return QStringView(begin, end).toString().toLower();
}

// What toLower gives, without its look-ups for each character where they are not needed.
void appendLowerCase(QString &result, QStringView piece)
{
    const bool isAscii = std::all_of(piece.begin(), piece.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!isAscii) {
        result += piece.toString().toLower();
        return;
    }
    const qsizetype start = result.size();
    result.resize(start + piece.size());
    std::transform(piece.utf16(), piece.utf16() + piece.size(), result.begin() + start, [](char16_t unit) {
        return static_cast<char16_t>(unit | (unit >= u'A' && unit <= u'Z' ? 0x20 : 0));
    });
}

bool contains(QStringView text, const QString &lowerCase)
{
    QString lowered; // of a piece, after the end of the one before, where a hit may begin
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = std::min(at + pieceSize, text.size());
        if (end < text.size() && text[end].isLowSurrogate())
            --end;
        appendLowerCase(lowered, text.sliced(at, end - at));
        if (lowered.contains(lowerCase))
            return true;
        lowered.remove(0, lowered.size() - std::min(lowered.size(), lowerCase.size() - 1));
        at = end;
    }
    return false;
}

bool comesBefore(const ClipItem &a, const ClipItem &b)
{
    if (a.pinned != b.pinned)
        return a.pinned;
    if (a.pinned)
        return a.pinnedAt.value_or(a.date) > b.pinnedAt.value_or(b.date);
    return a.date > b.date;
}

}

bool passes(const ClipItem &item, ClipFilter filter)
{
    switch (filter) {
    case ClipFilter::All:
        return true;
    case ClipFilter::Pinned:
        return item.pinned;
    case ClipFilter::Text:
        return item.isTextual() && item.kind != ClipKind::Link;
    case ClipFilter::Link:
        return item.kind == ClipKind::Link;
    case ClipFilter::Image:
        return item.kind == ClipKind::Image;
    case ClipFilter::Files:
        return item.kind == ClipKind::Files;
    }
    return false;
}

ClipCounts countClips(const QList<ClipItem> &items)
{
    ClipCounts counts;
    for (const ClipItem &item : items) {
        ++counts.all;
        counts.pinned += passes(item, ClipFilter::Pinned);
        counts.text += passes(item, ClipFilter::Text);
        counts.link += passes(item, ClipFilter::Link);
        counts.image += passes(item, ClipFilter::Image);
        counts.files += passes(item, ClipFilter::Files);
    }
    return counts;
}

QList<ClipItem> visibleItems(const QList<ClipItem> &items, ClipFilter filter, const QString &search)
{
    const QString query = searched(search);
    QList<ClipItem> visible;
    for (const ClipItem &item : items) {
        if (passes(item, filter) &&
            (query.isEmpty() || contains(item.text, query) || contains(item.sourceApp, query)))
            visible.append(item);
    }
    std::stable_sort(visible.begin(), visible.end(), comesBefore);
    return visible;
}

}
