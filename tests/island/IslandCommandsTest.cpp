#include "island/IslandCommands.h"

#include "app/CommandTable.h"
#include "island/IslandRig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace velm
{

class IslandCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void status_tells_what_the_island_does();
    void an_activity_has_what_was_asked_for();
    void a_mistake_is_told_and_changes_nothing_data();
    void a_mistake_is_told_and_changes_nothing();

private:
    // "_" stands for a space within a word.
    static CommandReply run(IslandRig &rig, const QString &line)
    {
        QStringList words = line.split(u' ');
        words.replaceInStrings(u"_"_qs, u" "_qs);
        CommandTable table;
        table.add(islandCommands(&rig.island, {}));
        CommandReply answer{.status = -1};
        table.run(words, [&answer](const CommandReply &reply) { answer = reply; });
        return answer;
    }
};

void IslandCommandsTest::status_tells_what_the_island_does()
{
    IslandRig rig;
    rig.settings.setEnabled(u"files"_qs, false);
    rig.island.present({.leading = u"Copied"_qs, .duration = 1s});
    QCOMPARE(run(rig, u"settings about"_qs), CommandReply{});
    QCOMPARE(run(rig, u"open notes"_qs), CommandReply{}); // uncovers the section

    const auto json = QJsonDocument::fromJson(run(rig, u"status --json"_qs).out.toUtf8()).object();

    QCOMPARE(json.keys().join(u' '), u"activity ambient hitRect ignoresMouse islandSize metrics mode "
                                     u"settingsPage showSettings statusLine tab visibleTabs"_qs);
    QCOMPARE(json[u"activity"].toObject().keys().join(u' '), u"duration icon id leading sticky tint"_qs);
    QCOMPARE(json[u"visibleTabs"].toVariant().toStringList().join(u' '),
             u"clipboard shelf notes timer todo system media devices shots network"_qs);
    QCOMPARE(json[u"tab"], u"notes"_qs);
    QCOMPARE(json[u"showSettings"], false);
    QCOMPARE(json[u"hitRect"],
             (QJsonObject{{u"x"_qs, 70}, {u"y"_qs, 70}, {u"width"_qs, 660}, {u"height"_qs, 430}}));
}

void IslandCommandsTest::an_activity_has_what_was_asked_for()
{
    IslandRig rig;

    run(rig, u"activity Backup 3_of_4 --icon disk --progress 0.75 --seconds 1.5 --id backup"_qs);

    const LiveActivity expected{.id = u"backup"_qs,
                                .icon = u"disk"_qs,
                                .leading = u"Backup"_qs,
                                .trailing = u"3 of 4"_qs,
                                .progress = 0.75,
                                .duration = 1.5s};
    QCOMPARE(rig.island.activity(), expected);
    QCOMPARE(run(rig, u"dismiss other"_qs).status, 1);
    QVERIFY(rig.island.hasActivity());
}

void IslandCommandsTest::a_mistake_is_told_and_changes_nothing_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("names"); // what the sentence must name

    QTest::newRow("open Files") << 1 << u"\"Files\""_qs;
    QTest::newRow("open files notes") << 2 << u"velm open"_qs;
    QTest::newRow("settings colours") << 1 << u"\"colours\""_qs;
    QTest::newRow("dismiss nothing") << 1 << u"\"nothing\""_qs;
    QTest::newRow("activity") << 2 << u"velm activity"_qs;
    QTest::newRow("activity _") << 1 << u"title"_qs;
    QTest::newRow("activity A --progress 1.01") << 1 << u"\"1.01\""_qs;
    QTest::newRow("activity A --progress half") << 1 << u"\"half\""_qs;
    QTest::newRow("activity A --progress nan") << 1 << u"\"nan\""_qs;
    QTest::newRow("activity A --seconds 0") << 1 << u"\"0\""_qs;
    QTest::newRow("activity A --seconds inf") << 1 << u"\"inf\""_qs;
    QTest::newRow("activity A --seconds 2 --sticky") << 2 << u"velm activity"_qs;
}

void IslandCommandsTest::a_mistake_is_told_and_changes_nothing()
{
    QFETCH(QString, names);
    IslandRig rig;

    const CommandReply reply = run(rig, QString::fromLatin1(QTest::currentDataTag()));

    QTEST(reply.status, "status");
    QVERIFY2(reply.err.contains(names), qPrintable(reply.err));
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(!rig.island.hasActivity());
}

}

QTEST_GUILESS_MAIN(velm::IslandCommandsTest)
#include "IslandCommandsTest.moc"
