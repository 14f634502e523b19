#include "app/Settings.h"

#include <QDebug>
#include <QJsonArray>
#include <QMetaProperty>

#include <algorithm>
#include <limits>

namespace velm
{

namespace
{

QJsonObject defaults()
{
    return {
        {"openOnHover", true},          {"hoverDelay", 0.25},     {"showPeek", true},
        {"playSounds", true},           {"hapticFeedback", true}, {"launchAtLogin", false},
        {"clipboardEnabled", true},     {"clipboardLimit", 200},  {"ignoreConcealed", true},
        {"lastTab", "files"},           {"ambientIdle", true},    {"ambientAfterSeconds", 60.0},
        {"ambientOnlyWhenFree", true},  {"dropCatcher", true},    {"disabledTabs", QJsonArray()},
        {"clipSizeLimitMegabytes", 64}, {"keepAfterQuit", true},
    };
}

// A number that an int cannot hold reads as the nearest that it can.
int toInt(qint64 value)
{
    return static_cast<int>(
        std::clamp<qint64>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

const auto launchAtLoginKey = QStringLiteral("launchAtLogin");

}

Settings::Settings(PreferencesFile &preferences, LoginItem &loginItem)
    : m_preferences(preferences), m_loginItem(loginItem)
{
    preferences.registerDefaults(defaults());
    connect(&preferences, &PreferencesFile::changed, this, &Settings::announce);
}

void Settings::setEnabled(const QString &tab, bool enabled)
{
    QStringList tabs = disabledTabs();
    if (enabled)
        tabs.removeAll(tab);
    else
        tabs.append(tab);
    setDisabledTabs(tabs);
}

bool Settings::openOnHover() const { return m_preferences.boolean(QStringLiteral("openOnHover")); }
void Settings::setOpenOnHover(bool on) { m_preferences.set(QStringLiteral("openOnHover"), on); }

bool Settings::showPeek() const { return m_preferences.boolean(QStringLiteral("showPeek")); }
void Settings::setShowPeek(bool on) { m_preferences.set(QStringLiteral("showPeek"), on); }

bool Settings::playSounds() const { return m_preferences.boolean(QStringLiteral("playSounds")); }
void Settings::setPlaySounds(bool on) { m_preferences.set(QStringLiteral("playSounds"), on); }

bool Settings::hapticFeedback() const { return m_preferences.boolean(QStringLiteral("hapticFeedback")); }
void Settings::setHapticFeedback(bool on) { m_preferences.set(QStringLiteral("hapticFeedback"), on); }

bool Settings::clipboardEnabled() const { return m_preferences.boolean(QStringLiteral("clipboardEnabled")); }
void Settings::setClipboardEnabled(bool on) { m_preferences.set(QStringLiteral("clipboardEnabled"), on); }

bool Settings::ignoreConcealed() const { return m_preferences.boolean(QStringLiteral("ignoreConcealed")); }
void Settings::setIgnoreConcealed(bool on) { m_preferences.set(QStringLiteral("ignoreConcealed"), on); }

bool Settings::ambientIdle() const { return m_preferences.boolean(QStringLiteral("ambientIdle")); }
void Settings::setAmbientIdle(bool on) { m_preferences.set(QStringLiteral("ambientIdle"), on); }

bool Settings::ambientOnlyWhenFree() const
{
    return m_preferences.boolean(QStringLiteral("ambientOnlyWhenFree"));
}
void Settings::setAmbientOnlyWhenFree(bool on)
{
    m_preferences.set(QStringLiteral("ambientOnlyWhenFree"), on);
}

bool Settings::dropCatcher() const { return m_preferences.boolean(QStringLiteral("dropCatcher")); }
void Settings::setDropCatcher(bool on) { m_preferences.set(QStringLiteral("dropCatcher"), on); }

bool Settings::keepAfterQuit() const { return m_preferences.boolean(QStringLiteral("keepAfterQuit")); }
void Settings::setKeepAfterQuit(bool on) { m_preferences.set(QStringLiteral("keepAfterQuit"), on); }

bool Settings::launchAtLogin() const { return m_preferences.boolean(launchAtLoginKey); }
void Settings::setLaunchAtLogin(bool on)
{
    const bool isAnnounced = on != launchAtLogin();
    m_preferences.set(launchAtLoginKey, on);
    if (!isAnnounced)
        applyLaunchAtLogin(); // the login item may have been removed behind our back
}

double Settings::hoverDelay() const { return m_preferences.real(QStringLiteral("hoverDelay")); }
void Settings::setHoverDelay(double seconds) { m_preferences.set(QStringLiteral("hoverDelay"), seconds); }

double Settings::ambientAfterSeconds() const
{
    return m_preferences.real(QStringLiteral("ambientAfterSeconds"));
}
void Settings::setAmbientAfterSeconds(double seconds)
{
    m_preferences.set(QStringLiteral("ambientAfterSeconds"), seconds);
}

int Settings::clipboardLimit() const
{
    return toInt(m_preferences.integer(QStringLiteral("clipboardLimit")));
}
void Settings::setClipboardLimit(int items) { m_preferences.set(QStringLiteral("clipboardLimit"), items); }

int Settings::clipSizeLimitMegabytes() const
{
    return toInt(m_preferences.integer(QStringLiteral("clipSizeLimitMegabytes")));
}
void Settings::setClipSizeLimitMegabytes(int megabytes)
{
    m_preferences.set(QStringLiteral("clipSizeLimitMegabytes"), megabytes);
}

QString Settings::lastTab() const { return m_preferences.string(QStringLiteral("lastTab")); }
void Settings::setLastTab(const QString &tab) { m_preferences.set(QStringLiteral("lastTab"), tab); }

QStringList Settings::disabledTabs() const
{
    QStringList tabs = m_preferences.stringList(QStringLiteral("disabledTabs"));
    tabs.removeDuplicates();
    return tabs;
}
void Settings::setDisabledTabs(const QStringList &tabs)
{
    QStringList set = tabs;
    set.removeDuplicates();
    m_preferences.set(QStringLiteral("disabledTabs"), QJsonArray::fromStringList(set));
}

// Each property has the name of its key, so its signal is found by the key.
void Settings::announce(const QString &key)
{
    const int index = staticMetaObject.indexOfProperty(key.toLatin1());
    if (index < staticMetaObject.propertyOffset())
        return;
    staticMetaObject.property(index).notifySignal().invoke(this);
    if (key == launchAtLoginKey)
        applyLaunchAtLogin();
}

void Settings::applyLaunchAtLogin()
{
    const Outcome outcome = launchAtLogin() ? m_loginItem.add() : m_loginItem.remove();
    if (!outcome)
        qWarning().noquote() << QLatin1String("[Velm] login item:") << outcome.sentence();
}

}
