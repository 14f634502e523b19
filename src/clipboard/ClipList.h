#pragma once

#include "clipboard/ClipFilter.h"
#include "clipboard/ClipListModel.h"
#include "clipboard/ClipMeasures.h"
#include "platform/runloop/LoopTimer.h"

namespace velm
{

// What the list shows: the clips under the filter and the search. Works only while somebody looks; else the
// rows are let go.
class ClipList
{
public:
    // Gives the clips, the newest first.
    using Source = std::function<const QList<ClipItem> &()>;

    ClipList(RunLoop &loop, Source source);

    void setActive(bool isActive);
    void setFilter(ClipFilter filter);
    void setSearch(const QString &search);

    // The clips have changed.
    void refresh();

    ClipListModel &model() { return m_model; }
    const QList<ClipRow> &rows() const { return m_model.values(); }
    ClipMeasures &measures() { return m_measures; }
    ClipFilter filter() const { return m_filter; }
    const QString &search() const { return m_search; }
    QList<ClipItem> visibleItems() const { return velm::visibleItems(m_source(), m_filter, m_search); }

private:
    RunLoop &m_loop;
    Source m_source;
    ClipListModel m_model;
    ClipMeasures m_measures;
    ClipFilter m_filter = ClipFilter::All;
    QString m_search;
    bool m_isActive = false;
    LoopTimer m_minute; // the ages grow
};

}
