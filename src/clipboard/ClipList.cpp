#include "clipboard/ClipList.h"

namespace velm
{

ClipList::ClipList(RunLoop &loop, Source source) : m_loop(loop), m_source(std::move(source)), m_minute(loop)
{}

void ClipList::setActive(bool isActive)
{
    if (isActive == m_isActive)
        return;
    m_isActive = isActive;
    if (isActive)
        m_minute.startEvery(std::chrono::minutes(1), [this] { refresh(); });
    else
        m_minute.stop();
    refresh();
}

void ClipList::setFilter(ClipFilter filter)
{
    m_filter = filter;
    refresh();
}

void ClipList::setSearch(const QString &search)
{
    m_search = search;
    refresh();
}

void ClipList::refresh()
{
    QList<ClipRow> rows;
    if (m_isActive) {
        const QList<ClipItem> items = visibleItems();
        const QDateTime now = m_loop.wallTime();
        rows.reserve(items.size());
        for (const ClipItem &item : items)
            rows.append(makeRow(item, m_measures.of(item), now));
    }
    m_model.setValues(std::move(rows));
}

}
