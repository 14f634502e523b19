#include "clipboard/ClipRow.h"

#include "app/AgeText.h"
#include "clipboard/ClipThumbnails.h"

namespace velm
{

namespace
{

constexpr qsizetype previewCharacters = 240; // twice what fits

// Line breaks and other controls as spaces: a row has one line.
QString oneLine(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return text;
}

}

ClipRow makeRow(const ClipItem &item, const TextMeasure &textMeasure, const QDateTime &now)
{
    ClipRow row;
    row.id = item.id;
    row.kind = item.kind;
    row.icon = icon(item.kind);
    row.preview = oneLine(item.preview(previewCharacters));
    row.subtitle = oneLine(item.subtitle(textMeasure));
    row.age = ageText(item.date, now);
    row.pinned = item.pinned;
    if (item.kind == ClipKind::Color) {
        if (const auto color = ClipItem::parseColor(item.text))
            row.swatch = paintable(*color);
    }
    if (item.imageFile)
        row.thumbnail = ClipThumbnails::address(*item.imageFile);
    return row;
}

}
