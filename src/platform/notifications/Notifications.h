#pragma once

#include <QString>

namespace velm
{

enum class NotificationSound { Silent, Default };

// The desktop's notifications.
class Notifications
{
public:
    virtual ~Notifications() = default;

    // The answer is not waited for.
    virtual void requestPermission() = 0;
    virtual void post(const QString &title, const QString &body, NotificationSound sound) = 0;
};

}
