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
    void a_second_copy_raises_the_first();
    void a_late_content_keeps_its_own_source();
    void a_new_copy_trims_the_oldest_with_their_pictures();
    void what_is_nothing_is_not_kept();
    void some_copies_are_skipped_for_good();
    void concealed_copies_are_kept_only_when_wanted();
    void a_content_beyond_the_limit_is_announced_and_not_kept();
};

void ClipCaptureTest::a_text_becomes_a_clip()
{
    ClipRig rig;

    rig.copyText("  The lab slot moved to Thursday\n");

    const ClipItem &item = rig.item(0);
    ClipItem expected = textClip("  The lab slot moved to Thursday\n", rig.loop.wallTime());
    expected.id = QUuid(item.id).toString(QUuid::WithoutBraces).toUpper();
    expected.sourceBundleID = "editor";
    QCOMPARE(item, expected);
    QCOMPARE(rig.announced(), "Copied|The lab slot moved");
    rig.rest(1499ms);
    QVERIFY(rig.island.activity());
    rig.rest(1ms);
    QVERIFY(!rig.island.activity());
}

void ClipCaptureTest::files_become_a_clip()
{
    ClipRig rig;
    rig.front.program = std::nullopt;

    rig.copyData("text/uri-list", "file:///a/b%20c\r\nhttp://x/\r\nfile:///d\r\n");

    ClipItem expected = clipOfKind(ClipKind::Files, "/a/b c\n/d");
    expected.id = rig.item(0).id;
    expected.date = rig.loop.wallTime();
    expected.fingerprint = fileFingerprint({"/a/b c", "/d"});
    expected.sourceApp = "Unknown";
    QCOMPARE(rig.item(0), expected);
}

void ClipCaptureTest::a_picture_becomes_a_clip_with_its_file()
{
    ClipRig rig;

    rig.copyImage(plainImage({64, 48}));

    const ClipItem &item = rig.item(0);
    QCOMPARE(item.kind, ClipKind::Image);
    QCOMPARE(rig.announced(), u"Copied|64×48"_qs);
    QCOMPARE(rig.pictures(), QStringList({*item.imageFile}));
    QCOMPARE(QImage(rig.store.clipsDir().filePath(*item.imageFile)), plainImage({64, 48}));
    QCOMPARE(item.fingerprint, pictureFingerprint(ClipFolder(rig.store.clipsDir()).read(*item.imageFile)));
}

void ClipCaptureTest::a_second_copy_raises_the_first()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyImage(plainImage({9, 9}));
    const QStringList pictures = rig.pictures();
    ClipItem expected = rig.item(1);
    rig.front.program = ProgramInfo{"Other", "other"};
    rig.rest(1min);

    rig.copyImage(plainImage({9, 9}).convertToFormat(QImage::Format_ARGB32));
    rig.copyText("a");

    expected.date = rig.loop.wallTime();
    expected.useCount = 1;
    QCOMPARE(rig.manager->totalCount(), 2);
    QCOMPARE(rig.item(0), expected);
    QCOMPARE(rig.item(1).useCount, 1);
    QCOMPARE(rig.pictures(), pictures);
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
    rig.pasteboard.copyAndHang({"text/plain"});
    rig.pasteboard.copyText("b");
    rig.manager->togglePause();

    rig.pasteboard.releaseReads();
    rig.loop.settle();

    QCOMPARE(rig.copied(), QStringList({"b", "a"}));
    QCOMPARE(rig.item(0).sourceApp, "Quick");
    QCOMPARE(rig.item(1).sourceApp, "Slow");
    QCOMPARE(rig.item(1).date, copiedAt);
}

void ClipCaptureTest::a_new_copy_trims_the_oldest_with_their_pictures()
{
    ClipRig rig;
    rig.copyImage(plainImage({1, 1}));
    rig.copyImage(plainImage({2, 2}));
    rig.manager->togglePin(rig.item(0).id);
    const QString pinned = *rig.item(0).imageFile;
    for (int i = 0; i < 24; ++i)
        rig.copyText(QString::number(i));

    rig.settings.setClipboardLimit(22);
    rig.copyText("3"); // raised only
    QCOMPARE(rig.manager->totalCount(), 26);
    rig.copyText("new");
    QCOMPARE(rig.manager->totalCount(), 23);
    rig.settings.setClipboardLimit(5); // counts as twenty
    rig.copyText("newest");

    QCOMPARE(rig.manager->totalCount(), 21);
    QCOMPARE(rig.item(19).text, "7");
    QCOMPARE(rig.pictures(), QStringList({pinned}));
}

void ClipCaptureTest::what_is_nothing_is_not_kept()
{
    ClipRig rig;
    const QList<PasteboardData> contents{{"text/plain", ""},
                                         {"text/plain", " \n\t\xC2\xA0"},
                                         {"text/html", "<b>"},
                                         {"text/uri-list", "http://x"},
                                         {"image/png", encoded(plainImage({9, 9})).chopped(20)}};

    for (const auto &[type, bytes] : contents)
        rig.copyData(type, bytes);

    QVERIFY(rig.manager->items().isEmpty());
    QVERIFY(!rig.island.activity());
    QVERIFY(rig.pictures().isEmpty());
}

void ClipCaptureTest::some_copies_are_skipped_for_good()
{
    ClipRig rig;
    rig.manager.reset();
    rig.copyText("before the launch");
    rig.restart();
    rig.manager->togglePause();
    rig.copyText("while paused");
    rig.manager->togglePause();
    rig.settings.setClipboardEnabled(false);
    rig.copyText("while switched off");
    rig.settings.setClipboardEnabled(true);
    rig.front.program = ProgramInfo{"Velm", "app.velm.Velm"};
    rig.copyText("within the program itself");
    rig.front.program = ProgramInfo{"Editor", "editor"};

    rig.copyText("a");

    QCOMPARE(rig.copied(), QStringList({"a"}));
}

void ClipCaptureTest::concealed_copies_are_kept_only_when_wanted()
{
    ClipRig rig;
    const QList<PasteboardData> content{{"text/plain", "hunter2"}, {"x-kde-passwordManagerHint", "secret"}};

    rig.pasteboard.copy(content);
    rig.loop.settle();
    QVERIFY(rig.manager->items().isEmpty());

    rig.settings.setIgnoreConcealed(false);
    rig.pasteboard.copy(content);
    rig.loop.settle();
    QCOMPARE(rig.copied(), QStringList({"hunter2"}));
}

void ClipCaptureTest::a_content_beyond_the_limit_is_announced_and_not_kept()
{
    ClipRig rig;
    rig.settings.setClipSizeLimitMegabytes(-3); // counts as one

    rig.copyText(QString(1024 * 1024 + 1, u'a'));
    QVERIFY(rig.manager->items().isEmpty());
    QCOMPARE(rig.announced(), "Too large to keep|");

    rig.copyText(QString(1024 * 1024, u'a'));
    QCOMPARE(rig.manager->totalCount(), 1);
}

QTEST_MAIN(ClipCaptureTest)
#include "ClipCaptureTest.moc"
