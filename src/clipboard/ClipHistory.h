#pragma once

#include "clipboard/ClipItem.h"

#include <QHash>
#include <QList>

#include <functional>

namespace velm
{

// A clip that was taken out of the history, with what is needed to put it back.
struct RemovedClip {
    ClipItem item;
    qsizetype followers = 0; // older clips that stood behind it, other removed ones included
};

// The clips, the newest first, and the rules by which they come and go.
class ClipHistory
{
public:
    static constexpr int smallestLimit = 20;

    explicit ClipHistory(QList<ClipItem> items = {});

    const QList<ClipItem> &items() const { return m_items; }
    const ClipItem *find(const QString &id) const;
    const ClipItem *findContent(const QString &fingerprint) const;
    int pinnedCount() const { return static_cast<int>(m_items.size()) - m_unpinnedCount; }

    // The clip with the same content goes to the top, as copied now; false when there is none.
    bool raise(const QString &fingerprint, const QDateTime &now);
    void insert(const ClipItem &item);

    // Takes out the oldest unpinned clips beyond the limit, which is never below the smallest one. Gives them
    // back.
    QList<ClipItem> trim(int limit);

    // Each says whether there is such a clip.
    bool countUse(const QString &id);
    bool togglePin(const QString &id, const QDateTime &now);

    QList<RemovedClip> remove(const std::function<bool(const ClipItem &)> &chosen);

    // Puts clips back where they stood. One whose content has been copied again meanwhile stays away and
    // hands its pin on; those are given back.
    QList<ClipItem> restore(const QList<RemovedClip> &removed);

private:
    qsizetype indexOf(const QString &id) const;
    qsizetype indexOfContent(const QString &fingerprint) const;
    void noteRemoved(const ClipItem &item);
    void noteInserted(const ClipItem &item);

    QList<ClipItem> m_items;
    QHash<QString, int> m_contents; // how many clips have a fingerprint: nearly every copy has a new one
    int m_unpinnedCount = 0;
};

}
