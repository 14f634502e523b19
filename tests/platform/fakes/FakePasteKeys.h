#pragma once

#include "platform/typing/PasteKeys.h"

#include <QList>

namespace velm
{

// Remembers the chords instead of pressing them.
class FakePasteKeys final : public PasteKeys
{
public:
    bool isTrusted() const override { return trusted; }
    void askForTrust() override { ++timesAsked; }
    void press(PasteChord chord) override { pressed.append(chord); }

    bool trusted = true;
    int timesAsked = 0;
    QList<PasteChord> pressed;
};

}
