#include "platform/Platform.h"
#include "platform/rig/ForeignWindow.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/runloop/QtRunLoop.h"

#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace std::chrono_literals;

namespace velm
{

class X11InputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { xdotool(QStringLiteral("mousemove 400 300")); }
    void a_movement_is_told_while_followed_only();
    void a_moving_pointer_is_told_at_most_thirty_times_a_second_and_where_it_rests();
    void presses_carry_their_place_and_the_wheel_is_none();
    void a_program_is_named_by_its_desktop_entry_data();
    void a_program_is_named_by_its_desktop_entry();

private:
    QTemporaryDir m_data;
    QtRunLoop m_loop;
    Platform m_platform = makePlatform(m_loop);
    Pointer &m_pointer = *m_platform.pointer;
};

void X11InputTest::initTestCase()
{
    const QDir folder(m_data.path());
    QVERIFY(folder.mkpath(QStringLiteral("applications/kde")));
    const auto entry = [&folder](const char *name, const QByteArray &text) {
        QFile file(folder.filePath(QLatin1String("applications/") + QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\n" + text + "\n[Desktop Action x]\nName=Wrong\n");
    };
    entry("org.example.Paint.desktop", "Name=Paint & Draw\nStartupWMClass=Painter\n");
    entry("kde/konsole.desktop",
          "Name=Console\nCategories=Qt;System;TerminalEmulator;\nStartupWMClass=Konsole\n");
    entry("broken.desktop", "Exec=broken\n");
    qputenv("XDG_DATA_HOME", m_data.path().toLocal8Bit());
}

void X11InputTest::a_movement_is_told_while_followed_only()
{
    QSignalSpy moves(&m_pointer, &Pointer::moved);

    xdotool(QStringLiteral("mousemove_relative 40 30"));
    QVERIFY(QTest::qWaitFor([&] { return m_pointer.position() == QPoint(440, 330); }));
    QCOMPARE(moves.size(), 0);
    m_pointer.setFollowed(true);
    xdotool(QStringLiteral("mousemove_relative 10 0"));
    QVERIFY(QTest::qWaitFor([&] { return !moves.isEmpty(); }));
    m_pointer.setFollowed(false);
    moves.clear();
    xdotool(QStringLiteral("mousemove_relative 10 0"));

    QVERIFY(QTest::qWaitFor([&] { return m_pointer.position() == QPoint(460, 330); }));
    QCOMPARE(moves.size(), 0);
}

void X11InputTest::a_moving_pointer_is_told_at_most_thirty_times_a_second_and_where_it_rests()
{
    QList<QPoint> notices;
    QObject listener;
    connect(&m_pointer, &Pointer::moved, &listener, [&](QPoint place) { notices.append(place); });
    m_pointer.setFollowed(true);

    const auto start = m_loop.now();
    xdotool(QStringLiteral("mousemove_relative 1 1 sleep 0.002 ").repeated(300).trimmed());
    const std::chrono::duration<double> taken = m_loop.now() - start;

    QVERIFY(QTest::qWaitFor([&] { return !notices.isEmpty() && notices.last() == QPoint(700, 600); }));
    m_pointer.setFollowed(false);
    QVERIFY2(notices.size() >= 5, qPrintable(QString::number(notices.size())));
    QVERIFY2(notices.size() <= taken.count() * 30 + 3,
             qPrintable(QStringLiteral("%1 in %2 s").arg(notices.size()).arg(taken.count())));
}

void X11InputTest::presses_carry_their_place_and_the_wheel_is_none()
{
    QSignalSpy presses(&m_pointer, &Pointer::pressed);
    QSignalSpy releases(&m_pointer, &Pointer::released);

    xdotool(QStringLiteral("mousemove 470 390 click 4 click 1 click 3"));

    QVERIFY(QTest::qWaitFor([&] { return releases.size() == 2; }));
    QCOMPARE(presses.size(), 2);
    QCOMPARE(presses.first().first().toPoint(), QPoint(470, 390));
    QCOMPARE(releases.last().first().toPoint(), QPoint(470, 390));
}

void X11InputTest::a_program_is_named_by_its_desktop_entry_data()
{
    QTest::addColumn<QByteArray>("windowClass");
    QTest::addColumn<ProgramInfo>("program");
    const auto row = [](const char *rule, const char *windowClass, const char *name, const char *identifier,
                        bool isTerminal) {
        const ProgramInfo program{.name = QString::fromLatin1(name),
                                  .identifier = QString::fromLatin1(identifier),
                                  .isTerminal = isTerminal};
        QTest::newRow(rule) << QByteArray(windowClass) << program;
    };
    row("by the class it claims", "Painter", "Paint & Draw", "org.example.Paint", false);
    row("in another case", "PAINTER", "Paint & Draw", "org.example.Paint", false);
    row("in a folder below", "konsole", "Console", "kde-konsole", true);
    row("an entry without a name", "broken", "broken", "broken", false);
    row("no entry", "Homemade", "Homemade", "Homemade", false);
    row("a terminal without entry", "UXTerm", "UXTerm", "UXTerm", true);
}

void X11InputTest::a_program_is_named_by_its_desktop_entry()
{
    QFETCH(QByteArray, windowClass);
    QFETCH(ProgramInfo, program);
    const FrontProgram &front = *m_platform.front;
    QVERIFY(QTest::qWaitFor([&] { return !front.current(); }));

    ForeignWindow window(windowClass, {100, 100, 300, 200});
    window.activate();

    QVERIFY(QTest::qWaitFor([&] { return front.current().has_value(); }));
    QCOMPARE(front.current()->name, program.name);
    QCOMPARE(front.current(), program);
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display;
    qputenv("XDG_DATA_DIRS", "/nowhere"); // the machine's own programs are no part of this
    const QGuiApplication app(argc, argv);
    velm::X11InputTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "X11InputTest.moc"
