#pragma once

#include <QMetaProperty>
#include <QStringList>

#include <vector>

namespace velm
{

class RecordTable;

// One key of a record and how its value is written.
struct RecordField {
    enum class Kind {
        String,
        Bool,
        Int,
        Integer, // qint64
        Real,
        Date,
        StringList,
        Enum,
        Record,
        Records,
        OptionalString,
        OptionalDate,
        OptionalReal,
        OptionalInteger
    };

    QString key;
    Kind kind;
    QMetaProperty property;
    const RecordTable *nested = nullptr; // of a record, or of the elements of a list of records
    QStringList rawValues = {};          // of an enum: its keys in lower camel case
    std::vector<int> enumValues = {};    // beside rawValues

    bool isOptional() const { return kind >= Kind::OptionalString; }
};

// The stored properties of one kind of record, sorted by key. Made once for each kind; from any thread.
class RecordTable
{
public:
    static const RecordTable &of(const QMetaObject &type);

    template <typename T>
    static const RecordTable &of()
    {
        static const RecordTable &table = of(T::staticMetaObject);
        return table;
    }

    const QMetaObject &type() const { return *m_type; }
    const std::vector<RecordField> &fields() const { return m_fields; }

private:
    explicit RecordTable(const QMetaObject &type);

    const QMetaObject *m_type;
    std::vector<RecordField> m_fields;
};

}
