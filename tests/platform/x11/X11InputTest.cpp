#include "platform/Platform.h"
#include "platform/contracts/FrontContract.h"
#include "platform/contracts/PointerContract.h"
#include "platform/rig/ForeignWindow.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/runloop/LoopTimer.h"
#include "platform/runloop/QtRunLoop.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace std::chrono_literals;

namespace velm
{

namespace
{

void xdotool(const QStringList &words) { outputOf(QStringLiteral("xdotool"), words); }

void move(QPoint distance)
{
    xdotool({QStringLiteral("mousemove_relative"), QStringLiteral("--"), QString::number(distance.x()),
             QString::number(distance.y())});
}

class X11PointerWorld final : public PointerWorld
{
public:
    X11PointerWorld() : m_platform(makePlatform(m_loop))
    {
        xdotool({QStringLiteral("mousemove"), QStringLiteral("400"), QStringLiteral("300")});
    }

    Pointer &pointer() override { return *m_platform.pointer; }
    void moveBy(QPoint distance) override { move(distance); }
    void press(Button button) override { use(QStringLiteral("mousedown"), button); }
    void release(Button button) override { use(QStringLiteral("mouseup"), button); }
    bool waitFor(const std::function<bool()> &condition) override { return QTest::qWaitFor(condition, 5000); }

private:
    void use(const QString &verb, Button button)
    {
        xdotool({verb, QString::number(static_cast<int>(button))});
    }

    QtRunLoop m_loop;
    Platform m_platform;
};

class X11FrontWorld final : public FrontWorld
{
public:
    X11FrontWorld() : m_platform(makePlatform(m_loop)) {}

    FrontProgram &front() override { return *m_platform.front; }
    void workIn(const ProgramInfo &program) override { open(program.identifier.toLatin1()); }
    void workInNothing() override { m_window.reset(); }
    bool waitFor(const std::function<bool()> &condition) override { return QTest::qWaitFor(condition, 5000); }

    void open(const QByteArray &windowClass)
    {
        m_window = std::make_unique<ForeignWindow>(windowClass, QRect(100, 100, 300, 200));
        m_window->activate();
        waitFor([this] { return m_window->isActive(); });
    }
    ForeignWindow &window() { return *m_window; }
    PasteKeys &keys() { return *m_platform.pasteKeys; }

private:
    QtRunLoop m_loop;
    Platform m_platform;
    std::unique_ptr<ForeignWindow> m_window;
};

}

class X11PointerContractTest final : public PointerContract
{
    std::unique_ptr<PointerWorld> makeWorld() override { return std::make_unique<X11PointerWorld>(); }
};

class X11FrontContractTest final : public FrontContract
{
    std::unique_ptr<FrontWorld> makeWorld() override { return std::make_unique<X11FrontWorld>(); }
};

class X11InputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void a_moving_pointer_is_told_at_most_thirty_times_a_second();
    void a_resting_pointer_wakes_nobody();
    void the_wheel_is_no_press();
    void a_program_is_named_by_its_desktop_entry_data();
    void a_program_is_named_by_its_desktop_entry();
    void the_paste_keys_reach_the_focused_window_data();
    void the_paste_keys_reach_the_focused_window();

private:
    QTemporaryDir m_data;
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
    entry("notes.desktop", "# a comment\nName=Notes\nName[xx]=No\n");
    entry("kde/konsole.desktop",
          "Name=Console\nCategories=Qt;System;TerminalEmulator;\nStartupWMClass=Konsole\n");
    entry("broken.desktop", "Exec=broken\n");
    qputenv("XDG_DATA_HOME", m_data.path().toLocal8Bit());
}

void X11InputTest::a_moving_pointer_is_told_at_most_thirty_times_a_second()
{
    X11PointerWorld world;
    QtRunLoop loop;
    QList<RunLoop::Instant> notices;
    connect(&world.pointer(), &Pointer::moved, this, [&] { notices.append(loop.now()); });
    world.pointer().setFollowed(true);

    QStringList words;
    for (int step = 0; step < 300; ++step)
        words << QStringLiteral("mousemove_relative") << QStringLiteral("1") << QStringLiteral("1")
              << QStringLiteral("sleep") << QStringLiteral("0.002");
    const auto start = loop.now();
    xdotool(words);
    const std::chrono::duration<double> taken = loop.now() - start;

    QVERIFY(world.waitFor([&] { return !notices.isEmpty() && loop.now() - notices.last() > 100ms; }));
    QVERIFY2(notices.size() >= 5, qPrintable(QString::number(notices.size())));
    const double most = taken.count() * 30 + 3;
    QVERIFY2(notices.size() <= most,
             qPrintable(QStringLiteral("%1 in %2 s").arg(notices.size()).arg(taken.count())));
}

void X11InputTest::a_resting_pointer_wakes_nobody()
{
    X11PointerWorld world;
    QSignalSpy moves(&world.pointer(), &Pointer::moved);
    world.pointer().setFollowed(true);
    world.moveBy({10, 10});
    QVERIFY(world.waitFor([&] { return moves.size() >= 2; }));
    QtRunLoop loop;
    LoopTimer timer(loop);
    QEventLoop resting;

    const qint64 before = wakeupsSoFar();
    timer.startOnce(2s, [&] { resting.quit(); });
    resting.exec();
    const qint64 wakeups = wakeupsSoFar() - before;

    QVERIFY2(wakeups <= 2, qPrintable(QString::number(wakeups)));
}

void X11InputTest::the_wheel_is_no_press()
{
    X11PointerWorld world;
    QSignalSpy presses(&world.pointer(), &Pointer::pressed);
    QSignalSpy releases(&world.pointer(), &Pointer::released);

    world.press(PointerWorld::Button::Wheel);
    world.release(PointerWorld::Button::Wheel);
    world.press(PointerWorld::Button::Left);
    world.release(PointerWorld::Button::Left);

    QVERIFY(world.waitFor([&] { return releases.size() == 1; }));
    QCOMPARE(presses.size(), 1);
}

void X11InputTest::a_program_is_named_by_its_desktop_entry_data()
{
    QTest::addColumn<QByteArray>("windowClass");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<bool>("isTerminal");

    QTest::newRow("by the class it claims") << QByteArray("Painter") << "Paint & Draw"
                                            << "org.example.Paint" << false;
    QTest::newRow("in another case") << QByteArray("PAINTER") << "Paint & Draw"
                                     << "org.example.Paint" << false;
    QTest::newRow("by the entry's id") << QByteArray("Notes") << "Notes"
                                       << "notes" << false;
    QTest::newRow("in a folder below") << QByteArray("konsole") << "Console"
                                       << "kde-konsole" << true;
    QTest::newRow("an entry without a name") << QByteArray("broken") << "broken"
                                             << "broken" << false;
    QTest::newRow("no entry") << QByteArray("Homemade") << "Homemade"
                              << "Homemade" << false;
    QTest::newRow("a terminal without entry") << QByteArray("UXTerm") << "UXTerm"
                                              << "UXTerm" << true;
}

void X11InputTest::a_program_is_named_by_its_desktop_entry()
{
    QFETCH(QByteArray, windowClass);
    QFETCH(QString, name);
    QFETCH(QString, identifier);
    QFETCH(bool, isTerminal);
    X11FrontWorld world;

    world.open(windowClass);

    const ProgramInfo expected{.name = name, .identifier = identifier, .isTerminal = isTerminal};
    QVERIFY(world.waitFor([&] { return world.front().current().has_value(); }));
    QCOMPARE(world.front().current()->name, expected.name);
    QCOMPARE(world.front().current(), expected);
}

void X11InputTest::the_paste_keys_reach_the_focused_window_data()
{
    QTest::addColumn<PasteChord>("chord");
    QTest::addColumn<QList<int>>("modifiers"); // down when each key comes
    constexpr int control = XCB_MOD_MASK_CONTROL;
    constexpr int shift = XCB_MOD_MASK_SHIFT;
    QTest::newRow("Ctrl+V") << PasteChord::ControlV << QList<int>{0, control};
    QTest::newRow("Ctrl+Shift+V") << PasteChord::ControlShiftV << QList<int>{0, control, control | shift};
}

void X11InputTest::the_paste_keys_reach_the_focused_window()
{
    QFETCH(PasteChord, chord);
    QFETCH(QList<int>, modifiers);
    X11FrontWorld world;
    world.open("editor");
    QVERIFY(world.waitFor([&] { return world.window().hasFocus(); }));
    QVERIFY(world.keys().isTrusted());

    world.keys().press(chord);

    QVERIFY(world.waitFor([&] { return world.window().keys().size() == modifiers.size(); }));
    QList<int> seen;
    for (const auto &key : world.window().keys())
        seen.append(key.second & (XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT));
    QCOMPARE(seen, modifiers);
    // All are up again: the next one comes without modifiers.
    xdotool({QStringLiteral("key"), QStringLiteral("v")});
    QVERIFY(world.waitFor([&] { return world.window().keys().size() == modifiers.size() + 1; }));
    QCOMPARE(int(world.window().keys().last().second), 0);
    QCOMPARE(world.window().keys().last().first, world.window().keys().at(modifiers.size() - 1).first);
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display(velm::PrivateDisplay::WindowManager::Openbox);
    qputenv("XDG_DATA_DIRS", "/nowhere"); // the machine's own programs are no part of this
    const QGuiApplication app(argc, argv);
    velm::X11PointerContractTest pointer;
    velm::X11FrontContractTest front;
    velm::X11InputTest own;
    const bool isChosen = app.arguments().size() > 1;
    return (isChosen ? 0 : QTest::qExec(&pointer) + QTest::qExec(&front)) + QTest::qExec(&own, argc, argv);
}

#include "X11InputTest.moc"
