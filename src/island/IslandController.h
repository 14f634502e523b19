#pragma once

#include "app/SettingsPage.h"
#include "app/SharedForQml.h"
#include "island/HoverWatch.h"
#include "island/IslandGeometry.h"
#include "island/IslandOutline.h"
#include "island/SectionChoice.h"
#include "platform/SharedInstance.h"

#include <QObject>

namespace velm
{

class Feedback;
class Overlay;
class Pointer;
class Settings;

// Decides what the island does: rests, peeks when the pointer comes, catches drags, opens on a section,
// shows live activities. Keeps the window's clickable area in step. Main thread only.
class IslandController : public QObject, public SharedInstance<IslandController>
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(velm::IslandModes::IslandMode mode READ mode NOTIFY modeChanged)
    Q_PROPERTY(velm::Sections::VelmTab tab READ tab NOTIFY tabChanged)
    Q_PROPERTY(QList<int> visibleTabs READ visibleTabValues NOTIFY visibleTabsChanged) // VelmTab values
    Q_PROPERTY(velm::LiveActivity activity READ shownActivity NOTIFY activityChanged)
    Q_PROPERTY(bool hasActivity READ hasActivity NOTIFY activityChanged)
    Q_PROPERTY(double islandWidth READ islandWidth NOTIFY islandSizeChanged)
    Q_PROPERTY(double islandHeight READ islandHeight NOTIFY islandSizeChanged)
    Q_PROPERTY(double notchWidth READ notchWidth NOTIFY metricsChanged)
    Q_PROPERTY(double notchHeight READ notchHeight NOTIFY metricsChanged)
    Q_PROPERTY(bool isHardware READ isHardware NOTIFY metricsChanged)
    Q_PROPERTY(QRectF hitRect READ hitRect NOTIFY islandSizeChanged) // origin at the bottom left
    Q_PROPERTY(bool showSettings READ showSettings NOTIFY showSettingsChanged)
    Q_PROPERTY(velm::SettingsPages::SettingsPage settingsPage READ settingsPage WRITE setSettingsPage NOTIFY
                   settingsPageChanged)
    Q_PROPERTY(bool hasFocus READ hasFocus NOTIFY hasFocusChanged)
    Q_PROPERTY(bool ambient READ isAmbient NOTIFY ambientChanged)

public:
    // Whether the panel takes the keyboard as it opens.
    enum class Focus { Leave, Take };

    IslandController(RunLoop &loop, Settings &settings, Feedback &feedback, Screens &screens,
                     Overlay &overlay, Pointer &pointer);
    static IslandController *create(QQmlEngine *, QJSEngine *) { return sharedForQml<IslandController>(); }

    // Shows the island and follows pointer and screens from now on. Call it once the overlay has its window.
    void start();

    void open(std::optional<VelmTab> tab, Focus focus);
    Q_INVOKABLE void open() { open(std::nullopt, Focus::Take); }
    Q_INVOKABLE void open(velm::Sections::VelmTab tab) { open(tab, Focus::Take); }
    void openSettings(SettingsPage page, Focus focus);
    Q_INVOKABLE void openSettings(velm::SettingsPages::SettingsPage page) { openSettings(page, Focus::Take); }

    // Back from the settings to the section below; stays while no section is left to show.
    Q_INVOKABLE void closeSettings();
    Q_INVOKABLE void close();
    Q_INVOKABLE void select(velm::Sections::VelmTab tab);

    // Only while closed, and while the preference allows a peek.
    void peek(bool on);
    Q_INVOKABLE void beginCatchingDrop();
    Q_INVOKABLE void endCatchingDrop();
    void present(const LiveActivity &activity);
    Q_INVOKABLE void dismissActivity();
    Q_INVOKABLE void dismissActivity(const QString &id); // only when that one is shown

    // The Escape key: closes the open panel. True when the key was used.
    Q_INVOKABLE bool escape();

    // A press in the open panel, where the display system tells of presses only by the window itself.
    Q_INVOKABLE void pressedInside();

    // What the island's body covers now; at most once a frame.
    Q_INVOKABLE void setPaintedOutline(double width, double height, double corner, double shoulder);
    void setAmbient(bool isAmbient);
    void setSettingsPage(SettingsPage page);

    IslandMode mode() const { return m_geometry.mode; }
    VelmTab tab() const { return m_sections.current(); }
    QList<VelmTab> visibleTabs() const { return m_sections.visible(); }
    const std::optional<LiveActivity> &activity() const { return m_geometry.activity; }
    const IslandGeometry &geometry() const { return m_geometry; }
    const NotchMetrics &metrics() const { return m_geometry.metrics; }
    bool showSettings() const { return m_showSettings; }
    SettingsPage settingsPage() const { return m_settingsPage; }
    bool hasFocus() const { return m_hasFocus; }
    bool isAmbient() const { return m_isAmbient; }
    QSizeF islandSize() const { return m_geometry.islandSize(); }
    QRectF hitRect() const { return m_geometry.hitRect(); }
    bool hasActivity() const { return activity().has_value(); }
    bool isHardware() const { return metrics().isHardware; }

Q_SIGNALS:
    void modeChanged();
    void tabChanged();
    void visibleTabsChanged();
    void activityChanged();
    void islandSizeChanged();
    void metricsChanged();
    void showSettingsChanged();
    void settingsPageChanged();
    void hasFocusChanged();
    void ambientChanged();

private:
    void setMode(IslandMode mode);
    void setShowSettings(bool show);
    void setHasFocus(bool hasFocus);
    void takeKeyboard();
    void pressedAt(QPoint position);
    void lostKeyboard();
    void measure();
    void bringToFront();
    void showSectionsIfNoneLeft();
    void updateHitRect();
    void paintShape();

    QList<int> visibleTabValues() const;
    LiveActivity shownActivity() const { return activity().value_or(LiveActivity{}); }
    double islandWidth() const { return islandSize().width(); }
    double islandHeight() const { return islandSize().height(); }
    double notchWidth() const { return metrics().notchSize.width(); }
    double notchHeight() const { return metrics().notchSize.height(); }

    Settings &m_settings;
    Feedback &m_feedback;
    Screens &m_screens;
    Overlay &m_overlay;
    Pointer &m_pointer;
    IslandGeometry m_geometry;
    SettingsPage m_settingsPage = SettingsPage::Sections;
    bool m_showSettings = false;
    bool m_hasFocus = false;
    bool m_isAmbient = false;
    bool m_hasStarted = false;
    IslandOutline m_outline;
    SectionChoice m_sections;
    HoverWatch m_hover;
    LoopTimer m_activityEnd; // of one that is not sticky
};

}
