#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipKeepingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_history_survives_a_restart();
    void an_unreadable_history_starts_empty_and_is_kept_aside();
    void removed_clips_return_to_their_places();
    void a_deletion_becomes_final();
    void a_clip_that_was_copied_again_is_not_there_twice();
    void a_deletion_that_was_not_saved_keeps_its_picture();
};

void ClipKeepingTest::the_history_survives_a_restart()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyImage(plainImage({9, 9}));
    rig.manager->togglePin(rig.item(1).id);
    QCOMPARE(rig.item(1).pinnedAt, std::optional(rig.loop.wallTime()));
    rig.manager->togglePin(rig.item(0).id);
    rig.manager->togglePin(rig.item(0).id);
    QCOMPARE(rig.item(0).pinnedAt, std::nullopt);
    rig.manager->togglePause();
    const QList<ClipItem> before = rig.manager->items();

    rig.restart();

    QCOMPARE(rig.manager->items(), before);
    QVERIFY(!rig.manager->isPaused());
}

void ClipKeepingTest::an_unreadable_history_starts_empty_and_is_kept_aside()
{
    ClipRig rig;
    rig.manager.reset();
    QFile file(rig.store.dir().filePath("clipboard.json"));
    QVERIFY(file.open(QFile::WriteOnly) && file.write("[{}]"));
    file.close();

    rig.restart();

    QVERIFY(rig.manager->items().isEmpty());
    QCOMPARE(rig.store.dir().entryList({"clipboard.json.unreadable-*"}).size(), 1);
}

void ClipKeepingTest::removed_clips_return_to_their_places()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}));
    rig.copyText("pinned");
    rig.manager->togglePin(rig.item(0).id);
    rig.copyText("a");
    const QList<ClipItem> before = rig.manager->items();

    rig.manager->remove(before[2].id);
    QCOMPARE(rig.copied(), QStringList({"a", "pinned"}));
    QVERIFY(rig.pictures().isEmpty());
    rig.undo.undo();
    QCOMPARE(rig.manager->items(), before);

    rig.manager->clearUnpinned();
    QCOMPARE(rig.copied(), QStringList({"pinned"}));
    QVERIFY(rig.pictures().isEmpty());
    rig.copyText("new");
    rig.undo.undo();

    QCOMPARE(rig.copied(), QStringList({"new", "a", "pinned", u"9×9"_qs}));
    QCOMPARE(rig.pictures(), QStringList({*before[2].imageFile}));
}

void ClipKeepingTest::a_deletion_becomes_final()
{
    for (const QString by : {"time", "the next deletion", "a restart"}) {
        ClipRig rig;
        rig.copyText("a");
        rig.copyImage(plainImage({9, 9}));
        rig.manager->remove(rig.item(0).id);
        QCOMPARE(rig.asidePictures().size(), 1);

        if (by == "time")
            rig.rest(5s);
        if (by == "the next deletion")
            rig.manager->remove(rig.item(0).id);
        if (by == "a restart")
            rig.restart();

        QVERIFY2(rig.asidePictures().isEmpty(), qPrintable(by));
        rig.undo.undo();
        QCOMPARE(rig.copied(), QStringList({"a"}));
    }
}

void ClipKeepingTest::a_clip_that_was_copied_again_is_not_there_twice()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}));
    rig.manager->togglePin(rig.item(0).id);
    rig.manager->remove(rig.item(0).id);
    rig.copyImage(plainImage({9, 9}));
    const QStringList pictures = rig.pictures();

    rig.undo.undo();

    QCOMPARE(rig.manager->totalCount(), 1);
    QVERIFY(rig.item(0).pinned);
    QCOMPARE(rig.pictures(), pictures);
    QVERIFY(rig.asidePictures().isEmpty());
}

void ClipKeepingTest::a_deletion_that_was_not_saved_keeps_its_picture()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}));
    rig.store.flushNow();
    const QString file = rig.store.dir().filePath("clipboard.json");
    const QString killed = rig.data.filePath("killed.json");
    QVERIFY(QFile::copy(file, killed));
    rig.manager->remove(rig.item(0).id);
    rig.store.flushNow();
    QVERIFY(QFile::remove(file) && QFile::copy(killed, file));

    rig.restart();

    QCOMPARE(rig.pictures(), QStringList({*rig.item(0).imageFile}));
}

QTEST_MAIN(ClipKeepingTest)
#include "ClipKeepingTest.moc"
