#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipKeepingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_history_survives_a_restart();
    void an_unreadable_history_starts_empty_and_is_kept_aside();
    void the_last_copy_outlives_its_program();
    void a_copy_outlives_a_program_that_quits_at_once();
    void another_content_does_not_come_back_data();
    void another_content_does_not_come_back();
    void a_resting_clipboard_arms_no_timer();
};

void ClipKeepingTest::the_history_survives_a_restart()
{
    ClipRig rig;
    rig.copyText("a");
    rig.copyImage(plainImage({9, 9}, Qt::red));
    rig.manager->togglePause();
    const QList<ClipItem> before = rig.manager->items();

    rig.restart();

    QCOMPARE(rig.manager->items(), before);
    QVERIFY(!rig.manager->isPaused());
    rig.copyText("a");
    QCOMPARE(rig.copied(), QStringList({"a", u"9×9"_qs}));
    rig.manager->use(rig.item(1).id, false);
    QVERIFY(!rig.pasteboard.bytes("image/png").isEmpty());
}

void ClipKeepingTest::an_unreadable_history_starts_empty_and_is_kept_aside()
{
    ClipRig rig;
    rig.copyText("a");
    rig.store.flushNow();
    QFile file(rig.store.dir().filePath("clipboard.json"));
    QVERIFY(file.open(QFile::ReadWrite));
    const QByteArray broken = file.readAll().replace("\"text\"", "\"test\"");
    file.resize(0);
    file.seek(0);
    file.write(broken);
    file.close();

    rig.manager.reset();
    rig.start();
    rig.manager->start();

    QVERIFY(rig.manager->items().isEmpty());
    QCOMPARE(rig.store.dir().entryList({"clipboard.json.unreadable-*"}).size(), 1);
    rig.copyText("b");
    QCOMPARE(rig.copied(), QStringList({"b"}));
}

void ClipKeepingTest::the_last_copy_outlives_its_program()
{
    ClipRig rig;
    rig.copyText("a");
    QVERIFY(!rig.pasteboard.isOwn());

    rig.pasteboard.abandon();

    QVERIFY(rig.pasteboard.isOwn());
    QCOMPARE(rig.pasted(), "a");
    QCOMPARE(rig.item(0).useCount, 0);
    QCOMPARE(rig.manager->totalCount(), 1);
}

void ClipKeepingTest::a_copy_outlives_a_program_that_quits_at_once()
{
    ClipRig rig;
    rig.pasteboard.holdReads();
    rig.pasteboard.copyText("a");
    rig.pasteboard.abandon();
    QVERIFY(!rig.pasteboard.isOwn());

    rig.pasteboard.releaseReads();
    rig.loop.settle();

    QVERIFY(rig.pasteboard.isOwn());
    QCOMPARE(rig.pasted(), "a");
}

void ClipKeepingTest::another_content_does_not_come_back_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what :
         {"not wanted", "concealed", "concealed but kept", "not captured", "hung", "deleted"})
        QTest::newRow(what) << what;
}

void ClipKeepingTest::another_content_does_not_come_back()
{
    QFETCH(QString, what);
    ClipRig rig;
    const QList<PasteboardData> secret{{"org.nspasteboard.ConcealedType", "1"}, {"text/plain", "hunter2"}};
    rig.settings.setKeepAfterQuit(what != "not wanted");
    rig.settings.setIgnoreConcealed(what != "concealed but kept");
    rig.copyText("a");

    if (what.startsWith("concealed"))
        rig.pasteboard.copy(secret);
    if (what == "not captured")
        rig.copyData("text/html", "<b>");
    if (what == "hung")
        rig.pasteboard.copyAndHang({"text/plain"});
    if (what == "deleted")
        rig.manager->remove(rig.item(0).id);
    rig.loop.settle();
    rig.pasteboard.abandon();
    rig.loop.settle();

    QVERIFY(!rig.pasteboard.isOwn());
}

void ClipKeepingTest::a_resting_clipboard_arms_no_timer()
{
    ClipRig rig;
    rig.copyText("a");
    rig.manager->remove(rig.item(0).id);

    rig.rest(1min);

    QCOMPARE(rig.loop.armedTimers(), 0);
}

QTEST_MAIN(ClipKeepingTest)
#include "ClipKeepingTest.moc"
