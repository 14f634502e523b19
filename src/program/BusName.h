#pragma once

#include <QString>

// Where the running program answers on the session bus.
namespace velm::bus
{

inline const QString name = QStringLiteral("app.velm.Velm");
inline const QString path = QStringLiteral("/app/velm/Velm");
inline const QString interface = QStringLiteral("app.velm.Velm1");

}
