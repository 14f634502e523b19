#include "app/Parcel.h"

#include "app/Store.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <thread>

namespace velm
{

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace
{

const auto fileName = QStringLiteral("stamps.json");

QList<Stamp> stamps(const QString &motif) { return {{motif, 1}}; }

// A home folder and a store in it, on a virtual clock.
struct StoreRig {
    QTemporaryDir home;
    VirtualRunLoop loop;
    std::unique_ptr<Store> store;

    StoreRig()
    {
        qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
        start();
    }
    ~StoreRig() { qunsetenv("XDG_DATA_HOME"); }

    void start()
    {
        store.reset();
        store = std::make_unique<Store>(loop, QStringLiteral("Velm"));
    }

    QString path(const QString &name = fileName) const { return store->dir().filePath(name); }
    QString onDisk(const QString &name = fileName)
    {
        const auto read = store->loadList<Stamp>(name);
        return read && !read->isEmpty() ? read->first().motif : QString();
    }
    void put(const QByteArray &bytes)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QStringList entries(const QString &filter = QStringLiteral("*")) const
    {
        return store->dir().entryList({filter}, QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
};

mode_t modeOf(const QString &path)
{
    struct stat status;
    return ::stat(QFile::encodeName(path), &status) == 0 ? status.st_mode & 07777 : 0;
}

void expectLog(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(pattern)));
}

}

class StoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folders_and_files_are_the_users_alone();
    void an_open_folder_is_closed_to_others();
    void two_saves_of_a_file_are_one_write();
    void files_saved_soon_after_each_other_are_written_together();
    void a_steady_stream_puts_the_write_off();
    void what_waits_is_written_at_once_when_asked();
    void what_waits_is_written_at_the_end();
    void the_snapshot_is_that_of_the_save();
    void another_thread_may_save();
    void a_single_record_is_kept_as_an_object();
    void what_cannot_be_encoded_leaves_the_file();
    void a_missing_file_is_nothing();
    void a_bad_file_is_kept_aside_once_data();
    void a_bad_file_is_kept_aside_once();
    void another_bad_file_is_kept_too();
    void keys_of_a_later_version_are_kept_aside();
    void what_is_no_file_reads_as_nothing_data();
    void what_is_no_file_reads_as_nothing();
    void a_huge_file_is_not_read();
    void a_file_that_cannot_be_written_harms_no_other();
    void a_linked_file_stays_a_link();
    void files_of_killed_writers_are_swept_up();
    void nothing_is_armed_at_rest();
};

void StoreTest::folders_and_files_are_the_users_alone()
{
    StoreRig rig;

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.store->flushNow();

    QCOMPARE(rig.store->dir().path(), rig.home.filePath(u"Velm"_s));
    QCOMPARE(modeOf(rig.store->dir().path()), mode_t(0700));
    QCOMPARE(modeOf(rig.store->clipsDir().path()), mode_t(0700));
    QCOMPARE(modeOf(rig.path()), mode_t(0600));
    QCOMPARE(rig.entries(), QStringList{fileName});
}

void StoreTest::an_open_folder_is_closed_to_others()
{
    StoreRig rig;
    ::chmod(QFile::encodeName(rig.store->dir().path()), 0755);

    rig.start();

    QCOMPARE(modeOf(rig.store->dir().path()), mode_t(0700));
}

void StoreTest::two_saves_of_a_file_are_one_write()
{
    StoreRig rig;

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.loop.advance(100ms);
    rig.store->save(stamps(u"oak"_s), fileName);
    rig.loop.advance(349ms);
    QVERIFY(!QFile::exists(rig.path()));
    rig.loop.advance(1ms);

    QCOMPARE(rig.onDisk(), u"oak"_s);
}

void StoreTest::files_saved_soon_after_each_other_are_written_together()
{
    StoreRig rig;
    const auto other = u"other.json"_s;

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.loop.advance(200ms);
    rig.store->save(stamps(u"oak"_s), other);
    rig.loop.advance(349ms);
    QCOMPARE(rig.entries(), QStringList());
    rig.loop.advance(1ms);

    QCOMPARE(rig.onDisk(fileName), u"owl"_s);
    QCOMPARE(rig.onDisk(other), u"oak"_s);
}

void StoreTest::a_steady_stream_puts_the_write_off()
{
    StoreRig rig;

    for (int i = 0; i < 50; ++i) {
        rig.store->save(stamps(QString::number(i)), fileName);
        rig.loop.advance(340ms);
        QVERIFY(!QFile::exists(rig.path()));
    }
    rig.loop.advance(10ms);

    QCOMPARE(rig.onDisk(), u"49"_s);
}

void StoreTest::what_waits_is_written_at_once_when_asked()
{
    StoreRig rig;

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.store->flushNow();

    QCOMPARE(rig.onDisk(), u"owl"_s);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void StoreTest::what_waits_is_written_at_the_end()
{
    StoreRig rig;

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.start();

    QCOMPARE(rig.onDisk(), u"owl"_s);
}

void StoreTest::the_snapshot_is_that_of_the_save()
{
    StoreRig rig;
    QList<Stamp> changing = stamps(u"owl"_s);

    rig.store->save(changing, fileName);
    changing.first().motif = u"oak"_s;
    rig.store->flushNow();

    QCOMPARE(rig.onDisk(), u"owl"_s);
}

void StoreTest::another_thread_may_save()
{
    StoreRig rig;

    std::thread([&] { rig.store->save(stamps(u"owl"_s), fileName); }).join();
    rig.loop.advance(Store::settleDelay);

    QCOMPARE(rig.onDisk(), u"owl"_s);
}

void StoreTest::a_single_record_is_kept_as_an_object()
{
    StoreRig rig;

    rig.store->save(Stamp{u"owl"_s, 85}, fileName);
    rig.store->flushNow();

    QVERIFY(rig.store->load<Stamp>(fileName) == (Stamp{u"owl"_s, 85}));
}

void StoreTest::what_cannot_be_encoded_leaves_the_file()
{
    StoreRig rig;
    rig.store->save(QList<Parcel>{Parcel()}, fileName);
    rig.store->flushNow();
    Parcel endless;
    endless.price = std::numeric_limits<double>::quiet_NaN();

    rig.store->save(QList<Parcel>{endless}, fileName);
    rig.store->flushNow();

    QVERIFY(rig.store->loadList<Parcel>(fileName) == QList<Parcel>{Parcel()});
    QCOMPARE(rig.entries(), QStringList{fileName});
}

void StoreTest::a_missing_file_is_nothing()
{
    StoreRig rig;

    QVERIFY(!rig.store->loadList<Stamp>(fileName));
    QVERIFY(!rig.store->load<Stamp>(fileName));
    QCOMPARE(rig.entries(), QStringList());
}

void StoreTest::a_bad_file_is_kept_aside_once_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("not JSON") << QByteArray("[{");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("an object") << QByteArray(R"({"motif": "owl", "value": 1})");
    QTest::newRow("a bad record") << QByteArray(
        R"([{"motif": "owl", "value": 1}, {"motif": 7, "value": 1}])");
    QTest::newRow("bytes that are no text") << QByteArray("[\"\xff\xfe\0\"]", 7);
}

void StoreTest::a_bad_file_is_kept_aside_once()
{
    QFETCH(QByteArray, bytes);
    StoreRig rig;
    rig.put(bytes);
    const auto kept = u"stamps.json.unreadable-20261121-143200"_s;

    expectLog(
        "^\\[Velm\\] stamps.json could not be read, it is kept as stamps.json.unreadable-20261121-143200$");
    QVERIFY(!rig.store->loadList<Stamp>(fileName));
    rig.loop.advance(1h);
    expectLog("^\\[Velm\\] stamps.json could not be read");
    QVERIFY(!rig.store->loadList<Stamp>(fileName));
    QCOMPARE(rig.entries(), (QStringList{fileName, kept}));

    rig.store->save(stamps(u"oak"_s), fileName);
    rig.store->flushNow();
    QCOMPARE(rig.onDisk(), u"oak"_s);
    QFile file(rig.path(kept));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
}

void StoreTest::another_bad_file_is_kept_too()
{
    StoreRig rig;

    for (const char *bytes : {"first", "second", "third"}) {
        QFile::remove(rig.path());
        rig.put(bytes);
        expectLog("could not be read");
        QVERIFY(!rig.store->loadList<Stamp>(fileName));
    }

    QCOMPARE(rig.entries(u"*.unreadable-*"_s).size(), 3);
}

void StoreTest::keys_of_a_later_version_are_kept_aside()
{
    StoreRig rig;
    rig.put(R"([{"motif": "owl", "value": 1, "glue": true}])");

    expectLog("has keys that this version does not know, it is kept as");

    QCOMPARE(rig.onDisk(), u"owl"_s);
    QCOMPARE(rig.entries(u"*.unreadable-*"_s).size(), 1);
}

void StoreTest::what_is_no_file_reads_as_nothing_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("isLogged");

    QTest::newRow("folder") << u"folder"_s << true;
    QTest::newRow("pipe") << u"pipe"_s << true;
    QTest::newRow("link to nowhere") << u"link"_s << false;
    QTest::newRow("link to itself") << u"loop"_s << true;
}

void StoreTest::what_is_no_file_reads_as_nothing()
{
    QFETCH(QString, what);
    QFETCH(bool, isLogged);
    StoreRig rig;
    if (what == u"folder")
        QVERIFY(QDir().mkdir(rig.path()));
    else if (what == u"pipe")
        QCOMPARE(::mkfifo(QFile::encodeName(rig.path()), 0600), 0);
    else
        QVERIFY(QFile::link(what == u"loop" ? fileName : u"nowhere"_s, rig.path()));

    if (isLogged)
        expectLog("^\\[Velm\\] stamps.json could not be read$");
    QVERIFY(!rig.store->loadList<Stamp>(fileName));

    rig.store->save(stamps(u"oak"_s), fileName);
    rig.store->flushNow();
    const bool isReplaced = QFileInfo(rig.path()).isFile();
    QCOMPARE(isReplaced, what != u"folder");
    QCOMPARE(rig.entries(u".velm-*"_s), QStringList());
}

void StoreTest::a_huge_file_is_not_read()
{
    StoreRig rig;
    rig.put("[]");
    QVERIFY(QFile::resize(rig.path(), (qint64(1) << 30) + 1)); // sparse, so it takes no room

    expectLog("could not be read, it is kept as");

    QVERIFY(!rig.store->loadList<Stamp>(fileName));
}

void StoreTest::a_file_that_cannot_be_written_harms_no_other()
{
    StoreRig rig;
    const auto blocked = u"a-folder.json"_s;
    QVERIFY(QDir().mkdir(rig.path(blocked)));

    rig.store->save(stamps(u"oak"_s), blocked);
    rig.store->save(stamps(u"owl"_s), fileName);
    rig.store->flushNow();

    QCOMPARE(rig.onDisk(), u"owl"_s);
    QCOMPARE(rig.entries(), QStringList{fileName});
}

void StoreTest::a_linked_file_stays_a_link()
{
    StoreRig rig;
    const QString target = rig.home.filePath(u"elsewhere.json"_s);
    QVERIFY(QFile(target).open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(target, rig.path()));

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.store->flushNow();

    QVERIFY(QFileInfo(rig.path()).isSymLink());
    QCOMPARE(rig.onDisk(), u"owl"_s);
}

void StoreTest::files_of_killed_writers_are_swept_up()
{
    StoreRig rig;
    for (const QString &name : {u".velm-aB3xYz"_s, u".velm-cD4xYz"_s, u".velm-long-name"_s}) {
        QFile file(rig.path(name));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const auto age = name.contains(u'B') || name.contains(u"long") ? -2h : -1min;
        QVERIFY(file.setFileTime(rig.loop.wallTime().addDuration(age), QFileDevice::FileModificationTime));
    }

    rig.start();

    QCOMPARE(rig.entries(), (QStringList{u".velm-cD4xYz"_s, u".velm-long-name"_s}));
}

void StoreTest::nothing_is_armed_at_rest()
{
    StoreRig rig;

    rig.store->save(stamps(u"owl"_s), fileName);
    rig.loop.advance(1s);

    QCOMPARE(rig.loop.armedTimers(), 0);
}

}

QTEST_GUILESS_MAIN(velm::StoreTest)
#include "StoreTest.moc"
