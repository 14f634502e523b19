#include "island/IslandStatus.h"

#include "island/IslandController.h"
#include "island/RawValue.h"

#include <QJsonArray>

namespace velm
{

namespace
{

QJsonObject sizeJson(const QSizeF &size)
{
    return {{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
}

QJsonObject rectJson(const QRectF &rect)
{
    QJsonObject json = sizeJson(rect.size());
    json.insert(QStringLiteral("x"), rect.x());
    json.insert(QStringLiteral("y"), rect.y());
    return json;
}

QJsonObject metricsJson(const NotchMetrics &metrics)
{
    return {{QStringLiteral("notchWidth"), metrics.notchSize.width()},
            {QStringLiteral("notchHeight"), metrics.notchSize.height()},
            {QStringLiteral("isHardware"), metrics.isHardware},
            {QStringLiteral("screen"), metrics.screen.connector}};
}

QStringList rawValues(const QList<VelmTab> &tabs)
{
    QStringList values;
    for (const VelmTab tab : tabs)
        values.append(rawValue(tab));
    return values;
}

QString lengths(const QSizeF &size) { return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()); }

QString activityWords(const LiveActivity &activity)
{
    QStringList words{activity.leading};
    if (activity.trailing)
        words.append(*activity.trailing);
    if (activity.progress)
        words.append(QStringLiteral("%1 %").arg(qRound(*activity.progress * 100)));
    return words.join(QStringLiteral(" · "));
}

QString screenWords(const NotchMetrics &metrics)
{
    const QString name = metrics.screen.connector.isEmpty() ? QStringLiteral("-") : metrics.screen.connector;
    return metrics.isHardware ? name + QStringLiteral(", camera housing ") + lengths(metrics.notchSize)
                              : name;
}

}

QJsonObject statusJson(const IslandController &island, const QString &statusLine)
{
    QJsonObject json{
        {QStringLiteral("mode"), rawValue(island.mode())},
        {QStringLiteral("tab"), rawValue(island.tab())},
        {QStringLiteral("visibleTabs"), QJsonArray::fromStringList(rawValues(island.visibleTabs()))},
        {QStringLiteral("showSettings"), island.showSettings()},
        {QStringLiteral("settingsPage"), rawValue(island.settingsPage())},
        {QStringLiteral("islandSize"), sizeJson(island.islandSize())},
        {QStringLiteral("hitRect"), rectJson(island.hitRect())},
        {QStringLiteral("metrics"), metricsJson(island.metrics())},
        {QStringLiteral("ignoresMouse"), island.geometry().ignoresMouse()},
        {QStringLiteral("ambient"), island.isAmbient()},
        {QStringLiteral("statusLine"), statusLine},
    };
    if (island.hasActivity())
        json.insert(QStringLiteral("activity"), toJson(*island.activity()));
    return json;
}

QString statusText(const IslandController &island, const QString &statusLine)
{
    QList<std::pair<QString, QString>> rows{
        {QStringLiteral("Island"), rawValue(island.mode()) + u", " + lengths(island.islandSize())},
        {QStringLiteral("Screen"), screenWords(island.metrics())},
        {QStringLiteral("Section"), rawValue(island.tab())},
        {QStringLiteral("Shown"),
         QStringLiteral("%1 of %2 sections").arg(island.visibleTabs().size()).arg(allTabs().size())},
    };
    if (island.showSettings())
        rows.append({QStringLiteral("Settings"), rawValue(island.settingsPage())});
    if (island.hasActivity())
        rows.append({QStringLiteral("Activity"), activityWords(*island.activity())});
    QString text;
    for (const auto &[name, value] : rows)
        text += name.leftJustified(10) + value + u'\n';
    return text + statusLine + u'\n';
}

}
