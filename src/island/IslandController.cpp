#include "island/IslandController.h"

#include "app/Feedback.h"
#include "app/Settings.h"
#include "platform/overlay/Overlay.h"
#include "platform/pointer/Pointer.h"

namespace velm
{

IslandController::IslandController(RunLoop &loop, Settings &settings, Feedback &feedback, Screens &screens,
                                   Overlay &overlay, Pointer &pointer)
    : m_settings(settings)
    , m_feedback(feedback)
    , m_screens(screens)
    , m_overlay(overlay)
    , m_pointer(pointer)
    , m_sections(settings)
    , m_hover(loop, settings, pointer)
    , m_activityEnd(loop)
{
    m_geometry.metrics = NotchMetrics::measure(NotchMetrics::preferredScreen(screens.all()));
    connect(&m_sections, &SectionChoice::currentChanged, this, &IslandController::tabChanged);
    connect(&m_sections, &SectionChoice::visibleChanged, this, &IslandController::visibleTabsChanged);
    connect(&m_sections, &SectionChoice::visibleChanged, this, &IslandController::showSectionsIfNoneLeft);
}

void IslandController::start()
{
    m_hasStarted = true;
    connect(&m_hover, &HoverWatch::modeWanted, this, &IslandController::setMode);
    connect(&m_hover, &HoverWatch::openingWanted, this, [this] { open(std::nullopt, Focus::Leave); });
    connect(&m_pointer, &Pointer::pressed, this, &IslandController::pressedAt);
    connect(&m_screens, &Screens::changed, this, &IslandController::measure);
    connect(&m_overlay, &Overlay::keyboardLost, this, &IslandController::lostKeyboard);
    connect(&m_overlay, &Overlay::blendingChanged, this, &IslandController::paintShape);
    measure();
}

void IslandController::open(std::optional<VelmTab> tab, Focus focus)
{
    m_hover.cancel();
    if (tab)
        select(*tab);
    const bool wasExpanded = mode() == IslandMode::Expanded;
    if (!wasExpanded) {
        setMode(IslandMode::Expanded);
        bringToFront();
        showSectionsIfNoneLeft();
    }
    if (focus == Focus::Take)
        takeKeyboard();
    if (!wasExpanded)
        m_feedback.pop();
}

void IslandController::openSettings(SettingsPage page, Focus focus)
{
    open(std::nullopt, focus);
    setSettingsPage(page);
    setShowSettings(true);
}

void IslandController::closeSettings()
{
    if (!visibleTabs().isEmpty())
        setShowSettings(false);
}

void IslandController::close()
{
    m_hover.cancel();
    if (mode() == IslandMode::Idle)
        return;
    setMode(IslandMode::Idle);
    setShowSettings(false);
    if (!m_hasFocus)
        return;
    m_overlay.returnKeyboard();
    setHasFocus(false);
}

void IslandController::select(VelmTab tab)
{
    if (tab == m_sections.current())
        return;
    m_sections.choose(tab);
    m_feedback.tick();
}

void IslandController::peek(bool on)
{
    if (m_geometry.ignoresMouse() && m_settings.showPeek())
        setMode(on ? IslandMode::Peek : IslandMode::Idle);
}

void IslandController::beginCatchingDrop()
{
    if (!m_geometry.ignoresMouse())
        return;
    m_hover.cancel();
    setMode(IslandMode::Catching);
    bringToFront();
}

void IslandController::endCatchingDrop()
{
    if (mode() == IslandMode::Catching)
        setMode(IslandMode::Idle);
}

void IslandController::present(const LiveActivity &activity)
{
    m_activityEnd.stop();
    m_geometry.activity = activity;
    Q_EMIT activityChanged();
    updateHitRect();
    if (!activity.sticky)
        m_activityEnd.startOnce(loopDelay(activity.duration), [this] { dismissActivity(); });
}

void IslandController::dismissActivity()
{
    m_activityEnd.stop();
    if (!hasActivity())
        return;
    m_geometry.activity.reset();
    Q_EMIT activityChanged();
    updateHitRect();
}

void IslandController::dismissActivity(const QString &id)
{
    if (hasActivity() && activity()->id == id)
        dismissActivity();
}

bool IslandController::escape()
{
    if (mode() != IslandMode::Expanded)
        return false;
    close();
    return true;
}

void IslandController::pressedInside()
{
    if (mode() == IslandMode::Expanded && !m_hasFocus)
        takeKeyboard();
}

void IslandController::setPaintedOutline(double width, double height, double corner, double shoulder)
{
    m_outline = {.body = QSizeF(width, height), .corner = corner, .shoulder = shoulder};
    paintShape();
}

void IslandController::setAmbient(bool isAmbient)
{
    if (isAmbient == m_isAmbient)
        return;
    m_isAmbient = isAmbient;
    Q_EMIT ambientChanged();
}

void IslandController::setSettingsPage(SettingsPage page)
{
    if (page == m_settingsPage)
        return;
    m_settingsPage = page;
    Q_EMIT settingsPageChanged();
}

QList<int> IslandController::visibleTabValues() const
{
    QList<int> values;
    for (const VelmTab tab : visibleTabs())
        values.append(static_cast<int>(tab));
    return values;
}

void IslandController::setMode(IslandMode mode)
{
    if (mode == m_geometry.mode)
        return;
    m_geometry.mode = mode;
    Q_EMIT modeChanged();
    updateHitRect();
}

void IslandController::setShowSettings(bool show)
{
    if (show == m_showSettings)
        return;
    m_showSettings = show;
    Q_EMIT showSettingsChanged();
}

void IslandController::setHasFocus(bool hasFocus)
{
    if (hasFocus == m_hasFocus)
        return;
    m_hasFocus = hasFocus;
    Q_EMIT hasFocusChanged();
}

void IslandController::takeKeyboard()
{
    m_overlay.takeKeyboard();
    setHasFocus(true);
}

void IslandController::lostKeyboard()
{
    setHasFocus(false);
    // Where presses elsewhere are never told, this is the only sign of one.
    if (!m_pointer.isGlobal())
        close();
}

void IslandController::pressedAt(QPoint position)
{
    if (mode() != IslandMode::Expanded)
        return;
    if (covers(m_geometry.pressArea(), position))
        pressedInside();
    else
        close();
}

void IslandController::measure()
{
    m_geometry.metrics = NotchMetrics::measure(NotchMetrics::preferredScreen(m_screens.all()));
    Q_EMIT metricsChanged();
    bringToFront();
    updateHitRect();
}

void IslandController::bringToFront()
{
    if (m_hasStarted && !metrics().screen.geometry.isEmpty())
        m_overlay.present(metrics().screen);
}

void IslandController::showSectionsIfNoneLeft()
{
    if (mode() != IslandMode::Expanded || !visibleTabs().isEmpty())
        return;
    setSettingsPage(SettingsPage::Sections);
    setShowSettings(true);
}

void IslandController::updateHitRect()
{
    Q_EMIT islandSizeChanged();
    if (!m_hasStarted)
        return;
    m_overlay.setInputRegion(m_geometry.inputRegion());
    m_hover.setState(mode(), m_geometry.hoverTrigger());
}

void IslandController::paintShape()
{
    if (!m_overlay.isBlending())
        m_overlay.setPaintedShape(m_outline.region());
}

}
