#include "app/ValueListBase.h"

#include <QHash>
#include <QMetaProperty>

#include <algorithm>

namespace velm
{

namespace
{

constexpr int none = -1;
constexpr int firstRole = Qt::UserRole;

// Marks the entries of a longest ascending run of the numbers (which are all different), not necessarily
// side by side: the rows that can stay where they are while the others move.
std::vector<bool> longestAscending(const std::vector<int> &numbers)
{
    std::vector<int> lastOfLength; // for each length, the entry on which a run of it can end lowest
    std::vector<int> previous(numbers.size(), none);
    for (int i = 0; i < static_cast<int>(numbers.size()); ++i) {
        const auto place = std::lower_bound(lastOfLength.begin(), lastOfLength.end(), numbers[i],
                                            [&](int entry, int number) { return numbers[entry] < number; });
        if (place != lastOfLength.begin())
            previous[i] = *std::prev(place);
        if (place == lastOfLength.end())
            lastOfLength.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> isMarked(numbers.size(), false);
    for (int i = lastOfLength.empty() ? none : lastOfLength.back(); i != none; i = previous[i])
        isMarked[i] = true;
    return isMarked;
}

// The end of the run of rows from `first` on for which the test holds.
template <typename Test>
int runEnd(int first, int size, Test test)
{
    int end = first;
    while (end < size && test(end))
        ++end;
    return end;
}

}

// Which row of the one list is which of the other; `none` where it is in one only.
struct ValueListBase::Pairing {
    std::vector<int> comingOf;
    std::vector<int> shownOf;
};

ValueListBase::ValueListBase(const QMetaObject &type, QObject *parent)
    : QAbstractListModel(parent), m_type(type)
{}

int ValueListBase::rowOf(const QString &wanted) const
{
    for (qsizetype row = 0; row < size(Side::Shown); ++row) {
        if (id(Side::Shown, row) == wanted)
            return static_cast<int>(row);
    }
    return none;
}

int ValueListBase::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(m_isChanging ? m_places.size() : static_cast<size_t>(size(Side::Shown)));
}

QVariant ValueListBase::data(const QModelIndex &index, int role) const
{
    const int property = role - firstRole;
    if (!index.isValid() || index.row() >= rowCount() || property < 0 || property >= m_type.propertyCount())
        return {};
    const Place place = m_isChanging ? m_places[index.row()] : Place{Side::Shown, index.row()};
    return m_type.property(property).readOnGadget(record(place.side, place.index));
}

QHash<int, QByteArray> ValueListBase::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int i = 0; i < m_type.propertyCount(); ++i)
        names.insert(firstRole + i, m_type.property(i).name());
    return names;
}

void ValueListBase::showComing()
{
    Q_ASSERT_X(!m_isChanging, "ValueListModel", "set anew by a reader of its own change");
    const int countBefore = count();
    const Pairing pairing = pairUp();
    m_places.resize(countBefore);
    for (int row = 0; row < countBefore; ++row)
        m_places[row] = {Side::Shown, row};
    m_isChanging = true;
    removeGone(pairing);
    moveKept(pairing);
    insertNew(pairing);
    const std::vector<ChangedRow> changed = changedRows(pairing);
    adopt();
    m_isChanging = false;
    m_places = {};
    announce(changed);
    if (count() != countBefore)
        Q_EMIT countChanged();
}

// Ids that come twice are paired once, the others go and come.
ValueListBase::Pairing ValueListBase::pairUp() const
{
    const int shownSize = static_cast<int>(size(Side::Shown));
    const int comingSize = static_cast<int>(size(Side::Coming));
    Pairing pairing{std::vector<int>(shownSize, none), std::vector<int>(comingSize, none)};
    const auto pair = [&pairing](int shown, int coming) {
        pairing.comingOf[shown] = coming;
        pairing.shownOf[coming] = shown;
    };
    const auto isEqual = [this](int shown, int coming) {
        return id(Side::Shown, shown) == id(Side::Coming, coming);
    };
    // Most changes touch a few rows: what is the same before and after them needs no looking up.
    const int shorter = std::min(shownSize, comingSize);
    const int head = runEnd(0, shorter, [&](int row) { return isEqual(row, row); });
    const int tail = runEnd(0, shorter - head,
                            [&](int row) { return isEqual(shownSize - 1 - row, comingSize - 1 - row); });
    for (int row = 0; row < head; ++row)
        pair(row, row);
    for (int row = 0; row < tail; ++row)
        pair(shownSize - 1 - row, comingSize - 1 - row);
    QHash<QString, int> rows;
    for (int row = head; row < shownSize - tail; ++row)
        rows.insert(id(Side::Shown, row), row);
    for (int row = head; row < comingSize - tail && !rows.isEmpty(); ++row) {
        if (const auto found = rows.constFind(id(Side::Coming, row)); found != rows.constEnd()) {
            pair(*found, row);
            rows.erase(found);
        }
    }
    return pairing;
}

void ValueListBase::removeGone(const Pairing &pairing)
{
    const auto isGone = [&](int row) { return pairing.comingOf[row] == none; };
    for (int last = static_cast<int>(pairing.comingOf.size()) - 1; last >= 0; --last) {
        if (!isGone(last))
            continue;
        int first = last;
        while (first > 0 && isGone(first - 1))
            --first;
        beginRemoveRows({}, first, last);
        m_places.erase(m_places.begin() + first, m_places.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void ValueListBase::moveKept(const Pairing &pairing)
{
    std::vector<int> order; // of the rows, by the row to come
    for (const Place &place : m_places)
        order.push_back(pairing.comingOf[place.index]);
    const std::vector<bool> stays = longestAscending(order);
    std::vector<int> moving;
    for (size_t row = 0; row < order.size(); ++row) {
        if (!stays[row])
            moving.push_back(order[row]);
    }
    std::sort(moving.begin(), moving.end());
    std::vector<int> sorted = moving.empty() ? std::vector<int>() : order;
    std::sort(sorted.begin(), sorted.end());
    const auto rowOfComing = [&](int coming) {
        return static_cast<int>(std::find(order.begin(), order.end(), coming) - order.begin());
    };
    // Each goes right behind the one that it is to follow, which has its place by then.
    for (const int coming : moving) {
        const auto own = std::lower_bound(sorted.begin(), sorted.end(), coming);
        const int from = rowOfComing(coming);
        const int to = own == sorted.begin() ? 0 : rowOfComing(*std::prev(own)) + 1;
        if (from == to)
            continue;
        beginMoveRows({}, from, from, {}, to);
        const auto move = [from, to](auto rows) {
            if (from < to)
                std::rotate(rows + from, rows + from + 1, rows + to);
            else
                std::rotate(rows + to, rows + from, rows + from + 1);
        };
        move(m_places.begin());
        move(order.begin());
        endMoveRows();
    }
}

void ValueListBase::insertNew(const Pairing &pairing)
{
    const int size = static_cast<int>(pairing.shownOf.size());
    for (int first = 0; first < size; ++first) {
        const int end = runEnd(first, size, [&](int row) { return pairing.shownOf[row] == none; });
        if (end == first)
            continue;
        beginInsertRows({}, first, end - 1);
        m_places.insert(m_places.begin() + first, end - first, Place{Side::Coming, 0});
        for (int row = first; row < end; ++row)
            m_places[row].index = row;
        endInsertRows();
        first = end;
    }
}

std::vector<ValueListBase::ChangedRow> ValueListBase::changedRows(const Pairing &pairing) const
{
    std::vector<ChangedRow> changed;
    for (int row = 0; row < static_cast<int>(pairing.shownOf.size()); ++row) {
        const int shownRow = pairing.shownOf[row];
        if (shownRow == none || isSame(shownRow, row))
            continue;
        QList<int> roles;
        for (int i = 0; i < m_type.propertyCount(); ++i) {
            const QMetaProperty property = m_type.property(i);
            if (property.readOnGadget(record(Side::Shown, shownRow)) !=
                property.readOnGadget(record(Side::Coming, row)))
                roles.append(firstRole + i);
        }
        changed.push_back({row, roles});
    }
    return changed;
}

// Neighbours of which the same has changed are announced as one range.
void ValueListBase::announce(const std::vector<ChangedRow> &changed)
{
    for (size_t first = 0; first < changed.size();) {
        size_t end = first + 1;
        while (end < changed.size() && changed[end].row == changed[end - 1].row + 1 &&
               changed[end].roles == changed[first].roles)
            ++end;
        if (!changed[first].roles.isEmpty())
            Q_EMIT dataChanged(index(changed[first].row), index(changed[end - 1].row), changed[first].roles);
        first = end;
    }
}

}
