#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipboardManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_copy_is_announced_for_a_moment_data();
    void a_copy_is_announced_for_a_moment();
    void a_text_is_put_back_as_it_was();
    void files_are_put_back_as_files();
    void a_picture_is_put_back_as_a_picture();
    void a_picture_whose_file_is_gone_clears_the_pasteboard();
    void using_a_clip_leaves_it_in_its_place();
    void using_a_clip_that_is_not_there_does_nothing();
    void what_we_wrote_is_swallowed_once();
    void a_copy_after_another_is_never_taken_for_ours();
    void a_different_copy_leaves_our_own_marked();
    void pinning_is_felt_and_saved();
};

void ClipboardManagerTest::a_copy_is_announced_for_a_moment_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("detail");
    QTest::newRow("text") << " The lab slot moved to Thursday"
                          << "textformat"
                          << "The lab slot moved";
    QTest::newRow("link") << "https://docs.python.org/3/"
                          << "link"
                          << "https://docs.pytho";
    QTest::newRow("code") << "let x = 1;"
                          << "chevron.left.forwardslash.chevron.right"
                          << "let x = 1;";
    QTest::newRow("color") << "#fff"
                           << "paintpalette.fill"
                           << "#fff";
    QTest::newRow("clusters") << u"👩‍👩‍👧"_qs.repeated(20) << "textformat"
                              << u"👩‍👩‍👧"_qs.repeated(18);
}

void ClipboardManagerTest::a_copy_is_announced_for_a_moment()
{
    QFETCH(QString, text);
    QFETCH(QString, icon);
    QFETCH(QString, detail);
    ClipRig rig;

    rig.copyText(text);

    QCOMPARE(rig.island.activity()->icon, icon);
    QCOMPARE(rig.island.activity()->tint, Tint::Clipboard);
    QCOMPARE(rig.announced(), "Copied|" + detail);
    rig.rest(1499ms);
    QVERIFY(rig.island.activity());
    rig.rest(1ms);
    QVERIFY(!rig.island.activity());
}

void ClipboardManagerTest::a_text_is_put_back_as_it_was()
{
    ClipRig rig;
    rig.copyText(u" Grüße\0 "_qs);

    rig.manager->use(rig.item(0).id, false);

    QVERIFY(rig.pasteboard.isOwn());
    QCOMPARE(rig.pasted(), rig.item(0).text);
    QCOMPARE(rig.pasteboard.bytes("text/plain"), rig.item(0).text.toUtf8());
    QCOMPARE(rig.sounds.played.last(), Sound::Pop);
    QVERIFY(rig.keys.pressed.isEmpty());
}

void ClipboardManagerTest::files_are_put_back_as_files()
{
    ClipRig rig;
    rig.copyData("text/uri-list", "file:///a%20b\r\nfile:///c\r\n");

    rig.manager->use(rig.item(0).id, false);

    QCOMPARE(rig.pasteboard.bytes("text/uri-list"), "file:///a%20b\r\nfile:///c\r\n");
    QCOMPARE(rig.pasteboard.bytes("x-special/gnome-copied-files"), "copy\nfile:///a%20b\nfile:///c");
    QCOMPARE(rig.pasted(), "/a b\n/c");
}

void ClipboardManagerTest::a_picture_is_put_back_as_a_picture()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));

    rig.manager->use(rig.item(0).id, false);

    QCOMPARE(rig.pasteboard.written->size(), 1);
    QCOMPARE(QImage::fromData(rig.pasteboard.bytes("image/png")), plainImage({9, 9}, Qt::red));
}

void ClipboardManagerTest::a_picture_whose_file_is_gone_clears_the_pasteboard()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    QVERIFY(QFile::remove(rig.store.clipsDir().filePath(*rig.item(0).imageFile)));

    rig.manager->use(rig.item(0).id, false);

    QVERIFY(rig.pasteboard.isOwn());
    QVERIFY(rig.pasteboard.written->empty());
    QCOMPARE(rig.item(0).useCount, 1);
    QCOMPARE(rig.item(0).preview(), "Image");
}

void ClipboardManagerTest::using_a_clip_leaves_it_in_its_place()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyText("b");
    const ClipItem before = rig.item(1);
    rig.rest(1min);

    rig.manager->use(before.id, false);

    ClipItem expected = before;
    expected.useCount = 1;
    QCOMPARE(rig.item(1), expected);
}

void ClipboardManagerTest::using_a_clip_that_is_not_there_does_nothing()
{
    ClipRig rig;
    rig.copyText("a");
    rig.sounds.played.clear();

    rig.manager->use("?", true);
    rig.manager->togglePin("?");
    rig.manager->remove("?");
    rig.rest(1s);

    QVERIFY(!rig.pasteboard.isOwn());
    QVERIFY(rig.sounds.played.isEmpty());
    QVERIFY(rig.keys.pressed.isEmpty());
    QVERIFY(!rig.undo.isOffered());
    QCOMPARE(rig.copied(), QStringList({"a"}));
}

void ClipboardManagerTest::what_we_wrote_is_swallowed_once()
{
    ClipRig rig;
    rig.copyText("a");
    rig.manager->use(rig.item(0).id, false);
    rig.rest(10s);

    rig.copyText("a");
    QCOMPARE(rig.item(0).useCount, 1);
    QVERIFY(!rig.island.activity());

    rig.copyText("a");
    QCOMPARE(rig.item(0).useCount, 2);
    QCOMPARE(rig.announced(), "Copied|a");
}

void ClipboardManagerTest::a_copy_after_another_is_never_taken_for_ours()
{
    ClipRig rig;
    rig.copyText("a");
    rig.manager->use(rig.item(0).id, false);

    rig.copyText("b");
    rig.copyText("a");

    QCOMPARE(rig.copied(), QStringList({"a", "b"}));
    QCOMPARE(rig.item(0).useCount, 2);
}

void ClipboardManagerTest::a_different_copy_leaves_our_own_marked()
{
    ClipRig rig;
    rig.copyText("a");
    rig.manager->use(rig.item(0).id, false);

    rig.copyText("b");
    QCOMPARE(rig.copied(), QStringList({"b", "a"}));
    rig.manager->use(rig.item(1).id, false);
    rig.rest(10s);
    rig.copyText("a");

    QCOMPARE(rig.copied(), QStringList({"b", "a"}));
}

void ClipboardManagerTest::pinning_is_felt_and_saved()
{
    ClipRig rig;
    rig.copyText("a");

    rig.manager->togglePin(rig.item(0).id);

    QVERIFY(rig.item(0).pinned);
    QCOMPARE(rig.item(0).pinnedAt, std::optional(rig.loop.wallTime()));
    QCOMPARE(rig.manager->pinnedCount(), 1);
    QCOMPARE(rig.haptics.performed.size(), 1);
    rig.restart();
    QVERIFY(rig.item(0).pinned);

    rig.manager->togglePin(rig.item(0).id);
    QCOMPARE(rig.item(0).pinnedAt, std::nullopt);
    QCOMPARE(rig.manager->pinnedCount(), 0);
}

QTEST_MAIN(ClipboardManagerTest)
#include "ClipboardManagerTest.moc"
