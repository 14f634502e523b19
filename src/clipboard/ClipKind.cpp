#include "clipboard/ClipKind.h"

#include <QCoreApplication>

#include <array>

namespace velm
{

namespace
{

struct Row {
    const char *label;
    const char *icon;
};

// In the order of the enum.
constexpr std::array<Row, 6> rows{{
    {QT_TRANSLATE_NOOP("ClipKind", "Text"), "textformat"},
    {QT_TRANSLATE_NOOP("ClipKind", "Link"), "link"},
    {QT_TRANSLATE_NOOP("ClipKind", "Code"), "chevron.left.forwardslash.chevron.right"},
    {QT_TRANSLATE_NOOP("ClipKind", "Color"), "paintpalette.fill"},
    {QT_TRANSLATE_NOOP("ClipKind", "Image"), "photo.fill"},
    {QT_TRANSLATE_NOOP("ClipKind", "Files"), "doc.fill"},
}};

const Row &row(ClipKind kind) { return rows.at(static_cast<size_t>(kind)); }

}

QList<ClipKind> allClipKinds()
{
    QList<ClipKind> kinds;
    for (size_t i = 0; i < rows.size(); ++i)
        kinds.append(static_cast<ClipKind>(i));
    return kinds;
}

QString label(ClipKind kind) { return QCoreApplication::translate("ClipKind", row(kind).label); }

QString icon(ClipKind kind) { return QString::fromLatin1(row(kind).icon); }

}
