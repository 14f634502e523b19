#include "app/Parcel.h"

#include "app/Store.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include <thread>

using namespace velm;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

const auto fileName = u"stamps.json"_s;

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

    void start()
    {
        store.reset();
        store = std::make_unique<Store>(loop, u"Velm"_s);
    }

    QString path(const QString &name = fileName) const { return store->dir().filePath(name); }
    void save(const QString &motif, const QString &name = fileName)
    {
        store->save(QList<Stamp>{{motif, 1}}, name);
    }
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
    QStringList entries(const QString &filter = u"*"_s) const
    {
        return store->dir().entryList({filter}, QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
};

int modeOf(const QString &path)
{
    struct stat status;
    return ::stat(QFile::encodeName(path), &status) == 0 ? int(status.st_mode & 07777) : 0;
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
    void a_burst_is_written_together_after_its_last_save();
    void what_waits_is_written_when_asked_and_at_the_end();
    void what_cannot_be_encoded_leaves_the_file();
    void a_bad_file_is_kept_aside_once_data();
    void a_bad_file_is_kept_aside_once();
    void what_cannot_be_read_is_nothing();
    void files_of_killed_writers_are_swept_up();
};

void StoreTest::folders_and_files_are_the_users_alone()
{
    StoreRig rig;
    ::chmod(QFile::encodeName(rig.store->dir().path()), 0755);
    rig.start();

    rig.save(u"owl"_s);
    rig.store->flushNow();

    QCOMPARE(modeOf(rig.home.filePath(u"Velm"_s)), 0700);
    QCOMPARE(modeOf(rig.home.filePath(u"Velm/Clips"_s)), 0700);
    QCOMPARE(modeOf(rig.path()), 0600);
    QCOMPARE(rig.entries(), QStringList{fileName});
}

void StoreTest::a_burst_is_written_together_after_its_last_save()
{
    StoreRig rig;
    const auto other = u"other.json"_s;

    for (int i = 0; i < 20; ++i) {
        std::thread([&] { rig.save(QString::number(i), i % 2 ? other : fileName); }).join(); // any thread
        rig.loop.advance(349ms);
        QCOMPARE(rig.entries(), QStringList());
    }
    rig.loop.advance(1ms);

    QCOMPARE(rig.onDisk(), u"18"_s);
    QCOMPARE(rig.onDisk(other), u"19"_s);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void StoreTest::what_waits_is_written_when_asked_and_at_the_end()
{
    StoreRig rig;
    QVERIFY(QDir().mkdir(rig.path("a-folder.json")));

    rig.save("yew", "a-folder.json"); // fails, and harms no other
    rig.save("owl");
    rig.store->flushNow();
    QCOMPARE(rig.onDisk(), "owl");
    rig.save("oak");
    rig.start();

    QCOMPARE(rig.onDisk(), "oak");
    QCOMPARE(rig.entries(), QStringList{fileName});
}

void StoreTest::what_cannot_be_encoded_leaves_the_file()
{
    StoreRig rig;
    rig.store->save(Parcel(), fileName);
    rig.store->flushNow();
    Parcel endless;
    endless.price = std::numeric_limits<double>::quiet_NaN();

    rig.store->save(endless, fileName);
    rig.store->flushNow();

    QVERIFY(rig.store->load<Parcel>(fileName) == Parcel());
    QCOMPARE(rig.entries(), QStringList{fileName});
}

void StoreTest::a_bad_file_is_kept_aside_once_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("readAs");

    const QByteArray good = R"({"motif": "owl", "value": 1})";
    QTest::newRow("not JSON") << QByteArray("[{") << "";
    QTest::newRow("an object") << good << "";
    QTest::newRow("a bad record") << QByteArray("[" + good + R"(, {"motif": 7, "value": 1}])") << "";
    QTest::newRow("a later version") << QByteArray(R"([{"glue": 1, "motif": "owl", "value": 1}])") << "owl";
}

void StoreTest::a_bad_file_is_kept_aside_once()
{
    QFETCH(QByteArray, bytes);
    StoreRig rig;
    rig.put(bytes);
    const auto kept = u"stamps.json.unreadable-20261121-143200"_s;

    expectLog("^\\[Velm\\] stamps.json .*, it is kept as stamps.json.unreadable-20261121-143200$");
    QTEST(rig.onDisk(), "readAs");
    expectLog("it is kept as stamps.json.unreadable-20261121-143200$");
    rig.onDisk();
    rig.save(u"oak"_s);
    rig.store->flushNow();

    QCOMPARE(rig.onDisk(), u"oak"_s);
    QCOMPARE(rig.entries(), (QStringList{fileName, kept}));
    QFile file(rig.path(kept));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
    rig.put("another in the same second");
    expectLog("it is kept as stamps.json.unreadable-20261121-143200-2$");
    rig.onDisk();
}

void StoreTest::what_cannot_be_read_is_nothing()
{
    const auto makeFolder = [](const char *path) { return ::mkdir(path, 0700); };
    const auto makePipe = [](const char *path) { return ::mkfifo(path, 0600); };
    const auto makeHugeFile = [](const char *path) { // sparse, so it takes no room
        return ::mknod(path, S_IFREG | 0600, 0) | ::truncate(path, (off_t(1) << 30) + 1);
    };
    for (int (*make)(const char *) : {+makeFolder, +makePipe, +makeHugeFile}) {
        StoreRig rig;
        QCOMPARE(make(QFile::encodeName(rig.path())), 0);

        expectLog("^\\[Velm\\] stamps.json could not be read");
        QVERIFY(!rig.store->loadList<Stamp>(fileName));
        rig.save("oak");
        rig.store->flushNow();

        QCOMPARE(rig.entries(".velm-*"), QStringList());
    }
}

void StoreTest::files_of_killed_writers_are_swept_up()
{
    StoreRig rig;
    for (const auto &[name, age] :
         {std::pair(".velm-aB3xYz", 2h), {".velm-cD4xYz", 0h}, {".velm-long", 2h}}) {
        QFile file(rig.path(name));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        QVERIFY(file.setFileTime(rig.loop.wallTime().addDuration(-age), QFileDevice::FileModificationTime));
    }

    rig.start();

    QCOMPARE(rig.entries(), (QStringList{".velm-cD4xYz", ".velm-long"}));
}

QTEST_GUILESS_MAIN(StoreTest)
#include "StoreTest.moc"
