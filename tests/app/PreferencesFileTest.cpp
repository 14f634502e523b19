#include "app/PreferencesFile.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

// A settings file in a folder of its own, on a virtual clock.
struct PreferencesRig {
    QTemporaryDir folder;
    VirtualRunLoop loop;
    QString path = folder.filePath(u"velm/settings.json"_s);
    std::unique_ptr<PreferencesFile> preferences;

    explicit PreferencesRig(const QByteArray &content = {})
    {
        QDir(folder.path()).mkdir(u"velm"_s);
        if (!content.isEmpty())
            edit(content);
        start();
    }

    void start()
    {
        preferences.reset();
        preferences = std::make_unique<PreferencesFile>(loop, path);
        preferences->registerDefaults({{u"delay"_s, 0.25}, {u"limit"_s, 200}, {u"isOn"_s, true}});
    }

    // As an editor that writes in place does.
    void edit(const QByteArray &content) const
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QByteArray onDisk() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QJsonObject stored() const { return QJsonDocument::fromJson(onDisk()).object(); }
    QStringList keptAside() const
    {
        return QFileInfo(path).dir().entryList({u"settings.json.unreadable-*"_s}, QDir::Files);
    }
};

void expectLog(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(pattern)));
}

}

class PreferencesFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_file_is_in_the_configuration_folder();
    void values_read_by_their_type_data();
    void values_read_by_their_type();
    void lists_hold_texts_only();
    void defaults_are_read_and_never_written();
    void a_value_is_written_at_once();
    void unknown_keys_stay();
    void a_key_that_is_reset_reads_as_its_default();
    void only_a_change_is_announced();
    void a_hand_edit_is_taken_up();
    void an_editor_that_renames_is_noticed_twice();
    void a_removed_file_gives_the_defaults();
    void an_edit_of_a_moment_ago_is_not_overwritten();
    void a_broken_edit_changes_nothing_and_is_kept_aside_data();
    void a_broken_edit_changes_nothing_and_is_kept_aside();
    void a_broken_edit_that_is_mended_is_taken_up();
    void a_folder_in_its_place_gives_defaults_and_one_line();
    void a_failed_write_is_told();
    void all_is_on_the_disk_at_the_end();
    void at_rest_nothing_is_armed();
};

void PreferencesFileTest::the_file_is_in_the_configuration_folder()
{
    const QTemporaryDir home;

    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());

    QCOMPARE(PreferencesFile::defaultPath(), home.filePath(u"velm/settings.json"_s));
    qunsetenv("XDG_CONFIG_HOME");
}

void PreferencesFileTest::values_read_by_their_type_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("boolean");
    QTest::addColumn<double>("real");
    QTest::addColumn<qint64>("integer");
    QTest::addColumn<QString>("string");

    QTest::newRow("true") << QByteArray("true") << true << 0.0 << qint64(0) << QString();
    QTest::newRow("one is not true") << QByteArray("1") << false << 1.0 << qint64(1) << QString();
    QTest::newRow("zero") << QByteArray("0") << false << 0.0 << qint64(0) << QString();
    QTest::newRow("no fraction") << QByteArray("2.0") << false << 2.0 << qint64(2) << QString();
    QTest::newRow("a fraction") << QByteArray("2.5") << false << 2.5 << qint64(0) << QString();
    QTest::newRow("negative") << QByteArray("-3") << false << -3.0 << qint64(-3) << QString();
    QTest::newRow("out of reach") << QByteArray("1e300") << false << 1e300 << qint64(0) << QString();
    QTest::newRow("text") << QByteArray("\"on\"") << false << 0.0 << qint64(0) << u"on"_s;
    QTest::newRow("a number in a text") << QByteArray("\"5\"") << false << 0.0 << qint64(0) << u"5"_s;
    QTest::newRow("null") << QByteArray("null") << false << 0.0 << qint64(0) << QString();
    QTest::newRow("list") << QByteArray("[1]") << false << 0.0 << qint64(0) << QString();
}

void PreferencesFileTest::values_read_by_their_type()
{
    QFETCH(QByteArray, json);
    const PreferencesRig rig("{\"key\": " + json + "}");

    QTEST(rig.preferences->boolean(u"key"_s), "boolean");
    QTEST(rig.preferences->real(u"key"_s), "real");
    QTEST(rig.preferences->integer(u"key"_s), "integer");
    QTEST(rig.preferences->string(u"key"_s), "string");
}

void PreferencesFileTest::lists_hold_texts_only()
{
    const PreferencesRig rig(R"({"good": ["a", "b"], "mixed": ["a", 1], "text": "a"})");

    QCOMPARE(rig.preferences->stringList(u"good"_s), (QStringList{u"a"_s, u"b"_s}));
    QCOMPARE(rig.preferences->stringList(u"mixed"_s), QStringList());
    QCOMPARE(rig.preferences->stringList(u"text"_s), QStringList());
}

void PreferencesFileTest::defaults_are_read_and_never_written()
{
    PreferencesRig rig(R"({"limit": "many"})");

    QCOMPARE(rig.preferences->real(u"delay"_s), 0.25);
    QCOMPARE(rig.preferences->integer(u"limit"_s), 0); // stored, though of a wrong type
    QVERIFY(rig.preferences->value(u"nothing"_s).isUndefined());

    rig.preferences->set(u"isOn"_s, false);
    rig.loop.settle();
    QCOMPARE(rig.stored(), (QJsonObject{{u"limit"_s, u"many"_s}, {u"isOn"_s, false}}));
}

void PreferencesFileTest::a_value_is_written_at_once()
{
    PreferencesRig rig;

    rig.preferences->set(u"limit"_s, 5);
    rig.loop.settle();

    QCOMPARE(rig.onDisk(), QByteArray("{\n    \"limit\": 5\n}\n"));
    rig.start();
    QCOMPARE(rig.preferences->integer(u"limit"_s), 5);
}

void PreferencesFileTest::unknown_keys_stay()
{
    PreferencesRig rig(R"({"later": {"a": [1, null]}, "limit": 3})");

    rig.preferences->set(u"limit"_s, 4);
    rig.loop.settle();

    QCOMPARE(rig.stored().value(u"later"), QJsonValue(QJsonObject{{u"a"_s, QJsonArray{1, QJsonValue()}}}));
}

void PreferencesFileTest::a_key_that_is_reset_reads_as_its_default()
{
    PreferencesRig rig(R"({"limit": 3, "isOn": false})");

    rig.preferences->reset(u"limit"_s);
    rig.loop.settle();

    QCOMPARE(rig.preferences->integer(u"limit"_s), 200);
    QCOMPARE(rig.stored(), (QJsonObject{{u"isOn"_s, false}}));
}

void PreferencesFileTest::only_a_change_is_announced()
{
    PreferencesRig rig;
    const QSignalSpy changed(rig.preferences.get(), &PreferencesFile::changed);

    rig.preferences->set(u"limit"_s, 200); // as the default, so it is stored but reads as before
    QCOMPARE(changed.size(), 0);
    rig.preferences->set(u"limit"_s, 5);
    rig.preferences->set(u"limit"_s, 5);

    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), u"limit"_s);
    rig.loop.settle();
    QCOMPARE(rig.stored().value(u"limit"), QJsonValue(5));
}

void PreferencesFileTest::a_hand_edit_is_taken_up()
{
    PreferencesRig rig(R"({"limit": 3})");
    const QSignalSpy changed(rig.preferences.get(), &PreferencesFile::changed);

    rig.edit(R"({"limit": 4, "delay": 1})");
    QTRY_COMPARE(rig.loop.armedTimers(), 1);
    QCOMPARE(rig.preferences->integer(u"limit"_s), 3); // the editor may still be writing
    rig.loop.advance(1s);

    QCOMPARE(rig.preferences->integer(u"limit"_s), 4);
    QCOMPARE(rig.preferences->real(u"delay"_s), 1.0);
    QCOMPARE(changed.size(), 2);
}

void PreferencesFileTest::an_editor_that_renames_is_noticed_twice()
{
    PreferencesRig rig(R"({"limit": 3})");

    for (const int limit : {4, 5, 6}) {
        const QString draft = rig.path + u".swp"_s;
        QFile file(draft);
        QVERIFY(file.open(QIODevice::WriteOnly) &&
                file.write("{\"limit\": " + QByteArray::number(limit) + '}') > 0);
        file.close();
        QCOMPARE(::rename(QFile::encodeName(draft), QFile::encodeName(rig.path)), 0);
        QTRY_COMPARE(rig.loop.armedTimers(), 1);
        rig.loop.advance(1s);
        QCOMPARE(rig.preferences->integer(u"limit"_s), limit);
    }
}

void PreferencesFileTest::a_removed_file_gives_the_defaults()
{
    PreferencesRig rig(R"({"limit": 3})");

    QVERIFY(QFile::remove(rig.path));
    QTRY_COMPARE(rig.loop.armedTimers(), 1);
    rig.loop.advance(1s);

    QCOMPARE(rig.preferences->integer(u"limit"_s), 200);
}

void PreferencesFileTest::an_edit_of_a_moment_ago_is_not_overwritten()
{
    PreferencesRig rig(R"({"limit": 3})");

    rig.edit(R"({"limit": 44, "mine": true})");
    rig.preferences->set(u"isOn"_s, false);
    rig.loop.settle();

    QCOMPARE(rig.stored(), (QJsonObject{{u"limit"_s, 44}, {u"mine"_s, true}, {u"isOn"_s, false}}));
}

void PreferencesFileTest::a_broken_edit_changes_nothing_and_is_kept_aside_data()
{
    QTest::addColumn<QByteArray>("edit");

    QTest::newRow("not JSON") << QByteArray("{\"limit\": 4,}");
    QTest::newRow("a list") << QByteArray("[{\"limit\": 4}]");
    QTest::newRow("emptied") << QByteArray(" ");
}

void PreferencesFileTest::a_broken_edit_changes_nothing_and_is_kept_aside()
{
    QFETCH(QByteArray, edit);
    PreferencesRig rig(R"({"limit": 33})");

    rig.edit(edit);
    expectLog("^\\[Velm\\] .*settings.json could not be read, the preferences stay as they are$");
    rig.preferences->set(u"isOn"_s, false);
    rig.loop.settle();

    QCOMPARE(rig.stored(), (QJsonObject{{u"limit"_s, 33}, {u"isOn"_s, false}}));
    QCOMPARE(rig.keptAside(), QStringList{u"settings.json.unreadable-20261121-143200"_s});
    QFile kept(QFileInfo(rig.path).dir().filePath(rig.keptAside().first()));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), edit);
}

void PreferencesFileTest::a_broken_edit_that_is_mended_is_taken_up()
{
    PreferencesRig rig(R"({"limit": 3})");

    expectLog("could not be read");
    rig.edit("{");
    QTRY_COMPARE(rig.loop.armedTimers(), 1);
    rig.loop.advance(1s);
    QCOMPARE(rig.preferences->integer(u"limit"_s), 3);
    rig.edit(R"({"limit": 5})");
    QTRY_COMPARE(rig.loop.armedTimers(), 1);
    rig.loop.advance(1s);

    QCOMPARE(rig.preferences->integer(u"limit"_s), 5);
    QCOMPARE(rig.keptAside(), QStringList());
}

void PreferencesFileTest::a_folder_in_its_place_gives_defaults_and_one_line()
{
    PreferencesRig rig;
    QVERIFY(QDir().mkdir(rig.path));

    expectLog("^\\[Velm\\] .*could not be read");
    QTest::failOnWarning(QRegularExpression(u"could not be written"_s));
    rig.start();
    rig.preferences->set(u"limit"_s, 7);
    rig.preferences->set(u"limit"_s, 8);
    rig.loop.settle();

    QCOMPARE(rig.preferences->integer(u"limit"_s), 8);
    QVERIFY(QFileInfo(rig.path).isDir());
    QCOMPARE(QFileInfo(rig.path).dir().entryList(QDir::Files | QDir::Hidden), QStringList());
}

void PreferencesFileTest::a_failed_write_is_told()
{
    PreferencesRig rig;
    QVERIFY(QDir().mkdir(rig.path)); // nothing can be renamed onto a folder
    std::optional<Outcome> outcome;

    expectLog("could not be read");
    rig.preferences->set(u"limit"_s, 7);
    rig.preferences->whenStored([&](const Outcome &end) { outcome = end; });
    QVERIFY(!outcome);
    rig.loop.settle();

    QVERIFY(outcome && !*outcome);
    QVERIFY(outcome->sentence().contains(u"could not be written"));
}

void PreferencesFileTest::all_is_on_the_disk_at_the_end()
{
    PreferencesRig rig;

    rig.preferences->set(u"limit"_s, 7);
    rig.preferences.reset();

    QCOMPARE(rig.stored(), (QJsonObject{{u"limit"_s, 7}}));
}

void PreferencesFileTest::at_rest_nothing_is_armed()
{
    PreferencesRig rig;

    rig.preferences->set(u"limit"_s, 7);
    rig.loop.advance(1s);
    QTRY_COMPARE(rig.loop.armedTimers(), 1); // its own write is noticed
    rig.loop.advance(1s);

    QCOMPARE(rig.loop.armedTimers(), 0);
    QCOMPARE(rig.preferences->integer(u"limit"_s), 7);
}

}

QTEST_GUILESS_MAIN(velm::PreferencesFileTest)
#include "PreferencesFileTest.moc"
