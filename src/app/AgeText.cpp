#include "app/AgeText.h"

#include <QCoreApplication>
#include <QLocale>

namespace velm
{

namespace
{

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
constexpr qint64 week = 7 * day;

QString counted(const char *text, qint64 count)
{
    return QCoreApplication::translate("velm::ageText", text).arg(count);
}

}

QString ageText(const QDateTime &then, const QDateTime &now)
{
    const qint64 age = then.secsTo(now);
    if (age < minute)
        return QCoreApplication::translate("velm::ageText", "now");
    if (age < hour)
        return counted(QT_TRANSLATE_NOOP("velm::ageText", "%1 min"), age / minute);
    if (age < day)
        return counted(QT_TRANSLATE_NOOP("velm::ageText", "%1 h"), age / hour);
    if (age < week)
        return counted(QT_TRANSLATE_NOOP("velm::ageText", "%1 d"), age / day);
    const QDate date = then.toLocalTime().date();
    const bool isThisYear = date.year() == now.toLocalTime().date().year();
    return QLocale().toString(date, isThisYear ? QStringLiteral("d MMM") : QStringLiteral("d MMM yyyy"));
}

}
