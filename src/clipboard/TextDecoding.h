#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace velm
{

// How the bytes of a type are a text.
enum class TextEncoding {
    Utf8,
    Utf16, // by its byte order mark, else in this machine's order
    Latin1,
    Utf8OrLatin1, // the former where it is valid
};

// The text of these bytes; what is not valid becomes U+FFFD, NUL is kept. Takes the bytes and gives their
// memory back while it goes, so that a big text is hardly ever there in both forms.
QString takeText(QByteArray &&bytes, TextEncoding encoding);

}
