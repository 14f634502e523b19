#pragma once

#include "app/RecordTable.h"
#include "app/StateFile.h"

#include <QIODevice>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>

#include <optional>

namespace velm
{

// Records in JSON. A record is a Q_GADGET whose stored Q_PROPERTYs are the keys: QString, bool, int, qint64,
// double, QDateTime (ISO 8601, whole seconds, UTC), QStringList, a Q_ENUM (its key in lower camel case), a
// record, a QList of records, and std::optional of QString, QDateTime, double or qint64, left out when
// absent. Properties that are STORED false are derived and take no part.

enum class Decoding { Missing, Complete, UnknownKeys, Failed };

// A value read from a file, and how that went: with `UnknownKeys` all went well, but saving drops those keys.
template <typename T>
struct Decoded {
    std::optional<T> value;
    Decoding decoding = Decoding::Missing;
};

QJsonObject toJson(const RecordTable &table, const void *record);
Decoding fromJson(const RecordTable &table, const QJsonObject &object, void *record);

// Written pretty, keys sorted, piece by piece, so that a big text is never there twice. False when the device
// fails or a number is not finite.
bool writeRecord(QIODevice &device, const RecordTable &table, const void *record);
bool writeRecords(QIODevice &device, const RecordTable &table, const void *first, qsizetype count,
                  size_t size);

// Parses the whole file and lets go of its bytes.
Decoded<QJsonArray> readArray(StateFile file);
Decoded<QJsonObject> readObject(StateFile file);

template <typename T>
QJsonObject toJson(const T &record)
{
    return toJson(RecordTable::of<T>(), &record);
}

// Strict: a missing key or a value of another type gives nothing. Unknown keys are passed over.
template <typename T>
std::optional<T> fromJson(const QJsonObject &object)
{
    T record;
    if (fromJson(RecordTable::of<T>(), object, &record) == Decoding::Failed)
        return {};
    return record;
}

template <typename T>
bool writeRecord(QIODevice &device, const T &record)
{
    return writeRecord(device, RecordTable::of<T>(), &record);
}

template <typename T>
bool writeRecords(QIODevice &device, const QList<T> &records)
{
    return writeRecords(device, RecordTable::of<T>(), records.constData(), records.size(), sizeof(T));
}

template <typename T>
Decoded<T> readRecord(StateFile file)
{
    const Decoded<QJsonObject> object = readObject(std::move(file));
    Decoded<T> result{std::nullopt, object.decoding};
    if (!object.value)
        return result;
    T record;
    result.decoding = fromJson(RecordTable::of<T>(), *object.value, &record);
    if (result.decoding != Decoding::Failed)
        result.value = std::move(record);
    return result;
}

// One bad record makes the whole list unreadable.
template <typename T>
Decoded<QList<T>> readRecords(StateFile file)
{
    const Decoded<QJsonArray> array = readArray(std::move(file));
    if (!array.value)
        return {std::nullopt, array.decoding};
    QList<T> records(array.value->size());
    Decoding worst = Decoding::Complete;
    for (qsizetype i = 0; i < records.size(); ++i) {
        const QJsonValue element = array.value->at(i);
        worst = element.isObject()
                    ? std::max(worst, fromJson(RecordTable::of<T>(), element.toObject(), &records[i]))
                    : Decoding::Failed;
        if (worst == Decoding::Failed)
            return {std::nullopt, worst};
    }
    return {std::move(records), worst};
}

}
