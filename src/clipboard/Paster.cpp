#include "clipboard/Paster.h"

#include "clipboard/OwnProgram.h"

namespace velm
{

namespace
{

constexpr std::chrono::milliseconds pasteDelay{120}; // the panel closes and gives the keyboard back
constexpr std::chrono::milliseconds retryDelay{40};
constexpr int mostRetries = 20; // then the window manager has other plans

}

Paster::Paster(RunLoop &loop, PasteKeys &keys, FrontProgram &front)
    : m_keys(keys), m_front(front), m_later(loop)
{}

void Paster::pasteIntoFrontmostApp()
{
    if (!m_keys.isTrusted()) {
        m_keys.askForTrust();
        return;
    }
    m_patience = mostRetries;
    m_later.startOnce(pasteDelay, [this] { pressWhenReady(); });
}

void Paster::pressWhenReady()
{
    const auto program = m_front.current();
    if (!program || !isOwn(*program)) {
        m_keys.press(program && program->isTerminal ? PasteChord::ControlShiftV : PasteChord::ControlV);
        return;
    }
    if (m_patience-- > 0)
        m_later.startOnce(retryDelay, [this] { pressWhenReady(); });
}

}
