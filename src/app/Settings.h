#pragma once

#include "app/PreferencesFile.h"
#include "app/SharedForQml.h"
#include "platform/SharedInstance.h"
#include "platform/login/LoginItem.h"

#include <QQmlEngine>

namespace velm
{

// The preferences as typed properties, each under the key of its name. A setter stores at once and takes any
// value as it is.
class Settings : public QObject, public SharedInstance<Settings>
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool openOnHover READ openOnHover WRITE setOpenOnHover NOTIFY openOnHoverChanged)
    Q_PROPERTY(double hoverDelay READ hoverDelay WRITE setHoverDelay NOTIFY hoverDelayChanged) // seconds
    Q_PROPERTY(bool showPeek READ showPeek WRITE setShowPeek NOTIFY showPeekChanged)
    Q_PROPERTY(bool playSounds READ playSounds WRITE setPlaySounds NOTIFY playSoundsChanged)
    Q_PROPERTY(bool hapticFeedback READ hapticFeedback WRITE setHapticFeedback NOTIFY hapticFeedbackChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(
        bool clipboardEnabled READ clipboardEnabled WRITE setClipboardEnabled NOTIFY clipboardEnabledChanged)
    Q_PROPERTY(int clipboardLimit READ clipboardLimit WRITE setClipboardLimit NOTIFY clipboardLimitChanged)
    Q_PROPERTY(
        bool ignoreConcealed READ ignoreConcealed WRITE setIgnoreConcealed NOTIFY ignoreConcealedChanged)
    Q_PROPERTY(QString lastTab READ lastTab WRITE setLastTab NOTIFY lastTabChanged)
    Q_PROPERTY(bool ambientIdle READ ambientIdle WRITE setAmbientIdle NOTIFY ambientIdleChanged)
    Q_PROPERTY(double ambientAfterSeconds READ ambientAfterSeconds WRITE setAmbientAfterSeconds NOTIFY
                   ambientAfterSecondsChanged)
    Q_PROPERTY(bool ambientOnlyWhenFree READ ambientOnlyWhenFree WRITE setAmbientOnlyWhenFree NOTIFY
                   ambientOnlyWhenFreeChanged)
    Q_PROPERTY(bool dropCatcher READ dropCatcher WRITE setDropCatcher NOTIFY dropCatcherChanged)
    Q_PROPERTY(QStringList disabledTabs READ disabledTabs WRITE setDisabledTabs NOTIFY disabledTabsChanged)
    Q_PROPERTY(int clipSizeLimitMegabytes READ clipSizeLimitMegabytes WRITE setClipSizeLimitMegabytes NOTIFY
                   clipSizeLimitMegabytesChanged)
    Q_PROPERTY(bool keepAfterQuit READ keepAfterQuit WRITE setKeepAfterQuit NOTIFY keepAfterQuitChanged)

public:
    Settings(PreferencesFile &preferences, LoginItem &loginItem);
    static Settings *create(QQmlEngine *, QJSEngine *) { return sharedForQml<Settings>(); }

    // A section that is not enabled vanishes from the rail. `tab` is a section's raw value.
    Q_INVOKABLE void setEnabled(const QString &tab, bool enabled);

    bool openOnHover() const;
    void setOpenOnHover(bool on);
    double hoverDelay() const;
    void setHoverDelay(double seconds);
    bool showPeek() const;
    void setShowPeek(bool on);
    bool playSounds() const;
    void setPlaySounds(bool on);
    bool hapticFeedback() const;
    void setHapticFeedback(bool on);
    bool launchAtLogin() const;
    void setLaunchAtLogin(bool on);
    bool clipboardEnabled() const;
    void setClipboardEnabled(bool on);
    int clipboardLimit() const;
    void setClipboardLimit(int items);
    bool ignoreConcealed() const;
    void setIgnoreConcealed(bool on);
    QString lastTab() const; // empty when none is stored
    void setLastTab(const QString &tab);
    bool ambientIdle() const;
    void setAmbientIdle(bool on);
    double ambientAfterSeconds() const;
    void setAmbientAfterSeconds(double seconds);
    bool ambientOnlyWhenFree() const;
    void setAmbientOnlyWhenFree(bool on);
    bool dropCatcher() const;
    void setDropCatcher(bool on);
    QStringList disabledTabs() const; // each once; unknown ones too
    void setDisabledTabs(const QStringList &tabs);
    int clipSizeLimitMegabytes() const; // a longer clip is not kept
    void setClipSizeLimitMegabytes(int megabytes);
    bool keepAfterQuit() const; // offer the last clip on when its program has quit
    void setKeepAfterQuit(bool on);

Q_SIGNALS:
    void openOnHoverChanged();
    void hoverDelayChanged();
    void showPeekChanged();
    void playSoundsChanged();
    void hapticFeedbackChanged();
    void launchAtLoginChanged();
    void clipboardEnabledChanged();
    void clipboardLimitChanged();
    void ignoreConcealedChanged();
    void lastTabChanged();
    void ambientIdleChanged();
    void ambientAfterSecondsChanged();
    void ambientOnlyWhenFreeChanged();
    void dropCatcherChanged();
    void disabledTabsChanged();
    void clipSizeLimitMegabytesChanged();
    void keepAfterQuitChanged();

private:
    void announce(const QString &key);
    void applyLaunchAtLogin();

    PreferencesFile &m_preferences;
    LoginItem &m_loginItem;
};

}
