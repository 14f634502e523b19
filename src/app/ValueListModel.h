#pragma once

#include "app/ValueListBase.h"

#include <QList>

namespace velm
{

// A list of records for QML: a role for each property of the record. Setting new values announces only what
// differs, by the records' `id` (a QString), and never resets; so rows animate and keep their state.
template <typename T>
class ValueListModel : public ValueListBase
{
public:
    explicit ValueListModel(QObject *parent = nullptr) : ValueListBase(T::staticMetaObject, parent) {}

    const QList<T> &values() const { return m_shown; }

    void setValues(QList<T> values)
    {
        m_coming = std::move(values);
        showComing();
    }

private:
    const QList<T> &list(Side side) const { return side == Side::Shown ? m_shown : m_coming; }

    qsizetype size(Side side) const override { return list(side).size(); }
    QString id(Side side, qsizetype row) const override { return list(side).at(row).id; }
    const void *record(Side side, qsizetype row) const override { return &list(side).at(row); }
    bool isSame(qsizetype shownRow, qsizetype comingRow) const override
    {
        return m_shown.at(shownRow) == m_coming.at(comingRow);
    }
    void adopt() override
    {
        m_shown = std::move(m_coming);
        m_coming = {};
    }

    QList<T> m_shown;
    QList<T> m_coming;
};

}
