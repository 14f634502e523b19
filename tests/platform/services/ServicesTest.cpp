#include "platform/Platform.h"
#include "platform/contracts/PasteboardLog.h"
#include "platform/rig/PrivateBus.h"
#include "platform/runloop/QtRunLoop.h"

#include <QDBusConnection>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace velm
{

// The desktop's notification service and file manager, as far as they are called.
class RecordedDesktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QList<QVariantList> notified;

public Q_SLOTS:
    uint Notify(const QString &program, uint replaces, const QString &icon, const QString &title,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout)
    {
        Q_UNUSED(replaces)
        Q_UNUSED(icon)
        Q_UNUSED(actions)
        notified.append({program, title, body, hints, timeout});
        return 1;
    }
};

class RecordedFiles : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &addresses, const QString &) { shown += addresses; }
};

class ServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_service_is_there_without_a_display();
    void what_is_written_without_a_display_counts();
    void a_notification_reaches_the_desktop_data();
    void a_notification_reaches_the_desktop();
    void a_file_is_shown_in_the_file_manager();
    void the_login_entry_starts_this_program();
    void a_login_entry_that_cannot_be_written_is_refused_in_words();
    void the_screens_are_told_once_a_change();
    void a_sound_without_a_sound_server_holds_nobody_up();
};

void ServicesTest::every_service_is_there_without_a_display()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    QCOMPARE(platform.name, QStringLiteral("offscreen"));
    QVERIFY(!platform.pasteKeys->isTrusted());
    QVERIFY(!platform.pointer->isGlobal());
    QVERIFY(!platform.front->current());
    QVERIFY(!platform.haptics->isAvailable());
    QVERIFY(!platform.drag->seesOtherPrograms());
    QVERIFY(!platform.overlay->abilities().clickThrough);
    QVERIFY(!platform.screens->all().isEmpty());
    QVERIFY(platform.screens->all().first().isPrimary);
}

void ServicesTest::what_is_written_without_a_display_counts()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);
    PasteboardLog log(*platform.pasteboard);
    platform.pasteboard->watch(wantAll());
    QCOMPARE(platform.pasteboard->changeCount(), quint64(0));

    platform.pasteboard->write({{QStringLiteral("text/plain"), [] { return QByteArray("x"); }}});

    QCOMPARE(platform.pasteboard->changeCount(), quint64(1));
    QVERIFY(log.story.isEmpty());
}

void ServicesTest::a_notification_reaches_the_desktop_data()
{
    QTest::addColumn<NotificationSound>("sound");
    QTest::addColumn<bool>("isSilent");
    QTest::newRow("silent") << NotificationSound::Silent << true;
    QTest::newRow("with the desktop's sound") << NotificationSound::Default << false;
}

void ServicesTest::a_notification_reaches_the_desktop()
{
    QFETCH(NotificationSound, sound);
    QFETCH(bool, isSilent);
    RecordedDesktop desktop;
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("desktop"));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &desktop,
                               QDBusConnection::ExportAllSlots));
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    platform.notifications->post(QStringLiteral("Sorted"), QStringLiteral("3 files <moved>"), sound);

    QVERIFY(QTest::qWaitFor([&] { return desktop.notified.size() == 1; }));
    const QVariantList call = desktop.notified.first();
    QCOMPARE(call.at(0).toString(), QStringLiteral("Velm"));
    QCOMPARE(call.at(1).toString(), QStringLiteral("Sorted"));
    QCOMPARE(call.at(2).toString(), QStringLiteral("3 files &lt;moved&gt;"));
    QCOMPARE(call.at(3).toMap().value(QStringLiteral("suppress-sound")).toBool(), isSilent);
    bus.unregisterObject(QStringLiteral("/org/freedesktop/Notifications"));
    QVERIFY(bus.unregisterService(QStringLiteral("org.freedesktop.Notifications")));
}

void ServicesTest::a_file_is_shown_in_the_file_manager()
{
    RecordedFiles files;
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("files"));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &files,
                               QDBusConnection::ExportAllSlots));
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    platform.fileManager->reveal(QStringLiteral("/tmp/a b.png"));

    QVERIFY(QTest::qWaitFor([&] { return !files.shown.isEmpty(); }));
    QCOMPARE(files.shown, QStringList{QStringLiteral("file:///tmp/a%20b.png")});
}

void ServicesTest::the_login_entry_starts_this_program()
{
    const QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);
    QFile entry(config.filePath(QStringLiteral("autostart/app.velm.Velm.desktop")));

    QVERIFY(platform.loginItem->add());
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QByteArray text = entry.readAll();
    entry.close();
    QVERIFY(text.startsWith("[Desktop Entry]\nType=Application\n"));
    const QByteArray path = QCoreApplication::applicationFilePath().toUtf8();
    QVERIFY(text.split('\n').contains(QByteArray("Exec=\"") + path + '"'));

    QVERIFY(platform.loginItem->remove());
    QVERIFY(!entry.exists());
    QVERIFY(platform.loginItem->remove()); // there is none any more: just as well
}

void ServicesTest::a_login_entry_that_cannot_be_written_is_refused_in_words()
{
    QTemporaryDir config;
    QFile inTheWay(config.filePath(QStringLiteral("autostart")));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    const Outcome outcome = platform.loginItem->add();

    QVERIFY(!outcome);
    QVERIFY(outcome.sentence().contains(config.path()));
}

void ServicesTest::the_screens_are_told_once_a_change()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);
    const QSignalSpy changes(platform.screens.get(), &Screens::changed);
    QScreen *screen = QGuiApplication::primaryScreen();

    // The same as before, told four times over by the toolkit.
    Q_EMIT screen->geometryChanged(screen->geometry());
    Q_EMIT screen->availableGeometryChanged(screen->availableGeometry());
    QCoreApplication::processEvents();

    QCOMPARE(changes.size(), 0);
    QCOMPARE(platform.screens->all().first().geometry, screen->geometry());
}

void ServicesTest::a_sound_without_a_sound_server_holds_nobody_up()
{
    qputenv("PULSE_SERVER", "unix:/nowhere");
    QElapsedTimer clock;
    clock.start();
    {
        QtRunLoop loop;
        const Platform platform = makePlatform(loop);
        for (const Sound sound : {Sound::Pop, Sound::Glass, Sound::Tink, Sound::Bottle})
            platform.sound->play(sound);
        QVERIFY2(clock.elapsed() < 200, qPrintable(QString::number(clock.elapsed())));
    }
    QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
}

}

int main(int argc, char **argv)
{
    const velm::PrivateBus bus;
    const QGuiApplication app(argc, argv);
    velm::ServicesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ServicesTest.moc"
