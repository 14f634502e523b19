#pragma once

#include "platform/pointer/Pointer.h"

namespace velm
{

// A pointer that the test moves.
class FakePointer final : public Pointer
{
public:
    QPoint position() const override { return m_position; }
    void setFollowed(bool followed) override { isFollowed = followed; }
    bool isGlobal() const override { return global; }

    void moveTo(QPoint position)
    {
        m_position = position;
        if (isFollowed)
            Q_EMIT moved(position);
    }
    void press(QPoint position)
    {
        m_position = position;
        Q_EMIT pressed(position);
    }
    void release(QPoint position)
    {
        m_position = position;
        Q_EMIT released(position);
    }

    bool isFollowed = false;
    bool global = true;

private:
    QPoint m_position;
};

}
