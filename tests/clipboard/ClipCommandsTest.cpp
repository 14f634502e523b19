#include "clipboard/ClipCommands.h"
#include "app/CommandTable.h"
#include "clipboard/ClipRig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace velm;

class ClipCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_list_fits_the_screen();
    void the_list_takes_filter_and_search();
    void json_has_the_record_and_what_is_derived();
    void an_empty_list_says_so();
    void an_unknown_filter_is_refused();
    void too_much_text_is_refused();
    void a_clip_is_named_by_a_prefix_data();
    void a_clip_is_named_by_a_prefix();
    void an_unknown_clip_is_refused_and_nothing_changes_data();
    void an_unknown_clip_is_refused_and_nothing_changes();
    void pausing_twice_is_pausing_once();
    void clearing_spares_what_is_pinned();
};

namespace
{

struct CommandRig : ClipRig {
    CommandReply run(const QString &verb, const QStringList &arguments = {},
                     const QMap<QString, QString> &options = {}, bool wantsJson = false)
    {
        CommandReply reply{.status = -1};
        for (const Command &command : clipCommands(manager.get(), &loop)) {
            if (command.verb == verb)
                command.run({arguments, wantsJson, options},
                            [&reply](const CommandReply &given) { reply = given; });
        }
        loop.settle();
        return reply;
    }

    QJsonArray json(const QMap<QString, QString> &options = {})
    {
        return QJsonDocument::fromJson(run("list", {}, options, true).out.toUtf8()).array();
    }
};

}

void ClipCommandsTest::the_list_fits_the_screen()
{
    CommandRig rig;
    rig.copyText(QString(500, u'x'));
    rig.copyText("#fff");
    rig.manager->togglePin(rig.item(0).id);
    rig.rest(4min);

    const QStringList lines = rig.run("list").out.split(u'\n');

    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0].left(30), rig.item(0).id.left(8) + "  *  Color  #fff      ");
    QCOMPARE(lines[1].left(30), rig.item(1).id.left(8) + "     Text   xxxxxxxxxx");
    QVERIFY(lines[1].contains("x…  4 min"));
    QCOMPARE(lines[0].indexOf("4 min"), lines[1].indexOf("4 min"));
    for (const QString &line : lines)
        QVERIFY(line.size() <= 80);
}

void ClipCommandsTest::the_list_takes_filter_and_search()
{
    CommandRig rig;
    rig.copyText("alpha");
    rig.copyText("https://beta");
    rig.manager->setFilter(ClipFilter::Image);

    QCOMPARE(rig.json().size(), 2);
    QCOMPARE(rig.json({{"filter", "link"}}).size(), 1);
    QCOMPARE(rig.json({{"search", " ALPHA "}}).size(), 1);
    QCOMPARE(rig.json({{"search", "gamma"}}).size(), 0);
}

void ClipCommandsTest::json_has_the_record_and_what_is_derived()
{
    CommandRig rig;
    rig.copyText(" a b ");

    const QJsonObject object = rig.json().at(0).toObject();

    QCOMPARE(object.keys(),
             QStringList({"date", "filePaths", "fingerprint", "id", "kind", "pinned", "preview", "sourceApp",
                          "sourceBundleID", "subtitle", "text", "useCount"}));
    QCOMPARE(object["text"].toString(), " a b ");
    QCOMPARE(object["preview"].toString(), "a b");
    QCOMPARE(object["subtitle"].toString(), "5 chars · 2 words • Editor");
}

void ClipCommandsTest::an_empty_list_says_so()
{
    CommandRig rig;

    QCOMPARE(rig.run("list"), (CommandReply{.out = "No clips\n"}));
    QCOMPARE(rig.json(), QJsonArray());
}

void ClipCommandsTest::an_unknown_filter_is_refused()
{
    CommandRig rig;

    const CommandReply reply = rig.run("list", {}, {{"filter", "sound"}});

    QCOMPARE(reply.status, 1);
    QCOMPARE(reply.err, refused("\"sound\" is no filter: all, pinned, text, link, image or files").err);
}

void ClipCommandsTest::too_much_text_is_refused()
{
    CommandRig rig;
    rig.copyText(QString(33 * 1024 * 1024, u'x'));

    QCOMPARE(rig.run("list", {}, {}, true).status, 1);
    QCOMPARE(rig.run("list").status, 0);
}

void ClipCommandsTest::a_clip_is_named_by_a_prefix_data()
{
    QTest::addColumn<QString>("verb");
    for (const char *verb : {"use", "pin", "delete"})
        QTest::newRow(verb) << verb;
}

void ClipCommandsTest::a_clip_is_named_by_a_prefix()
{
    QFETCH(QString, verb);
    CommandRig rig;
    rig.copyText("a");

    const CommandReply reply = rig.run(verb, {rig.item(0).id.left(6).toLower()}, {{"paste", ""}});
    rig.rest(1s);

    QCOMPARE(reply, CommandReply{});
    QCOMPARE(rig.pasteboard.isOwn(), verb == "use");
    QCOMPARE(rig.keys.pressed.size(), verb == "use" ? 1 : 0);
    QCOMPARE(rig.manager->pinnedCount(), verb == "pin" ? 1 : 0);
    QCOMPARE(rig.manager->items().isEmpty(), verb == "delete");
}

void ClipCommandsTest::an_unknown_clip_is_refused_and_nothing_changes_data()
{
    a_clip_is_named_by_a_prefix_data();
}

void ClipCommandsTest::an_unknown_clip_is_refused_and_nothing_changes()
{
    QFETCH(QString, verb);
    CommandRig rig;
    rig.copyText("a");
    const QList<ClipItem> before = rig.manager->items();

    const CommandReply reply = rig.run(verb, {"XY"});

    QCOMPARE(reply, refused("no clip begins with \"XY\""));
    QCOMPARE(reply.status, 1);
    QCOMPARE(rig.manager->items(), before);
    QVERIFY(!rig.pasteboard.isOwn());
}

void ClipCommandsTest::pausing_twice_is_pausing_once()
{
    CommandRig rig;

    QCOMPARE(rig.run("pause").status, 0);
    QCOMPARE(rig.run("pause").status, 0);
    QVERIFY(rig.manager->isPaused());
    QCOMPARE(rig.run("resume").status, 0);

    QVERIFY(!rig.manager->isPaused());
}

void ClipCommandsTest::clearing_spares_what_is_pinned()
{
    CommandRig rig;
    rig.copyText("a");
    rig.copyText("b");
    rig.manager->togglePin(rig.item(0).id);

    QCOMPARE(rig.run("clear").status, 0);

    QCOMPARE(rig.copied(), QStringList({"b"}));
}

QTEST_MAIN(ClipCommandsTest)
#include "ClipCommandsTest.moc"
