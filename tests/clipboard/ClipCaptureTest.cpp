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
    void a_burst_of_copies_is_kept_in_order();
    void a_second_copy_raises_the_first();
    void a_second_copy_of_a_picture_leaves_one_file();
    void a_late_content_keeps_its_own_source();
    void an_owner_that_hangs_spoils_only_its_own_copy();
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
