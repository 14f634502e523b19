#include "island/IslandRig.h"

#include <QTest>

namespace velm
{

class HoverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_trigger_reaches_a_little_past_the_notch_data();
    void the_trigger_reaches_a_little_past_the_notch();
    void leaving_before_the_delay_is_over_opens_nothing();
    void staying_for_the_delay_opens_without_the_keyboard();
    void moving_about_on_the_notch_does_not_put_the_opening_off();
    void a_pointer_that_left_unseen_opens_nothing();
    void coming_back_starts_the_delay_anew();
    void without_the_peek_the_island_goes_straight_to_the_panel();
    void without_the_peek_leaving_still_cancels();
    void without_opening_on_hover_it_only_peeks();
    void an_island_closed_under_the_pointer_waits_for_a_move();
    void nothing_is_hovered_while_open_or_catching();
    void the_pointer_is_followed_only_while_it_matters();
    void a_peek_that_is_switched_off_ends();
    void a_delay_that_makes_no_sense_is_none_data();
    void a_delay_that_makes_no_sense_is_none();
    void at_rest_nothing_is_armed();
};

void HoverTest::the_trigger_reaches_a_little_past_the_notch_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("isInside");

    QTest::newRow("on it") << QPoint(640, 10) << true;
    QTest::newRow("topmost row") << QPoint(640, 0) << true;
    QTest::newRow("10 left") << QPoint(535, 10) << true;
    QTest::newRow("14 left") << QPoint(531, 10) << true;
    QTest::newRow("15 left") << QPoint(530, 10) << false;
    QTest::newRow("20 left") << QPoint(525, 10) << false;
    QTest::newRow("13 right") << QPoint(748, 10) << true;
    QTest::newRow("14 right") << QPoint(749, 10) << false;
    QTest::newRow("5 below") << QPoint(640, 37) << true;
    QTest::newRow("8 below") << QPoint(640, 40) << false;
    QTest::newRow("on a screen above") << QPoint(640, -1) << false;
}

void HoverTest::the_trigger_reaches_a_little_past_the_notch()
{
    QFETCH(QPoint, position);
    QFETCH(bool, isInside);
    IslandRig rig;

    rig.pointer.moveTo(position);

    QCOMPARE(rig.island.mode(), isInside ? IslandMode::Peek : IslandMode::Idle);
}

void HoverTest::leaving_before_the_delay_is_over_opens_nothing()
{
    IslandRig rig;

    rig.enter();
    rig.rest(200ms);
    rig.leave();
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    rig.rest(1s);

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(rig.sounds.played.isEmpty());
}

void HoverTest::staying_for_the_delay_opens_without_the_keyboard()
{
    IslandRig rig;

    rig.enter();
    rig.rest(249ms);
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
    rig.rest(51ms);

    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QVERIFY(!rig.overlay.hasKeyboard);
    QVERIFY(!rig.island.hasFocus());
    QCOMPARE(rig.sounds.played, QList{Sound::Pop});
}

void HoverTest::moving_about_on_the_notch_does_not_put_the_opening_off()
{
    IslandRig rig;

    for (int x = 600; x < 610; ++x) {
        rig.pointer.moveTo({x, 5});
        rig.rest(25ms);
    }

    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void HoverTest::a_pointer_that_left_unseen_opens_nothing()
{
    IslandRig rig;
    rig.enter();

    rig.pointer.isFollowed = false; // the last move is still on its way
    rig.leave();
    rig.rest(300ms);

    QCOMPARE(rig.island.mode(), IslandMode::Peek);
}

void HoverTest::coming_back_starts_the_delay_anew()
{
    IslandRig rig;
    rig.enter();
    rig.rest(200ms);
    rig.leave();

    rig.enter();
    rig.rest(200ms);
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
    rig.rest(50ms);

    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void HoverTest::without_the_peek_the_island_goes_straight_to_the_panel()
{
    IslandRig rig;
    rig.settings.setShowPeek(false);
    QList<IslandMode> seen;
    connect(&rig.island, &IslandController::modeChanged, this, [&] { seen.append(rig.island.mode()); });

    rig.enter();
    rig.rest(200ms);
    rig.pointer.moveTo({650, 12});
    rig.rest(50ms);

    QCOMPARE(seen, QList{IslandMode::Expanded});
}

void HoverTest::without_the_peek_leaving_still_cancels()
{
    IslandRig rig;
    rig.settings.setShowPeek(false);

    rig.enter();
    rig.rest(200ms);
    rig.leave();
    rig.rest(1s);

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void HoverTest::without_opening_on_hover_it_only_peeks()
{
    IslandRig rig;
    rig.settings.setOpenOnHover(false);

    rig.enter();
    rig.rest(10s);

    QCOMPARE(rig.island.mode(), IslandMode::Peek);
}

void HoverTest::an_island_closed_under_the_pointer_waits_for_a_move()
{
    IslandRig rig;
    rig.enter();
    rig.rest(300ms);

    rig.island.close();
    rig.rest(10s);
    QCOMPARE(rig.island.mode(), IslandMode::Idle);

    rig.pointer.moveTo({641, 10});
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
    rig.rest(250ms);
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void HoverTest::nothing_is_hovered_while_open_or_catching()
{
    IslandRig rig;
    rig.island.beginCatchingDrop();

    rig.pointer.isFollowed = true; // a move that was already on its way
    rig.enter();
    rig.rest(1s);
    QCOMPARE(rig.island.mode(), IslandMode::Catching);

    rig.island.open();
    rig.pointer.isFollowed = true;
    rig.leave();
    rig.rest(1s);
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void HoverTest::the_pointer_is_followed_only_while_it_matters()
{
    IslandRig rig;
    QVERIFY(rig.pointer.isFollowed);

    rig.island.open();
    QVERIFY(!rig.pointer.isFollowed);
    rig.island.close();
    QVERIFY(rig.pointer.isFollowed);

    rig.settings.setOpenOnHover(false);
    QVERIFY(rig.pointer.isFollowed);
    rig.settings.setShowPeek(false);
    QVERIFY(!rig.pointer.isFollowed);
    rig.settings.setOpenOnHover(true);
    QVERIFY(rig.pointer.isFollowed);
}

void HoverTest::a_peek_that_is_switched_off_ends()
{
    IslandRig rig;
    rig.settings.setOpenOnHover(false);
    rig.enter();

    rig.settings.setShowPeek(false);

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void HoverTest::a_delay_that_makes_no_sense_is_none_data()
{
    QTest::addColumn<double>("delay");
    QTest::addColumn<bool>("opensAtOnce");

    QTest::newRow("zero") << 0.0 << true;
    QTest::newRow("negative") << -3.0 << true;
    QTest::newRow("beyond all clocks") << 1e300 << false;
}

void HoverTest::a_delay_that_makes_no_sense_is_none()
{
    QFETCH(double, delay);
    QFETCH(bool, opensAtOnce);
    IslandRig rig;
    rig.settings.setHoverDelay(delay);

    rig.enter();
    rig.rest(0s);

    QCOMPARE(rig.island.mode(), opensAtOnce ? IslandMode::Expanded : IslandMode::Peek);
}

void HoverTest::at_rest_nothing_is_armed()
{
    IslandRig rig;
    QCOMPARE(rig.loop.armedTimers(), 0);

    rig.enter();
    QCOMPARE(rig.loop.armedTimers(), 1);
    rig.leave();
    QCOMPARE(rig.loop.armedTimers(), 0);

    rig.enter();
    rig.rest(1s);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

}

QTEST_GUILESS_MAIN(velm::HoverTest)
#include "HoverTest.moc"
