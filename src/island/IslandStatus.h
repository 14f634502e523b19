#pragma once

#include <QJsonObject>
#include <QString>

namespace velm
{

class IslandController;

// What the island does now, for scripts and for people. The status line says what the machine does.
QJsonObject statusJson(const IslandController &island, const QString &statusLine);
QString statusText(const IslandController &island, const QString &statusLine);

}
