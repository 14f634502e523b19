#include "clipboard/ClipHistory.h"

#include <algorithm>
#include <limits>

namespace velm
{

namespace
{

void countUp(int &count)
{
    if (count < std::numeric_limits<int>::max())
        ++count;
}

}

ClipHistory::ClipHistory(QList<ClipItem> items) : m_items(std::move(items))
{
    for (const ClipItem &item : std::as_const(m_items))
        noteInserted(item);
}

const ClipItem *ClipHistory::find(const QString &id) const
{
    const qsizetype index = indexOf(id);
    return index < 0 ? nullptr : &m_items.at(index);
}

const ClipItem *ClipHistory::findContent(const QString &fingerprint) const
{
    const qsizetype index = indexOfContent(fingerprint);
    return index < 0 ? nullptr : &m_items.at(index);
}

bool ClipHistory::raise(const QString &fingerprint, const QDateTime &now)
{
    const qsizetype index = indexOfContent(fingerprint);
    if (index < 0)
        return false;
    std::rotate(m_items.begin(), m_items.begin() + index, m_items.begin() + index + 1);
    m_items.first().date = now;
    countUp(m_items.first().useCount);
    return true;
}

void ClipHistory::insert(const ClipItem &item)
{
    m_items.prepend(item);
    noteInserted(item);
}

QList<ClipItem> ClipHistory::trim(int limit)
{
    QList<ClipItem> surplus;
    for (qsizetype i = m_items.size() - 1; m_unpinnedCount > std::max(limit, smallestLimit); --i) {
        if (m_items.at(i).pinned)
            continue;
        surplus.append(m_items.takeAt(i));
        noteRemoved(surplus.last());
    }
    return surplus;
}

bool ClipHistory::countUse(const QString &id)
{
    const qsizetype index = indexOf(id);
    if (index < 0)
        return false;
    countUp(m_items[index].useCount);
    return true;
}

bool ClipHistory::togglePin(const QString &id, const QDateTime &now)
{
    const qsizetype index = indexOf(id);
    if (index < 0)
        return false;
    ClipItem &item = m_items[index];
    item.pinned = !item.pinned;
    item.pinnedAt = item.pinned ? std::optional(now) : std::nullopt;
    m_unpinnedCount += item.pinned ? -1 : 1;
    return true;
}

QList<RemovedClip> ClipHistory::remove(const std::function<bool(const ClipItem &)> &chosen)
{
    QList<RemovedClip> removed;
    QList<ClipItem> kept;
    kept.reserve(m_items.size());
    for (qsizetype i = 0; i < m_items.size(); ++i) {
        const ClipItem &item = m_items.at(i);
        if (!chosen(item)) {
            kept.append(item);
            continue;
        }
        noteRemoved(item);
        removed.append({item, m_items.size() - 1 - i});
    }
    m_items = std::move(kept);
    return removed;
}

QList<ClipItem> ClipHistory::restore(const QList<RemovedClip> &removed)
{
    QList<ClipItem> superseded;
    // The oldest first, so that each finds the followers that it had.
    for (auto clip = removed.rbegin(); clip != removed.rend(); ++clip) {
        const qsizetype again = indexOfContent(clip->item.fingerprint);
        if (again < 0) {
            m_items.insert(std::max<qsizetype>(m_items.size() - clip->followers, 0), clip->item);
            noteInserted(clip->item);
            continue;
        }
        superseded.append(clip->item);
        if (clip->item.pinned && !m_items.at(again).pinned)
            togglePin(m_items.at(again).id, clip->item.pinnedAt.value_or(clip->item.date));
    }
    return superseded;
}

qsizetype ClipHistory::indexOf(const QString &id) const
{
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&](auto &item) { return item.id == id; });
    return found == m_items.end() ? -1 : found - m_items.begin();
}

qsizetype ClipHistory::indexOfContent(const QString &fingerprint) const
{
    if (!m_contents.contains(fingerprint))
        return -1;
    const auto found = std::find_if(m_items.begin(), m_items.end(),
                                    [&](auto &item) { return item.fingerprint == fingerprint; });
    return found - m_items.begin();
}

void ClipHistory::noteInserted(const ClipItem &item)
{
    ++m_contents[item.fingerprint];
    m_unpinnedCount += item.pinned ? 0 : 1;
}

void ClipHistory::noteRemoved(const ClipItem &item)
{
    const auto found = m_contents.find(item.fingerprint);
    if (--*found == 0)
        m_contents.erase(found);
    m_unpinnedCount -= item.pinned ? 0 : 1;
}

}
