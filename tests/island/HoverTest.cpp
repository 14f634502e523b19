#include "island/HoverTracker.h"
#include "island/IslandRig.h"

#include <QTest>

namespace velm
{

class HoverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void only_who_stays_for_the_delay_opens_the_panel_data();
    void only_who_stays_for_the_delay_opens_the_panel();
    void a_pointer_that_left_unseen_opens_nothing();
    void an_island_closed_under_the_pointer_waits_for_a_move();
    void the_pointer_is_followed_only_while_it_matters();
};

void HoverTest::only_who_stays_for_the_delay_opens_the_panel_data()
{
    QTest::addColumn<HoverPreferences>("preferences");
    QTest::addColumn<double>("delay");
    QTest::addColumn<QList<int>>("stays"); // milliseconds on the notch, off it, on it …
    QTest::addColumn<IslandMode>("mode");

    const HoverPreferences usual;
    const HoverPreferences noPeek{.showsPeek = false};
    const HoverPreferences peekOnly{.opensOnHover = false};
    const HoverPreferences neither{.opensOnHover = false, .showsPeek = false};
    QTest::newRow("too short") << usual << 0.25 << QList{249} << IslandMode::Peek;
    QTest::newRow("long enough") << usual << 0.25 << QList{250} << IslandMode::Expanded;
    QTest::newRow("left") << usual << 0.25 << QList{200, 1000} << IslandMode::Idle;
    QTest::newRow("came back") << usual << 0.25 << QList{200, 10, 249} << IslandMode::Peek;
    QTest::newRow("no peek, too short") << noPeek << 0.25 << QList{249} << IslandMode::Idle;
    QTest::newRow("no peek") << noPeek << 0.25 << QList{250} << IslandMode::Expanded;
    QTest::newRow("no peek, left") << noPeek << 0.25 << QList{200, 1000} << IslandMode::Idle;
    QTest::newRow("peek only") << peekOnly << 0.25 << QList{10'000} << IslandMode::Peek;
    QTest::newRow("neither") << neither << 0.25 << QList{10'000} << IslandMode::Idle;
    QTest::newRow("no delay") << usual << 0.0 << QList{0} << IslandMode::Expanded;
    QTest::newRow("negative delay") << usual << -3.0 << QList{0} << IslandMode::Expanded;
    QTest::newRow("beyond all clocks") << usual << 1e300 << QList{10'000} << IslandMode::Peek;
}

void HoverTest::only_who_stays_for_the_delay_opens_the_panel()
{
    QFETCH(HoverPreferences, preferences);
    QFETCH(double, delay);
    QFETCH(QList<int>, stays);
    QFETCH(IslandMode, mode);
    IslandRig rig;
    rig.settings.setOpenOnHover(preferences.opensOnHover);
    rig.settings.setShowPeek(preferences.showsPeek);
    rig.settings.setHoverDelay(delay);

    for (int i = 0; i < stays.size(); ++i) {
        const QPoint place = i % 2 == 0 ? IslandRig::onNotch : IslandRig::away;
        rig.pointer.moveTo(place);
        rig.rest(std::chrono::milliseconds(stays[i] / 2));
        rig.pointer.moveTo(place + QPoint(1, 0)); // moving about puts nothing off
        rig.rest(std::chrono::milliseconds(stays[i] - stays[i] / 2));
    }

    QCOMPARE(rig.island.mode(), mode);
    QCOMPARE(rig.sounds.played.size(), mode == IslandMode::Expanded ? 1 : 0);
    QVERIFY(!rig.overlay.hasKeyboard);
    rig.leave();
    QCOMPARE(rig.loop.armedTimers(), 0);
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

void HoverTest::an_island_closed_under_the_pointer_waits_for_a_move()
{
    IslandRig rig;
    rig.enter();
    rig.rest(300ms);

    rig.island.close();
    rig.rest(10s);
    QCOMPARE(rig.island.mode(), IslandMode::Idle);

    rig.enter();
    rig.rest(250ms);
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void HoverTest::the_pointer_is_followed_only_while_it_matters()
{
    IslandRig rig;
    rig.island.open();
    QVERIFY(!rig.pointer.isFollowed);
    rig.island.close();
    QVERIFY(rig.pointer.isFollowed);

    rig.settings.setOpenOnHover(false);
    rig.enter();
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
    rig.settings.setShowPeek(false);
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(!rig.pointer.isFollowed);
}

}

QTEST_GUILESS_MAIN(velm::HoverTest)
#include "HoverTest.moc"
