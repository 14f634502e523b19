#include "app/Characters.h"

#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

class CharactersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void what_a_person_sees_as_one_counts_as_one_data();
    void what_a_person_sees_as_one_counts_as_one();
    void a_cut_never_tears_a_character_data();
    void a_cut_never_tears_a_character();
    void a_whole_text_is_not_copied();
    void long_stretches_of_marks_are_counted_as_short_ones_data();
    void long_stretches_of_marks_are_counted_as_short_ones();
    void words_stand_between_white_space_data();
    void words_stand_between_white_space();
};

void CharactersTest::what_a_person_sees_as_one_counts_as_one_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("count");

    const auto row = [](const char *name, const QString &text, qsizetype count) {
        QTest::newRow(name) << text << count;
    };
    row("nothing", u""_s, 0);
    row("plain", u"hello"_s, 5);
    row("latin letters", u"naïve ÿ"_s, 7);
    row("CR LF", u"a\r\nb"_s, 3);
    row("LF CR", u"\n\r"_s, 2);
    row("CR CR LF LF", u"\r\r\n\n"_s, 3);
    row("CR at the end", u"a\r"_s, 2);
    row("a combining accent", u"e\u0301x"_s, 2);
    row("an accent on its own", u"\u0301"_s, 1);
    row("an accent after a line feed", u"\n\u0301"_s, 2);
    row("an accent after CR LF", u"a\r\n\u0301b"_s, 4);
    row("CR LF after an accent", u"e\u0301\r\nb"_s, 3);
    row("CR LF after one more", u"e\u0301x\r\nb"_s, 4);
    row("accents and plain in turn", u"e\u0301e\u0301ee\u0301"_s, 4);
    row("Cyrillic", u"привет"_s, 6);
    row("Chinese", u"你好世界"_s, 4);
    row("Korean in letters", u"\u1112\u1161\u11ab\u1100\u1173\u11af"_s, 2);
    row("Hindi", u"निधि"_s, 2);
    row("an emoji", u"a😀b"_s, 3);
    row("a skin tone", u"👍🏽"_s, 1);
    row("a family", u"👨‍👩‍👧"_s, 1);
    row("two flags", u"🇩🇪🇫🇷"_s, 2);
    row("a flag and a half", u"🇩🇪🇫"_s, 2);
    row("a keycap", u"1️⃣2"_s, 2);
    row("joined signs of Latin-1", u"©\u200d®"_s, 1);
    row("a mark before", u"\u0600a"_s, 1);
    row("a lone surrogate", u"a"_s + QChar(0xd83d) + u"b"_s, 3);
}

void CharactersTest::what_a_person_sees_as_one_counts_as_one()
{
    QFETCH(QString, text);
    QFETCH(qsizetype, count);

    QCOMPARE(characterCount(text), count);
    const QString inside = u'\t' + text + u'\t'; // nothing belongs to a control character
    QCOMPARE(characterCount(inside), count + 2);
}

void CharactersTest::a_cut_never_tears_a_character_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("count");
    QTest::addColumn<QString>("cut");

    const auto row = [](const char *name, const QString &text, qsizetype count, const QString &cut) {
        QTest::newRow(name) << text << count << cut;
    };
    row("none", u"abc"_s, 0, u""_s);
    row("fewer than none", u"abc"_s, -1, u""_s);
    row("none of a flag", u"🇩🇪"_s, 0, u""_s);
    row("plain", u"abcdef"_s, 3, u"abc"_s);
    row("an accent past the cut", u"abce\u0301"_s, 3, u"abc"_s);
    row("an accent on the last", u"abe\u0301x"_s, 3, u"abe\u0301"_s);
    row("CR LF as the last", u"ab\r\nc"_s, 3, u"ab\r\n"_s);
    row("before CR LF", u"ab\r\nc"_s, 2, u"ab"_s);
    row("a family as the last", u"a👨‍👩‍👧b"_s, 2, u"a👨‍👩‍👧"_s);
    row("a family past the cut", u"a👨‍👩‍👧b"_s, 1, u"a"_s);
    row("plain behind an emoji", u"😀abc"_s, 3, u"😀ab"_s);
    row("more than there is", u"a😀"_s, 9, u"a😀"_s);
}

void CharactersTest::a_cut_never_tears_a_character()
{
    QFETCH(QString, text);
    QFETCH(qsizetype, count);
    QFETCH(QString, cut);

    QCOMPARE(firstCharacters(text, count), cut);
}

void CharactersTest::a_whole_text_is_not_copied()
{
    const QString text(5, u'x');

    QVERIFY(firstCharacters(text, 5).isSharedWith(text));
}

void CharactersTest::long_stretches_of_marks_are_counted_as_short_ones_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<int>("times");

    for (const int times : {2047, 2048, 2049, 4095, 4096, 4097, 50000}) {
        QTest::addRow("%d Chinese", times) << u"你"_s << times;
        QTest::addRow("%d flags", times) << u"🇩🇪"_s << times;
        QTest::addRow("%d families", times) << u"👨‍👩‍👧"_s << times;
        QTest::addRow("%d accents", times) << u"e\u0301"_s << times;
        QTest::addRow("%d CR LF", times) << u"\r\n"_s << times;
    }
    QTest::newRow("one with ten thousand accents") << u'e' + QString(10000, QChar(0x301)) << 3;
}

void CharactersTest::long_stretches_of_marks_are_counted_as_short_ones()
{
    QFETCH(QString, character);
    QFETCH(int, times);
    const QString text = character.repeated(times);

    QCOMPARE(characterCount(text), times);
    QCOMPARE(firstCharacters(text, times - 1).size(), character.size() * (times - 1));
}

void CharactersTest::words_stand_between_white_space_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("count");

    QTest::newRow("none") << u""_s << qsizetype(0);
    QTest::newRow("white space only") << u" \t\r\n\u00a0\u2028"_s << qsizetype(0);
    QTest::newRow("two") << u"hello world\n"_s << qsizetype(2);
    QTest::newRow("runs of white space") << u"  a \t b\n\nc"_s << qsizetype(3);
    QTest::newRow("a no-break space parts") << u"10\u00a0km"_s << qsizetype(2);
    QTest::newRow("an ideographic space parts") << u"你\u3000好"_s << qsizetype(2);
    QTest::newRow("a zero width space joins") << u"a\u200bb"_s << qsizetype(1);
    QTest::newRow("emoji") << u"😀 😀"_s << qsizetype(2);
}

void CharactersTest::words_stand_between_white_space()
{
    QFETCH(QString, text);
    QFETCH(qsizetype, count);

    QCOMPARE(wordCount(text), count);
}

}

QTEST_GUILESS_MAIN(velm::CharactersTest)
#include "CharactersTest.moc"
