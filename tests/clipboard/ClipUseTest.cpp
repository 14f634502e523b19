#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipUseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_text_is_put_back_as_it_was();
    void files_are_put_back_as_files();
    void a_picture_is_put_back_unless_its_file_is_gone();
    void what_we_wrote_is_swallowed_once();
    void pasting_waits_for_trust_and_for_the_keyboard();
    void the_last_copy_outlives_its_program();
    void another_content_does_not_come_back();
};

void ClipUseTest::a_text_is_put_back_as_it_was()
{
    ClipRig rig;
    rig.copyText(u" Grüße\0 "_qs);
    rig.copyText("b");
    ClipItem expected = rig.item(1);
    expected.useCount = 1;
    rig.rest(1min);

    rig.manager->use(expected.id, false);

    QCOMPARE(rig.pasted(), expected.text);
    QCOMPARE(rig.item(1), expected);
    QCOMPARE(rig.sounds.played.last(), Sound::Pop);
}

void ClipUseTest::files_are_put_back_as_files()
{
    ClipRig rig;
    const QByteArray list = "file:///a%20b%23~-_.C\r\nfile:///%C3%BC%0A\r\n";
    rig.copyData("text/uri-list", list);

    rig.manager->use(rig.item(0).id, false);

    QCOMPARE(rig.pasteboard.bytes("text/uri-list"), list);
    QCOMPARE(rig.pasteboard.bytes("x-special/gnome-copied-files"),
             "copy\nfile:///a%20b%23~-_.C\nfile:///%C3%BC%0A");
    QCOMPARE(rig.pasted(), rig.item(0).text);
}

void ClipUseTest::a_picture_is_put_back_unless_its_file_is_gone()
{
    ClipRig rig;
    rig.copyImage(plainImage({9, 9}));

    rig.manager->use(rig.item(0).id, false);
    QCOMPARE(QImage::fromData(rig.pasteboard.bytes("image/png")), plainImage({9, 9}));
    QVERIFY(QFile::remove(rig.store.clipsDir().filePath(*rig.item(0).imageFile)));
    rig.manager->use(rig.item(0).id, false);

    QVERIFY(rig.pasteboard.isOwn());
    QVERIFY(rig.pasteboard.written->empty());
}

void ClipUseTest::what_we_wrote_is_swallowed_once()
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

    // Once another copy lay between, it is the person's own.
    rig.manager->use(rig.item(0).id, false);
    rig.copyText("b");
    rig.copyText("a");
    QCOMPARE(rig.copied(), QStringList({"a", "b"}));
}

void ClipUseTest::pasting_waits_for_trust_and_for_the_keyboard()
{
    ClipRig rig;
    rig.copyText("a");

    rig.keys.trusted = false;
    rig.manager->use(rig.item(0).id, true);
    rig.keys.trusted = true;
    rig.rest(10s);
    QCOMPARE(rig.keys.timesAsked, 1);
    QVERIFY(rig.keys.pressed.isEmpty());

    rig.manager->use(rig.item(0).id, true);
    rig.rest(119ms);
    QVERIFY(rig.keys.pressed.isEmpty());
    rig.front.program->isTerminal = true; // the one in front when the keys are pressed counts
    rig.rest(1ms);
    QCOMPARE(rig.keys.pressed, QList{PasteChord::ControlShiftV});

    rig.front.program = ProgramInfo{"Velm", "app.velm.Velm"};
    rig.manager->use(rig.item(0).id, true);
    rig.rest(300ms);
    QCOMPARE(rig.keys.pressed.size(), 1);
    rig.front.program = std::nullopt;
    rig.rest(40ms);
    QCOMPARE(rig.keys.pressed, QList({PasteChord::ControlShiftV, PasteChord::ControlV}));
}

void ClipUseTest::the_last_copy_outlives_its_program()
{
    ClipRig rig;
    rig.copyText("a");
    rig.pasteboard.abandon();
    QCOMPARE(rig.pasted(), "a");

    // Even of a program that quits before its copy is there.
    rig.pasteboard.holdReads();
    rig.pasteboard.copyText("b");
    rig.pasteboard.abandon();
    rig.pasteboard.releaseReads();
    rig.loop.settle();

    QCOMPARE(rig.pasted(), "b");
}

void ClipUseTest::another_content_does_not_come_back()
{
    for (const QString what : {"not wanted", "concealed", "concealed but kept", "not captured", "deleted"}) {
        ClipRig rig;
        rig.settings.setKeepAfterQuit(what != "not wanted");
        rig.settings.setIgnoreConcealed(what != "concealed but kept");
        rig.copyText("a");

        if (what.startsWith("concealed"))
            rig.pasteboard.copy({{"org.nspasteboard.ConcealedType", "1"}, {"text/plain", "hunter2"}});
        if (what == "not captured")
            rig.copyData("text/html", "<b>");
        if (what == "deleted")
            rig.manager->remove(rig.item(0).id);
        rig.loop.settle();
        rig.pasteboard.abandon();

        QVERIFY2(!rig.pasteboard.isOwn(), qPrintable(what));
    }
}

QTEST_MAIN(ClipUseTest)
#include "ClipUseTest.moc"
