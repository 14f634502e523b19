#include "island/HoverWatch.h"

#include "app/Settings.h"
#include "island/IslandGeometry.h"
#include "island/Seconds.h"
#include "platform/pointer/Pointer.h"

namespace velm
{

HoverWatch::HoverWatch(RunLoop &loop, Settings &settings, Pointer &pointer)
    : m_settings(settings), m_pointer(pointer), m_opening(loop)
{
    connect(&pointer, &Pointer::moved, this, &HoverWatch::pointerMoved);
    connect(&settings, &Settings::openOnHoverChanged, this, &HoverWatch::follow);
    connect(&settings, &Settings::showPeekChanged, this, &HoverWatch::follow);
    connect(&settings, &Settings::showPeekChanged, this, &HoverWatch::leavePeekTurnedOff);
}

void HoverWatch::setState(IslandMode mode, const QRectF &trigger)
{
    const bool triggerMoved = trigger != m_trigger;
    m_mode = mode;
    m_trigger = trigger;
    follow();
    // Taken away from under the pointer: that is leaving it. Put under a pointer that rests, it waits.
    if (triggerMoved && m_tracker.isInside())
        pointerMoved(m_pointer.position());
}

void HoverWatch::cancel()
{
    m_opening.stop();
    m_tracker.forget();
}

void HoverWatch::follow()
{
    const bool isClosed = m_mode == IslandMode::Idle || m_mode == IslandMode::Peek;
    m_pointer.setFollowed(isClosed && (m_settings.openOnHover() || m_settings.showPeek()));
}

void HoverWatch::pointerMoved(QPoint position)
{
    const HoverPreferences preferences{.opensOnHover = m_settings.openOnHover(),
                                       .showsPeek = m_settings.showPeek()};
    const HoverEffect effect = m_tracker.moved(isOverTrigger(position), m_mode, preferences);
    if (effect.opening == HoverEffect::Opening::Scheduled)
        m_opening.startOnce(loopDelay(Seconds(m_settings.hoverDelay())), [this] { openIfStillInside(); });
    else if (effect.opening == HoverEffect::Opening::Cancelled)
        m_opening.stop();
    if (effect.mode)
        Q_EMIT modeWanted(*effect.mode);
}

void HoverWatch::openIfStillInside()
{
    // The last move may not have been told yet.
    if (isOverTrigger(m_pointer.position()))
        Q_EMIT openingWanted();
}

void HoverWatch::leavePeekTurnedOff()
{
    if (m_mode == IslandMode::Peek && !m_settings.showPeek())
        Q_EMIT modeWanted(IslandMode::Idle);
}

bool HoverWatch::isOverTrigger(QPoint position) const { return covers(m_trigger, position); }

}
