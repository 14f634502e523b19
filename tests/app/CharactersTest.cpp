#include "app/Characters.h"

#include <QTest>

using namespace velm;
using namespace Qt::StringLiterals;

class CharactersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void what_a_person_sees_as_one_is_counted_and_cut_as_one_data();
    void what_a_person_sees_as_one_is_counted_and_cut_as_one();
    void long_stretches_of_marks_are_counted_as_short_ones();
    void words_stand_between_white_space();
};

void CharactersTest::what_a_person_sees_as_one_is_counted_and_cut_as_one_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");

    QTest::newRow("nothing") << u""_s << 0;
    QTest::newRow("latin letters") << u"naïve ÿ"_s << 7;
    QTest::newRow("line ends") << u"a\r\nb\r\r\n\n\rc\r"_s << 9;
    QTest::newRow("accents and plain in turn") << u"e\u0301e\u0301ee\u0301"_s << 4;
    QTest::newRow("an accent on its own") << u"\u0301"_s << 1;
    QTest::newRow("an accent after CR LF") << u"a\r\n\u0301b"_s << 4;
    QTest::newRow("CR LF after an accent") << u"e\u0301\r\nb"_s << 3;
    QTest::newRow("Korean in letters") << u"\u1112\u1161\u11ab\u1100\u1173\u11af"_s << 2;
    QTest::newRow("emoji") << u"a😀b👍🏽👨‍👩‍👧c"_s << 6;
    QTest::newRow("flags") << u"🇩🇪🇫🇷🇫"_s << 3;
    QTest::newRow("joined signs of Latin-1") << u"©\u200d®"_s << 1;
    QTest::newRow("a lone surrogate") << u"a"_s + QChar(0xd83d) + u"b"_s << 3;
}

void CharactersTest::what_a_person_sees_as_one_is_counted_and_cut_as_one()
{
    QFETCH(QString, text);
    QFETCH(int, count);

    QCOMPARE(characterCount(text), count);
    QCOMPARE(firstCharacters(text, -1), QString());
    for (int first = 0; first <= count; ++first) {
        const QString cut = firstCharacters(text, first);
        QVERIFY(text.startsWith(cut));
        QCOMPARE(characterCount(cut), first);
        QCOMPARE(characterCount(text.mid(cut.size())), count - first); // a torn one would count twice
    }
}

void CharactersTest::long_stretches_of_marks_are_counted_as_short_ones()
{
    for (const QString &character : {u"你"_s, u"🇩🇪"_s, u"👨‍👩‍👧"_s, u"e\u0301"_s, u"\r\n"_s}) {
        for (const int times : {2047, 2048, 2049, 4095, 4096, 4097, 50000}) {
            const QString text = character.repeated(times);
            QCOMPARE(characterCount(text), times);
            QCOMPARE(firstCharacters(text, times - 1).size(), character.size() * (times - 1));
        }
    }
    QCOMPARE(characterCount(QString(10000, QChar(0x301)).prepend(u'e')), 1);
}

void CharactersTest::words_stand_between_white_space()
{
    QCOMPARE(wordCount(u" \t\r\n\u00a0\u2028"), 0);
    QCOMPARE(wordCount(u"  a \t b\n\nc"), 3);
    QCOMPARE(wordCount(u"10\u00a0km"), 2);
    QCOMPARE(wordCount(u"a\u200bb"), 1); // a zero width space joins
}

QTEST_GUILESS_MAIN(CharactersTest)
#include "CharactersTest.moc"
