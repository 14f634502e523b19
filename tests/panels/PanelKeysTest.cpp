#include "panels/PanelStage.h"

namespace velm
{

class PanelKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_take_the_selected_clip_data();
    void keys_take_the_selected_clip();
    void pasting_closes_the_island_first();
    void a_letter_searches_at_once();
    void while_searching_letters_and_digits_are_words();
    void escape_clears_the_search_and_then_closes();
    void p_pins_and_unpins();
    void delete_deletes_and_undo_brings_back();
    void a_key_without_a_clip_does_nothing();
    void control_and_a_digit_go_to_a_section_data();
    void control_and_a_digit_go_to_a_section();
    void control_and_tab_go_round();
    void opening_again_begins_anew();
    void a_click_copies_and_a_double_click_pastes();
};

void PanelKeysTest::keys_take_the_selected_clip_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("copied");

    QTest::newRow("return") << QList<int>{Qt::Key_Return} << u"third"_qs;
    QTest::newRow("down") << QList<int>{Qt::Key_Down, Qt::Key_Return} << u"second"_qs;
    QTest::newRow("down beyond the end")
        << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return} << u"first"_qs;
    QTest::newRow("down and up") << QList<int>{Qt::Key_Down, Qt::Key_Up, Qt::Key_Return} << u"third"_qs;
    QTest::newRow("up beyond the start") << QList<int>{Qt::Key_Up, Qt::Key_Return} << u"third"_qs;
    QTest::newRow("end") << QList<int>{Qt::Key_End, Qt::Key_Return} << u"first"_qs;
    QTest::newRow("end and home") << QList<int>{Qt::Key_End, Qt::Key_Home, Qt::Key_Return} << u"third"_qs;
    QTest::newRow("page down") << QList<int>{Qt::Key_PageDown, Qt::Key_Return} << u"first"_qs;
    QTest::newRow("a digit") << QList<int>{Qt::Key_2} << u"second"_qs;
    QTest::newRow("a digit without a row") << QList<int>{Qt::Key_7} << QString();
}

void PanelKeysTest::keys_take_the_selected_clip()
{
    QFETCH(QList<int>, keys);
    QFETCH(QString, copied);
    PanelStage stage;
    stage.openClips();

    for (const int key : keys)
        stage.press(Qt::Key(key));

    QCOMPARE(stage.pasteboard.isOwn() ? stage.pasted() : QString(), copied);
    QVERIFY(stage.keys.pressed.isEmpty());
    QCOMPARE(stage.island.mode(), IslandMode::Expanded);
}

void PanelKeysTest::pasting_closes_the_island_first()
{
    PanelStage stage;
    stage.openClips();

    stage.press(Qt::Key_Return, Qt::ControlModifier);
    stage.loop.advance(1s);

    QCOMPARE(stage.island.mode(), IslandMode::Idle);
    QVERIFY(stage.pasteboard.isOwn());
    QCOMPARE(stage.pasted(), u"third"_qs);
    QCOMPARE(stage.keys.pressed.size(), 1);
}

void PanelKeysTest::a_letter_searches_at_once()
{
    PanelStage stage;
    stage.openClips();

    stage.type(QStringLiteral("sec"));

    QCOMPARE(stage.manager->search(), u"sec"_qs);
    QCOMPARE(stage.manager->model()->count(), 1);
}

void PanelKeysTest::while_searching_letters_and_digits_are_words()
{
    PanelStage stage;
    stage.openClips();
    stage.press(Qt::Key_F, Qt::ControlModifier);

    stage.type(QStringLiteral("p2"));

    QCOMPARE(stage.manager->search(), u"p2"_qs);
    QCOMPARE(stage.manager->pinnedCount(), 0);
    QVERIFY(!stage.pasteboard.isOwn());
}

void PanelKeysTest::escape_clears_the_search_and_then_closes()
{
    PanelStage stage;
    stage.openClips();
    stage.type(QStringLiteral("sec"));

    stage.press(Qt::Key_Escape);
    QCOMPARE(stage.manager->search(), QString());
    QCOMPARE(stage.island.mode(), IslandMode::Expanded);

    stage.press(Qt::Key_Escape);
    QCOMPARE(stage.island.mode(), IslandMode::Idle);
}

void PanelKeysTest::p_pins_and_unpins()
{
    PanelStage stage;
    stage.openClips();

    stage.press(Qt::Key_P);
    QCOMPARE(stage.manager->pinnedCount(), 1);

    stage.press(Qt::Key_P);
    QCOMPARE(stage.manager->pinnedCount(), 0);
}

void PanelKeysTest::delete_deletes_and_undo_brings_back()
{
    PanelStage stage;
    stage.openClips();

    stage.press(Qt::Key_Delete);
    QCOMPARE(stage.copied(), (QStringList{u"second"_qs, u"first"_qs}));

    stage.undo.undo();
    QCOMPARE(stage.manager->totalCount(), 3);
}

void PanelKeysTest::a_key_without_a_clip_does_nothing()
{
    PanelStage stage;
    stage.island.open(VelmTab::Clipboard, IslandController::Focus::Take);
    stage.settle();

    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_P, Qt::Key_Delete, Qt::Key_1, Qt::Key_Down})
        stage.press(key);

    QVERIFY(!stage.pasteboard.isOwn());
    QCOMPARE(stage.manager->totalCount(), 0);
    QVERIFY(!stage.undo.isOffered());
}

void PanelKeysTest::control_and_a_digit_go_to_a_section_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("off");
    QTest::addColumn<VelmTab>("tab");

    QTest::newRow("first") << int(Qt::Key_1) << QStringList() << VelmTab::Files;
    QTest::newRow("ninth") << int(Qt::Key_9) << QStringList() << VelmTab::Devices;
    QTest::newRow("of those that are on") << int(Qt::Key_2) << QStringList{u"files"_qs} << VelmTab::Shelf;
    QTest::newRow("none there") << int(Qt::Key_9) << QStringList{u"files"_qs, u"shelf"_qs, u"notes"_qs}
                                << VelmTab::Clipboard;
}

void PanelKeysTest::control_and_a_digit_go_to_a_section()
{
    QFETCH(int, key);
    QFETCH(QStringList, off);
    QFETCH(VelmTab, tab);
    PanelStage stage;
    stage.settings.setDisabledTabs(off);
    stage.openClips();

    stage.press(Qt::Key(key), Qt::ControlModifier);

    QCOMPARE(stage.island.tab(), tab);
}

void PanelKeysTest::control_and_tab_go_round()
{
    PanelStage stage;
    stage.island.open(VelmTab::Network, IslandController::Focus::Take);
    stage.settle();

    stage.press(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(stage.island.tab(), VelmTab::Files);

    stage.press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(stage.island.tab(), VelmTab::Network);
}

void PanelKeysTest::opening_again_begins_anew()
{
    PanelStage stage;
    stage.openClips();
    stage.type(QStringLiteral("sec"));
    stage.island.close();
    stage.settle();

    stage.island.open(VelmTab::Clipboard, IslandController::Focus::Take);
    stage.settle();

    QCOMPARE(stage.manager->search(), QString());
    QCOMPARE(stage.manager->model()->count(), 3);
}

void PanelKeysTest::a_click_copies_and_a_double_click_pastes()
{
    PanelStage stage;
    stage.openClips();
    const QPoint secondRow(300, 168);

    QTest::mouseClick(&stage.view, Qt::LeftButton, {}, secondRow);
    QCOMPARE(stage.pasted(), u"second"_qs);
    QCOMPARE(stage.island.mode(), IslandMode::Expanded);

    QTest::mouseDClick(&stage.view, Qt::LeftButton, {}, secondRow);
    stage.loop.advance(1s);
    QCOMPARE(stage.island.mode(), IslandMode::Idle);
    QCOMPARE(stage.keys.pressed.size(), 1);
}

}

QTEST_MAIN(velm::PanelKeysTest)
#include "PanelKeysTest.moc"
