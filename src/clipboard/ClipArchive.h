#pragma once

#include "clipboard/ClipHistory.h"

#include <QIODevice>

#include <memory>
#include <mutex>

namespace velm
{

// The history, where the store's thread can come for it when it writes. So a burst of changes copies nothing:
// the items are taken once for each writing, not with each change.
class ClipArchive
{
public:
    explicit ClipArchive(QList<ClipItem> items) : m_history(std::move(items)) {}

    // Main thread only: the one that changes it.
    const ClipHistory &history() const { return m_history; }

    template <typename Change>
    auto change(Change change)
    {
        const std::lock_guard lock(m_mutex);
        return change(m_history);
    }

    // From any thread.
    QList<ClipItem> items() const
    {
        const std::lock_guard lock(m_mutex);
        return m_history.items();
    }

private:
    mutable std::mutex m_mutex;
    ClipHistory m_history;
};

// What the store is given to save: the items as they are when it comes to write them.
struct ClipArchiveView {
    std::shared_ptr<const ClipArchive> archive; // the store may write after the manager has gone
};

bool writeRecord(QIODevice &device, const ClipArchiveView &view);

}
