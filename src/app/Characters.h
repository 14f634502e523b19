#pragma once

#include <QString>
#include <QStringView>

namespace velm
{

// Characters are what a person sees as one: the extended grapheme clusters of Unicode Standard Annex 29.
// CR LF is one. Takes time in proportion to the text, and little memory beside it.
qsizetype characterCount(QStringView text);

// The whole text when it has no more than that many.
QString firstCharacters(const QString &text, qsizetype count);

// The runs between white space, the no-break space included.
qsizetype wordCount(QStringView text);

}
