#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

#include <vector>

namespace velm
{

// What ValueListModel is for QML and for views, without the type of its records.
class ValueListBase : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("filled by the feature that owns it")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    int count() const { return rowCount(); }

    // The row of the record with that id, -1 when there is none.
    Q_INVOKABLE int rowOf(const QString &id) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

protected:
    // Two lists stand side by side during a change: the one shown so far, and the one to come.
    enum class Side { Shown, Coming };

    ValueListBase(const QMetaObject &type, QObject *parent);

    // Announces the difference of the two lists by id: rows that go, that move (as few as can be), that come.
    // Then `adopt` makes the coming list the shown one, and rows whose record differs are announced.
    void showComing();

    virtual qsizetype size(Side side) const = 0;
    virtual QString id(Side side, qsizetype row) const = 0;
    virtual const void *record(Side side, qsizetype row) const = 0;
    virtual bool isSame(qsizetype shownRow, qsizetype comingRow) const = 0;
    virtual void adopt() = 0;

private:
    struct Pairing;
    struct Place {
        Side side;
        int index;
    };
    struct ChangedRow {
        int row;
        QList<int> roles;
    };

    Pairing pairUp() const;
    void removeGone(const Pairing &pairing);
    void moveKept(const Pairing &pairing);
    void insertNew(const Pairing &pairing);
    std::vector<ChangedRow> changedRows(const Pairing &pairing) const;
    void announce(const std::vector<ChangedRow> &changed);

    const QMetaObject &m_type;
    bool m_isChanging = false;
    std::vector<Place> m_places; // of the rows in order, only during a change
};

}
