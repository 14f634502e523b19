#pragma once

#include "app/Settings.h"
#include "platform/SharedInstance.h"
#include "platform/haptics/Haptics.h"
#include "platform/notifications/Notifications.h"
#include "platform/sound/SoundPlayer.h"

namespace velm
{

// What the person hears and feels of an action, as far as the preferences allow it, and the desktop's
// notifications.
class Feedback : public SharedInstance<Feedback>
{
public:
    Feedback(Settings &settings, SoundPlayer &sounds, Haptics &haptics, Notifications &notifications);

    void pop();     // the island opens
    void success(); // confirmations
    void tick();    // a change of section, small actions
    void remove();  // removals
    void tap();     // felt only

    void notify(const QString &title, const QString &body, NotificationSound sound);
    void requestNotificationAuth();

private:
    void play(Sound sound);
    void perform(HapticPattern pattern);

    Settings &m_settings;
    SoundPlayer &m_sounds;
    Haptics &m_haptics;
    Notifications &m_notifications;
};

}
