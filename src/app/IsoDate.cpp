#include "app/IsoDate.h"

#include <QDate>
#include <QTime>

#include <chrono>

namespace velm
{

namespace
{

constexpr qint64 secondsPerDay = 86400;

// The decimal digits of the text from `at` on, or -1 when one of them is none.
int number(QStringView text, qsizetype at, qsizetype digits)
{
    int value = 0;
    for (const QChar digit : text.mid(at, digits)) {
        if (digit < u'0' || digit > u'9')
            return -1;
        value = value * 10 + digit.unicode() - u'0';
    }
    return value;
}

void putNumber(QByteArray &text, qsizetype at, qsizetype digits, qint64 value)
{
    for (qsizetype i = at + digits - 1; i >= at; --i, value /= 10)
        text[i] = static_cast<char>('0' + value % 10);
}

// Seconds east of UTC of "Z", "+02:00" or "-0330".
std::optional<int> offset(QStringView zone)
{
    if (zone == u"Z")
        return 0;
    const bool hasColon = zone.size() == 6 && zone[3] == u':';
    if ((!hasColon && zone.size() != 5) || (zone[0] != u'+' && zone[0] != u'-'))
        return {};
    const int hours = number(zone, 1, 2);
    const int minutes = number(zone, hasColon ? 4 : 3, 2);
    if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59)
        return {};
    return (zone[0] == u'-' ? -1 : 1) * (hours * 60 + minutes) * 60;
}

}

QByteArray isoText(const QDateTime &date)
{
    // Files hold thousands of dates, which QDateTime::toString would take most of the time for.
    const std::chrono::sys_seconds instant =
        std::chrono::floor<std::chrono::seconds>(std::chrono::sys_time<std::chrono::milliseconds>(
            std::chrono::milliseconds(date.toMSecsSinceEpoch())));
    const auto day = std::chrono::floor<std::chrono::days>(instant);
    const std::chrono::year_month_day civil(day);
    const std::chrono::hh_mm_ss time(instant - day);
    QByteArray text("0000-00-00T00:00:00Z");
    putNumber(text, 0, 4, int(civil.year()));
    putNumber(text, 5, 2, unsigned(civil.month()));
    putNumber(text, 8, 2, unsigned(civil.day()));
    putNumber(text, 11, 2, time.hours().count());
    putNumber(text, 14, 2, time.minutes().count());
    putNumber(text, 17, 2, time.seconds().count());
    return text;
}

std::optional<QDateTime> isoDate(QStringView text)
{
    constexpr qsizetype zoneAt = 19; // in yyyy-MM-ddTHH:mm:ssZ
    if (text.size() <= zoneAt || text[4] != u'-' || text[7] != u'-' || text[10] != u'T' || text[13] != u':' ||
        text[16] != u':')
        return {};
    const int year = number(text, 0, 4);
    const QDate date(year, number(text, 5, 2), number(text, 8, 2));
    const QTime time(number(text, 11, 2), number(text, 14, 2), number(text, 17, 2));
    const std::optional<int> east = offset(text.mid(zoneAt));
    if (year < 0 || !date.isValid() || !time.isValid() || !east)
        return {};
    const qint64 days = QDate(1970, 1, 1).daysTo(date);
    const qint64 seconds = days * secondsPerDay + time.msecsSinceStartOfDay() / 1000 - *east;
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

}
