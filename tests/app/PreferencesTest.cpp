#include "app/CommandTable.h"
#include "app/PreferencesCommands.h"
#include "app/Settings.h"
#include "platform/fakes/RecordedLoginItem.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace velm;
using namespace std::chrono_literals;

namespace
{

// The settings over a file in a folder of its own, on a virtual clock.
struct PreferencesRig {
    QTemporaryDir folder;
    QString path = folder.filePath("settings.json");
    VirtualRunLoop loop;
    PreferencesFile preferences{loop, path};
    RecordedLoginItem loginItem;
    Settings settings{preferences, loginItem};

    void edit(const QByteArray &content) const
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QByteArray read(const QString &name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QJsonObject stored()
    {
        preferences.flushNow();
        return QJsonDocument::fromJson(read("settings.json")).object();
    }

    // The command's reply, once what it does is done.
    CommandReply run(const QStringList &words)
    {
        CommandTable table;
        table.add(preferencesCommands(&preferences));
        CommandReply got{.status = -1};
        table.run(QStringList{"prefs"} + words, [&](const CommandReply &reply) { got = reply; });
        loop.settle();
        return got;
    }
};

void expectLog(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(pattern)));
}

}

class PreferencesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_key_has_its_default_and_takes_any_value_data();
    void every_key_has_its_default_and_takes_any_value();
    void a_wrong_type_reads_as_nothing_data();
    void a_wrong_type_reads_as_nothing();
    void a_section_is_disabled_once_and_unknown_ones_stay();
    void starting_at_login_follows_the_setting();
    void only_what_was_set_is_stored();
    void a_hand_edit_is_taken_up();
    void an_edit_of_a_moment_ago_is_not_overwritten();
    void a_broken_edit_changes_nothing_and_is_kept_aside();
    void a_failed_write_is_told_once();
    void a_value_is_json_or_a_bare_word();
    void an_unknown_key_is_refused_and_nothing_changes();
};

void PreferencesTest::every_key_has_its_default_and_takes_any_value_data()
{
    QTest::addColumn<QVariant>("byDefault");
    QTest::addColumn<QVariant>("value");

    for (const char *on :
         {"openOnHover", "showPeek", "playSounds", "hapticFeedback", "clipboardEnabled", "ignoreConcealed",
          "ambientIdle", "ambientOnlyWhenFree", "dropCatcher", "keepAfterQuit"})
        QTest::newRow(on) << QVariant(true) << QVariant(false);
    QTest::newRow("launchAtLogin") << QVariant(false) << QVariant(true);
    QTest::newRow("hoverDelay") << QVariant(0.25) << QVariant(0.0);
    QTest::newRow("ambientAfterSeconds") << QVariant(60.0) << QVariant(-1.0);
    QTest::newRow("clipboardLimit") << QVariant(200) << QVariant(-1);
    QTest::newRow("clipSizeLimitMegabytes") << QVariant(64) << QVariant(0);
    QTest::newRow("lastTab") << QVariant("files") << QVariant("cellar");
    QTest::newRow("disabledTabs") << QVariant(QStringList()) << QVariant(QStringList{"cellar"});
}

void PreferencesTest::every_key_has_its_default_and_takes_any_value()
{
    QFETCH(QVariant, value);
    PreferencesRig rig;
    const char *key = QTest::currentDataTag();
    const QMetaObject &type = Settings::staticMetaObject;
    const QMetaProperty property = type.property(type.indexOfProperty(key));
    const QSignalSpy announced(&rig.settings, property.notifySignal());

    QTEST(property.read(&rig.settings), "byDefault");
    QVERIFY(property.write(&rig.settings, value));
    QVERIFY(property.write(&rig.settings, value));

    QCOMPARE(property.read(&rig.settings), value);
    QCOMPARE(rig.stored(), (QJsonObject{{key, QJsonValue::fromVariant(value)}}));
    QCOMPARE(announced.size(), 1);
}

void PreferencesTest::a_wrong_type_reads_as_nothing_data()
{
    QTest::addColumn<QJsonValue>("stored");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("openOnHover") << QJsonValue(1) << QVariant(false);
    QTest::newRow("hoverDelay") << QJsonValue("0.5") << QVariant(0.0);
    QTest::newRow("ambientAfterSeconds") << QJsonValue(2) << QVariant(2.0); // a real all the same
    QTest::newRow("clipboardLimit") << QJsonValue(20.5) << QVariant(0);
    QTest::newRow("clipSizeLimitMegabytes") << QJsonValue(qint64(1) << 40) << QVariant(INT_MAX);
    QTest::newRow("lastTab") << QJsonValue(5) << QVariant(QString());
    QTest::newRow("disabledTabs") << QJsonValue(QJsonArray{"files", 1}) << QVariant(QStringList());
}

void PreferencesTest::a_wrong_type_reads_as_nothing()
{
    QFETCH(QJsonValue, stored);
    PreferencesRig rig;

    rig.preferences.set(QTest::currentDataTag(), stored);

    QTEST(rig.settings.property(QTest::currentDataTag()), "value");
}

void PreferencesTest::a_section_is_disabled_once_and_unknown_ones_stay()
{
    PreferencesRig rig;
    rig.preferences.set("disabledTabs", QJsonArray{"cellar", "cellar"});

    rig.settings.setEnabled("notes", false);
    rig.settings.setEnabled("notes", false);
    rig.settings.setEnabled("files", true);
    QCOMPARE(rig.settings.disabledTabs(), (QStringList{"cellar", "notes"}));
    rig.settings.setEnabled("notes", true);

    QCOMPARE(rig.settings.disabledTabs(), QStringList{"cellar"});
}

void PreferencesTest::starting_at_login_follows_the_setting()
{
    PreferencesRig rig;

    rig.settings.setLaunchAtLogin(true);
    QVERIFY(rig.loginItem.isAdded);
    rig.loginItem.isAdded = false; // removed behind our back
    rig.settings.setLaunchAtLogin(true);
    QVERIFY(rig.loginItem.isAdded);
    rig.preferences.set("launchAtLogin", false);
    QVERIFY(!rig.loginItem.isAdded);
    rig.loginItem.refusal = Refusal{"there is no folder for it"};
    expectLog("^\\[Velm\\] login item: there is no folder for it$");
    rig.settings.setLaunchAtLogin(true);

    QVERIFY(rig.settings.launchAtLogin());
}

void PreferencesTest::only_what_was_set_is_stored()
{
    PreferencesRig rig;
    rig.edit(R"({"later": {"a": [1, null]}, "clipboardLimit": 3})");

    rig.settings.setShowPeek(true); // as the default
    rig.preferences.reset("clipboardLimit");

    QCOMPARE(rig.settings.clipboardLimit(), 200);
    const QJsonObject later{{"a", QJsonArray{1, QJsonValue()}}};
    QCOMPARE(rig.stored(), (QJsonObject{{"later", later}, {"showPeek", true}}));
}

void PreferencesTest::a_hand_edit_is_taken_up()
{
    PreferencesRig rig;
    const auto edit = [&](const QByteArray &content) {
        rig.edit(content);
        QTRY_COMPARE(rig.loop.armedTimers(), 1);
        rig.loop.advance(1s);
    };

    edit(R"({"clipboardLimit": 4})");
    QCOMPARE(rig.settings.clipboardLimit(), 4);
    QVERIFY(QFile::rename(rig.path, rig.path + u'~')); // as editors do that write another file
    edit(R"({"clipboardLimit": 55})");
    QCOMPARE(rig.settings.clipboardLimit(), 55);
    expectLog("could not be read, the preferences stay as they are$");
    edit("{");
    QCOMPARE(rig.settings.clipboardLimit(), 55);
    edit("{}");

    QCOMPARE(rig.settings.clipboardLimit(), 200);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void PreferencesTest::an_edit_of_a_moment_ago_is_not_overwritten()
{
    PreferencesRig rig;

    rig.edit(R"({"clipboardLimit": 44, "mine": true})");
    rig.settings.setShowPeek(false);

    QCOMPARE(rig.stored(), (QJsonObject{{"clipboardLimit", 44}, {"mine", true}, {"showPeek", false}}));
}

void PreferencesTest::a_broken_edit_changes_nothing_and_is_kept_aside()
{
    for (const QByteArray edit : {"{\"clipboardLimit\": 4,}", "[{\"clipboardLimit\": 4}]", " "}) {
        PreferencesRig rig;
        rig.settings.setClipboardLimit(3);
        rig.loop.settle();

        rig.edit(edit);
        expectLog("settings.json could not be read, the preferences stay as they are$");
        rig.settings.setShowPeek(false);

        QCOMPARE(rig.stored(), (QJsonObject{{"clipboardLimit", 3}, {"showPeek", false}}));
        QCOMPARE(rig.read("settings.json.unreadable-20261121-143200"), edit);
    }
}

void PreferencesTest::a_failed_write_is_told_once()
{
    PreferencesRig rig;
    QVERIFY(QDir().mkdir(rig.path)); // nothing can be renamed onto a folder

    expectLog("could not be read");
    QTest::failOnWarning(QRegularExpression("could not be written"));
    const CommandReply reply = rig.run({"set", "clipboardLimit", "7"});
    rig.run({"set", "clipboardLimit", "8"});

    QVERIFY(reply.err.contains("could not be written"));
    QCOMPARE(rig.settings.clipboardLimit(), 8);
    QCOMPARE(QDir(rig.folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void PreferencesTest::a_value_is_json_or_a_bare_word()
{
    PreferencesRig rig;
    const auto got = [&rig](const QString &word) {
        rig.run({"set", "key", word});
        return rig.preferences.value("key");
    };

    QCOMPARE(got("true"), QJsonValue(true));
    QCOMPARE(got("two words"), QJsonValue("two words"));
    QCOMPARE(got("\"5\""), QJsonValue("5"));
    QCOMPARE(got("1,2"), QJsonValue("1,2"));
    QCOMPARE(got("[1"), QJsonValue("[1"));
    QCOMPARE(got("[\"a\", 1]"), QJsonValue(QJsonArray{"a", 1}));
    QCOMPARE(rig.run({"get", "key"}), printed("[\"a\",1]"));
}

void PreferencesTest::an_unknown_key_is_refused_and_nothing_changes()
{
    PreferencesRig rig;

    QCOMPARE(rig.run({"get", "cellar"}), refused("no preference is called \"cellar\""));
    QCOMPARE(rig.run({"reset", "cellar"}).status, 1);
    QCOMPARE(rig.run({"set", "showPeek"}).status, 2);

    QCOMPARE(rig.stored(), QJsonObject());
}

QTEST_GUILESS_MAIN(PreferencesTest)
#include "PreferencesTest.moc"
