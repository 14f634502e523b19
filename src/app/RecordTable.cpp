#include "app/RecordTable.h"

#include <QDateTime>
#include <QMetaEnum>
#include <QSequentialIterable>

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

namespace velm
{

namespace
{

using Kind = RecordField::Kind;

std::optional<Kind> simpleKind(QMetaType type)
{
    static const std::pair<QMetaType, Kind> kinds[] = {
        {QMetaType::fromType<QString>(), Kind::String},
        {QMetaType::fromType<bool>(), Kind::Bool},
        {QMetaType::fromType<int>(), Kind::Int},
        {QMetaType::fromType<qint64>(), Kind::Integer},
        {QMetaType::fromType<double>(), Kind::Real},
        {QMetaType::fromType<QDateTime>(), Kind::Date},
        {QMetaType::fromType<QStringList>(), Kind::StringList},
        {QMetaType::fromType<std::optional<QString>>(), Kind::OptionalString},
        {QMetaType::fromType<std::optional<QDateTime>>(), Kind::OptionalDate},
        {QMetaType::fromType<std::optional<double>>(), Kind::OptionalReal},
        {QMetaType::fromType<std::optional<qint64>>(), Kind::OptionalInteger},
    };
    for (const auto &[known, kind] : kinds) {
        if (known == type)
            return kind;
    }
    return {};
}

const RecordTable *nestedTable(QMetaType type)
{
    return type.flags() & QMetaType::IsGadget ? &RecordTable::of(*type.metaObject()) : nullptr;
}

QMetaType elementType(QMetaType list)
{
    QVariant empty(list);
    return empty.canView<QSequentialIterable>() ? empty.view<QSequentialIterable>().valueMetaType()
                                                : QMetaType();
}

void addEnumKeys(RecordField &field)
{
    const QMetaEnum keys = field.property.enumerator();
    for (int i = 0; i < keys.keyCount(); ++i) {
        QString rawValue = QString::fromLatin1(keys.key(i));
        rawValue[0] = rawValue[0].toLower();
        field.rawValues.append(rawValue);
        field.enumValues.push_back(keys.value(i));
    }
}

RecordField makeField(const QMetaProperty &property)
{
    RecordField field{
        .key = QString::fromLatin1(property.name()), .kind = Kind::String, .property = property};
    if (const auto simple = simpleKind(property.metaType())) {
        field.kind = *simple;
    } else if (property.isEnumType()) {
        field.kind = Kind::Enum;
        addEnumKeys(field);
    } else if (const RecordTable *record = nestedTable(property.metaType())) {
        field.kind = Kind::Record;
        field.nested = record;
    } else if (const RecordTable *element = nestedTable(elementType(property.metaType()))) {
        field.kind = Kind::Records;
        field.nested = element;
    } else {
        qFatal("the property %s has a type that records cannot have", property.name());
    }
    return field;
}

}

const RecordTable &RecordTable::of(const QMetaObject &type)
{
    static std::recursive_mutex mutex; // a record may hold records
    static std::map<const QMetaObject *, std::unique_ptr<RecordTable>> tables;
    const std::lock_guard lock(mutex);
    if (const auto found = tables.find(&type); found != tables.end())
        return *found->second;
    return *tables.emplace(&type, std::unique_ptr<RecordTable>(new RecordTable(type))).first->second;
}

RecordTable::RecordTable(const QMetaObject &type) : m_type(&type)
{
    for (int i = 0; i < type.propertyCount(); ++i) {
        if (type.property(i).isStored())
            m_fields.push_back(makeField(type.property(i)));
    }
    std::sort(m_fields.begin(), m_fields.end(), [](auto &a, auto &b) { return a.key < b.key; });
}

}
