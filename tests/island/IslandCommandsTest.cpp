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
    void open_takes_a_section_and_the_keyboard();
    void open_on_a_section_uncovers_it();
    void settings_opens_on_a_page();
    void close_rests();
    void status_tells_what_the_island_does();
    void status_has_the_activity_only_while_one_is_shown();
    void status_takes_the_line_of_the_machine();
    void status_for_people_fits_a_screen();
    void an_activity_has_what_was_asked_for();
    void an_activity_that_says_little_lasts_three_seconds();
    void a_sticky_activity_is_dismissed_by_its_id();
    void a_mistake_is_told_and_changes_nothing_data();
    void a_mistake_is_told_and_changes_nothing();

private:
    static CommandReply run(IslandRig &rig, const QStringList &words, const StatusLine &line = {})
    {
        CommandTable table;
        table.add(islandCommands(&rig.island, line));
        CommandReply answer{.status = -1};
        table.run(words, [&answer](const CommandReply &reply) { answer = reply; });
        return answer;
    }
    static QJsonObject status(IslandRig &rig, const StatusLine &line = {})
    {
        const CommandReply reply = run(rig, {u"status"_qs, u"--json"_qs}, line);
        return QJsonDocument::fromJson(reply.out.toUtf8()).object();
    }
};

void IslandCommandsTest::open_takes_a_section_and_the_keyboard()
{
    IslandRig rig;

    QCOMPARE(run(rig, {u"open"_qs}), CommandReply{});
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QVERIFY(rig.island.hasFocus());

    QCOMPARE(run(rig, {u"open"_qs, u"todo"_qs}), CommandReply{});
    QCOMPARE(rig.island.tab(), VelmTab::Todo);
}

void IslandCommandsTest::open_on_a_section_uncovers_it()
{
    IslandRig rig;
    rig.island.openSettings(SettingsPage::General);

    run(rig, {u"open"_qs, u"notes"_qs});

    QVERIFY(!rig.island.showSettings());
}

void IslandCommandsTest::settings_opens_on_a_page()
{
    IslandRig rig;

    QCOMPARE(run(rig, {u"settings"_qs, u"about"_qs}), CommandReply{});
    QCOMPARE(rig.island.settingsPage(), SettingsPage::About);
    QVERIFY(rig.island.showSettings());

    rig.island.close();
    run(rig, {u"settings"_qs});
    QCOMPARE(rig.island.settingsPage(), SettingsPage::About);
    QVERIFY(rig.island.showSettings());
}

void IslandCommandsTest::close_rests()
{
    IslandRig rig;
    rig.island.open();

    QCOMPARE(run(rig, {u"close"_qs}), CommandReply{});

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandCommandsTest::status_tells_what_the_island_does()
{
    IslandRig rig;
    rig.settings.setEnabled(u"files"_qs, false);
    rig.island.openSettings(SettingsPage::General);

    const QJsonObject json = status(rig);

    QCOMPARE(json.keys().join(u' '), u"ambient hitRect ignoresMouse islandSize metrics mode settingsPage "
                                     u"showSettings statusLine tab visibleTabs"_qs);
    QCOMPARE(json[u"mode"], u"expanded"_qs);
    QCOMPARE(json[u"tab"], u"clipboard"_qs);
    QCOMPARE(json[u"visibleTabs"].toArray().size(), 10);
    QCOMPARE(json[u"visibleTabs"].toArray().first(), u"clipboard"_qs);
    QCOMPARE(json[u"showSettings"], true);
    QCOMPARE(json[u"settingsPage"], u"general"_qs);
    QCOMPARE(json[u"islandSize"], (QJsonObject{{u"width"_qs, 660}, {u"height"_qs, 430}}));
    QCOMPARE(json[u"hitRect"],
             (QJsonObject{{u"x"_qs, 70}, {u"y"_qs, 70}, {u"width"_qs, 660}, {u"height"_qs, 430}}));
    QCOMPARE(json[u"metrics"], (QJsonObject{{u"notchWidth"_qs, 190},
                                            {u"notchHeight"_qs, 32},
                                            {u"isHardware"_qs, false},
                                            {u"screen"_qs, u"eDP-1"_qs}}));
    QCOMPARE(json[u"ignoresMouse"], false);
    QCOMPARE(json[u"ambient"], false);
}

void IslandCommandsTest::status_has_the_activity_only_while_one_is_shown()
{
    IslandRig rig;
    QVERIFY(!status(rig).contains(u"activity"));

    rig.island.present({.id = u"clip"_qs, .leading = u"Copied"_qs, .duration = 1s});
    QCOMPARE(status(rig)[u"activity"][u"leading"], u"Copied"_qs);
    rig.rest(1s);

    QVERIFY(!status(rig).contains(u"activity"));
}

void IslandCommandsTest::status_takes_the_line_of_the_machine()
{
    IslandRig rig;

    QCOMPARE(status(rig)[u"statusLine"], u"Right now: your Mac is idle"_qs);
    QCOMPARE(status(rig, [] { return u"Right now: something is playing"_qs; })[u"statusLine"],
             u"Right now: something is playing"_qs);
}

void IslandCommandsTest::status_for_people_fits_a_screen()
{
    IslandRig rig;
    rig.island.present(
        {.id = u"sort"_qs, .leading = u"Sorted"_qs, .trailing = u"12 files"_qs, .progress = 0.5});

    const QStringList lines = run(rig, {u"status"_qs}).out.split(u'\n');

    QVERIFY(lines.contains(u"Activity  Sorted · 12 files · 50 %"_qs));
    QVERIFY(lines.contains(u"Island    idle, 291 × 70"_qs));
    for (const QString &line : lines)
        QVERIFY2(line.size() <= 80, qPrintable(line));
}

void IslandCommandsTest::an_activity_has_what_was_asked_for()
{
    IslandRig rig;

    const CommandReply reply =
        run(rig, {u"activity"_qs, u"Backup"_qs, u"3 of 4"_qs, u"--icon"_qs, u"internaldrive.fill"_qs,
                  u"--progress"_qs, u"0.75"_qs, u"--seconds"_qs, u"1.5"_qs, u"--id"_qs, u"backup"_qs});

    QCOMPARE(reply, CommandReply{});
    const LiveActivity expected{.id = u"backup"_qs,
                                .icon = u"internaldrive.fill"_qs,
                                .leading = u"Backup"_qs,
                                .trailing = u"3 of 4"_qs,
                                .progress = 0.75,
                                .duration = 1.5s};
    QCOMPARE(rig.island.activity(), expected);
}

void IslandCommandsTest::an_activity_that_says_little_lasts_three_seconds()
{
    IslandRig rig;

    run(rig, {u"activity"_qs, u"Done"_qs});
    rig.rest(2999ms);
    QVERIFY(rig.island.hasActivity());
    QVERIFY(!rig.island.activity()->trailing);
    rig.rest(1ms);

    QVERIFY(!rig.island.hasActivity());
}

void IslandCommandsTest::a_sticky_activity_is_dismissed_by_its_id()
{
    IslandRig rig;
    run(rig, {u"activity"_qs, u"Recording"_qs, u"--sticky"_qs, u"--id"_qs, u"rec"_qs});
    rig.rest(1h);

    QCOMPARE(run(rig, {u"dismiss"_qs, u"other"_qs}).status, 1);
    QVERIFY(rig.island.hasActivity());
    QCOMPARE(run(rig, {u"dismiss"_qs, u"rec"_qs}), CommandReply{});
    QVERIFY(!rig.island.hasActivity());
    QCOMPARE(run(rig, {u"dismiss"_qs}), CommandReply{});
}

void IslandCommandsTest::a_mistake_is_told_and_changes_nothing_data()
{
    QTest::addColumn<QString>("words"); // "_" stands for a space
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("names"); // what the sentence must name

    const auto row = [](const char *words, int status, const char *names) {
        QTest::newRow(words) << QString::fromLatin1(words) << status << QString::fromLatin1(names);
    };
    row("open weather", 1, "\"weather\"");
    row("open Files", 1, "\"Files\"");
    row("open files notes", 2, "velm open");
    row("open --loud", 2, "velm open");
    row("close now", 2, "velm close");
    row("settings colours", 1, "\"colours\"");
    row("dismiss nothing", 1, "\"nothing\"");
    row("activity", 2, "velm activity");
    row("activity _", 1, "title");
    row("activity A B C", 2, "velm activity");
    row("activity A --progress 1.01", 1, "\"1.01\"");
    row("activity A --progress -0.1", 1, "\"-0.1\"");
    row("activity A --progress half", 1, "\"half\"");
    row("activity A --progress nan", 1, "\"nan\"");
    row("activity A --seconds 0", 1, "\"0\"");
    row("activity A --seconds inf", 1, "\"inf\"");
    row("activity A --seconds", 2, "velm activity");
    row("activity A --seconds 2 --sticky", 2, "velm activity");
}

void IslandCommandsTest::a_mistake_is_told_and_changes_nothing()
{
    QFETCH(QString, words);
    QFETCH(QString, names);
    IslandRig rig;
    QStringList arguments = words.split(u' ');
    arguments.replaceInStrings(u"_"_qs, u" "_qs);

    const CommandReply reply = run(rig, arguments);

    QTEST(reply.status, "status");
    QVERIFY2(reply.err.contains(names), qPrintable(reply.err));
    QVERIFY(reply.out.isEmpty());
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(!rig.island.hasActivity());
    QCOMPARE(rig.loop.armedTimers(), 0);
}

}

QTEST_GUILESS_MAIN(velm::IslandCommandsTest)
#include "IslandCommandsTest.moc"
