#include "island/IslandRig.h"

#include <QJsonObject>
#include <QTest>

namespace velm
{

class LiveActivityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void an_activity_goes_after_its_time_data();
    void an_activity_goes_after_its_time();
    void a_second_one_starts_its_own_time();
    void the_latest_wins_whatever_its_id();
    void a_sticky_one_stays_until_dismissed();
    void a_sticky_one_is_not_ended_by_the_time_of_the_one_before();
    void dismissing_another_id_leaves_the_shown_one();
    void dismissing_stops_the_time();
    void dismissing_nothing_is_no_change();
    void the_closed_island_grows_for_it();
    void it_does_not_touch_the_mode();
    void json_leaves_out_what_is_absent();

private:
    static LiveActivity lasting(Seconds duration, const QString &id = u"a"_qs)
    {
        return {.id = id, .icon = u"timer"_qs, .leading = u"Copied"_qs, .duration = duration};
    }
    static LiveActivity sticky(const QString &id)
    {
        return {.id = id, .leading = u"Paused"_qs, .sticky = true, .duration = 1s};
    }
};

void LiveActivityTest::an_activity_goes_after_its_time_data()
{
    QTest::addColumn<double>("seconds");

    QTest::newRow("2 s") << 2.0;
    QTest::newRow("1.5 s") << 1.5;
    QTest::newRow("3.4 s") << 3.4;
}

void LiveActivityTest::an_activity_goes_after_its_time()
{
    QFETCH(double, seconds);
    IslandRig rig;
    rig.island.present(lasting(Seconds(seconds)));
    const auto time = loopDelay(Seconds(seconds));

    rig.rest(time - 1ms);
    QVERIFY(rig.island.hasActivity());
    rig.rest(1ms);

    QVERIFY(!rig.island.hasActivity());
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void LiveActivityTest::a_second_one_starts_its_own_time()
{
    IslandRig rig;
    rig.island.present(lasting(2s));
    rig.rest(1s);

    rig.island.present(lasting(4s));
    rig.rest(3999ms);
    QVERIFY(rig.island.hasActivity());
    rig.rest(1ms);

    QVERIFY(!rig.island.hasActivity());
}

void LiveActivityTest::the_latest_wins_whatever_its_id()
{
    IslandRig rig;
    rig.island.present(sticky(u"timer"_qs));

    rig.island.present(lasting(1s, u"clip"_qs));
    QCOMPARE(rig.island.activity()->id, u"clip"_qs);
    rig.rest(1s);

    QVERIFY(!rig.island.hasActivity());
}

void LiveActivityTest::a_sticky_one_stays_until_dismissed()
{
    IslandRig rig;
    rig.island.present(sticky(u"timer"_qs));

    rig.rest(1h);
    QVERIFY(rig.island.hasActivity());
    QCOMPARE(rig.loop.armedTimers(), 0);
    rig.island.dismissActivity(u"timer"_qs);

    QVERIFY(!rig.island.hasActivity());
}

void LiveActivityTest::a_sticky_one_is_not_ended_by_the_time_of_the_one_before()
{
    IslandRig rig;
    rig.island.present(lasting(1s));

    rig.island.present(sticky(u"timer"_qs));
    rig.rest(1min);

    QVERIFY(rig.island.hasActivity());
}

void LiveActivityTest::dismissing_another_id_leaves_the_shown_one()
{
    IslandRig rig;
    rig.island.present(lasting(2s, u"clip"_qs));

    rig.island.dismissActivity(u"timer"_qs);
    QCOMPARE(rig.island.activity()->id, u"clip"_qs);
    rig.rest(2s);

    QVERIFY(!rig.island.hasActivity());
}

void LiveActivityTest::dismissing_stops_the_time()
{
    IslandRig rig;
    rig.island.present(lasting(2s));

    rig.island.dismissActivity();

    QVERIFY(!rig.island.hasActivity());
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void LiveActivityTest::dismissing_nothing_is_no_change()
{
    IslandRig rig;
    int changes = 0;
    connect(&rig.island, &IslandController::activityChanged, this, [&changes] { ++changes; });

    rig.island.dismissActivity();
    rig.island.dismissActivity(u"timer"_qs);

    QCOMPARE(changes, 0);
}

void LiveActivityTest::the_closed_island_grows_for_it()
{
    IslandRig rig;
    QCOMPARE(rig.island.islandSize(), QSizeF(190, 32));

    rig.island.present(lasting(1s));
    QCOMPARE(rig.island.islandSize(), QSizeF(280, 70));
    QVERIFY(rig.overlay.inputRegion.isEmpty());
    rig.rest(1s);

    QCOMPARE(rig.island.islandSize(), QSizeF(190, 32));
}

void LiveActivityTest::it_does_not_touch_the_mode()
{
    IslandRig rig;
    rig.island.open();

    rig.island.present(lasting(1s));
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QCOMPARE(rig.island.islandSize(), QSizeF(660, 430));
    rig.rest(1s);

    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void LiveActivityTest::json_leaves_out_what_is_absent()
{
    LiveActivity activity = lasting(1.5s);
    QCOMPARE(toJson(activity).keys().join(u' '), u"duration icon id leading sticky tint"_qs);

    activity.trailing = u"4 files"_qs;
    activity.progress = 0.0;
    activity.tint = Tint::Clipboard;

    const QJsonObject json = toJson(activity);
    QCOMPARE(json[u"trailing"], u"4 files"_qs);
    QCOMPARE(json[u"progress"], 0.0);
    QCOMPARE(json[u"tint"], u"clipboard"_qs);
    QCOMPARE(json[u"duration"], 1.5);
}

}

QTEST_GUILESS_MAIN(velm::LiveActivityTest)
#include "LiveActivityTest.moc"
