#pragma once

#include "platform/front/FrontProgram.h"
#include "platform/runloop/LoopTimer.h"
#include "platform/typing/PasteKeys.h"

namespace velm
{

// Pastes into the program that the person works in, by pressing its paste keys.
class Paster
{
public:
    Paster(RunLoop &loop, PasteKeys &keys, FrontProgram &front);

    // A moment later, so that the panel can give the keyboard back; longer when that takes longer. Where
    // programs may not press keys, the person is asked to allow it, and nothing is pasted this time.
    void pasteIntoFrontmostApp();

private:
    void pressWhenReady();

    PasteKeys &m_keys;
    FrontProgram &m_front;
    LoopTimer m_later;
    int m_patience = 0;
};

}
