#pragma once

#include "platform/drag/DragPasteboard.h"

namespace velm
{

// Drags that the test begins and ends.
class FakeDragPasteboard final : public DragPasteboard
{
public:
    void watch() override { isWatched = true; }
    bool seesOtherPrograms() const override { return sees; }

    void begin(const QStringList &types)
    {
        if (isWatched)
            Q_EMIT began(types);
    }
    void end()
    {
        if (isWatched)
            Q_EMIT ended();
    }

    bool isWatched = false;
    bool sees = true;
};

}
