#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipUndoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_deleted_clip_can_be_brought_back();
    void a_deletion_becomes_final();
    void the_next_deletion_makes_the_last_one_final();
    void clearing_spares_what_is_pinned_data();
    void clearing_spares_what_is_pinned();
    void clearing_nothing_offers_nothing();
    void cleared_clips_return_below_new_ones();
    void a_clip_that_was_copied_again_is_not_there_twice();
    void a_deletion_that_was_not_saved_keeps_its_picture();
    void a_deletion_is_final_after_a_restart();
    void an_offer_may_outlive_the_manager();
};

void ClipUndoTest::a_deleted_clip_can_be_brought_back()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.copyText("b");
    const QList<ClipItem> before = rig.manager->items();
    const QStringList pictures = rig.pictures();

    rig.manager->remove(rig.item(1).id);

    QCOMPARE(rig.copied(), QStringList({"b", "a"}));
    QVERIFY(rig.pictures().isEmpty());
    QCOMPARE(rig.sounds.played.last(), Sound::Bottle);
    QCOMPARE(rig.undo.text(), "Clip deleted");

    rig.undo.undo();
    QCOMPARE(rig.manager->items(), before);
    QCOMPARE(rig.pictures(), pictures);
    rig.restart();
    QCOMPARE(rig.copied(), texts(before));
}

void ClipUndoTest::a_deletion_becomes_final()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.manager->remove(rig.item(0).id);
    QCOMPARE(rig.asidePictures().size(), 1);

    rig.rest(5s);

    QVERIFY(!rig.undo.isOffered());
    QVERIFY(rig.asidePictures().isEmpty());
}

void ClipUndoTest::the_next_deletion_makes_the_last_one_final()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.copyText("a");
    rig.manager->remove(rig.item(1).id);
    rig.manager->remove(rig.item(0).id);

    QVERIFY(rig.asidePictures().isEmpty());
    rig.undo.undo();
    QCOMPARE(rig.copied(), QStringList({"a"}));
}

void ClipUndoTest::clearing_spares_what_is_pinned_data()
{
    QTest::addColumn<int>("unpinned");
    QTest::addColumn<QString>("text");
    QTest::newRow("one") << 1 << "1 clip cleared";
    QTest::newRow("three") << 3 << "3 clips cleared";
}

void ClipUndoTest::clearing_spares_what_is_pinned()
{
    QFETCH(int, unpinned);
    QFETCH(QString, text);
    ClipRig rig;
    rig.copyText("pinned");
    rig.manager->togglePin(rig.item(0).id);
    for (int i = 1; i <= unpinned; ++i)
        rig.copyImage(plainImage({i, i}, Qt::red));
    const QList<ClipItem> before = rig.manager->items();

    rig.manager->clearUnpinned();

    QCOMPARE(rig.copied(), QStringList({"pinned"}));
    QVERIFY(rig.pictures().isEmpty());
    QCOMPARE(rig.undo.text(), text);
    QCOMPARE(rig.sounds.played.last(), Sound::Bottle);
    rig.undo.undo();
    QCOMPARE(rig.manager->items(), before);
    QCOMPARE(rig.pictures().size(), unpinned);
}

void ClipUndoTest::clearing_nothing_offers_nothing()
{
    ClipRig rig;
    rig.copyText("pinned");
    rig.manager->togglePin(rig.item(0).id);

    rig.manager->clearUnpinned();

    QVERIFY(!rig.undo.isOffered());
    QCOMPARE(rig.copied(), QStringList({"pinned"}));
}

void ClipUndoTest::cleared_clips_return_below_new_ones()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyText("b");

    rig.manager->clearUnpinned();
    rig.copyText("c");
    rig.undo.undo();

    QCOMPARE(rig.copied(), QStringList({"c", "b", "a"}));
}

void ClipUndoTest::a_clip_that_was_copied_again_is_not_there_twice()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.manager->remove(rig.item(0).id);
    rig.copyImage(plainImage({9, 9}, Qt::red));
    const QStringList pictures = rig.pictures();

    rig.undo.undo();

    QCOMPARE(rig.manager->totalCount(), 1);
    QCOMPARE(rig.pictures(), pictures);
    QVERIFY(rig.asidePictures().isEmpty());
}

void ClipUndoTest::a_deletion_that_was_not_saved_keeps_its_picture()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.store.flushNow();
    QFile::copy(rig.store.dir().filePath("clipboard.json"), rig.data.filePath("killed.json"));
    rig.manager->remove(rig.item(0).id);
    rig.manager.reset();
    rig.store.flushNow();
    QFile::remove(rig.store.dir().filePath("clipboard.json"));
    QFile::copy(rig.data.filePath("killed.json"), rig.store.dir().filePath("clipboard.json"));

    rig.start();

    QCOMPARE(rig.pictures(), QStringList({*rig.item(0).imageFile}));
}

void ClipUndoTest::a_deletion_is_final_after_a_restart()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.manager->remove(rig.item(0).id);

    rig.restart();

    QVERIFY(rig.manager->items().isEmpty());
    QVERIFY(rig.pictures().isEmpty());
    QVERIFY(rig.asidePictures().isEmpty());
}

void ClipUndoTest::an_offer_may_outlive_the_manager()
{
    ClipRig rig;
    rig.copyText("a");
    rig.manager->remove(rig.item(0).id);
    rig.manager.reset();

    rig.undo.undo();

    QVERIFY(!rig.undo.isOffered());
}

QTEST_MAIN(ClipUndoTest)
#include "ClipUndoTest.moc"
