#include "clipboard/ClipItem.h"

#include "app/Characters.h"
#include "clipboard/ClipClassifier.h"

#include <QCoreApplication>
#include <QUrl>
#include <QUuid>

#include <algorithm>
#include <limits>

namespace velm
{

namespace
{

constexpr qsizetype unitsPerCharacter = 16; // more code units than that make few characters
constexpr qsizetype longestHost = 4 * 1024; // code units of a link in which its host is looked for
constexpr QStringView separator = u" • ";

QString translated(const char *text) { return QCoreApplication::translate("ClipItem", text); }

QString counted(qsizetype count, const char *one, const char *many)
{
    return QString::number(count) + u' ' + translated(count == 1 ? one : many);
}

QString fileNames(const QStringList &paths, qsizetype longest)
{
    QStringList names;
    qsizetype length = 0;
    for (auto path = paths.begin(); path != paths.end() && length <= longest; ++path) {
        const QString name = path->mid(path->lastIndexOf(u'/') + 1);
        names.append(name.isEmpty() ? *path : name);
        length += names.last().size();
    }
    return names.join(QStringLiteral(", "));
}

QString title(const ClipItem &item, qsizetype longest)
{
    if (item.kind == ClipKind::Image)
        return translated(QT_TRANSLATE_NOOP("ClipItem", "Image"));
    if (item.kind == ClipKind::Files)
        return fileNames(item.filePaths, longest);
    const QStringView trimmed = QStringView(item.text).trimmed();
    if (trimmed.isEmpty())
        return translated(QT_TRANSLATE_NOOP("ClipItem", "(whitespace)"));
    return trimmed.size() == item.text.size() && longest >= trimmed.size()
               ? item.text
               : trimmed.first(std::min(trimmed.size(), longest)).toString();
}

QString host(const QString &link)
{
    return QUrl(QStringView(link).trimmed().left(longestHost).toString()).host();
}

}

TextMeasure measure(QStringView text) { return {characterCount(text), wordCount(text)}; }

ClipKind ClipItem::classify(QStringView text) { return classifyText(text); }

QString ClipItem::preview() const { return title(*this, std::numeric_limits<qsizetype>::max()); }

QString ClipItem::preview(qsizetype characters) const
{
    return firstCharacters(title(*this, characters * unitsPerCharacter), characters);
}

QString ClipItem::subtitle(const TextMeasure &textMeasure) const
{
    switch (kind) {
    case ClipKind::Link: {
        const QString name = host(text);
        return name.isEmpty() ? sourceApp : name;
    }
    case ClipKind::Files:
        return counted(filePaths.size(), QT_TRANSLATE_NOOP("ClipItem", "file"),
                       QT_TRANSLATE_NOOP("ClipItem", "files")) +
               separator + sourceApp;
    case ClipKind::Image:
        return title(*this, 0) + separator + sourceApp;
    case ClipKind::Text:
    case ClipKind::Code:
    case ClipKind::Color:
        break;
    }
    return QString::number(textMeasure.characters) + u' ' +
           translated(QT_TRANSLATE_NOOP("ClipItem", "chars")) + u" · " +
           counted(textMeasure.words, QT_TRANSLATE_NOOP("ClipItem", "word"),
                   QT_TRANSLATE_NOOP("ClipItem", "words")) +
           separator + sourceApp;
}

QString freshId() { return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper(); }

}
