#pragma once

#include "platform/runloop/LoopTimer.h"
#include "platform/sound/SoundPlayer.h"

#include <QObject>

namespace velm
{

// Plays by libcanberra, on a queue of its own: reaching the sound server may take long. The line to the
// server is open only while sounds are played and for a few seconds after: it would wake the program.
class CanberraSound final : public QObject, public SoundPlayer
{
public:
    explicit CanberraSound(RunLoop &loop);
    ~CanberraSound() override;

    void play(Sound sound) override;

private:
    class Line;

    void closeLine();

    LoopTimer m_idle;
    bool m_isOpen = false;
    // Shared with the queue's work: a sound server that hangs must not keep the program from ending.
    std::shared_ptr<Line> m_line;
    std::unique_ptr<SerialQueue> m_queue;
};

}
