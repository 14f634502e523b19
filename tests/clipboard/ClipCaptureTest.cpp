#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipCaptureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_text_becomes_a_clip();
    void files_become_a_clip();
    void a_picture_becomes_a_clip_with_its_file();
    void what_is_nothing_is_not_kept_data();
    void what_is_nothing_is_not_kept();
    void what_was_there_at_launch_is_not_captured();
    void a_burst_of_copies_is_kept_in_order();
    void a_second_copy_raises_the_first();
    void a_second_copy_of_a_picture_leaves_one_file();
    void a_late_content_keeps_its_own_source();
    void an_owner_that_hangs_spoils_only_its_own_copy();
    void copies_while_paused_are_lost_for_good();
    void a_copy_before_the_pause_still_arrives();
    void copies_while_switched_off_are_lost_for_good();
    void copies_within_the_program_itself_are_not_kept();
    void concealed_copies_are_kept_only_when_wanted_data();
    void concealed_copies_are_kept_only_when_wanted();
    void a_content_beyond_the_limit_is_announced_and_not_kept();
    void the_size_limit_is_the_preference();
    void a_broken_picture_gives_way_to_text();
    void the_oldest_are_trimmed_with_their_pictures();
    void a_raise_does_not_trim();
};

namespace
{

const QString utf8Type = QStringLiteral("text/plain;charset=utf-8");

}

void ClipCaptureTest::a_text_becomes_a_clip()
{
    ClipRig rig;
    rig.front.program = ProgramInfo{"Firefox", "firefox"};

    rig.copyText("  hello\n");

    const ClipItem &item = rig.item(0);
    QCOMPARE(item.kind, ClipKind::Text);
    QCOMPARE(item.text, "  hello\n");
    QCOMPARE(item.sourceApp, "Firefox");
    QCOMPARE(item.sourceBundleID, "firefox");
    QCOMPARE(item.date, rig.loop.wallTime());
    QCOMPARE(item.fingerprint, sha256Hex(u"  hello\n"));
    QVERIFY(!item.pinned && !item.pinnedAt && !item.imageFile && item.filePaths.isEmpty() &&
            item.useCount == 0);
    QCOMPARE(item.id, QUuid(item.id).toString(QUuid::WithoutBraces).toUpper());
    QCOMPARE(rig.announced(), "Copied|hello");
}

void ClipCaptureTest::files_become_a_clip()
{
    ClipRig rig;
    rig.front.program = std::nullopt;

    rig.copyData("text/uri-list", "file:///a/b%20c\r\nhttp://x/\r\nfile:///d\r\n");

    const ClipItem &item = rig.item(0);
    QCOMPARE(item.kind, ClipKind::Files);
    QCOMPARE(item.filePaths, QStringList({"/a/b c", "/d"}));
    QCOMPARE(item.text, "/a/b c\n/d");
    QCOMPARE(item.fingerprint, sha256Hex(u"/a/b c|/d"));
    QCOMPARE(item.sourceApp, "Unknown");
    QCOMPARE(item.sourceBundleID, "");
    QCOMPARE(rig.announced(), "Copied|b c, d");
}

void ClipCaptureTest::a_picture_becomes_a_clip_with_its_file()
{
    ClipRig rig;

    rig.copyImage(plainImage({64, 48}, Qt::red));

    const ClipItem &item = rig.item(0);
    QCOMPARE(item.kind, ClipKind::Image);
    QCOMPARE(item.text, u"64×48"_qs);
    QCOMPARE(rig.pictures(), QStringList({*item.imageFile}));
    QFile file(rig.store.clipsDir().filePath(*item.imageFile));
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray png = file.readAll();
    QCOMPARE(item.fingerprint, sha256Hex(QString::fromLatin1(png.toBase64().left(2048))));
    QCOMPARE(QImage::fromData(png), plainImage({64, 48}, Qt::red));
    QCOMPARE(rig.announced(), u"Copied|64×48"_qs);
}

void ClipCaptureTest::what_is_nothing_is_not_kept_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty text") << utf8Type << QByteArray("");
    QTest::newRow("white space") << utf8Type << QByteArray(" \n\t\xC2\xA0");
    QTest::newRow("no type of ours") << "text/html" << QByteArray("<b>");
    QTest::newRow("remote files") << "text/uri-list" << QByteArray("http://x");
    QTest::newRow("no picture") << "image/png" << QByteArray("x");
}

void ClipCaptureTest::what_is_nothing_is_not_kept()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, bytes);
    ClipRig rig;

    rig.copyData(type, bytes);

    QVERIFY(rig.manager->items().isEmpty());
    QVERIFY(!rig.island.activity());
    QVERIFY(rig.pictures().isEmpty());
}

void ClipCaptureTest::what_was_there_at_launch_is_not_captured()
{
    ClipRig rig;
    rig.manager.reset();
    rig.copyText("before");

    rig.start();
    rig.manager->start();
    rig.manager->start();
    rig.copyText("after");

    QCOMPARE(rig.copied(), QStringList({"after"}));
}

void ClipCaptureTest::a_burst_of_copies_is_kept_in_order()
{
    ClipRig rig;
    rig.settings.setClipboardLimit(1000);
    QStringList expected;

    for (int i = 0; i < 500; ++i) {
        rig.pasteboard.copyText(QString::number(i));
        expected.prepend(QString::number(i));
    }
    rig.loop.settle();

    QCOMPARE(rig.copied(), expected);
}

void ClipCaptureTest::a_second_copy_raises_the_first()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyText("b");
    const ClipItem first = rig.item(1);
    rig.front.program = ProgramInfo{"Other", "other"};
    rig.rest(1min);

    rig.copyText("a");

    ClipItem expected = first;
    expected.date = rig.loop.wallTime();
    expected.useCount = 1;
    QCOMPARE(rig.copied(), QStringList({"a", "b"}));
    QCOMPARE(rig.item(0), expected);
    QCOMPARE(rig.announced(), "Copied|a");
}

void ClipCaptureTest::a_second_copy_of_a_picture_leaves_one_file()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    const QStringList files = rig.pictures();

    rig.copyImage(plainImage({9, 9}, Qt::red).convertToFormat(QImage::Format_ARGB32));

    QCOMPARE(rig.manager->totalCount(), 1);
    QCOMPARE(rig.item(0).useCount, 1);
    QCOMPARE(rig.pictures(), files);
}

void ClipCaptureTest::a_late_content_keeps_its_own_source()
{
    ClipRig rig;
    rig.front.program = ProgramInfo{"Slow", "slow"};
    rig.pasteboard.holdReads();
    rig.pasteboard.copyText("a");
    const QDateTime copiedAt = rig.loop.wallTime();
    rig.rest(1s);
    rig.front.program = ProgramInfo{"Quick", "quick"};
    rig.pasteboard.copyText("b");

    rig.pasteboard.releaseReads();
    rig.loop.settle();

    QCOMPARE(rig.copied(), QStringList({"b", "a"}));
    QCOMPARE(rig.item(0).sourceApp, "Quick");
    QCOMPARE(rig.item(1).sourceApp, "Slow");
    QCOMPARE(rig.item(1).date, copiedAt);
}

void ClipCaptureTest::an_owner_that_hangs_spoils_only_its_own_copy()
{
    ClipRig rig;
    rig.copyText("a");
    rig.pasteboard.copyAndHang({utf8Type});
    rig.copyText("b");

    QCOMPARE(rig.copied(), QStringList({"b", "a"}));
}

void ClipCaptureTest::copies_while_paused_are_lost_for_good()
{
    ClipRig rig;
    rig.copyText("a");

    rig.manager->togglePause();
    QCOMPARE(rig.announced(), "Clipboard paused");
    QCOMPARE(rig.island.activity()->icon, "pause.circle.fill");
    rig.copyText("b");
    rig.manager->togglePause();
    QCOMPARE(rig.announced(), "Clipboard on");
    QCOMPARE(rig.island.activity()->icon, "play.circle.fill");
    rig.rest(1s);
    QCOMPARE(rig.copied(), QStringList({"a"}));

    rig.copyText("c");
    QCOMPARE(rig.copied(), QStringList({"c", "a"}));
}

void ClipCaptureTest::a_copy_before_the_pause_still_arrives()
{
    ClipRig rig;
    rig.pasteboard.holdReads();
    rig.pasteboard.copyText("a");
    rig.manager->togglePause();

    rig.pasteboard.releaseReads();
    rig.loop.settle();

    QCOMPARE(rig.copied(), QStringList({"a"}));
}

void ClipCaptureTest::copies_while_switched_off_are_lost_for_good()
{
    ClipRig rig;
    rig.settings.setClipboardEnabled(false);
    rig.copyText("a");
    rig.settings.setClipboardEnabled(true);
    rig.copyText("b");

    QCOMPARE(rig.copied(), QStringList({"b"}));
}

void ClipCaptureTest::copies_within_the_program_itself_are_not_kept()
{
    ClipRig rig;
    rig.front.program = ProgramInfo{"Velm", "app.velm.Velm"};

    rig.copyText("a");

    QVERIFY(rig.manager->items().isEmpty());
}

void ClipCaptureTest::concealed_copies_are_kept_only_when_wanted_data()
{
    QTest::addColumn<QString>("marker");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isMarked");
    QTest::newRow("concealed") << "org.nspasteboard.ConcealedType" << QByteArray() << true;
    QTest::newRow("transient") << "org.nspasteboard.TransientType" << QByteArray() << true;
    QTest::newRow("generated") << "org.nspasteboard.AutoGeneratedType" << QByteArray("1") << true;
    QTest::newRow("secret") << "x-kde-passwordManagerHint" << QByteArray("secret") << true;
    QTest::newRow("no secret") << "x-kde-passwordManagerHint" << QByteArray("public") << false;
}

void ClipCaptureTest::concealed_copies_are_kept_only_when_wanted()
{
    QFETCH(QString, marker);
    QFETCH(QByteArray, value);
    QFETCH(bool, isMarked);
    ClipRig rig;
    const QList<PasteboardData> content{{marker, value}, {utf8Type, "hunter2"}};

    rig.pasteboard.copy(content);
    rig.loop.settle();
    QCOMPARE(rig.manager->items().isEmpty(), isMarked);

    rig.settings.setIgnoreConcealed(false);
    rig.pasteboard.copy(content);
    rig.loop.settle();
    QCOMPARE(rig.copied(), QStringList({"hunter2"}));
}

void ClipCaptureTest::a_content_beyond_the_limit_is_announced_and_not_kept()
{
    ClipRig rig;
    rig.settings.setClipSizeLimitMegabytes(1);

    rig.copyText(QString(1024 * 1024 + 1, u'a'));

    QVERIFY(rig.manager->items().isEmpty());
    QCOMPARE(rig.announced(), "Too large to keep");
    QCOMPARE(rig.island.activity()->icon, "exclamationmark.circle.fill");
    QVERIFY(!rig.island.activity()->sticky);

    rig.copyText(QString(1024 * 1024, u'a'));
    QCOMPARE(rig.manager->totalCount(), 1);
}

void ClipCaptureTest::the_size_limit_is_the_preference()
{
    ClipRig rig;
    QCOMPARE(rig.pasteboard.sizeLimit, mebibytes(64));

    rig.settings.setClipSizeLimitMegabytes(7);
    QCOMPARE(rig.pasteboard.sizeLimit, mebibytes(7));
    rig.settings.setClipSizeLimitMegabytes(-3);
    QCOMPARE(rig.pasteboard.sizeLimit, mebibytes(1));
}

void ClipCaptureTest::a_broken_picture_gives_way_to_text()
{
    ClipRig rig;
    const QByteArray png = encoded(plainImage({9, 9}, Qt::red));

    rig.pasteboard.copy({{"image/png", png.chopped(20)}, {utf8Type, "a"}});
    rig.loop.settle();

    QCOMPARE(rig.copied(), QStringList({"a"}));
    QVERIFY(rig.pictures().isEmpty());
}

void ClipCaptureTest::the_oldest_are_trimmed_with_their_pictures()
{
    ClipRig rig;
    rig.settings.setClipboardLimit(5);
    rig.copyImage(plainImage({1, 1}, Qt::red));
    rig.copyImage(plainImage({2, 2}, Qt::red));
    rig.manager->togglePin(rig.item(0).id);
    const QString pinned = *rig.item(0).imageFile;
    for (int i = 0; i < 19; ++i)
        rig.copyText(QString::number(i));
    QCOMPARE(rig.pictures().size(), 2);

    rig.copyText("one more");

    QCOMPARE(rig.manager->totalCount(), 21);
    QCOMPARE(rig.pictures(), QStringList({pinned}));
}

void ClipCaptureTest::a_raise_does_not_trim()
{
    ClipRig rig;
    for (int i = 0; i < 25; ++i)
        rig.copyText(QString::number(i));
    rig.settings.setClipboardLimit(20);

    rig.copyText("3");
    QCOMPARE(rig.manager->totalCount(), 25);

    rig.copyText("new");
    QCOMPARE(rig.manager->totalCount(), 20);
}

QTEST_MAIN(ClipCaptureTest)
#include "ClipCaptureTest.moc"
