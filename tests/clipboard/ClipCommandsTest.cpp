#include "clipboard/ClipCommands.h"
#include "app/CommandTable.h"
#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void what_cannot_be_listed_is_refused();
    void a_clip_is_named_by_a_prefix();
};

namespace
{

struct CommandRig : ClipRig {
    CommandReply run(const QString &verb, const CommandCall &call)
    {
        CommandReply reply{.status = -1};
        for (const Command &command : clipCommands(manager.get(), &loop)) {
            if (command.verb == verb)
                command.run(call, [&reply](const CommandReply &given) { reply = given; });
        }
        return reply;
    }
};

}

void ClipCommandsTest::what_cannot_be_listed_is_refused()
{
    CommandRig rig;
    rig.copyText(QString(33 * 1024 * 1024, u'x'));

    QCOMPARE(rig.run("list", {{}, false, {{"filter", "sound"}}}).status, 1);
    QCOMPARE(rig.run("list", {{}, true, {}}).status, 1); // too much
}

void ClipCommandsTest::a_clip_is_named_by_a_prefix()
{
    for (const QString verb : {"use", "pin", "delete"}) {
        CommandRig rig;
        rig.copyText("a");
        const QList<ClipItem> before = rig.manager->items();

        QCOMPARE(rig.run(verb, {{"XY"}, false, {}}), refused("no clip begins with \"XY\""));
        QCOMPARE(rig.manager->items(), before);
        QCOMPARE(rig.run(verb, {{before[0].id.left(6).toLower()}, false, {}}), CommandReply{});

        QCOMPARE(rig.pasteboard.isOwn(), verb == "use");
        QCOMPARE(rig.manager->pinnedCount(), verb == "pin" ? 1 : 0);
        QCOMPARE(rig.manager->items().isEmpty(), verb == "delete");
    }
}

QTEST_MAIN(ClipCommandsTest)
#include "ClipCommandsTest.moc"
