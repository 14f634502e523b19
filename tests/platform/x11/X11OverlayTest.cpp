#include "platform/Platform.h"
#include "platform/rig/ForeignWindow.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/runloop/QtRunLoop.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QSignalSpy>

namespace velm
{

namespace
{

// The overlay's window hangs over an editor in which the person works.
struct World {
    World()
    {
        window.resize(800, 500);
        overlay.attach(&window);
        editor.activate();
        waitFor([this] { return editor.hasFocus(); });
        overlay.present(platform.screens->all().first());
        waitFor([this] { return window.isExposed(); });
    }
    ~World() { overlay.attach(nullptr); }

    static bool waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 5000); }
    bool hasKeyboard() const { return QGuiApplication::focusWindow() == &window; }
    xcb_window_t xWindow() const { return static_cast<xcb_window_t>(window.winId()); }

    QtRunLoop loop;
    Platform platform = makePlatform(loop);
    Overlay &overlay = *platform.overlay;
    QRasterWindow window;
    ForeignWindow editor{"Editor", {300, 0, 700, 700}};
};

}

class X11OverlayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clicks_pass_where_its_input_region_is_not();
    void the_keyboard_is_taken_only_when_asked_and_given_back();
    void a_keyboard_taken_by_another_window_is_told();
    void a_raise_war_is_not_waged();
    void a_screen_locker_stays_above();
};

void X11OverlayTest::clicks_pass_where_its_input_region_is_not()
{
    World world;
    QSignalSpy presses(world.platform.pointer.get(), &Pointer::pressed);

    xdotool(QStringLiteral("mousemove 640 100 click 1"));
    QVERIFY(world.waitFor([&] { return world.editor.clicks() == 1; }));
    world.overlay.setInputRegion(QRect(100, 0, 600, 200));
    xdotool(QStringLiteral("mousemove 640 100 click 1"));
    QVERIFY(world.waitFor([&] { return presses.size() == 2; }));
    QCOMPARE(world.editor.clicks(), 1);
    xdotool(QStringLiteral("mousemove 640 250 click 1"));

    QVERIFY(world.waitFor([&] { return world.editor.clicks() == 2; }));
}

void X11OverlayTest::the_keyboard_is_taken_only_when_asked_and_given_back()
{
    World world;
    QSignalSpy losses(&world.overlay, &Overlay::keyboardLost);
    QVERIFY(world.editor.hasFocus());

    for (int round = 0; round < 3; ++round) {
        world.overlay.takeKeyboard();
        QVERIFY(world.waitFor([&] { return world.hasKeyboard(); }));
        world.overlay.returnKeyboard();
        QVERIFY(world.waitFor([&] { return world.editor.hasFocus(); }));
    }

    QCOMPARE(losses.size(), 0);
}

void X11OverlayTest::a_keyboard_taken_by_another_window_is_told()
{
    World world;
    QSignalSpy losses(&world.overlay, &Overlay::keyboardLost);
    world.overlay.takeKeyboard();
    QVERIFY(world.waitFor([&] { return world.hasKeyboard(); }));

    ForeignWindow other("Other", {50, 520, 200, 150});
    other.activate();

    QVERIFY(world.waitFor([&] { return losses.size() == 1 && !world.hasKeyboard(); }));
}

void X11OverlayTest::a_raise_war_is_not_waged()
{
    World world;
    ForeignWindow pushy("Pushy", {200, 0, 600, 60}, ForeignWindow::Kind::Unmanaged);
    int lost = 0;

    // It comes up again whenever the overlay has risen.
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 2500) {
        world.waitFor([&] { return clock.elapsed() >= 2500 || !pushy.isAbove(world.xWindow()); });
        if (pushy.isAbove(world.xWindow()))
            break;
        ++lost;
        pushy.raise();
    }

    QCOMPARE(lost, 3);
}

void X11OverlayTest::a_screen_locker_stays_above()
{
    World world;
    ForeignWindow locker("Locker", {0, 0, 1280, 800}, ForeignWindow::Kind::Unmanaged);
    QVERIFY(locker.isAbove(world.xWindow()));

    // Long after a panel would have been passed.
    const bool cameUp = QTest::qWaitFor([&] { return !locker.isAbove(world.xWindow()); }, 500);

    QVERIFY(!cameUp);
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display;
    const QGuiApplication app(argc, argv);
    velm::X11OverlayTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "X11OverlayTest.moc"
