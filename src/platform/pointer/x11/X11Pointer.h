#pragma once

#include "platform/pointer/Pointer.h"
#include "platform/runloop/LoopTimer.h"

#include <xcb/xcb.h>

namespace velm
{

class X11Connection;

// The pointer by the server's raw device events, which come whatever window it is over and during grabs.
// Raw motion is asked for only while the pointer rests: once it moves, the position is sampled until two
// samples agree, so that a fast mouse wakes the program no more often than a slow one.
class X11Pointer final : public Pointer
{
public:
    X11Pointer(X11Connection &connection, RunLoop &loop);
    ~X11Pointer() override;

    QPoint position() const override;
    void setFollowed(bool followed) override;
    bool isGlobal() const override { return m_rawEvents != 0; }

private:
    enum class Motion { Resting, Moving };

    void handle(const xcb_generic_event_t *event);
    void handleButton(quint32 button, quint16 kind);
    void beginMotion();
    void sample();
    void rest();
    void tell(QPoint position);
    void select();

    X11Connection &m_connection;
    RunLoop &m_loop;
    LoopTimer m_sampling;
    quint8 m_rawEvents = 0; // the extension's number in generic events; 0 where there is none
    bool m_isFollowed = false;
    Motion m_motion = Motion::Resting;
    mutable QPoint m_position;
    QPoint m_told;
    RunLoop::Instant m_lastTold;
};

}
