#include "app/JsonWriter.h"
#include "app/RecordCodec.h"
#include "app/RecordVisit.h"

namespace velm
{

namespace
{

template <typename Visitor>
void visitFields(const RecordTable &table, const void *record, Visitor visitor)
{
    for (const RecordField &field : table.fields()) {
        const QVariant value = field.property.readOnGadget(record);
        if (!isAbsent(field, value))
            visitor(field, value);
    }
}

struct Written {
    JsonWriter &json;

    void operator()(const QString &text) { json.string(text); }
    void operator()(bool value) { json.boolean(value); }
    void operator()(qint64 value) { json.integer(value); }
    void operator()(double value) { json.real(value); }

    void operator()(const QStringList &texts)
    {
        json.beginArray();
        for (const QString &text : texts)
            json.string(text);
        json.endArray();
    }

    void operator()(const RecordTable &table, const void *record)
    {
        json.beginObject();
        visitFields(table, record, [this](const RecordField &field, const QVariant &value) {
            json.key(field.key);
            visitValue(field, value, *this);
        });
        json.endObject();
    }

    void operator()(const RecordTable &table, const QSequentialIterable &records)
    {
        json.beginArray();
        for (qsizetype i = 0; i < records.size(); ++i)
            (*this)(table, records.at(i).constData());
        json.endArray();
    }
};

struct Collected {
    QJsonValue json = {};

    void operator()(const QString &text) { json = text; }
    void operator()(bool value) { json = value; }
    void operator()(qint64 value) { json = value; }
    void operator()(double value) { json = value; }
    void operator()(const QStringList &texts) { json = QJsonArray::fromStringList(texts); }
    void operator()(const RecordTable &table, const void *record) { json = toJson(table, record); }

    void operator()(const RecordTable &table, const QSequentialIterable &records)
    {
        QJsonArray array;
        for (qsizetype i = 0; i < records.size(); ++i)
            array.append(toJson(table, records.at(i).constData()));
        json = array;
    }
};

}

QJsonObject toJson(const RecordTable &table, const void *record)
{
    QJsonObject object;
    visitFields(table, record, [&object](const RecordField &field, const QVariant &value) {
        Collected collected;
        visitValue(field, value, collected);
        object.insert(field.key, collected.json);
    });
    return object;
}

bool writeRecord(QIODevice &device, const RecordTable &table, const void *record)
{
    JsonWriter json(device);
    Written{json}(table, record);
    return json.finish();
}

bool writeRecords(QIODevice &device, const RecordTable &table, const void *first, qsizetype count,
                  size_t size)
{
    JsonWriter json(device);
    Written written{json};
    json.beginArray();
    for (qsizetype i = 0; i < count; ++i)
        written(table, static_cast<const std::byte *>(first) + static_cast<size_t>(i) * size);
    json.endArray();
    return json.finish();
}

}
