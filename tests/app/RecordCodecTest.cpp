#include "app/Parcel.h"

#include "app/IsoDate.h"
#include "app/RecordCodec.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QTest>

#include <limits>

namespace velm
{

using namespace Qt::StringLiterals;

namespace
{

Parcel fullParcel()
{
    Parcel parcel;
    parcel.text = QStringLiteral("thé");
    parcel.isSent = true;
    parcel.count = -3;
    parcel.grams = std::numeric_limits<qint64>::max();
    parcel.price = 0.1;
    parcel.places = QStringList{QStringLiteral("Ulm"), QString()};
    parcel.kind = Parcel::Kind::SmallBox;
    parcel.front = {QStringLiteral("fern"), 80};
    parcel.stamps = {{QStringLiteral("owl"), 85}, {QStringLiteral("oak"), 20}};
    parcel.note = QString();
    parcel.seen = QDateTime({1969, 12, 31}, {23, 59, 59}, Qt::UTC);
    parcel.width = -2.5e-7;
    parcel.number = std::numeric_limits<qint64>::min();
    return parcel;
}

QByteArray written(const QList<Parcel> &parcels)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return writeRecords(buffer, parcels) ? buffer.data() : QByteArray();
}

std::optional<QList<Parcel>> readBack(const QByteArray &json)
{
    return readRecords<Parcel>({StateFile::State::Read, json}).value;
}

// Takes so many bytes and no more, as a full disk does.
class FullDevice : public QIODevice
{
public:
    explicit FullDevice(qint64 room) : m_room(room) { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

    qint64 largestWrite = 0;

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        largestWrite = std::max(largestWrite, size);
        m_room -= size;
        return m_room < 0 ? -1 : size;
    }

private:
    qint64 m_room;
};

}

class RecordCodecTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_kind_of_value_comes_back();
    void keys_are_sorted_and_lines_indented();
    void absent_values_have_no_key();
    void the_object_and_the_file_hold_the_same();
    void every_text_comes_back_data();
    void every_text_comes_back();
    void a_wrong_value_gives_nothing_data();
    void a_wrong_value_gives_nothing();
    void a_lenient_value_is_taken_data();
    void a_lenient_value_is_taken();
    void unknown_keys_are_passed_over_and_noticed();
    void one_bad_record_makes_the_list_unreadable();
    void dates_are_read_in_their_forms_data();
    void dates_are_read_in_their_forms();
    void seconds_are_whole_and_in_utc();
    void a_number_that_is_not_finite_fails();
    void a_full_disk_fails();
    void a_big_text_goes_out_in_pieces();
};

void RecordCodecTest::every_kind_of_value_comes_back()
{
    const QList<Parcel> parcels{fullParcel(), Parcel()};

    const auto read = readBack(written(parcels));

    QVERIFY(read);
    QVERIFY(*read == parcels);
}

void RecordCodecTest::keys_are_sorted_and_lines_indented()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);

    QVERIFY(writeRecords(buffer, QList<Stamp>{{QStringLiteral("owl"), 85}, {QStringLiteral("\"x\""), 0}}));

    QCOMPARE(buffer.data(), QByteArray("[\n"
                                       "  {\n    \"motif\": \"owl\",\n    \"value\": 85\n  },\n"
                                       "  {\n    \"motif\": \"\\\"x\\\"\",\n    \"value\": 0\n  }\n"
                                       "]\n"));
    QCOMPARE(written({}), QByteArray("[]\n"));
}

void RecordCodecTest::absent_values_have_no_key()
{
    const QJsonObject json = toJson(Parcel());

    for (const char *key : {"note", "seen", "width", "number", "length"})
        QVERIFY2(!json.contains(QLatin1String(key)), key);
    QCOMPARE(json.value(u"kind").toString(), QStringLiteral("letter"));
    QCOMPARE(toJson(fullParcel()).value(u"kind").toString(), QStringLiteral("smallBox"));
}

void RecordCodecTest::the_object_and_the_file_hold_the_same()
{
    const QJsonArray file = QJsonDocument::fromJson(written({fullParcel()})).array();

    QCOMPARE(file, QJsonArray{toJson(fullParcel())});
    QVERIFY(fromJson<Parcel>(file.first().toObject()) == fullParcel());
}

void RecordCodecTest::every_text_comes_back_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("quotes and escapes") << QStringLiteral("\"\\/\b\f\n\r\t");
    QTest::newRow("controls") << QStringLiteral("\u0001\u001f\u007f\u0080");
    QTest::newRow("a zero in the middle") << QStringLiteral("a\0b");
    QTest::newRow("two, three and four bytes") << QStringLiteral("é€𝄞 ߿ࠀ￿");
    QTest::newRow("a lone high surrogate") << QString(QChar(0xd83d)) + u'x';
    QTest::newRow("a lone low surrogate at the end") << QStringLiteral("x") + QChar(0xde00);
    QTest::newRow("two high surrogates") << QString(2, QChar(0xd83d));
    QTest::newRow("over one buffer") << QString(70000, u'a') + u"é";
    QTest::newRow("nothing plain over one buffer") << QStringLiteral("\n𝄞\"").repeated(40000);
    for (int before = 65525; before < 65540; ++before)
        QTest::addRow("a pair behind %d", before) << QString(before, u'a') + QStringLiteral("😀b");
}

void RecordCodecTest::every_text_comes_back()
{
    QFETCH(QString, text);
    Parcel parcel;
    parcel.text = text;

    const QByteArray json = written({parcel});
    const auto read = readBack(json);

    QVERIFY(read);
    QVERIFY(read->first().text == text);
    QCOMPARE(json.toBase64(), QString::fromUtf8(json).toUtf8().toBase64()); // valid UTF-8
}

void RecordCodecTest::a_wrong_value_gives_nothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value"); // Undefined takes the key away

    const QStringList required{u"text"_s,   u"isSent"_s, u"count"_s, u"grams"_s, u"price"_s,
                               u"posted"_s, u"places"_s, u"kind"_s,  u"front"_s, u"stamps"_s};
    for (const QString &key : required) {
        QTest::addRow("%s missing", qPrintable(key)) << key << QJsonValue(QJsonValue::Undefined);
        QTest::addRow("%s null", qPrintable(key)) << key << QJsonValue();
    }
    QTest::newRow("a number for a text") << u"text"_s << QJsonValue(1);
    QTest::newRow("a number for a truth") << u"isSent"_s << QJsonValue(1);
    QTest::newRow("a fraction for a whole number") << u"count"_s << QJsonValue(1.5);
    QTest::newRow("too big for an int") << u"count"_s << QJsonValue(3e9);
    QTest::newRow("a text for a number") << u"price"_s << QJsonValue(u"1"_s);
    QTest::newRow("a date that is none") << u"posted"_s << QJsonValue(u"yesterday"_s);
    QTest::newRow("a list with a number") << u"places"_s << QJsonValue(QJsonArray{u"a"_s, 1});
    QTest::newRow("a text for a list") << u"places"_s << QJsonValue(u"a"_s);
    QTest::newRow("an unknown kind") << u"kind"_s << QJsonValue(u"barrel"_s);
    QTest::newRow("a kind in upper case") << u"kind"_s << QJsonValue(u"Letter"_s);
    QTest::newRow("a bad record inside") << u"front"_s << QJsonValue(QJsonObject{{u"motif"_s, 1}});
    QTest::newRow("a bad record in the list") << u"stamps"_s << QJsonValue(QJsonArray{QJsonObject()});
    QTest::newRow("a wrong optional text") << u"note"_s << QJsonValue(1);
    QTest::newRow("a wrong optional date") << u"seen"_s << QJsonValue(u""_s);
    QTest::newRow("a wrong optional number") << u"number"_s << QJsonValue(0.5);
}

void RecordCodecTest::a_wrong_value_gives_nothing()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject json = toJson(fullParcel());

    json.remove(key);
    if (!value.isUndefined())
        json.insert(key, value);

    QVERIFY(!fromJson<Parcel>(json));
}

void RecordCodecTest::a_lenient_value_is_taken_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");

    QTest::newRow("a whole number for a real") << u"price"_s << QJsonValue(3);
    QTest::newRow("a real without a fraction") << u"count"_s << QJsonValue(-1.0);
    QTest::newRow("minus one") << u"grams"_s << QJsonValue(-1);
    QTest::newRow("null for an optional") << u"note"_s << QJsonValue();
    QTest::newRow("a date with an offset") << u"seen"_s << QJsonValue(u"2026-01-31T19:04:05+02:00"_s);
}

void RecordCodecTest::a_lenient_value_is_taken()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject json = toJson(fullParcel());

    json.insert(key, value);

    QVERIFY(fromJson<Parcel>(json));
}

void RecordCodecTest::unknown_keys_are_passed_over_and_noticed()
{
    const auto decoding = [](QByteArray json) {
        return readRecord<Stamp>({StateFile::State::Read, std::move(json)}).decoding;
    };

    QCOMPARE(decoding(R"({"motif": "owl", "value": 1})"), Decoding::Complete);
    QCOMPARE(decoding(R"({"motif": "owl", "value": 1, "glue": true})"), Decoding::UnknownKeys);
    QCOMPARE(decoding(R"({"motif": "owl", "glue": true})"), Decoding::Failed);

    QJsonObject outer = toJson(fullParcel());
    outer.insert(u"front"_s, QJsonObject{{u"motif"_s, u"owl"_s}, {u"value"_s, 1}, {u"glue"_s, 2}});
    QCOMPARE(decoding(R"([])"), Decoding::Failed);
    Parcel parcel;
    QCOMPARE(fromJson(RecordTable::of<Parcel>(), outer, &parcel), Decoding::UnknownKeys);
    QCOMPARE(parcel.front.motif, u"owl"_s);
}

void RecordCodecTest::one_bad_record_makes_the_list_unreadable()
{
    QJsonArray array{toJson(fullParcel()), toJson(fullParcel())};
    QVERIFY(readBack(QJsonDocument(array).toJson()));

    array.append(1);

    QVERIFY(!readBack(QJsonDocument(array).toJson()));
}

void RecordCodecTest::dates_are_read_in_their_forms_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected"); // empty for none

    const QString instant = u"2026-01-31T17:04:05Z"_s;
    QTest::newRow("UTC") << instant << instant;
    QTest::newRow("east") << u"2026-02-01T02:34:05+09:30"_s << instant;
    QTest::newRow("west, no colon") << u"2026-01-31T12:04:05-0500"_s << instant;
    QTest::newRow("leap day") << u"2028-02-29T00:00:00Z"_s << u"2028-02-29T00:00:00Z"_s;
    QTest::newRow("before 1970") << u"1969-12-31T23:59:59Z"_s << u"1969-12-31T23:59:59Z"_s;
    QTest::newRow("year 1") << u"0001-01-01T00:00:00Z"_s << u"0001-01-01T00:00:00Z"_s;
    for (const char *bad : {"", "2026-01-31", "2026-01-31T17:04:05", "2026-01-31 17:04:05Z",
                            "2026-02-29T00:00:00Z", "2026-01-31T24:00:00Z", "2026-01-31T17:04:60Z",
                            "2026-01-31T17:04:05.123Z", "2026-01-31T17:04:05z", "2026-01-31T17:04:05+2:00",
                            "2026-01-31T17:04:05+02:0x", "+026-01-31T17:04:05Z", "2026-1-031T17:04:05Z"})
        QTest::addRow("none: %s", bad) << QString::fromLatin1(bad) << QString();
}

void RecordCodecTest::dates_are_read_in_their_forms()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);

    const std::optional<QDateTime> date = isoDate(text);

    QCOMPARE(date ? QString::fromLatin1(isoText(*date)) : QString(), expected);
    QVERIFY(!date || date->timeSpec() == Qt::UTC);
}

void RecordCodecTest::seconds_are_whole_and_in_utc()
{
    const QDateTime east({2026, 7, 1}, {1, 30, 0, 999}, Qt::OffsetFromUTC, 2 * 3600);

    QCOMPARE(isoText(east), QByteArray("2026-06-30T23:30:00Z"));
    QCOMPARE(isoText(QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC)), QByteArray("1969-12-31T23:59:59Z"));
}

void RecordCodecTest::a_number_that_is_not_finite_fails()
{
    Parcel parcel;
    parcel.price = std::numeric_limits<double>::infinity();

    QCOMPARE(written({parcel}), QByteArray());
}

void RecordCodecTest::a_full_disk_fails()
{
    FullDevice device(100'000);
    Parcel parcel;
    parcel.text = QString(200'000, u'a');

    QVERIFY(!writeRecords(device, QList<Parcel>{parcel}));
}

void RecordCodecTest::a_big_text_goes_out_in_pieces()
{
    FullDevice device(std::numeric_limits<qint64>::max());
    Parcel parcel;
    parcel.text = QString(5'000'000, u'a');

    QVERIFY(writeRecords(device, QList<Parcel>{parcel}));

    QVERIFY(device.largestWrite <= 64 * 1024);
}

}

QTEST_GUILESS_MAIN(velm::RecordCodecTest)
#include "RecordCodecTest.moc"
