#include "island/IslandRig.h"

#include <QSignalSpy>
#include <QTest>

namespace velm
{

class IslandControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void it_opens_on_the_section_of_last_time_data();
    void it_opens_on_the_section_of_last_time();
    void opening_pops_once();
    void opening_again_only_takes_the_keyboard();
    void closing_gives_the_keyboard_back_once();
    void closing_a_peek_or_a_zone_rests();
    void a_press_beside_the_panel_closes_it_data();
    void a_press_beside_the_panel_closes_it();
    void a_press_outside_the_closed_island_is_none_of_its_business();
    void the_first_press_into_the_panel_takes_the_keyboard();
    void another_window_may_take_the_keyboard();
    void losing_the_keyboard_closes_where_presses_are_not_told();
    void escape_closes_only_the_open_panel();
    void choosing_a_section_is_remembered_and_heard();
    void choosing_the_same_section_does_nothing();
    void switching_the_current_section_off_shows_the_first_one_left();
    void switching_another_section_off_keeps_the_current_one();
    void with_no_section_left_the_sections_page_stays();
    void a_section_stored_from_outside_is_shown();
    void settings_lie_over_the_panel_until_it_closes();
    void a_drag_opens_the_zone_only_while_closed();
    void a_drag_cancels_the_opening();
    void the_input_region_follows_the_mode();
    void a_body_without_blending_is_cut_out();
    void at_rest_nothing_is_armed();
};

void IslandControllerTest::it_opens_on_the_section_of_last_time_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("disabled");
    QTest::addColumn<VelmTab>("tab");

    const QStringList none;
    QTest::newRow("fresh") << QString() << none << VelmTab::Files;
    QTest::newRow("stored") << u"notes"_qs << none << VelmTab::Notes;
    QTest::newRow("no section") << u"Notes!"_qs << none << VelmTab::Files;
    QTest::newRow("disabled") << u"notes"_qs << QStringList{u"notes"_qs, u"files"_qs} << VelmTab::Clipboard;
    QTest::newRow("nonsense, first disabled") << u"x"_qs << QStringList{u"files"_qs} << VelmTab::Clipboard;
    QTest::newRow("unknown disabled") << u"notes"_qs << QStringList{u"weather"_qs} << VelmTab::Notes;
}

void IslandControllerTest::it_opens_on_the_section_of_last_time()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, disabled);
    IslandSurroundings around;
    if (!stored.isNull())
        around.settings.setLastTab(stored);
    around.settings.setDisabledTabs(disabled);

    const IslandController island(around.loop, around.settings, around.feedback, around.screens,
                                  around.overlay, around.pointer);

    QTEST(island.tab(), "tab");
}

void IslandControllerTest::opening_pops_once()
{
    IslandRig rig;
    const int shown = rig.overlay.presentations;

    rig.island.open();
    rig.island.open();

    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QCOMPARE(rig.sounds.played, QList{Sound::Pop});
    QCOMPARE(rig.overlay.presentations, shown + 1);
}

void IslandControllerTest::opening_again_only_takes_the_keyboard()
{
    IslandRig rig;
    rig.island.open(std::nullopt, IslandController::Focus::Leave);
    QVERIFY(!rig.overlay.hasKeyboard);
    const int shown = rig.overlay.presentations;

    rig.island.open(VelmTab::Notes, IslandController::Focus::Take);

    QCOMPARE(rig.island.tab(), VelmTab::Notes);
    QVERIFY(rig.overlay.hasKeyboard);
    QVERIFY(rig.island.hasFocus());
    QCOMPARE(rig.overlay.presentations, shown);
    QCOMPARE(rig.sounds.played, (QList{Sound::Pop, Sound::Tink}));
}

void IslandControllerTest::closing_gives_the_keyboard_back_once()
{
    IslandRig rig;
    rig.island.open();

    rig.island.close();
    rig.island.close();

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    QVERIFY(!rig.island.hasFocus());
    QCOMPARE(rig.overlay.returns, 1);
}

void IslandControllerTest::closing_a_peek_or_a_zone_rests()
{
    IslandRig rig;
    rig.enter();
    rig.island.close();
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
    rig.rest(1s);
    QCOMPARE(rig.island.mode(), IslandMode::Idle);

    rig.island.beginCatchingDrop();
    rig.island.close();
    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandControllerTest::a_press_beside_the_panel_closes_it_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("staysOpen");

    // The panel spans x 310 to 970 and y 0 to 430.
    QTest::newRow("inside") << QPoint(640, 200) << true;
    QTest::newRow("6 left") << QPoint(304, 200) << true;
    QTest::newRow("7 left") << QPoint(303, 200) << false;
    QTest::newRow("5 below") << QPoint(640, 435) << true;
    QTest::newRow("6 below") << QPoint(640, 436) << false;
    QTest::newRow("at the window's foot") << QPoint(640, 495) << false;
    QTest::newRow("far off") << QPoint(10, 790) << false;
}

void IslandControllerTest::a_press_beside_the_panel_closes_it()
{
    QFETCH(QPoint, position);
    QFETCH(bool, staysOpen);
    IslandRig rig;
    rig.island.open(std::nullopt, IslandController::Focus::Leave);

    rig.pointer.press(position);

    QCOMPARE(rig.island.mode(), staysOpen ? IslandMode::Expanded : IslandMode::Idle);
    QCOMPARE(rig.overlay.hasKeyboard, staysOpen);
}

void IslandControllerTest::a_press_outside_the_closed_island_is_none_of_its_business()
{
    IslandRig rig;
    rig.island.beginCatchingDrop();

    rig.pointer.press(IslandRig::away);
    rig.pointer.press(IslandRig::onNotch);

    QCOMPARE(rig.island.mode(), IslandMode::Catching);
    QVERIFY(!rig.overlay.hasKeyboard);
}

void IslandControllerTest::the_first_press_into_the_panel_takes_the_keyboard()
{
    IslandRig rig;
    rig.enter();
    rig.rest(1s);
    QVERIFY(!rig.island.hasFocus());
    QSignalSpy focus(&rig.island, &IslandController::hasFocusChanged);

    rig.pointer.press(IslandRig::inPanel);
    rig.pointer.press(IslandRig::inPanel);

    QVERIFY(rig.overlay.hasKeyboard);
    QCOMPARE(focus.size(), 1);
}

void IslandControllerTest::another_window_may_take_the_keyboard()
{
    IslandRig rig;
    rig.island.open();

    rig.overlay.loseKeyboard();
    QVERIFY(!rig.island.hasFocus());
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);

    rig.island.close();
    QCOMPARE(rig.overlay.returns, 0);
}

void IslandControllerTest::losing_the_keyboard_closes_where_presses_are_not_told()
{
    IslandRig rig;
    rig.pointer.global = false;
    rig.island.open(std::nullopt, IslandController::Focus::Leave);

    rig.island.pressedInside();
    QVERIFY(rig.island.hasFocus());
    rig.overlay.loseKeyboard();

    QCOMPARE(rig.island.mode(), IslandMode::Idle);
}

void IslandControllerTest::escape_closes_only_the_open_panel()
{
    IslandRig rig;
    rig.enter();
    QVERIFY(!rig.island.escape());
    QCOMPARE(rig.island.mode(), IslandMode::Peek);

    rig.island.open();
    QVERIFY(rig.island.escape());
    QCOMPARE(rig.island.mode(), IslandMode::Idle);

    rig.island.beginCatchingDrop();
    QVERIFY(!rig.island.escape());
    QCOMPARE(rig.island.mode(), IslandMode::Catching);
}

void IslandControllerTest::choosing_a_section_is_remembered_and_heard()
{
    IslandRig rig;

    rig.island.select(VelmTab::Todo);

    QCOMPARE(rig.island.tab(), VelmTab::Todo);
    QCOMPARE(rig.settings.lastTab(), u"todo"_qs);
    QCOMPARE(rig.sounds.played, QList{Sound::Tink});
}

void IslandControllerTest::choosing_the_same_section_does_nothing()
{
    IslandRig rig;
    QSignalSpy changed(&rig.island, &IslandController::tabChanged);

    rig.island.select(VelmTab::Files);

    QCOMPARE(changed.size(), 0);
    QVERIFY(rig.sounds.played.isEmpty());
}

void IslandControllerTest::switching_the_current_section_off_shows_the_first_one_left()
{
    IslandRig rig;
    rig.island.select(VelmTab::Notes);
    rig.sounds.played.clear();
    rig.settings.setEnabled(u"files"_qs, false);

    rig.settings.setEnabled(u"notes"_qs, false);

    QCOMPARE(rig.island.tab(), VelmTab::Clipboard);
    QCOMPARE(rig.settings.lastTab(), u"clipboard"_qs);
    QVERIFY(rig.sounds.played.isEmpty());
    QCOMPARE(rig.island.visibleTabs().size(), 9);
}

void IslandControllerTest::switching_another_section_off_keeps_the_current_one()
{
    IslandRig rig;
    rig.island.select(VelmTab::Notes);
    QSignalSpy visible(&rig.island, &IslandController::visibleTabsChanged);

    rig.settings.setEnabled(u"files"_qs, false);

    QCOMPARE(rig.island.tab(), VelmTab::Notes);
    QCOMPARE(visible.size(), 1);
    QVERIFY(!rig.island.visibleTabs().contains(VelmTab::Files));
}

void IslandControllerTest::with_no_section_left_the_sections_page_stays()
{
    IslandRig rig;
    rig.island.select(VelmTab::Notes);
    for (const VelmTab tab : allTabs())
        rig.settings.setEnabled(rawValue(tab), false);
    QVERIFY(rig.island.visibleTabs().isEmpty());

    rig.island.open();
    QVERIFY(rig.island.showSettings());
    QCOMPARE(rig.island.settingsPage(), SettingsPage::Sections);
    rig.island.closeSettings();
    QVERIFY(rig.island.showSettings());

    rig.settings.setEnabled(u"media"_qs, true);
    QCOMPARE(rig.island.tab(), VelmTab::Media);
    rig.island.closeSettings();
    QVERIFY(!rig.island.showSettings());
}

void IslandControllerTest::a_section_stored_from_outside_is_shown()
{
    IslandRig rig;

    rig.settings.setLastTab(u"shots"_qs);
    QCOMPARE(rig.island.tab(), VelmTab::Shots);

    rig.settings.setLastTab(u"nonsense"_qs);
    QCOMPARE(rig.island.tab(), VelmTab::Shots);
    QVERIFY(rig.sounds.played.isEmpty());
}

void IslandControllerTest::settings_lie_over_the_panel_until_it_closes()
{
    IslandRig rig;

    rig.island.openSettings(SettingsPage::Clipboard);
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    QVERIFY(rig.island.showSettings());
    QCOMPARE(rig.island.settingsPage(), SettingsPage::Clipboard);
    QVERIFY(rig.island.hasFocus());

    rig.island.close();
    QVERIFY(!rig.island.showSettings());
    rig.island.open();
    QVERIFY(!rig.island.showSettings());
}

void IslandControllerTest::a_drag_opens_the_zone_only_while_closed()
{
    IslandRig rig;
    const int shown = rig.overlay.presentations;

    rig.island.beginCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Catching);
    rig.island.beginCatchingDrop();
    QCOMPARE(rig.overlay.presentations, shown + 1);
    rig.island.endCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Idle);

    rig.island.open();
    rig.island.beginCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
    rig.island.endCatchingDrop();
    QCOMPARE(rig.island.mode(), IslandMode::Expanded);
}

void IslandControllerTest::a_drag_cancels_the_opening()
{
    IslandRig rig;
    rig.enter();
    rig.rest(100ms);

    rig.island.beginCatchingDrop();
    rig.rest(1s);

    QCOMPARE(rig.island.mode(), IslandMode::Catching);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void IslandControllerTest::the_input_region_follows_the_mode()
{
    IslandRig rig;
    QVERIFY(rig.overlay.inputRegion.isEmpty());

    rig.enter();
    QVERIFY(rig.overlay.inputRegion.isEmpty());
    rig.island.beginCatchingDrop();
    QCOMPARE(rig.overlay.inputRegion, QRegion(214, 0, 372, 144));
    rig.island.open();
    QCOMPARE(rig.overlay.inputRegion, QRegion(70, 0, 660, 430));
    rig.island.close();
    QVERIFY(rig.overlay.inputRegion.isEmpty());
}

void IslandControllerTest::a_body_without_blending_is_cut_out()
{
    IslandRig rig;
    rig.island.setPaintedOutline(190, 32, 10, 6);
    QVERIFY(rig.overlay.paintedShape.isEmpty());

    rig.overlay.setBlending(false);
    QVERIFY(rig.overlay.paintedShape.contains(QPoint(400, 10)));
    QVERIFY(!rig.overlay.paintedShape.contains(QPoint(400, 60)));

    rig.island.setPaintedOutline(660, 430, 28, 12);
    QVERIFY(rig.overlay.paintedShape.contains(QPoint(400, 60)));
}

void IslandControllerTest::at_rest_nothing_is_armed()
{
    IslandRig rig;

    rig.island.open();
    QCOMPARE(rig.loop.armedTimers(), 0);
    rig.island.close();
    QCOMPARE(rig.loop.armedTimers(), 0);
}

}

QTEST_GUILESS_MAIN(velm::IslandControllerTest)
#include "IslandControllerTest.moc"
