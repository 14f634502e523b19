#pragma once

#include "platform/notifications/Notifications.h"

#include <QList>

namespace velm
{

// Remembers the notifications instead of showing them.
class RecordedNotifications final : public Notifications
{
public:
    struct Posted {
        QString title;
        QString body;
        NotificationSound sound;

        bool operator==(const Posted &) const = default;
    };

    void requestPermission() override { ++permissionRequests; }
    void post(const QString &title, const QString &body, NotificationSound sound) override
    {
        posted.append({title, body, sound});
    }

    int permissionRequests = 0;
    QList<Posted> posted;
};

}
