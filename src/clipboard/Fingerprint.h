#pragma once

#include <QByteArray>
#include <QStringList>
#include <QStringView>

namespace velm
{

// The SHA-256 digest of the text's UTF-8 in 64 lower-case hexadecimal digits. Makes no second copy of a big
// text.
QString sha256Hex(QStringView text);

// Identities of what is no text: two copies with the same one count as the same.
QString fileFingerprint(const QStringList &paths);
QString pictureFingerprint(const QByteArray &png);

}
