#pragma once

#include "app/IsoDate.h"
#include "app/RecordTable.h"

#include <QDateTime>
#include <QSequentialIterable>
#include <QVariant>

#include <optional>

namespace velm
{

// Calls the visitor with a field's value in the form in which JSON has it: QString, bool, qint64, double,
// QStringList, a nested record (its table and address), or a list of nested records.
template <typename Visitor>
void visitValue(const RecordField &field, const QVariant &value, Visitor &visitor)
{
    using Kind = RecordField::Kind;
    const auto as = [&]<typename T>(T) -> const T & { return *static_cast<const T *>(value.constData()); };
    switch (field.kind) {
    case Kind::String:
        return visitor(as(QString()));
    case Kind::Bool:
        return visitor(as(bool()));
    case Kind::Int:
        return visitor(qint64(as(int())));
    case Kind::Integer:
        return visitor(as(qint64()));
    case Kind::Real:
        return visitor(as(double()));
    case Kind::Date:
        return visitor(QString::fromLatin1(isoText(as(QDateTime()))));
    case Kind::StringList:
        return visitor(as(QStringList()));
    case Kind::Enum: {
        const auto found = std::find(field.enumValues.begin(), field.enumValues.end(), value.toInt());
        Q_ASSERT(found != field.enumValues.end());
        return visitor(field.rawValues.at(found - field.enumValues.begin()));
    }
    case Kind::Record:
        return visitor(*field.nested, value.constData());
    case Kind::Records:
        return visitor(*field.nested, value.value<QSequentialIterable>());
    case Kind::OptionalString:
        return visitor(*as(std::optional<QString>()));
    case Kind::OptionalDate:
        return visitor(QString::fromLatin1(isoText(*as(std::optional<QDateTime>()))));
    case Kind::OptionalReal:
        return visitor(*as(std::optional<double>()));
    case Kind::OptionalInteger:
        return visitor(*as(std::optional<qint64>()));
    }
}

// Whether the field has no value, and so no key in JSON.
inline bool isAbsent(const RecordField &field, const QVariant &value)
{
    using Kind = RecordField::Kind;
    const auto isEmpty = [&]<typename T>(T) {
        return !static_cast<const std::optional<T> *>(value.constData())->has_value();
    };
    switch (field.kind) {
    case Kind::OptionalString:
        return isEmpty(QString());
    case Kind::OptionalDate:
        return isEmpty(QDateTime());
    case Kind::OptionalReal:
        return isEmpty(double());
    case Kind::OptionalInteger:
        return isEmpty(qint64());
    default:
        return false;
    }
}

}
