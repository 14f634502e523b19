#pragma once

#include "platform/typing/PasteKeys.h"

namespace velm
{

// A display system that lets no program press keys.
class NullPasteKeys final : public PasteKeys
{
public:
    bool isTrusted() const override { return false; }
    void askForTrust() override {}
    void press(PasteChord) override {}
};

}
