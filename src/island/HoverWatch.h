#pragma once

#include "island/HoverTracker.h"
#include "platform/runloop/LoopTimer.h"

#include <QObject>
#include <QRectF>

namespace velm
{

class Pointer;
class Settings;

// Watches the pointer come to the notch of the closed island, and leave it. The pointer is followed only
// while a preference makes it matter.
class HoverWatch : public QObject
{
    Q_OBJECT

public:
    HoverWatch(RunLoop &loop, Settings &settings, Pointer &pointer);

    // The island's state after every change of it; the trigger in the desktop's points.
    void setState(IslandMode mode, const QRectF &trigger);

    // No opening is due any more, and the next move over the notch counts as an entry.
    void cancel();

Q_SIGNALS:
    void modeWanted(velm::IslandMode mode);
    void openingWanted();

private:
    void follow();
    void pointerMoved(QPoint position);
    void openIfStillInside();
    void leavePeekTurnedOff();
    bool isOverTrigger(QPoint position) const;

    Settings &m_settings;
    Pointer &m_pointer;
    IslandMode m_mode = IslandMode::Expanded; // nothing is followed before the first state
    QRectF m_trigger;
    HoverTracker m_tracker;
    LoopTimer m_opening;
};

}
