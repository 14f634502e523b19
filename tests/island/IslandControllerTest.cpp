#include "island/IslandRig.h"

#include <QTest>

namespace velm
{

class IslandControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void it_opens_on_the_section_of_last_time_data();
    void it_opens_on_the_section_of_last_time();
    void opening_pops_once_and_opening_again_only_takes_the_keyboard();
    void a_press_beside_the_open_panel_closes_it();
    void losing_the_keyboard_closes_where_presses_are_not_told();
    void escape_closes_the_open_panel_and_gives_the_keyboard_back();
    void a_chosen_section_is_remembered_and_heard();
    void switching_the_current_section_off_shows_the_first_one_left();
    void with_no_section_left_the_sections_page_stays();
    void a_drag_opens_the_zone_only_while_closed();
    void it_leaves_a_screen_that_goes_for_one_that_comes();
    void an_activity_goes_after_its_own_time();
    void a_sticky_activity_stays_until_it_is_dismissed_by_its_id();
};

void IslandControllerTest::it_opens_on_the_section_of_last_time_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("disabled");
    QTest::addColumn<VelmTab>("tab");

    QTest::newRow("stored") << u"notes"_qs << QStringList{} << VelmTab::Notes;
    QTest::newRow("no section") << u"Notes"_qs << QStringList{} << VelmTab::Files;
    QTest::newRow("disabled") << u"notes"_qs << QStringList{u"notes"_qs, u"files"_qs} << VelmTab::Clipboard;
    QTest::newRow("nonsense, first disabled") << u"x"_qs << QStringList{u"files"_qs} << VelmTab::Clipboard;
    QTest::newRow("unknown disabled") << u"notes"_qs << QStringList{u"weather"_qs} << VelmTab::Notes;
}

void IslandControllerTest::it_opens_on_the_section_of_last_time()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, disabled);
    IslandSurroundings around;
    around.settings.setLastTab(stored);
    around.settings.setDisabledTabs(disabled);

    const IslandController island(around.loop, around.settings, around.feedback, around.screens,
                                  around.overlay, around.pointer);

    QTEST(island.tab(), "tab");
}

void IslandControllerTest::opening_pops_once_and_opening_again_only_takes_the_keyboard()
{
    IslandRig rig;
    rig.island.open(std::nullopt, IslandController::Focus::Leave);
    QVERIFY(!rig.overlay.hasKeyboard);
    const int shown = rig.overlay.presentations;

    rig.island.open();

    QVERIFY(rig.overlay.hasKeyboard);
    QCOMPARE(rig.overlay.presentations, shown);
    QCOMPARE(rig.sounds.played, QList{Sound::Pop});
}

void IslandControllerTest::a_press_beside_the_open_panel_closes_it()
{
    IslandRig rig;
    rig.island.beginCatchingDrop();
    rig.pointer.press(IslandRig::away);
    QCOMPARE(rig.island.mode(), IslandMode::Catching);
    rig.island.open(std::nullopt, IslandController::Focus::Leave);

    rig.pointer.press(IslandRig::inPanel);
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QVERIFY(rig.overlay.hasKeyboard);

    rig.pointer.press(IslandRig::away);
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandControllerTest::losing_the_keyboard_closes_where_presses_are_not_told()
{
    IslandRig rig;
    rig.island.open();
    rig.overlay.loseKeyboard();
    QVERIFY(!rig.island.hasFocus());
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);

    rig.pointer.global = false;
    rig.overlay.loseKeyboard();

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandControllerTest::escape_closes_the_open_panel_and_gives_the_keyboard_back()
{
    IslandRig rig;
    rig.enter();
    QVERIFY(!rig.island.escape());
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
    rig.island.openSettings(SettingsPage::Clipboard);

    QVERIFY(rig.island.escape());

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(!rig.island.hasFocus());
    QCOMPARE(rig.overlay.returns, 1);
    QVERIFY(!rig.island.showSettings());
}

void IslandControllerTest::a_chosen_section_is_remembered_and_heard()
{
    IslandRig rig;
    rig.island.select(VelmTab::Files);
    QVERIFY(rig.sounds.played.isEmpty());

    rig.island.select(VelmTab::Todo);

    QCOMPARE(rig.settings.lastTab(), u"todo"_qs);
    QCOMPARE(rig.sounds.played, QList{Sound::Tink});
}

void IslandControllerTest::switching_the_current_section_off_shows_the_first_one_left()
{
    IslandRig rig;
    rig.settings.setLastTab(u"notes"_qs);
    rig.settings.setEnabled(u"files"_qs, false);
    QCOMPARE(rig.island.tab(), VelmTab::Notes);

    rig.settings.setEnabled(u"notes"_qs, false);

    QCOMPARE(rig.island.tab(), VelmTab::Clipboard);
    QCOMPARE(rig.settings.lastTab(), u"clipboard"_qs);
    QVERIFY(rig.sounds.played.isEmpty());
}

void IslandControllerTest::with_no_section_left_the_sections_page_stays()
{
    IslandRig rig;
    for (const VelmTab tab : allTabs())
        rig.settings.setEnabled(rawValue(tab), false);

    rig.island.open();
    rig.island.closeSettings();
    QVERIFY(rig.island.showSettings());
    QCOMPARE(rig.island.settingsPage(), SettingsPage::Sections);

    rig.settings.setEnabled(u"media"_qs, true);
    QCOMPARE(rig.island.tab(), VelmTab::Media);
    rig.island.closeSettings();
    QVERIFY(!rig.island.showSettings());
}

void IslandControllerTest::a_drag_opens_the_zone_only_while_closed()
{
    IslandRig rig;
    rig.enter();
    rig.island.beginCatchingDrop();
    rig.pointer.isFollowed = true; // a move that was already on its way
    rig.enter();
    rig.rest(1s);
    QCOMPARE(rig.island.mode(), IslandMode::Catching);
    QCOMPARE(rig.overlay.inputRegion, QRegion(214, 0, 372, 144));
    rig.island.endCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(rig.overlay.inputRegion.isEmpty());

    rig.island.open();
    rig.island.beginCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    rig.island.endCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void IslandControllerTest::it_leaves_a_screen_that_goes_for_one_that_comes()
{
    IslandRig rig;
    const int shown = rig.overlay.presentations;
    rig.enter();

    rig.screens.set({});
    QCOMPARE(rig.overlay.presentations, shown);
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QCOMPARE(rig.loop.armedTimers(), 0);

    rig.screens.set({FakeScreens::external()});
    QCOMPARE(rig.overlay.presentedOn, FakeScreens::external());
    rig.pointer.moveTo({1280 + 960, 5});
    QCOMPARE(rig.island.mode(), IslandMode::Peek);
}

void IslandControllerTest::an_activity_goes_after_its_own_time()
{
    IslandRig rig;
    rig.island.present({.id = u"first"_qs, .duration = 2s});
    rig.rest(1s);

    rig.island.present({.id = u"second"_qs, .duration = 3.4s});

    rig.rest(3399ms);
    QCOMPARE(rig.island.activity()->id, u"second"_qs);
    rig.rest(1ms);
    QVERIFY(!rig.island.hasActivity());
}

void IslandControllerTest::a_sticky_activity_stays_until_it_is_dismissed_by_its_id()
{
    IslandRig rig;
    rig.island.present({.id = u"clip"_qs, .duration = 1s});
    rig.island.present({.id = u"timer"_qs, .sticky = true, .duration = 1s});

    rig.rest(1h);
    rig.island.dismissActivity(u"clip"_qs);
    QVERIFY(rig.island.hasActivity());

    rig.island.dismissActivity(u"timer"_qs);
    QVERIFY(!rig.island.hasActivity());
}

}

QTEST_GUILESS_MAIN(velm::IslandControllerTest)
#include "IslandControllerTest.moc"
