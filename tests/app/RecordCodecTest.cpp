#include "app/Parcel.h"

#include "app/IsoDate.h"
#include "app/RecordCodec.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QTest>

#include <limits>

using namespace velm;
using namespace Qt::StringLiterals;

namespace
{

Parcel fullParcel()
{
    return {.text = u"thé"_s,
            .isSent = true,
            .count = -3,
            .grams = std::numeric_limits<qint64>::max(),
            .price = 0.1,
            .posted = QDateTime({2026, 1, 31}, {17, 4, 5}, Qt::UTC),
            .places = {u"Ulm"_s, QString()},
            .kind = Parcel::Kind::SmallBox,
            .front = {u"fern"_s, 80},
            .stamps = {{u"owl"_s, 85}, {u"oak"_s, 20}},
            .note = QString(),
            .seen = QDateTime({1969, 12, 31}, {23, 59, 59}, Qt::UTC),
            .width = -2.5e-7,
            .number = std::numeric_limits<qint64>::min()};
}

template <typename T>
QByteArray written(const QList<T> &records)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return writeRecords(buffer, records) ? buffer.data() : QByteArray();
}

std::optional<QList<Parcel>> readBack(const QByteArray &json)
{
    return readRecords<Parcel>({StateFile::State::Read, json}).value;
}

}

class RecordCodecTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_kind_of_value_comes_back();
    void keys_are_sorted_and_absent_ones_left_out();
    void every_text_comes_back_data();
    void every_text_comes_back();
    void a_value_of_another_type_gives_nothing_data();
    void a_value_of_another_type_gives_nothing();
    void unknown_keys_are_passed_over_and_noticed();
    void dates_are_whole_seconds_in_utc();
};

void RecordCodecTest::every_kind_of_value_comes_back()
{
    const QList<Parcel> parcels{fullParcel(), Parcel()};

    const QByteArray json = written(parcels);

    QVERIFY(readBack(json) == parcels);
    QCOMPARE(QJsonDocument::fromJson(json).array(), (QJsonArray{toJson(parcels[0]), toJson(parcels[1])}));
}

void RecordCodecTest::keys_are_sorted_and_absent_ones_left_out()
{
    QCOMPARE(written(QList<Stamp>{{"owl", 85}, {"oak", 0}}),
             QByteArray("[\n"
                        "  {\n    \"motif\": \"owl\",\n    \"value\": 85\n  },\n"
                        "  {\n    \"motif\": \"oak\",\n    \"value\": 0\n  }\n"
                        "]\n"));
    QCOMPARE(toJson(fullParcel()).value(u"kind"), QJsonValue(u"smallBox"_s));
    QCOMPARE(toJson(Parcel()).keys().join(u' '),
             u"count front grams isSent kind places posted price stamps text"_s);
}

void RecordCodecTest::every_text_comes_back_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("quotes and escapes") << u"\"\\/\b\f\n\r\t"_s;
    QTest::newRow("controls and a zero") << u"\u0001\u001f\0\u007f\u0080"_s;
    QTest::newRow("two, three and four bytes") << u"é€𝄞 ߿ࠀ￿"_s;
    QTest::newRow("lone surrogates") << QString(2, QChar(0xd83d)) + u'x' + QChar(0xde00);
    QTest::newRow("nothing plain over one buffer") << u"\n𝄞\""_s.repeated(40000);
    for (int before = 65525; before < 65540; ++before)
        QTest::addRow("a pair behind %d", before) << QString(before, u'a') + u"😀b";
}

void RecordCodecTest::every_text_comes_back()
{
    QFETCH(QString, text);
    Parcel parcel;
    parcel.text = text;

    const QByteArray json = written<Parcel>({parcel});

    QVERIFY(readBack(json) == QList<Parcel>{parcel});
    QVERIFY(QString::fromUtf8(json).toUtf8() == json); // valid UTF-8
}

void RecordCodecTest::a_value_of_another_type_gives_nothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value"); // Undefined takes the key away
    QTest::addColumn<bool>("isTaken");

    for (const QString &key : toJson(Parcel()).keys())
        QTest::addRow("%s missing", qPrintable(key)) << key << QJsonValue(QJsonValue::Undefined) << false;
    const auto row = [](const char *key, const char *what, const QJsonValue &value, bool isTaken) {
        QTest::addRow("%s: %s", key, what) << QString(key) << value << isTaken;
    };
    row("text", "a number", 1, false);
    row("isSent", "null", QJsonValue(), false);
    row("count", "a fraction", 1.5, false);
    row("count", "too big for an int", 3e9, false);
    row("count", "a whole real", -1.0, true);
    row("posted", "no date", "yesterday", false);
    row("places", "a list with a number", QJsonArray{"a", 1}, false);
    row("kind", "upper case", "Letter", false);
    row("front", "a bad record", QJsonObject{{"motif", 1}}, false);
    row("stamps", "a bad record", QJsonArray{QJsonObject()}, false);
    row("note", "null for an optional", QJsonValue(), true);
    row("seen", "an empty text", "", false);
    row("number", "a fraction", 0.5, false);
}

void RecordCodecTest::a_value_of_another_type_gives_nothing()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject json = toJson(fullParcel());

    json.insert(key, value);

    QTEST(fromJson<Parcel>(json).has_value(), "isTaken");
}

void RecordCodecTest::unknown_keys_are_passed_over_and_noticed()
{
    QJsonObject outer = toJson(fullParcel());
    outer.insert(u"front"_s, QJsonObject{{u"motif"_s, u"owl"_s}, {u"value"_s, 1}, {u"glue"_s, 2}});
    Parcel parcel;

    QCOMPARE(fromJson(RecordTable::of<Parcel>(), outer, &parcel), Decoding::UnknownKeys);
    QCOMPARE(parcel.front.motif, u"owl"_s);
}

void RecordCodecTest::dates_are_whole_seconds_in_utc()
{
    const auto again = [](const QString &text) {
        const std::optional<QDateTime> date = isoDate(text);
        return date ? QString(isoText(date->addMSecs(999).toOffsetFromUtc(7200))) : "none";
    };

    QCOMPARE(again("2026-02-01T02:34:05+09:30"), "2026-01-31T17:04:05Z");
    QCOMPARE(again("2026-01-31T12:04:05-0500"), "2026-01-31T17:04:05Z");
    for (const char *good : {"2028-02-29T00:00:00Z", "1969-12-31T23:59:59Z", "0001-01-01T00:00:00Z"})
        QCOMPARE(again(good), good);
    for (const char *bad : {"", "2026-01-31", "2026-01-31T17:04:05", "2026-01-31 17:04:05Z",
                            "2026-02-29T00:00:00Z", "2026-01-31T24:00:00Z", "2026-01-31T17:04:05.123Z",
                            "2026-01-31T17:04:05+2:00", "+026-01-31T17:04:05Z", "2026-1-031T17:04:05Z"})
        QVERIFY2(again(bad) == "none", bad);
}

QTEST_GUILESS_MAIN(RecordCodecTest)
#include "RecordCodecTest.moc"
