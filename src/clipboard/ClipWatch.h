#pragma once

#include "clipboard/ClipIntake.h"
#include "clipboard/ClipReadPlan.h"
#include "platform/front/FrontProgram.h"
#include "platform/runloop/RunLoop.h"

#include <QObject>

#include <atomic>
#include <map>

namespace velm
{

class Settings;

// A copy that another program has made, taken in.
struct SeenClip {
    quint64 change = 0;
    TakenClip taken;
    bool isConcealed = false;     // only where such copies are kept
    bool followsOwnWrite = false; // until this copy the pasteboard held what we had put there
};

// Sees every copy that other programs make and tells of it as a clip, in their order. What is copied while
// nothing is to be captured is skipped for good, and so is what the person copies within this program.
class ClipWatch : public QObject
{
    Q_OBJECT

public:
    ClipWatch(RunLoop &loop, Settings &settings, Pasteboard &pasteboard, FrontProgram &front,
              ClipFolder folder);
    ~ClipWatch() override;

    void start();
    void setPaused(bool isPaused);

    // The pasteboard holds from now on what we have put there.
    void noteOwnWrite();

    // Whether the copy's program has gone and taken it along, and nothing was copied since.
    bool isAbandoned(quint64 change) const { return m_latestChange == change && m_isAbandoned; }

Q_SIGNALS:
    void seen(const velm::SeenClip &clip);
    void tooLarge();
    void abandoned(quint64 change); // of the last copy

private:
    // What is known of a copy before its content is there.
    struct Arrival {
        ClipSource source;
        bool followsOwnWrite = false;
    };

    void noteChange(quint64 change);
    void noteRead(const PasteboardContent &content);
    void takeInLater(const PasteboardContent &content, const Arrival &arrival);
    void noteAbandoned();
    void followSettings();
    bool isCapturing() const;

    RunLoop &m_loop;
    Settings &m_settings;
    Pasteboard &m_pasteboard;
    FrontProgram &m_front;
    ClipFolder m_folder;
    bool m_hasStarted = false;
    bool m_isPaused = false;
    bool m_isHoldingOwn = false;
    bool m_isAbandoned = false;
    quint64 m_latestChange = 0;
    std::map<quint64, Arrival> m_arrivals;
    std::shared_ptr<std::atomic<ClipReading>> m_reading; // the reading thread asks it
    std::unique_ptr<SerialQueue> m_queue;
};

}
