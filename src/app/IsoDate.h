#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

namespace velm
{

// ISO 8601 in the form of RFC 3339 with whole seconds, in UTC: 2026-01-31T17:04:05Z. Years 0 to 9999.
QByteArray isoText(const QDateTime &date);

// Takes Z or an offset such as +02:00; no fractions of a second. The result is in UTC.
std::optional<QDateTime> isoDate(QStringView text);

}
