#include "app/Feedback.h"

namespace velm
{

Feedback::Feedback(Settings &settings, SoundPlayer &sounds, Haptics &haptics, Notifications &notifications)
    : m_settings(settings), m_sounds(sounds), m_haptics(haptics), m_notifications(notifications)
{}

void Feedback::pop()
{
    play(Sound::Pop);
    perform(HapticPattern::Alignment);
}

void Feedback::success()
{
    play(Sound::Glass);
    perform(HapticPattern::LevelChange);
}

void Feedback::tick() { play(Sound::Tink); }

void Feedback::remove() { play(Sound::Bottle); }

void Feedback::tap() { perform(HapticPattern::Alignment); }

void Feedback::notify(const QString &title, const QString &body, NotificationSound sound)
{
    m_notifications.post(title, body, sound);
}

void Feedback::requestNotificationAuth() { m_notifications.requestPermission(); }

void Feedback::play(Sound sound)
{
    if (m_settings.playSounds())
        m_sounds.play(sound);
}

void Feedback::perform(HapticPattern pattern)
{
    if (m_settings.hapticFeedback() && m_haptics.isAvailable())
        m_haptics.perform(pattern);
}

}
