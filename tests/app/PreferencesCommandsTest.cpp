#include "app/PreferencesCommands.h"
#include "app/CommandTable.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

namespace
{

struct CommandsRig {
    QTemporaryDir folder;
    VirtualRunLoop loop;
    PreferencesFile preferences{loop, folder.filePath(u"settings.json"_s)};
    CommandTable table;

    CommandsRig()
    {
        preferences.registerDefaults({{u"hoverDelay"_s, 0.25}, {u"lastTab"_s, u"files"_s}});
        table.add(preferencesCommands(&preferences));
    }

    CommandReply run(const QStringList &words)
    {
        CommandReply got{.status = -1};
        table.run(QStringList{u"prefs"_s} + words, [&](const CommandReply &reply) { got = reply; });
        loop.settle();
        return got;
    }
};

}

class PreferencesCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void all_are_listed_in_columns();
    void all_are_listed_as_json();
    void a_value_is_json_or_a_bare_word_data();
    void a_value_is_json_or_a_bare_word();
    void a_reset_gives_the_default();
    void an_unknown_key_is_refused_and_nothing_changes();
    void what_is_set_is_on_the_disk_when_the_reply_comes();
    void a_long_value_stays_on_its_line();
};

void PreferencesCommandsTest::all_are_listed_in_columns()
{
    CommandsRig rig;

    rig.run({u"set"_s, u"lastTab"_s, u"notes"_s});

    QCOMPARE(rig.run({}), printed(u"hoverDelay  0.25\nlastTab     notes\n"_s));
}

void PreferencesCommandsTest::all_are_listed_as_json()
{
    CommandsRig rig;

    const CommandReply reply = rig.run({u"--json"_s});

    QCOMPARE(QJsonDocument::fromJson(reply.out.toUtf8()).object(),
             (QJsonObject{{u"hoverDelay"_s, 0.25}, {u"lastTab"_s, u"files"_s}}));
}

void PreferencesCommandsTest::a_value_is_json_or_a_bare_word_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("shown");

    const auto row = [](const QString &word, const QJsonValue &value, const QString &shown) {
        QTest::addRow("%s", qPrintable(word)) << word << value << shown;
    };
    row(u"true"_s, true, u"true"_s);
    row(u"0"_s, 0, u"0"_s);
    row(u"-1.5"_s, -1.5, u"-1.5"_s);
    row(u"notes"_s, u"notes"_s, u"notes"_s);
    row(u"\"5\""_s, u"5"_s, u"5"_s);
    row(u"two words"_s, u"two words"_s, u"two words"_s);
    row(u"[\"a\", \"b\"]"_s, QJsonArray{u"a"_s, u"b"_s}, u"[\"a\",\"b\"]"_s);
    row(u"null"_s, QJsonValue(), u"null"_s);
    row(u"1,2"_s, u"1,2"_s, u"1,2"_s);
    row(u"[1"_s, u"[1"_s, u"[1"_s);
    row(u""_s, u""_s, u""_s);
    row(u"True"_s, u"True"_s, u"True"_s);
}

void PreferencesCommandsTest::a_value_is_json_or_a_bare_word()
{
    QFETCH(QString, word);
    QFETCH(QJsonValue, value);
    QFETCH(QString, shown);
    CommandsRig rig;

    QCOMPARE(rig.run({u"set"_s, u"key"_s, word}), CommandReply());

    QCOMPARE(rig.preferences.value(u"key"_s), value);
    QCOMPARE(rig.run({u"get"_s, u"key"_s}).out, shown + u'\n');
}

void PreferencesCommandsTest::a_reset_gives_the_default()
{
    CommandsRig rig;

    rig.run({u"set"_s, u"lastTab"_s, u"notes"_s});
    QCOMPARE(rig.run({u"reset"_s, u"lastTab"_s}), CommandReply());

    QCOMPARE(rig.run({u"get"_s, u"lastTab"_s, u"--json"_s}).out, u"\"files\"\n"_s);
}

void PreferencesCommandsTest::an_unknown_key_is_refused_and_nothing_changes()
{
    CommandsRig rig;

    QCOMPARE(rig.run({u"get"_s, u"cellar"_s}), refused(u"no preference is called \"cellar\""_s));
    QCOMPARE(rig.run({u"reset"_s, u"cellar"_s}).status, 1);
    QCOMPARE(rig.run({u"set"_s, u"lastTab"_s}).status, 2);

    QVERIFY(!QFile::exists(rig.folder.filePath(u"settings.json"_s)));
}

void PreferencesCommandsTest::what_is_set_is_on_the_disk_when_the_reply_comes()
{
    CommandsRig rig;
    bool isOnDisk = false;

    rig.table.run({u"prefs"_s, u"set"_s, u"lastTab"_s, u"notes"_s}, [&](const CommandReply &) {
        isOnDisk = QFile::exists(rig.folder.filePath(u"settings.json"_s));
    });
    rig.loop.settle();

    QVERIFY(isOnDisk);
}

void PreferencesCommandsTest::a_long_value_stays_on_its_line()
{
    CommandsRig rig;

    rig.run({u"set"_s, u"lastTab"_s, QString(200, u'x')});

    const QStringList lines = rig.run({}).out.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[1].size(), 80);
}

}

QTEST_GUILESS_MAIN(velm::PreferencesCommandsTest)
#include "PreferencesCommandsTest.moc"
