#include "island/IslandRig.h"

#include <QSignalSpy>
#include <QTest>

namespace velm
{

class IslandScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothing_is_shown_before_the_start();
    void it_starts_on_the_built_in_screen();
    void it_moves_to_the_screen_that_is_left();
    void it_follows_a_change_of_the_work_area();
    void an_open_panel_stays_open_when_screens_change();
    void a_notch_taken_from_under_the_pointer_ends_the_peek();
    void a_notch_put_under_the_pointer_waits_for_a_move();
    void without_a_screen_it_keeps_quiet_until_one_comes();
};

void IslandScreensTest::nothing_is_shown_before_the_start()
{
    IslandSurroundings around;
    IslandController island(around.loop, around.settings, around.feedback, around.screens, around.overlay,
                            around.pointer);

    around.pointer.isFollowed = true;
    around.pointer.moveTo(IslandRig::onNotch);
    around.pointer.press(IslandRig::away);

    QCOMPARE(around.overlay.presentations, 0);
    QCOMPARE(island.mode(), IslandMode::Idle);
}

void IslandScreensTest::it_starts_on_the_built_in_screen()
{
    IslandRig rig;

    QCOMPARE(rig.overlay.presentedOn, FakeScreens::laptop());
    QCOMPARE(rig.overlay.presentations, 1);
}

void IslandScreensTest::it_moves_to_the_screen_that_is_left()
{
    IslandRig rig;
    rig.screens.set({FakeScreens::laptop(), FakeScreens::external()});
    QCOMPARE(rig.overlay.presentedOn, FakeScreens::laptop());

    rig.screens.set({FakeScreens::external()});

    QCOMPARE(rig.overlay.presentedOn, FakeScreens::external());
    rig.enter();
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    rig.pointer.moveTo({1280 + 960, 5});
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
}

void IslandScreensTest::it_follows_a_change_of_the_work_area()
{
    IslandRig rig;
    QSignalSpy measured(&rig.island, &IslandController::metricsChanged);
    ScreenInfo screen = FakeScreens::laptop();
    screen.topInset = 48;

    rig.screens.set({screen});

    QCOMPARE(measured.size(), 1);
    QCOMPARE(rig.island.islandSize(), QSizeF(190, 48));
    QCOMPARE(rig.island.hitRect(), QRectF(299, 440, 202, 60));
}

void IslandScreensTest::an_open_panel_stays_open_when_screens_change()
{
    IslandRig rig;
    rig.island.open();

    rig.screens.set({FakeScreens::external()});

    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QVERIFY(rig.island.hasFocus());
    QCOMPARE(rig.overlay.inputRegion, QRegion(70, 0, 660, 430));
    rig.pointer.press({1280 + 960, 200});
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void IslandScreensTest::a_notch_taken_from_under_the_pointer_ends_the_peek()
{
    IslandRig rig;
    rig.enter();

    rig.screens.set({FakeScreens::external()});
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    rig.rest(1s);

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandScreensTest::a_notch_put_under_the_pointer_waits_for_a_move()
{
    IslandRig rig;
    rig.pointer.moveTo({1280 + 960, 5});

    rig.screens.set({FakeScreens::external()});
    rig.rest(1s);

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandScreensTest::without_a_screen_it_keeps_quiet_until_one_comes()
{
    IslandRig rig;
    const int shown = rig.overlay.presentations;

    rig.screens.set({});
    rig.island.open();
    QCOMPARE(rig.overlay.presentations, shown);
    rig.screens.set({FakeScreens::external()});

    QCOMPARE(rig.overlay.presentedOn, FakeScreens::external());
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

}

QTEST_GUILESS_MAIN(velm::IslandScreensTest)
#include "IslandScreensTest.moc"
