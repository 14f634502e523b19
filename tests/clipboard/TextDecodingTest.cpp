#include "clipboard/TextDecoding.h"

#include <QtTest>

using namespace velm;

class TextDecodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytes_become_text_data();
    void bytes_become_text();
    void a_big_text_is_decoded_as_a_small_one_data();
    void a_big_text_is_decoded_as_a_small_one();
    void the_bytes_are_taken();
    void shared_bytes_are_left_alone();
};

namespace
{

QByteArray utf16(const QString &text, const char *mark)
{
    return QByteArray(mark) + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

}

Q_DECLARE_METATYPE(velm::TextEncoding)

void TextDecodingTest::bytes_become_text_data()
{
    using enum TextEncoding;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<TextEncoding>("encoding");
    QTest::addColumn<QString>("text");
    const QString grass = u"Grüße 😀"_qs;
    QTest::newRow("UTF-8") << grass.toUtf8() << Utf8 << grass;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + grass.toUtf8() << Utf8 << grass;
    QTest::newRow("a second mark is content")
        << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF") << Utf8 << u"\ufeff"_qs;
    QTest::newRow("NUL") << QByteArray("a\0b", 3) << Utf8 << QStringView(u"a\0b", 3).toString();
    QTest::newRow("invalid") << QByteArray("a\xff\xC3") << Utf8 << u"a\ufffd\ufffd"_qs;
    QTest::newRow("half a surrogate") << QByteArray("\xED\xA0\x80x") << Utf8 << u"\ufffd\ufffd\ufffdx"_qs;
    QTest::newRow("UTF-16") << utf16(grass, "\xff\xfe") << Utf16 << grass;
    QTest::newRow("UTF-16, big end first") << QByteArray("\xfe\xff\x00"
                                                         "a\x00"
                                                         "b",
                                                         6)
                                           << Utf16 << u"ab"_qs;
    QTest::newRow("UTF-16 without mark") << utf16(grass, "") << Utf16 << grass;
    QTest::newRow("UTF-16, half a character")
        << utf16(QString(QChar(0xd83d)) + u'x', "") << Utf16 << u"\ufffdx"_qs;
    QTest::newRow("UTF-16, only a half") << utf16(QString(QChar(0xdc00)), "") << Utf16 << u"\ufffd"_qs;
    QTest::newRow("Latin-1") << QByteArray("Gr\xfc\xdf"
                                           "e")
                             << Latin1 << u"Grüße"_qs;
    QTest::newRow("either, UTF-8") << grass.toUtf8() << Utf8OrLatin1 << grass;
    QTest::newRow("either, Latin-1") << QByteArray("Gr\xfc\xdf"
                                                   "e")
                                     << Utf8OrLatin1 << u"Grüße"_qs;
}

void TextDecodingTest::bytes_become_text()
{
    QFETCH(QByteArray, bytes);
    QFETCH(TextEncoding, encoding);
    QFETCH(QString, text);

    QCOMPARE(takeText(std::move(bytes), encoding), text);
}

void TextDecodingTest::a_big_text_is_decoded_as_a_small_one_data()
{
    QTest::addColumn<QByteArray>("unit");
    // Their lengths make the borders of the pieces fall at every place within a character.
    QTest::newRow("ascii") << QByteArray("abcdefg");
    QTest::newRow("two bytes") << QByteArray("ü");
    QTest::newRow("three bytes") << QByteArray("世");
    QTest::newRow("four bytes") << QByteArray("😀");
    QTest::newRow("mixed") << QByteArray("aü世😀-");
    QTest::newRow("invalid") << QByteArray("a\xff\xC3 \xF0\x9F");
}

void TextDecodingTest::a_big_text_is_decoded_as_a_small_one()
{
    QFETCH(QByteArray, unit);
    for (int before = 0; before < 4; ++before) {
        QByteArray bytes = QByteArray(before, '.') + unit.repeated(9 * 1024 * 1024 / unit.size());
        const QString expected = QString::fromUtf8(bytes);

        const QString text = takeText(std::move(bytes), TextEncoding::Utf8);

        QVERIFY(text == expected);
    }
}

void TextDecodingTest::the_bytes_are_taken()
{
    QByteArray bytes(10'000'000, 'a');

    const QString text = takeText(std::move(bytes), TextEncoding::Utf8);

    QCOMPARE(text.size(), 10'000'000);
    QVERIFY(bytes.isNull());
}

void TextDecodingTest::shared_bytes_are_left_alone()
{
    QByteArray bytes(10'000'000, 'a');
    const QByteArray other = bytes;

    const QString text = takeText(std::move(bytes), TextEncoding::Utf8);

    QCOMPARE(text.size(), 10'000'000);
    QCOMPARE(other.size(), 10'000'000);
}

QTEST_APPLESS_MAIN(TextDecodingTest)
#include "TextDecodingTest.moc"
