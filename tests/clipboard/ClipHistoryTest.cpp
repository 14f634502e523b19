#include "clipboard/ClipHistory.h"
#include "clipboard/ClipMaking.h"

#include <QtTest>

#include <limits>

using namespace velm;

class ClipHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_known_content_is_raised();
    void an_unknown_content_is_not_raised();
    void the_oldest_unpinned_clips_are_trimmed();
    void a_limit_below_twenty_counts_as_twenty();
    void pinned_clips_never_count();
    void pinning_notes_when();
    void removed_clips_return_to_their_places_data();
    void removed_clips_return_to_their_places();
    void what_was_copied_again_does_not_return_twice();
    void a_count_never_wraps();
    void contents_that_are_there_twice_are_found_until_both_are_gone();
};

namespace
{

ClipHistory historyOf(const QStringList &texts)
{
    QList<ClipItem> items;
    for (const QString &text : texts)
        items.append(textClip(text));
    return ClipHistory(items);
}

ClipHistory numbered(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(QString::number(i));
    return historyOf(texts);
}

QString idOf(const ClipHistory &history, const QString &text)
{
    return history.findContent(sha256Hex(text))->id;
}

}

void ClipHistoryTest::a_known_content_is_raised()
{
    ClipHistory history = historyOf({"a", "b", "c"});
    const ClipItem before = history.items().at(1);

    QVERIFY(history.raise(sha256Hex(u"b"), noon.addSecs(60)));

    QCOMPARE(texts(history.items()), QStringList({"b", "a", "c"}));
    ClipItem expected = before;
    expected.date = noon.addSecs(60);
    expected.useCount = 1;
    QCOMPARE(history.items().first(), expected);
}

void ClipHistoryTest::an_unknown_content_is_not_raised()
{
    ClipHistory history = historyOf({"a"});

    QVERIFY(!history.raise(sha256Hex(u"b"), noon));

    QCOMPARE(history.items().first().useCount, 0);
}

void ClipHistoryTest::the_oldest_unpinned_clips_are_trimmed()
{
    ClipHistory history = numbered(25);
    history.togglePin(idOf(history, "24"), noon);

    const QList<ClipItem> surplus = history.trim(22);

    QCOMPARE(texts(surplus), QStringList({"23", "22"}));
    QCOMPARE(history.items().size(), 23);
    QCOMPARE(history.items().last().text, "24");
    QVERIFY(!history.findContent(sha256Hex(u"23")));
}

void ClipHistoryTest::a_limit_below_twenty_counts_as_twenty()
{
    for (int limit : {5, 0, -1, std::numeric_limits<int>::min()}) {
        ClipHistory history = numbered(23);

        QCOMPARE(history.trim(limit).size(), 3);
        QCOMPARE(history.trim(limit).size(), 0);
    }
}

void ClipHistoryTest::pinned_clips_never_count()
{
    ClipHistory history = numbered(50);
    for (int i = 0; i < 30; ++i)
        history.togglePin(idOf(history, QString::number(i)), noon);

    QVERIFY(history.trim(5).isEmpty());
    QCOMPARE(history.pinnedCount(), 30);
}

void ClipHistoryTest::pinning_notes_when()
{
    ClipHistory history = historyOf({"a"});
    const QString id = history.items().first().id;

    QVERIFY(history.togglePin(id, noon));
    QCOMPARE(history.items().first().pinnedAt, std::optional(noon));
    QVERIFY(history.togglePin(id, noon));

    QCOMPARE(history.items().first().pinnedAt, std::nullopt);
    QVERIFY(!history.togglePin("?", noon));
}

void ClipHistoryTest::removed_clips_return_to_their_places_data()
{
    QTest::addColumn<QStringList>("removed");
    QTest::addColumn<QStringList>("copiedMeanwhile");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("first") << QStringList{"0"} << QStringList{} << QStringList{"0", "1", "2", "3"};
    QTest::newRow("last") << QStringList{"3"} << QStringList{} << QStringList{"0", "1", "2", "3"};
    QTest::newRow("some") << QStringList{"0", "2"} << QStringList{} << QStringList{"0", "1", "2", "3"};
    QTest::newRow("all") << QStringList{"0", "1", "2", "3"} << QStringList{}
                         << QStringList{"0", "1", "2", "3"};
    QTest::newRow("with new ones") << QStringList{"1", "2"} << QStringList{"x", "y"}
                                   << QStringList{"y", "x", "0", "1", "2", "3"};
}

void ClipHistoryTest::removed_clips_return_to_their_places()
{
    QFETCH(QStringList, removed);
    QFETCH(QStringList, copiedMeanwhile);
    QFETCH(QStringList, expected);
    ClipHistory history = numbered(4);

    const auto clips = history.remove([&](const ClipItem &item) { return removed.contains(item.text); });
    QCOMPARE(history.items().size(), 4 - removed.size());
    for (const QString &text : copiedMeanwhile)
        history.insert(textClip(text));
    const auto away = history.restore(clips);

    QVERIFY(away.isEmpty());
    QCOMPARE(texts(history.items()), expected);
}

void ClipHistoryTest::what_was_copied_again_does_not_return_twice()
{
    ClipHistory history = historyOf({"a", "b"});
    history.togglePin(idOf(history, "b"), noon);
    const auto removed = history.remove([](const ClipItem &item) { return item.text == "b"; });
    history.insert(textClip("b", noon.addSecs(1)));

    const auto away = history.restore(removed);

    QCOMPARE(texts(away), QStringList({"b"}));
    QCOMPARE(texts(history.items()), QStringList({"b", "a"}));
    QCOMPARE(history.items().first().pinnedAt, std::optional(noon));
    QCOMPARE(history.pinnedCount(), 1);
}

void ClipHistoryTest::a_count_never_wraps()
{
    ClipItem item = textClip("a");
    item.useCount = std::numeric_limits<int>::max();
    ClipHistory history({item});

    history.countUse(item.id);

    QCOMPARE(history.items().first().useCount, std::numeric_limits<int>::max());
}

void ClipHistoryTest::contents_that_are_there_twice_are_found_until_both_are_gone()
{
    ClipHistory history = historyOf({"a", "a"});
    const QString first = history.items().first().id;

    history.remove([&](const ClipItem &item) { return item.id == first; });
    QVERIFY(history.findContent(sha256Hex(u"a")));
    history.remove([](const ClipItem &) { return true; });

    QVERIFY(!history.findContent(sha256Hex(u"a")));
}

QTEST_APPLESS_MAIN(ClipHistoryTest)
#include "ClipHistoryTest.moc"
