#pragma once

#include "platform/notifications/Notifications.h"

namespace velm
{

// Nobody is told.
class NullNotifications final : public Notifications
{
public:
    void requestPermission() override {}
    void post(const QString &, const QString &, NotificationSound) override {}
};

}
