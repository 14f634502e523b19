#include "platform/Platform.h"
#include "platform/contracts/OverlayContract.h"
#include "platform/rig/ForeignWindow.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/runloop/QtRunLoop.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QSignalSpy>

#include <xcb/shape.h>

namespace velm
{

namespace
{

class X11OverlayWorld final : public OverlayWorld
{
public:
    X11OverlayWorld() : m_platform(makePlatform(m_loop)), m_window(std::make_unique<QRasterWindow>())
    {
        m_window->resize(800, 500);
        m_platform.overlay->attach(m_window.get());
        m_editor.activate();
        waitFor([this] { return m_editor.hasFocus() && m_editor.isActive(); });
    }
    ~X11OverlayWorld() override { m_platform.overlay->attach(nullptr); }

    Overlay &overlay() override { return *m_platform.overlay; }
    void show() override
    {
        overlay().present(m_platform.screens->all().first());
        waitFor([this] { return m_window->isExposed(); });
    }
    bool hasKeyboard() override { return QGuiApplication::focusWindow() == m_window.get(); }
    void personClicksElsewhere() override { m_other.activate(); }
    void setCompositor(bool runs) override
    {
        if (runs)
            m_other.own("_NET_WM_CM_S0");
        else
            m_other.disown("_NET_WM_CM_S0");
    }
    bool waitFor(const std::function<bool()> &condition) override { return QTest::qWaitFor(condition, 5000); }

    QWindow &window() { return *m_window; }
    xcb_window_t xWindow() { return static_cast<xcb_window_t>(m_window->winId()); }
    ForeignWindow &editor() { return m_editor; }
    Pointer &pointer() { return *m_platform.pointer; }

private:
    QtRunLoop m_loop;
    Platform m_platform;
    ForeignWindow m_other{"Other", {50, 520, 200, 150}};
    ForeignWindow m_editor{"Editor", {300, 0, 700, 700}};
    std::unique_ptr<QRasterWindow> m_window;
};

void clickAt(QPoint place)
{
    outputOf(QStringLiteral("xdotool"),
             {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
              QStringLiteral("click"), QStringLiteral("1")});
}

}

class X11OverlayContractTest final : public OverlayContract
{
    std::unique_ptr<OverlayWorld> makeWorld() override { return std::make_unique<X11OverlayWorld>(); }
};

class X11OverlayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void it_hangs_from_the_middle_of_the_top_edge();
    void clicks_pass_where_its_input_region_is_not();
    void an_empty_input_region_takes_no_click();
    void the_painted_shape_holds_only_without_a_compositor();
    void the_keyboard_goes_back_to_the_window_that_had_it();
    void the_keyboard_is_not_kept_from_a_window_that_closed();
    void a_window_that_is_raised_over_it_is_passed();
    void a_full_screen_program_is_passed();
    void a_raise_war_is_not_waged();
    void a_screen_locker_stays_above();
    void without_windows_all_requests_are_harmless();
};

void X11OverlayTest::it_hangs_from_the_middle_of_the_top_edge()
{
    X11OverlayWorld world;

    world.show();

    QCOMPARE(world.window().geometry(), QRect(240, 0, 800, 500));
    QVERIFY(world.waitFor([&] { return world.editor().hasFocus() && world.editor().isActive(); }));
    QVERIFY(!world.editor().isAbove(world.xWindow()));
}

void X11OverlayTest::clicks_pass_where_its_input_region_is_not()
{
    X11OverlayWorld world;
    world.overlay().setInputRegion(QRect(100, 0, 600, 200));
    world.show();
    QSignalSpy presses(&world.pointer(), &Pointer::pressed);

    clickAt({640, 100});
    QVERIFY(world.waitFor([&] { return presses.size() == 1; }));
    QCOMPARE(world.editor().clicks(), 0);
    clickAt({640, 250});

    QVERIFY(world.waitFor([&] { return world.editor().clicks() == 1; }));
}

void X11OverlayTest::an_empty_input_region_takes_no_click()
{
    X11OverlayWorld world;
    world.show();

    clickAt({640, 100});

    QVERIFY(world.waitFor([&] { return world.editor().clicks() == 1; }));
}

void X11OverlayTest::the_painted_shape_holds_only_without_a_compositor()
{
    X11OverlayWorld world;
    world.show();
    QVERIFY(!world.overlay().isBlending());

    world.overlay().setPaintedShape(QRect(300, 0, 200, 40));
    QVERIFY(world.waitFor([&] {
        return world.editor().shapeOf(world.xWindow(), XCB_SHAPE_SK_BOUNDING) == QRect(300, 0, 200, 40);
    }));
    world.setCompositor(true);

    QVERIFY(world.waitFor([&] {
        return world.editor().shapeOf(world.xWindow(), XCB_SHAPE_SK_BOUNDING) == QRect(0, 0, 800, 500);
    }));
}

void X11OverlayTest::the_keyboard_goes_back_to_the_window_that_had_it()
{
    X11OverlayWorld world;
    world.show();
    QVERIFY(world.editor().hasFocus());

    for (int round = 0; round < 3; ++round) {
        world.overlay().takeKeyboard();
        QVERIFY(world.waitFor([&] { return world.hasKeyboard(); }));
        world.overlay().returnKeyboard();
        QVERIFY(world.waitFor([&] { return world.editor().hasFocus() && world.editor().isActive(); }));
    }
}

void X11OverlayTest::the_keyboard_is_not_kept_from_a_window_that_closed()
{
    X11OverlayWorld world;
    world.show();
    auto dialog = std::make_unique<ForeignWindow>("Dialog", QRect(20, 20, 100, 100));
    dialog->activate();
    QVERIFY(world.waitFor([&] { return dialog->hasFocus(); }));
    world.overlay().takeKeyboard();
    QVERIFY(world.waitFor([&] { return world.hasKeyboard(); }));

    dialog.reset();
    world.overlay().returnKeyboard();

    QVERIFY(world.waitFor([&] { return !world.hasKeyboard(); }));
}

void X11OverlayTest::a_window_that_is_raised_over_it_is_passed()
{
    X11OverlayWorld world;
    world.show();
    ForeignWindow panel("Panel", {200, 0, 600, 60}, ForeignWindow::Kind::Unmanaged);

    panel.raise();

    QVERIFY(world.waitFor([&] { return !panel.isAbove(world.xWindow()); }));
}

void X11OverlayTest::a_full_screen_program_is_passed()
{
    X11OverlayWorld world;
    world.show();
    ForeignWindow player("Player", {0, 0, 1280, 800});
    player.activate();
    QVERIFY(world.waitFor([&] { return player.isActive(); }));

    player.raise();

    QVERIFY(world.waitFor([&] { return !player.isAbove(world.xWindow()); }));
}

void X11OverlayTest::a_raise_war_is_not_waged()
{
    X11OverlayWorld world;
    world.show();
    ForeignWindow stubborn("Stubborn", {200, 0, 600, 60}, ForeignWindow::Kind::Unmanaged);
    int lost = 0;

    // It comes up again whenever the overlay has risen.
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 2500) {
        world.waitFor([&] { return clock.elapsed() >= 2500 || !stubborn.isAbove(world.xWindow()); });
        if (stubborn.isAbove(world.xWindow()))
            break;
        ++lost;
        stubborn.raise();
    }

    QCOMPARE(lost, 3);
}

void X11OverlayTest::a_screen_locker_stays_above()
{
    X11OverlayWorld world;
    world.show();
    ForeignWindow locker("Locker", {0, 0, 1280, 800}, ForeignWindow::Kind::Unmanaged);
    QVERIFY(locker.isAbove(world.xWindow()));

    // Long after a panel would have been passed.
    const bool cameUp = QTest::qWaitFor([&] { return !locker.isAbove(world.xWindow()); }, 500);

    QVERIFY(!cameUp);
}

void X11OverlayTest::without_windows_all_requests_are_harmless()
{
    QtRunLoop loop;
    const Platform platform = makePlatform(loop);

    platform.overlay->setInputRegion(QRect(0, 0, 10, 10));
    platform.overlay->present({});
    platform.overlay->takeKeyboard();
    platform.overlay->returnKeyboard();
    platform.overlay->attach(nullptr);

    QVERIFY(platform.overlay->abilities().clickThrough);
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display(velm::PrivateDisplay::WindowManager::Openbox);
    const QGuiApplication app(argc, argv);
    velm::X11OverlayContractTest contract;
    velm::X11OverlayTest own;
    const bool isChosen = app.arguments().size() > 1;
    return (isChosen ? 0 : QTest::qExec(&contract)) + QTest::qExec(&own, argc, argv);
}

#include "X11OverlayTest.moc"
