#pragma once

#include "platform/notifications/Notifications.h"

namespace velm
{

// The desktop's notification service (org.freedesktop.Notifications). Quiet where there is none; never waits
// for it.
class DBusNotifications final : public Notifications
{
public:
    void requestPermission() override {} // this service asks nobody
    void post(const QString &title, const QString &body, NotificationSound sound) override;
};

}
