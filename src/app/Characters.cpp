#include "app/Characters.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <limits>

namespace velm
{

namespace
{

// Below the first combining mark every code unit is a character of its own, but for CR LF.
constexpr char16_t firstMark = 0x0300;
constexpr qsizetype everything = std::numeric_limits<qsizetype>::max();

struct Reach {
    qsizetype characters = 0;
    qsizetype units = 0;
};

bool isPlain(char16_t unit) { return unit < firstMark; }

// Goes over plain units from `reach` on, up to `most` characters in all.
Reach overPlain(QStringView text, Reach reach, qsizetype most)
{
    const char16_t *const units = text.utf16();
    qsizetype at = reach.units;
    qsizetype joined = 0;
    // A CR LF may make a run of `most` characters longer than `most` units.
    while (at < text.size() && isPlain(units[at]) && reach.characters + at - reach.units - joined < most) {
        const bool isCrLf = units[at] == u'\r' && at + 1 < text.size() && units[at + 1] == u'\n';
        joined += isCrLf;
        at += isCrLf ? 2 : 1;
    }
    return {reach.characters + at - reach.units - joined, at};
}

// The end of the stretch that begins at `from` with a unit that is not plain: one plain unit may still belong
// to it, but between two plain ones, other than CR LF, there is always a boundary.
qsizetype markedEnd(QStringView text, qsizetype from)
{
    const char16_t *const units = text.utf16();
    qsizetype end = from + 1;
    while (end < text.size() && !(isPlain(units[end]) && isPlain(units[end - 1])))
        ++end;
    const bool isBetweenCrLf = end < text.size() && units[end - 1] == u'\r' && units[end] == u'\n';
    return isBetweenCrLf ? end - 1 : end;
}

// Goes on from a boundary through a part of the text by the full rules.
Reach overClusters(QStringView text, Reach reach, qsizetype end, qsizetype most)
{
    qsizetype window = 4096; // keeps what the finder sets up small, and the way short to the first few
    while (reach.units < end && reach.characters < most) {
        const QStringView part = text.mid(reach.units, std::min(window, end - reach.units));
        const bool isLast = reach.units + part.size() == end;
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, part.data(), part.size());
        const qsizetype start = reach.units;
        for (qsizetype next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
            if (reach.characters == most || (next == part.size() && !isLast))
                break; // what touches the end of the part may go on behind it
            reach = {reach.characters + 1, start + next};
        }
        if (reach.units == start)
            window *= 2;
    }
    return reach;
}

Reach scan(QStringView text, qsizetype most)
{
    Reach reach;
    while (reach.units < text.size() && most > 0) {
        reach = overPlain(text, reach, most);
        if (reach.units == text.size() || isPlain(text[reach.units].unicode()))
            break;
        const qsizetype end = markedEnd(text, reach.units);
        if (reach.units > 0)
            reach = {reach.characters - 1, reach.units - 1}; // a mark may belong to the last plain one
        reach = overClusters(text, reach, end, most);
        if (reach.units < end)
            break;
    }
    return reach;
}

}

qsizetype characterCount(QStringView text) { return scan(text, everything).characters; }

QString firstCharacters(const QString &text, qsizetype count)
{
    const qsizetype units = scan(text, count).units;
    return units == text.size() ? text : text.left(units);
}

qsizetype wordCount(QStringView text)
{
    qsizetype words = 0;
    bool isInWord = false;
    for (const QChar unit : text) {
        const bool belongs = !unit.isSpace(); // all white space is in the basic plane
        words += belongs && !isInWord;
        isInWord = belongs;
    }
    return words;
}

}
