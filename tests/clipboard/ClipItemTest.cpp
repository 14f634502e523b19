#include "app/RecordCodec.h"
#include "clipboard/ClipMaking.h"

#include <QJsonObject>
#include <QtTest>

using namespace velm;

class ClipItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_have_their_names_and_symbols();
    void the_preview_is_the_title_data();
    void the_preview_is_the_title();
    void the_subtitle_tells_about_it_data();
    void the_subtitle_tells_about_it();
    void a_huge_text_is_not_laid_out();
    void a_record_has_exactly_its_keys();
    void a_record_without_optional_keys_is_read();
    void a_record_that_is_wrong_is_refused_data();
    void a_record_that_is_wrong_is_refused();
    void the_fingerprint_is_the_digest_of_the_utf8_data();
    void the_fingerprint_is_the_digest_of_the_utf8();
    void a_picture_is_known_by_its_beginning();
};

void ClipItemTest::kinds_have_their_names_and_symbols()
{
    QStringList lines;
    for (ClipKind kind : allClipKinds())
        lines.append(label(kind) + u' ' + icon(kind));

    QCOMPARE(lines,
             QStringList({"Text textformat", "Link link", "Code chevron.left.forwardslash.chevron.right",
                          "Color paintpalette.fill", "Image photo.fill", "Files doc.fill"}));
}

void ClipItemTest::the_preview_is_the_title_data()
{
    QTest::addColumn<ClipItem>("item");
    QTest::addColumn<QString>("preview");
    QTest::newRow("image") << clipOfKind(ClipKind::Image, "640×480") << "Image";
    QTest::newRow("files") << filesClip({"/a/b.pdf", "/c", "/d/e f.txt"}) << "b.pdf, c, e f.txt";
    QTest::newRow("root") << filesClip({"/"}) << "/";
    QTest::newRow("no files") << filesClip({}) << "";
    QTest::newRow("trimmed") << clipOfKind(ClipKind::Text, " \n a \n b\t\u00a0") << "a \n b";
    QTest::newRow("spaces") << clipOfKind(ClipKind::Text, " \n\u2028") << "(whitespace)";
    QTest::newRow("code") << clipOfKind(ClipKind::Code, "\tlet x;") << "let x;";
}

void ClipItemTest::the_preview_is_the_title()
{
    QFETCH(ClipItem, item);
    QFETCH(QString, preview);

    QCOMPARE(item.preview(), preview);
    QCOMPARE(item.preview(1000), preview);
    QCOMPARE(item.preview(2), preview.left(2));
}

void ClipItemTest::the_subtitle_tells_about_it_data()
{
    QTest::addColumn<ClipItem>("item");
    QTest::addColumn<QString>("subtitle");
    QTest::newRow("host") << clipOfKind(ClipKind::Link, " https://docs.python.org:80/3 ")
                          << "docs.python.org";
    QTest::newRow("address") << clipOfKind(ClipKind::Link, "a@b.c") << "Editor";
    QTest::newRow("file link") << clipOfKind(ClipKind::Link, "file:///home") << "Editor";
    QTest::newRow("no URL") << clipOfKind(ClipKind::Link, "http://[:") << "Editor";
    QTest::newRow("one file") << filesClip({"/a"}) << "1 file • Editor";
    QTest::newRow("three files") << filesClip({"/a", "/b", "/c"}) << "3 files • Editor";
    QTest::newRow("image") << clipOfKind(ClipKind::Image, "640×480") << "Image • Editor";
    QTest::newRow("text") << clipOfKind(ClipKind::Text, "hello world!") << "12 chars · 2 words • Editor";
    QTest::newRow("one of each") << clipOfKind(ClipKind::Text, "a") << "1 chars · 1 word • Editor";
    QTest::newRow("untrimmed") << clipOfKind(ClipKind::Text, "   ") << "3 chars · 0 words • Editor";
    QTest::newRow("CR LF is one") << clipOfKind(ClipKind::Code, "a\r\nb") << "3 chars · 2 words • Editor";
    QTest::newRow("clusters") << clipOfKind(ClipKind::Text, u"👩‍👩‍👧 e\u0301"_qs)
                              << "3 chars · 2 words • Editor";
    QTest::newRow("no-break space") << clipOfKind(ClipKind::Color, u"a\u00a0b"_qs)
                                    << "3 chars · 2 words • Editor";
}

void ClipItemTest::the_subtitle_tells_about_it()
{
    QFETCH(ClipItem, item);
    QFETCH(QString, subtitle);

    QCOMPARE(item.subtitle(), subtitle);
}

void ClipItemTest::a_huge_text_is_not_laid_out()
{
    const ClipItem item = clipOfKind(ClipKind::Text, u"  "_qs + QString(10'000'000, u'a'));

    QElapsedTimer timer;
    timer.start();
    const QString preview = item.preview(240);

    QCOMPARE(preview, QString(240, u'a'));
    QVERIFY(timer.elapsed() < 50); // microseconds, on any machine
}

void ClipItemTest::a_record_has_exactly_its_keys()
{
    ClipItem item = filesClip({"/a", "/b"});
    item.imageFile = QStringLiteral("X.png");
    item.pinnedAt = noon;
    item.useCount = 3;

    const QJsonObject json = toJson(item);

    QCOMPARE(json.keys(),
             QStringList({"date", "filePaths", "fingerprint", "id", "imageFile", "kind", "pinned", "pinnedAt",
                          "sourceApp", "sourceBundleID", "text", "useCount"}));
    QCOMPARE(json["kind"].toString(), "files");
    QCOMPARE(json["date"].toString(), "2026-11-21T12:00:00Z");
    QCOMPARE(fromJson<ClipItem>(json), std::optional(item));
}

void ClipItemTest::a_record_without_optional_keys_is_read()
{
    const QJsonObject json = toJson(textClip("a"));

    QVERIFY(!json.contains("imageFile") && !json.contains("pinnedAt"));
    QCOMPARE(fromJson<ClipItem>(json)->imageFile, std::nullopt);
}

void ClipItemTest::a_record_that_is_wrong_is_refused_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("unknown kind") << "kind" << QJsonValue("sound");
    QTest::newRow("kind in upper case") << "kind" << QJsonValue("Text");
    QTest::newRow("date") << "date" << QJsonValue("yesterday");
    QTest::newRow("number for text") << "text" << QJsonValue(1);
    for (const QString &key : toJson(textClip("a")).keys())
        QTest::newRow(qPrintable("no " + key)) << key << QJsonValue(QJsonValue::Undefined);
}

void ClipItemTest::a_record_that_is_wrong_is_refused()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QJsonObject json = toJson(textClip("a"));

    json[key] = value;

    QVERIFY(!fromJson<ClipItem>(json));
}

void ClipItemTest::the_fingerprint_is_the_digest_of_the_utf8_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("ascii") << "abc";
    QTest::newRow("other scripts") << u"Grüße, 世界 😀"_qs;
    // Surrogate pairs across the borders of the pieces that are digested.
    QTest::newRow("long") << u"a"_qs + u"😀"_qs.repeated(50'000);
}

void ClipItemTest::the_fingerprint_is_the_digest_of_the_utf8()
{
    QFETCH(QString, text);

    const QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);

    QCOMPARE(sha256Hex(text), QString::fromLatin1(digest.toHex()));
}

void ClipItemTest::a_picture_is_known_by_its_beginning()
{
    const QByteArray png(5000, 'x');
    QByteArray other = png;
    other[1536] = 'y';

    QCOMPARE(pictureFingerprint(png), sha256Hex(QString::fromLatin1(png.toBase64().left(2048))));
    QCOMPARE(pictureFingerprint(other), pictureFingerprint(png));
    QCOMPARE(pictureFingerprint("x"), sha256Hex(u"eA=="_qs));
    QCOMPARE(fileFingerprint({"/a", "/b"}), sha256Hex(u"/a|/b"_qs));
}

QTEST_MAIN(ClipItemTest)
#include "ClipItemTest.moc"
