#include "app/UndoOffer.h"

namespace velm
{

UndoOffer::UndoOffer(RunLoop &loop) : m_over(loop) {}

void UndoOffer::offer(const QString &text, std::function<void()> undo, std::function<void()> commit)
{
    dismiss();
    m_text = text;
    m_undo = std::move(undo);
    m_commit = std::move(commit);
    m_isOffered = true;
    m_over.startOnce(offerDuration, [this] { dismiss(); });
    Q_EMIT changed();
    Q_EMIT offered();
}

void UndoOffer::undo() { end(m_undo); }

void UndoOffer::dismiss() { end(m_commit); }

// The text stays, for a strip that is still fading.
void UndoOffer::end(std::function<void()> chosen)
{
    if (!m_isOffered)
        return;
    m_over.stop();
    m_isOffered = false;
    m_undo = {};
    m_commit = {};
    Q_EMIT changed();
    if (chosen)
        chosen();
}

}
