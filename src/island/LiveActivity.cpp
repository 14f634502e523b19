#include "island/LiveActivity.h"

#include "island/RawValue.h"

namespace velm
{

QJsonObject toJson(const LiveActivity &activity)
{
    QJsonObject json{{QStringLiteral("id"), activity.id},
                     {QStringLiteral("icon"), activity.icon},
                     {QStringLiteral("tint"), rawValue(activity.tint)},
                     {QStringLiteral("leading"), activity.leading},
                     {QStringLiteral("sticky"), activity.sticky},
                     {QStringLiteral("duration"), activity.duration.count()}};
    if (activity.trailing)
        json.insert(QStringLiteral("trailing"), *activity.trailing);
    if (activity.progress)
        json.insert(QStringLiteral("progress"), *activity.progress);
    return json;
}

}
