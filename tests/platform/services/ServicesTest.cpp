#include "platform/Platform.h"
#include "platform/rig/PrivateServer.h"
#include "platform/runloop/QtRunLoop.h"

#include <QDBusConnection>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>

namespace velm
{

// The desktop's notification service, as far as it is called.
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

class ServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_notification_reaches_the_desktop();
    void the_login_entry_starts_this_program();
    void a_login_entry_that_cannot_be_written_is_refused_in_words();
};

void ServicesTest::a_notification_reaches_the_desktop()
{
    RecordedDesktop desktop;
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("desktop"));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &desktop,
                               QDBusConnection::ExportAllSlots));
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    platform.notifications->post(QStringLiteral("Sorted"), QStringLiteral("3 files <moved>"),
                                 NotificationSound::Silent);

    QVERIFY(QTest::qWaitFor([&] { return desktop.notified.size() == 1; }));
    const QVariantList call = desktop.notified.first();
    QCOMPARE(call.at(0).toString(), QStringLiteral("Velm"));
    QCOMPARE(call.at(1).toString(), QStringLiteral("Sorted"));
    QCOMPARE(call.at(2).toString(), QStringLiteral("3 files &lt;moved&gt;"));
    QVERIFY(call.at(3).toMap().value(QStringLiteral("suppress-sound")).toBool());
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

}

int main(int argc, char **argv)
{
    const velm::PrivateServer bus("dbus-daemon --session --nofork --print-address=1");
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
    const QGuiApplication app(argc, argv);
    velm::ServicesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ServicesTest.moc"
