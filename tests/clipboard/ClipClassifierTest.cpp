#include "clipboard/ClipMaking.h"

#include <QtTest>

using namespace velm;

class ClipClassifierTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_first_rule_that_holds_decides_data();
    void the_first_rule_that_holds_decides();
    void a_huge_text_is_classified_at_once_data();
    void a_huge_text_is_classified_at_once();
};

void ClipClassifierTest::the_first_rule_that_holds_decides_data()
{
    using enum ClipKind;
    QTest::addColumn<QString>("text");
    QTest::addColumn<ClipKind>("kind");
    QTest::newRow("empty") << "" << Text;
    QTest::newRow("spaces") << " \n\t " << Text;
    QTest::newRow("prose") << "The lab slot moved to Thursday" << Text;

    QTest::newRow("color") << " #ABC " << Color;
    QTest::newRow("color with alpha") << "#abcdef12" << Color;
    QTest::newRow("five digits") << "#abcde" << Text;
    QTest::newRow("25 characters") << "rgb(100.0, 100.0, 100.00)" << Color;
    QTest::newRow("26 characters") << "rgb(100.0, 100.0, 100.000)" << Text;
    QTest::newRow("31 characters") << "rgb(100.000, 100.000, 100.000)" << Text;
    QTest::newRow("combined marks are no characters") << u"rgb(1,2,3)"_qs + QString(40, u'\u0301') << Color;

    QTest::newRow("http") << "http://a" << Link;
    QTest::newRow("https") << "\n https://docs.python.org/3/?q=1#x \n" << Link;
    QTest::newRow("file") << "file:///home/mira" << Link;
    QTest::newRow("ftp") << "ftp://x" << Link;
    QTest::newRow("upper case") << "HTTP://A" << Text;
    QTest::newRow("nothing after") << "http://" << Text;
    QTest::newRow("space inside") << "https://a b" << Text;
    QTest::newRow("line break inside") << "https://a\nhttps://b" << Text;
    QTest::newRow("no-break space inside") << "https://a\u00a0b" << Text;
    QTest::newRow("ideographic space inside") << "https://a\u3000b" << Text;
    QTest::newRow("other scripts") << u"https://пример.рф/路径"_qs << Link;
    QTest::newRow("emoji") << u"https://a/😀"_qs << Link;
    QTest::newRow("text before") << "see https://a" << Text;
    QTest::newRow("mailto") << "mailto:mira@lab.org" << Text;
    QTest::newRow("a link with markers") << "https://a/{b};c" << Link;

    QTest::newRow("address") << "mira.k+x-y@lab-1.example.org" << Link;
    QTest::newRow("address, other script") << u"мира@пример.рф"_qs << Link;
    QTest::newRow("address, combining mark") << u"e\u0301@x.y"_qs << Link;
    QTest::newRow("address, circled letter") << u"ⓐ@x.y"_qs << Link;
    QTest::newRow("a fraction is no word character") << u"½@x.y"_qs << Text;
    QTest::newRow("no dot") << "mira@lab" << Text;
    QTest::newRow("two at signs") << "a@b@c.d" << Text;
    QTest::newRow("dots only after") << "a@b.." << Link;
    QTest::newRow("dash after the dot") << "a@b.c-d" << Text;

    QTest::newRow("two markers") << "let x = 1;" << Code;
    QTest::newRow("one marker") << "a; b" << Text;
    QTest::newRow("one marker often") << "a; b; c; d;" << Text;
    QTest::newRow("one marker, two lines indented") << "if x:\n  a;\n  b" << Code;
    QTest::newRow("one marker, tabs") << "x;\n\ta\n\tb" << Code;
    QTest::newRow("one marker, one line indented") << "x;\n  a\nb" << Text;
    QTest::newRow("one marker, one space") << "x;\n a\n b" << Text;
    QTest::newRow("the first line is trimmed") << "  a;\n  b" << Text;
    QTest::newRow("two lines, both indented") << "  a;\n  b\n  c" << Code;
    QTest::newRow("CR LF") << "x;\r\n  a\r\n  b" << Code;
    QTest::newRow("line separators") << u"x;\u2028  a\u2029\tb"_qs << Code;
    QTest::newRow("indented prose") << "a\n  b\n  c\n  d" << Text;
    QTest::newRow("case counts") << "Select x Class y" << Text;
    QTest::newRow("inside words") << "outlet subclass " << Text; // trimmed, only "outlet " has a marker
    QTest::newRow("inside words, two") << "outlet subclass x" << Code;
    QTest::newRow("html") << "<div>a</div>" << Code;
    QTest::newRow("sql and arrow") << "SELECT a => b" << Code;
    QTest::newRow("c") << "#include <x>\nint main() {" << Code;
    QTest::newRow("python") << "def f(): print(1)" << Code;
    QTest::newRow("var and const") << "var a const b" << Code;
    QTest::newRow("func and import") << "func a import b" << Code;
    QTest::newRow("a NUL is a character like others")
        << QStringLiteral("let a") + QChar(0) + QStringLiteral(";") << Code;
}

void ClipClassifierTest::the_first_rule_that_holds_decides()
{
    QFETCH(QString, text);
    QFETCH(ClipKind, kind);

    QCOMPARE(ClipItem::classify(text), kind);
}

void ClipClassifierTest::a_huge_text_is_classified_at_once_data()
{
    using enum ClipKind;
    constexpr qsizetype length = 10'000'000;
    QTest::addColumn<QString>("text");
    QTest::addColumn<ClipKind>("kind");
    QTest::newRow("one letter") << QString(length, u'a') << Text;
    QTest::newRow("link") << u"https://"_qs + QString(length, u'a') << Link;
    QTest::newRow("nearly a link") << u"https://"_qs + QString(length, u'a') + u" b"_qs << Text;
    QTest::newRow("nearly an address") << QString(length, u'a') + u"@"_qs + QString(length, u'b') << Text;
    QTest::newRow("dots for an address") << u"a@b"_qs + QString(length, u'.') + u"!"_qs << Text;
    QTest::newRow("digits of a color") << u"#"_qs + QString(length, u'1') << Text;
    QTest::newRow("numbers of a color") << u"rgb"_qs + u"1 "_qs.repeated(length / 2) << Text;
    QTest::newRow("one number of a color") << u"rgb"_qs + QString(length, u'1') << Text;
    QTest::newRow("lines") << u"; \n"_qs.repeated(length / 3) << Text;
    QTest::newRow("half markers") << u"<d=impor"_qs.repeated(length / 8) << Text;
}

void ClipClassifierTest::a_huge_text_is_classified_at_once()
{
    QFETCH(QString, text);
    QFETCH(ClipKind, kind);

    QElapsedTimer timer;
    timer.start();
    const ClipKind found = ClipItem::classify(text);
    const qint64 milliseconds = timer.elapsed();

    QCOMPARE(found, kind);
    // Many times what it takes, and far below what anything worse than linear would.
    QVERIFY2(milliseconds < 3000, qPrintable(QString::number(milliseconds)));
    qInfo("%lld ms", milliseconds);
}

QTEST_APPLESS_MAIN(ClipClassifierTest)
#include "ClipClassifierTest.moc"
