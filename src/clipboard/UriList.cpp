#include "clipboard/UriList.h"

#include <algorithm>
#include <cctype>
#include <optional>

namespace velm
{

namespace
{

constexpr QByteArrayView scheme = "file:";
constexpr QByteArrayView hostMark = "//";
constexpr QByteArrayView localHost = "localhost";

bool startsWithIgnoringCase(QByteArrayView text, QByteArrayView start)
{
    return text.size() >= start.size() &&
           qstrnicmp(text.data(), start.size(), start.data(), start.size()) == 0;
}

// Absent where a percent sign does not lead two hexadecimal digits.
std::optional<QByteArray> decoded(QByteArrayView encoded)
{
    QByteArray bytes;
    bytes.reserve(encoded.size());
    for (qsizetype i = 0; i < encoded.size(); ++i) {
        if (encoded[i] != '%') {
            bytes.append(encoded[i]);
            continue;
        }
        const auto isDigit = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; };
        if (encoded.size() - i < 3 || !isDigit(encoded[i + 1]) || !isDigit(encoded[i + 2]))
            return {};
        bytes.append(static_cast<char>(encoded.sliced(i + 1, 2).toByteArray().toInt(nullptr, 16)));
        i += 2;
    }
    return bytes;
}

// What stands after the scheme and a host that is this machine; empty for any other address.
QByteArrayView encodedPath(QByteArrayView address)
{
    if (!startsWithIgnoringCase(address, scheme))
        return {};
    QByteArrayView rest = address.sliced(scheme.size());
    if (rest.startsWith(hostMark)) {
        rest = rest.sliced(hostMark.size());
        if (startsWithIgnoringCase(rest, localHost))
            rest = rest.sliced(localHost.size());
    }
    return rest.startsWith('/') ? rest : QByteArrayView();
}

std::optional<QString> localPath(QByteArrayView address)
{
    const QByteArrayView path = encodedPath(address);
    // A query or fragment is no part of a path; file managers encode these signs in names.
    const auto end = std::find_if(path.begin(), path.end(), [](char c) { return c == '?' || c == '#'; });
    const auto bytes = decoded(path.first(end - path.begin()));
    if (!bytes || bytes->isEmpty() || bytes->contains('\0'))
        return {};
    QString text = QString::fromUtf8(*bytes);
    if (text.toUtf8() != *bytes)
        return {};
    if (text.size() > 1 && text.endsWith(u'/'))
        text.chop(1);
    return text;
}

bool isUnreserved(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           QByteArrayView("-._~/").contains(c);
}

}

QStringList localPaths(const QByteArray &uriList)
{
    QStringList paths;
    const QByteArrayView all(uriList);
    for (qsizetype at = 0; at < all.size();) {
        const auto end =
            std::find_if(all.begin() + at, all.end(), [](char c) { return c == '\n' || c == '\r'; });
        const QByteArrayView line = all.sliced(at, end - all.begin() - at).trimmed();
        if (const auto path = localPath(line))
            paths.append(*path);
        at = end - all.begin() + 1;
    }
    return paths;
}

QByteArray uriList(const QStringList &paths)
{
    QByteArray list;
    for (const QString &path : paths) {
        list += scheme;
        list += hostMark;
        for (const char c : path.toUtf8()) {
            if (isUnreserved(c))
                list += c;
            else
                list += '%' + QByteArray(1, c).toHex().toUpper();
        }
        list += "\r\n";
    }
    return list;
}

}
