#include "app/IsoDate.h"
#include "app/RecordCodec.h"

#include <QJsonDocument>
#include <QSequentialIterable>
#include <QVariant>

#include <limits>

namespace velm
{

namespace
{

std::optional<QString> readString(const QJsonValue &json)
{
    return json.isString() ? std::optional(json.toString()) : std::nullopt;
}

std::optional<QDateTime> readDate(const QJsonValue &json)
{
    return json.isString() ? isoDate(json.toString()) : std::nullopt;
}

std::optional<double> readReal(const QJsonValue &json)
{
    return json.isDouble() ? std::optional(json.toDouble()) : std::nullopt;
}

// Any number without a fraction.
std::optional<qint64> readInteger(const QJsonValue &json)
{
    if (!json.isDouble())
        return {};
    const qint64 value = json.toInteger(-1);
    return value != -1 || json.toInteger(0) == -1 ? std::optional(value) : std::nullopt;
}

std::optional<int> readInt(const QJsonValue &json)
{
    const std::optional<qint64> value = readInteger(json);
    if (!value || *value < std::numeric_limits<int>::min() || *value > std::numeric_limits<int>::max())
        return {};
    return static_cast<int>(*value);
}

std::optional<QStringList> readStringList(const QJsonValue &json)
{
    if (!json.isArray())
        return {};
    QStringList list;
    const QJsonArray array = json.toArray();
    for (const QJsonValue element : array) {
        if (!element.isString())
            return {};
        list.append(element.toString());
    }
    return list;
}

// The wanted form of the result is that of the property: T, or std::optional<T>.
template <typename T>
QVariant plain(std::optional<T> value)
{
    return value ? QVariant::fromValue(*std::move(value)) : QVariant();
}

template <typename T>
QVariant optional(std::optional<T> value)
{
    return value ? QVariant::fromValue(std::move(value)) : QVariant();
}

QVariant readEnum(const RecordField &field, const QJsonValue &json)
{
    const qsizetype index = json.isString() ? field.rawValues.indexOf(json.toString()) : -1;
    return index < 0 ? QVariant() : QVariant(field.enumValues.at(static_cast<size_t>(index)));
}

// Nested records; keys that are unknown there count as unknown in the record that holds them.
QVariant readNested(const RecordField &field, QMetaType type, const QJsonValue &json, Decoding &decoding)
{
    QVariant record(type);
    const Decoding own =
        json.isObject() ? fromJson(*field.nested, json.toObject(), record.data()) : Decoding::Failed;
    decoding = std::max(decoding, own);
    return own == Decoding::Failed ? QVariant() : record;
}

QVariant readNestedList(const RecordField &field, const QJsonValue &json, Decoding &decoding)
{
    if (!json.isArray())
        return {};
    QVariant list(field.property.metaType());
    QSequentialIterable records = list.view<QSequentialIterable>();
    const QJsonArray array = json.toArray();
    for (const QJsonValue element : array) {
        const QVariant record = readNested(field, records.valueMetaType(), element, decoding);
        if (!record.isValid())
            return {};
        records.addValue(record);
    }
    return list;
}

// The value for the property, invalid when the JSON is of another type.
QVariant read(const RecordField &field, const QJsonValue &json, Decoding &decoding)
{
    using Kind = RecordField::Kind;
    switch (field.kind) {
    case Kind::String:
        return plain(readString(json));
    case Kind::Bool:
        return json.isBool() ? QVariant(json.toBool()) : QVariant();
    case Kind::Int:
        return plain(readInt(json));
    case Kind::Integer:
        return plain(readInteger(json));
    case Kind::Real:
        return plain(readReal(json));
    case Kind::Date:
        return plain(readDate(json));
    case Kind::StringList:
        return plain(readStringList(json));
    case Kind::Enum:
        return readEnum(field, json);
    case Kind::Record:
        return readNested(field, field.property.metaType(), json, decoding);
    case Kind::Records:
        return readNestedList(field, json, decoding);
    case Kind::OptionalString:
        return optional(readString(json));
    case Kind::OptionalDate:
        return optional(readDate(json));
    case Kind::OptionalReal:
        return optional(readReal(json));
    case Kind::OptionalInteger:
        return optional(readInteger(json));
    }
    return {};
}

QJsonDocument parsed(StateFile file)
{
    return file.state == StateFile::State::Read ? QJsonDocument::fromJson(file.bytes) : QJsonDocument();
}

}

Decoding fromJson(const RecordTable &table, const QJsonObject &object, void *record)
{
    Decoding decoding = Decoding::Complete;
    qsizetype known = 0;
    for (const RecordField &field : table.fields()) {
        const auto found = object.constFind(field.key);
        const bool isPresent = found != object.constEnd();
        known += isPresent;
        if (field.isOptional() && (!isPresent || found->isNull()))
            continue;
        const QVariant value = isPresent ? read(field, *found, decoding) : QVariant();
        if (!value.isValid() || !field.property.writeOnGadget(record, value))
            return Decoding::Failed;
    }
    return known < object.size() ? Decoding::UnknownKeys : decoding;
}

Decoded<QJsonArray> readArray(StateFile file)
{
    if (file.state == StateFile::State::Missing)
        return {};
    const QJsonDocument document = parsed(std::move(file));
    if (!document.isArray())
        return {std::nullopt, Decoding::Failed};
    return {document.array(), Decoding::Complete};
}

Decoded<QJsonObject> readObject(StateFile file)
{
    if (file.state == StateFile::State::Missing)
        return {};
    const QJsonDocument document = parsed(std::move(file));
    if (!document.isObject())
        return {std::nullopt, Decoding::Failed};
    return {document.object(), Decoding::Complete};
}

}
