#include "platform/notifications/dbus/DBusNotifications.h"

#include "platform/dbus/SessionBus.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace velm
{

void DBusNotifications::post(const QString &title, const QString &body, NotificationSound sound)
{
    auto bus = sessionBus();
    if (!bus)
        return;
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/Notifications"), service, QStringLiteral("Notify"));
    QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("app.velm.Velm")}};
    if (sound == NotificationSound::Silent)
        hints.insert(QStringLiteral("suppress-sound"), true);
    else
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    constexpr uint replacesNone = 0;
    constexpr int serverDecidesHowLong = -1;
    // Bodies may hold markup: what the person wrote must stay what it is.
    call.setArguments({QStringLiteral("Velm"), replacesNone, QStringLiteral("app.velm.Velm"), title,
                       body.toHtmlEscaped(), QStringList(), hints, serverDecidesHowLong});
    bus->send(call);
}

}
