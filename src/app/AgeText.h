#pragma once

#include <QDateTime>
#include <QString>

namespace velm
{

// How long ago: "now", "4 min", "2 h", "2 d", and after a week the day, as in "14 Nov" or, of another year,
// "14 Nov 2025". What lies ahead is "now".
QString ageText(const QDateTime &then, const QDateTime &now);

}
