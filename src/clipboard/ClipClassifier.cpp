#include "clipboard/ClipClassifier.h"

#include "app/Characters.h"
#include "clipboard/ColorLiteral.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace velm
{

namespace
{

constexpr qsizetype longestColor = 25;
constexpr int markersOfCode = 2;       // that many alone make a text code
constexpr int indentedLinesOfCode = 2; // or one, and that many lines

// Each counts once.
constexpr std::array<QStringView, 16> codeMarkers{
    u"{",      u"}",    u";",    u"=>",   u"func ", u"def ",    u"class ",   u"import ",
    u"const ", u"let ", u"var ", u"<div", u"</",    u"SELECT ", u"#include", u"print("};

// Spaces and word characters as ICU's regular expressions have them, spelt out because PCRE draws their
// limits elsewhere: its \w has no marks, but fractions; its \s has the vertical tab. All repeats are
// possessive, so that no text makes the engine try twice.
const QString word = QStringLiteral("\\p{L}\\p{M}\\p{Nd}\\p{Nl}\\p{Pc}\\x{200c}\\x{200d}\\x{24b6}-\\x{24e9}"
                                    "\\x{1f130}-\\x{1f149}\\x{1f150}-\\x{1f169}\\x{1f170}-\\x{1f189}");

QRegularExpression whole(const QString &pattern)
{
    return QRegularExpression(QStringLiteral("^") + pattern + QStringLiteral("\\z"),
                              QRegularExpression::UseUnicodePropertiesOption |
                                  QRegularExpression::DontCaptureOption);
}

bool matches(QStringView text, const QRegularExpression &expression)
{
    return expression.match(QString::fromRawData(text.data(), text.size())).hasMatch();
}

const QRegularExpression link = whole(QStringLiteral("(?:https?|file|ftp)://[^\\t\\n\\f\\r\\p{Z}]++"));
const QRegularExpression address = whole(QStringLiteral("[%1.+-]++@[%1-]++\\.[%1.]++").arg(word));

// The length first: numbers of a million digits take long to read.
bool isColor(QStringView trimmed)
{
    constexpr qsizetype glance = 1024; // code units that tell of nearly every text that it is too long
    return characterCount(trimmed.left(glance)) <= longestColor && characterCount(trimmed) <= longestColor &&
           parseColorLiteral(trimmed);
}

// The plain searches spare most texts the regular expressions.
bool isLink(QStringView trimmed)
{
    constexpr qsizetype longestScheme = 5;
    constexpr QStringView afterScheme = u"://";
    return trimmed.first(std::min(trimmed.size(), longestScheme + afterScheme.size()))
               .contains(afterScheme) &&
           matches(trimmed, link);
}

bool isAddress(QStringView trimmed) { return trimmed.contains(u'@') && matches(trimmed, address); }

bool isLineBreak(QChar c)
{
    return (c >= u'\n' && c <= u'\r') || c == u'\u0085' || c == u'\u2028' || c == u'\u2029';
}

// The first line of a trimmed text is never indented, so a line break stands before each that is.
bool hasIndentedLines(QStringView trimmed)
{
    int lines = 0;
    for (auto at = trimmed.begin(); lines < indentedLinesOfCode; ++lines) {
        at = std::find_if(at, trimmed.end(), [&](const QChar &c) {
            const QStringView line(&c + 1, trimmed.end());
            return isLineBreak(c) && (line.startsWith(u'\t') || line.startsWith(u"  "));
        });
        if (at == trimmed.end())
            return false;
        ++at;
    }
    return true;
}

bool isCode(QStringView trimmed)
{
    int markers = 0;
    for (QStringView marker : codeMarkers) {
        markers += trimmed.contains(marker) ? 1 : 0;
        if (markers == markersOfCode)
            return true;
    }
    return markers == 1 && hasIndentedLines(trimmed);
}

}

ClipKind classifyText(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (isColor(trimmed))
        return ClipKind::Color;
    if (isLink(trimmed) || isAddress(trimmed))
        return ClipKind::Link;
    return isCode(trimmed) ? ClipKind::Code : ClipKind::Text;
}

}
