#include "clipboard/ClipRig.h"

#include <QtTest>

using namespace velm;

class ClipListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_filter_lets_its_kinds_pass();
    void a_search_looks_at_text_and_program();
    void a_search_finds_what_lies_across_pieces();
    void pinned_clips_come_first_then_the_newest();
    void rows_are_there_only_while_somebody_looks();
};

void ClipListTest::a_filter_lets_its_kinds_pass()
{
    using enum ClipFilter;
    QList<ClipItem> items;
    for (ClipKind kind : allClipKinds())
        items.append(clipOfKind(kind, label(kind)));
    items[1].pinned = items[4].pinned = true;

    const auto shown = [&](ClipFilter filter) { return texts(visibleItems(items, filter, {})).join(u' '); };
    QCOMPARE(shown(All), "Link Image Text Code Color Files");
    QCOMPARE(shown(Pinned), "Link Image");
    QCOMPARE(shown(Text), "Text Code Color");
    QCOMPARE(shown(Link), "Link");
    QCOMPARE(shown(Image), "Image");
    QCOMPARE(shown(Files), "Files");
    QCOMPARE(countClips(items), (ClipCounts{6, 2, 3, 1, 1, 1}));
}

void ClipListTest::a_search_looks_at_text_and_program()
{
    const QList<ClipItem> items{textClip("Hauptstraße 7, Москва")};
    const auto finds = [&](const QString &search) {
        return !visibleItems(items, ClipFilter::All, search).isEmpty();
    };

    for (const char *search : {" \t ", "RAßE", "\t straße ", "EDIT", "МОСКВА"})
        QVERIFY2(finds(search), search);
    for (const char *search : {"straße  7", "straße\n", "straße Москва", "text"}) // the last is its kind
        QVERIFY2(!finds(search), search);
}

void ClipListTest::a_search_finds_what_lies_across_pieces()
{
    constexpr qsizetype pieceSize = 64 * 1024;
    for (qsizetype before : {pieceSize - 3, pieceSize - 1, pieceSize, 2 * pieceSize - 4}) {
        const QList<ClipItem> items{
            textClip(QString(before, u'.') + u"Nee😀dle"_qs + QString(pieceSize, u'.'))};

        QCOMPARE(visibleItems(items, ClipFilter::All, u"nee😀DLE"_qs).size(), 1);
        QCOMPARE(visibleItems(items, ClipFilter::All, u"needle"_qs).size(), 0);
    }
}

void ClipListTest::pinned_clips_come_first_then_the_newest()
{
    QList<ClipItem> items{textClip("equal"), textClip("and its follower")};
    for (int minute : {5, 9, 1, 7, 3})
        items.append(textClip(QString::number(minute), noon.addSecs(minute * 60)));
    items[4].pinned = items[6].pinned = true; // the first without a date of pinning: its own counts
    items[6].pinnedAt = noon.addSecs(30);

    QCOMPARE(texts(visibleItems(items, ClipFilter::All, {})),
             QStringList({"1", "3", "9", "7", "5", "equal", "and its follower"}));
}

void ClipListTest::rows_are_there_only_while_somebody_looks()
{
    ClipRig rig;
    rig.copyText("a");
    QCOMPARE(rig.manager->model()->count(), 0);

    rig.manager->setActive(true);
    rig.copyText("b");
    QCOMPARE(rig.manager->model()->count(), 2);
    rig.manager->setSearch("A");
    QCOMPARE(rig.manager->model()->values().first().preview, "a");

    rig.manager->setActive(false);
    rig.rest(10s);
    QCOMPARE(rig.manager->model()->count(), 0);
    QCOMPARE(rig.loop.armedTimers(), 0);
}

QTEST_MAIN(ClipListTest)
#include "ClipListTest.moc"
