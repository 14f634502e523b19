#include "app/RecordCodec.h"
#include "clipboard/ClipMaking.h"

#include <QJsonObject>
#include <QtTest>

using namespace velm;

using MaybeColor = std::optional<ColorLiteral>;
Q_DECLARE_METATYPE(MaybeColor)

class ClipItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_first_rule_that_holds_decides_data();
    void the_first_rule_that_holds_decides();
    void a_color_is_read_as_written_data();
    void a_color_is_read_as_written();
    void a_clip_is_told_in_two_lines_data();
    void a_clip_is_told_in_two_lines();
    void a_record_has_exactly_its_keys();
    void a_record_that_is_wrong_is_refused();
    void equal_contents_have_equal_fingerprints();
};

void ClipItemTest::the_first_rule_that_holds_decides_data()
{
    using enum ClipKind;
    QTest::addColumn<QString>("text");
    QTest::addColumn<ClipKind>("kind");
    QTest::newRow("spaces") << " \n\t " << Text;

    QTest::newRow("color") << " #ABC " << Color;
    QTest::newRow("25 characters") << "rgb(100.0, 100.0, 100.00)" << Color;
    QTest::newRow("26 characters") << "rgb(100.0, 100.0, 100.000)" << Text;
    QTest::newRow("marks are no characters") << u"rgb(1,2,3)"_qs + QString(40, u'\u0301') << Color;

    QTest::newRow("web") << "\n https://docs.python.org/3/?q=1#x \n" << Link;
    QTest::newRow("upper case") << "HTTP://A" << Text;
    QTest::newRow("space inside") << "https://a b" << Text;
    QTest::newRow("no-break space inside") << "https://a\u00a0b" << Text;
    QTest::newRow("other scripts") << u"https://пример.рф/😀"_qs << Link;
    QTest::newRow("mailto") << "mailto:mira@lab.org" << Text;
    QTest::newRow("link before code") << "https://a/{b};c" << Link;

    QTest::newRow("address") << "mira.k+x-y@lab-1.example.org" << Link;
    QTest::newRow("a fraction is no word character") << u"½@x.y"_qs << Text;

    QTest::newRow("two markers") << "let x = 1;" << Code;
    QTest::newRow("one marker often") << "a; b; c; d;" << Text;
    QTest::newRow("one marker, two lines indented") << "if x:\n  a;\n  b" << Code;
    QTest::newRow("one marker, tabs and CR LF") << "x;\r\n\ta\r\n\tb" << Code;
    QTest::newRow("one marker, one line indented") << "x;\n  a\nb" << Text;
    QTest::newRow("the first line is trimmed") << "  a;\n  b" << Text;
    QTest::newRow("indented prose") << "a\n  b\n  c\n  d" << Text;
    QTest::newRow("case counts") << "Select x Class y" << Text;
    // Every marker, paired with one that is known.
    for (const char *marker : {"{", "}", "=>", "func ", "def ", "class ", "import ", "const ", "let ", "var ",
                               "<div", "</", "SELECT ", "#include", "print("})
        QTest::newRow(marker) << QString(marker) + u';' << Code;
}

void ClipItemTest::the_first_rule_that_holds_decides()
{
    QFETCH(QString, text);
    QFETCH(ClipKind, kind);

    QCOMPARE(ClipItem::classify(text), kind);
}

void ClipItemTest::a_color_is_read_as_written_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<MaybeColor>("color");
    const auto row = [](const QString &text, const MaybeColor &color) {
        QTest::newRow(qPrintable(text)) << text << color;
    };
    row("#FF8800", {{1, 0x88 / 255.0, 0, 1}});
    row("\u00a0#ABC\n", {{0xaa / 255.0, 0xbb / 255.0, 0xcc / 255.0, 1}});
    row("#ff880080", {{1, 0x88 / 255.0, 0, 1}}); // the alpha does not count
    row("rgb(255, 136, 0)", {{1, 136 / 255.0, 0, 1}});
    row("RGBA(255,136,0,0.5)", {{1, 136 / 255.0, 0, 0.5}});
    row("rgba(510,0,0,255)", {{2, 0, 0, 255}});
    row("rgb . 1.2.3 255 0 51", {{1, 0, 0.2, 1}}); // what is no number is passed over
    row("rgb(127.5,.0,51.)", {{0.5, 0, 0.2, 1}});
    row("rgb(-255,0,0,1,9)", {{1, 0, 0, 1}});
    for (const char *text : {"", "#", "ff8800", "#ff88", "#abcde", "#abcdef1", "#abcdef123", "#12345g",
                             "#+12345", "# 12345", "rgb", "rgb(1,2)", "argb(1,2,3)", "rgb(1.2.3)"})
        row(text, {});
}

void ClipItemTest::a_color_is_read_as_written()
{
    QFETCH(QString, text);
    QFETCH(MaybeColor, color);

    QCOMPARE(ClipItem::parseColor(text), color);
}

void ClipItemTest::a_clip_is_told_in_two_lines_data()
{
    using enum ClipKind;
    QTest::addColumn<ClipKind>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("preview");
    QTest::addColumn<QString>("subtitle");
    const auto row = [](ClipKind kind, const QString &text, const QString &preview, const QString &subtitle) {
        QTest::newRow(qPrintable(text.simplified())) << kind << text << preview << subtitle;
    };
    row(Image, "640×480", "Image", "Image • Editor");
    row(Files, "/a/b.pdf\n/c\n/d/e f.txt", "b.pdf, c, e f.txt", "3 files • Editor");
    row(Link, " https://docs.python.org:80/3 ", "https://docs.python.org:80/3", "docs.python.org");
    row(Link, "file:///home", "file:///home", "Editor");
    row(Link, "http://[:", "http://[:", "Editor");
    row(Text, "hello world!", "hello world!", "12 chars · 2 words • Editor");
    row(Text, " \n\u2028", "(whitespace)", "3 chars · 0 words • Editor");
    row(Code, "a\r\nb", "a\r\nb", "3 chars · 2 words • Editor");
    row(Text, u"👩‍👩‍👧 e\u0301"_qs, u"👩‍👩‍👧 e\u0301"_qs,
        "3 chars · 2 words • Editor");
}

void ClipItemTest::a_clip_is_told_in_two_lines()
{
    QFETCH(ClipKind, kind);
    QFETCH(QString, text);
    const ClipItem item = clipOfKind(kind, text);

    QTEST(item.preview(), "preview");
    QTEST(item.preview(1000), "preview");
    QTEST(item.subtitle(), "subtitle");
}

void ClipItemTest::a_record_has_exactly_its_keys()
{
    ClipItem item = clipOfKind(ClipKind::Files, "/a\n/b");
    item.imageFile = QStringLiteral("X.png");
    item.pinnedAt = noon;

    const QJsonObject json = toJson(item);

    QCOMPARE(json.keys().join(u' '), "date filePaths fingerprint id imageFile kind pinned pinnedAt sourceApp "
                                     "sourceBundleID text useCount");
    QCOMPARE(json["kind"].toString(), "files");
    QCOMPARE(json["date"].toString(), "2026-11-21T12:00:00Z");
    QCOMPARE(fromJson<ClipItem>(json), std::optional(item));
}

void ClipItemTest::a_record_that_is_wrong_is_refused()
{
    const QJsonObject good = toJson(textClip("a"));
    QList<std::pair<QString, QJsonValue>> changes{{"kind", "sound"}, {"date", "yesterday"}, {"text", 1}};
    QVERIFY(!good.contains("imageFile") && !good.contains("pinnedAt") && fromJson<ClipItem>(good));
    for (const QString &key : good.keys())
        changes.append({key, QJsonValue::Undefined});

    for (const auto &[key, value] : changes) {
        QJsonObject json = good;
        json[key] = value;
        QVERIFY2(!fromJson<ClipItem>(json), qPrintable(key));
    }
}

void ClipItemTest::equal_contents_have_equal_fingerprints()
{
    // Longer than the pieces that are digested, and with pairs across their borders.
    const QString text = u"a"_qs + u"ü😀"_qs.repeated(50'000);
    const QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    const QByteArray png(5000, 'x');

    QCOMPARE(sha256Hex(text), QString::fromLatin1(digest.toHex()));
    QCOMPARE(pictureFingerprint(png), sha256Hex(QString::fromLatin1(png.toBase64().left(2048))));
    QCOMPARE(fileFingerprint({"/a", "/b"}), sha256Hex(u"/a|/b"));
}

QTEST_APPLESS_MAIN(ClipItemTest)
#include "ClipItemTest.moc"
