#include "clipboard/ClipFilter.h"
#include "clipboard/ClipMaking.h"

#include <QtTest>

using namespace velm;

Q_DECLARE_METATYPE(velm::ClipFilter)

class ClipFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_filter_lets_its_kinds_pass_data();
    void a_filter_lets_its_kinds_pass();
    void the_chips_count_what_they_would_show();
    void a_search_looks_at_text_and_program_data();
    void a_search_looks_at_text_and_program();
    void a_search_finds_what_lies_across_pieces();
    void pinned_clips_come_first_then_the_newest();
    void equal_clips_keep_their_order();
};

namespace
{

QList<ClipItem> oneOfEachKind()
{
    QList<ClipItem> items;
    for (ClipKind kind : allClipKinds())
        items.append(clipOfKind(kind, label(kind)));
    items[1].pinned = items[4].pinned = true;
    return items;
}

}

void ClipFilterTest::a_filter_lets_its_kinds_pass_data()
{
    QTest::addColumn<ClipFilter>("filter");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("all") << ClipFilter::All
                         << QStringList({"Link", "Image", "Text", "Code", "Color", "Files"});
    QTest::newRow("pinned") << ClipFilter::Pinned << QStringList({"Link", "Image"});
    QTest::newRow("text") << ClipFilter::Text << QStringList({"Text", "Code", "Color"});
    QTest::newRow("link") << ClipFilter::Link << QStringList({"Link"});
    QTest::newRow("image") << ClipFilter::Image << QStringList({"Image"});
    QTest::newRow("files") << ClipFilter::Files << QStringList({"Files"});
}

void ClipFilterTest::a_filter_lets_its_kinds_pass()
{
    QFETCH(ClipFilter, filter);
    QFETCH(QStringList, expected);

    QCOMPARE(texts(visibleItems(oneOfEachKind(), filter, {})), expected);
}

void ClipFilterTest::the_chips_count_what_they_would_show()
{
    const ClipCounts expected{.all = 6, .pinned = 2, .text = 3, .link = 1, .image = 1, .files = 1};

    QCOMPARE(countClips(oneOfEachKind()), expected);
}

void ClipFilterTest::a_search_looks_at_text_and_program_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("nothing") << "" << true;
    QTest::newRow("spaces") << " \t " << true;
    QTest::newRow("part") << "RAßE" << true;
    QTest::newRow("spaces around") << "\t straße " << true;
    QTest::newRow("spaces inside count") << "straße  7" << false;
    QTest::newRow("several words are one text") << "straße"
                                                   "7"
                                                << false;
    QTest::newRow("program") << "EDIT" << true;
    QTest::newRow("line break is not trimmed") << "straße\n" << false;
    QTest::newRow("the kind is not searched") << "text" << false;
    QTest::newRow("other script") << "МОСКВА" << true;
}

void ClipFilterTest::a_search_looks_at_text_and_program()
{
    QFETCH(QString, search);
    QFETCH(bool, isFound);
    const QList<ClipItem> items{clipOfKind(ClipKind::Text, u"Hauptstraße 7, Москва"_qs)};

    QCOMPARE(!visibleItems(items, ClipFilter::All, search).isEmpty(), isFound);
}

void ClipFilterTest::a_search_finds_what_lies_across_pieces()
{
    constexpr qsizetype pieceSize = 64 * 1024;
    for (qsizetype before : {pieceSize - 3, pieceSize - 1, pieceSize, 2 * pieceSize - 2}) {
        const QList<ClipItem> items{
            clipOfKind(ClipKind::Text, QString(before, u'.') + u"Nee😀dle"_qs + QString(pieceSize, u'.'))};

        QCOMPARE(visibleItems(items, ClipFilter::All, u"nee😀DLE"_qs).size(), 1);
        QCOMPARE(visibleItems(items, ClipFilter::All, u"needle"_qs).size(), 0);
    }
}

void ClipFilterTest::pinned_clips_come_first_then_the_newest()
{
    QList<ClipItem> items;
    for (int minute : {5, 9, 1, 7, 3})
        items.append(textClip(QString::number(minute), noon.addSecs(minute * 60)));
    items[2].pinned = true; // without a date of pinning: its own counts
    items[4].pinned = true;
    items[4].pinnedAt = noon.addSecs(30);

    QCOMPARE(texts(visibleItems(items, ClipFilter::All, {})), QStringList({"1", "3", "9", "7", "5"}));
}

void ClipFilterTest::equal_clips_keep_their_order()
{
    const QList<ClipItem> items{textClip("b"), textClip("a"), textClip("c")};

    QCOMPARE(texts(visibleItems(items, ClipFilter::All, {})), QStringList({"b", "a", "c"}));
}

QTEST_APPLESS_MAIN(ClipFilterTest)
#include "ClipFilterTest.moc"
