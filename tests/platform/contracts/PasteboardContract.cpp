#include "platform/contracts/PasteboardContract.h"

#include "platform/contracts/PasteboardLog.h"

namespace velm
{

namespace
{

const QString plainText = QStringLiteral("text/plain;charset=utf-8");
const QString html = QStringLiteral("text/html");

QList<PasteboardData> text(const QByteArray &bytes) { return {{plainText, bytes}}; }

}

void PasteboardContract::what_was_there_before_is_not_reported()
{
    const auto world = makeWorld();
    world->copy(text("before"));
    PasteboardLog log(world->pasteboard());

    world->pasteboard().watch(wantAll());
    world->copy(text("after"));

    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));
    QCOMPARE(log.texts(), QList<QByteArray>{"after"});
    QCOMPARE(log.changes.size(), 1);
}

void PasteboardContract::a_copy_is_told_and_then_read()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    const quint64 before = world->pasteboard().changeCount();

    world->copy(text("copied"));

    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));
    QCOMPARE(log.story, QStringList({QStringLiteral("changed"), QStringLiteral("read")}));
    QVERIFY(world->pasteboard().changeCount() > before);
    QCOMPARE(log.reads.first().change, world->pasteboard().changeCount());
    QCOMPARE(log.changes.first(), log.reads.first().change);
    QCOMPARE(log.reads.first().types, QStringList{plainText});
    QCOMPARE(log.reads.first().outcome, PasteboardOutcome::Read);
    QCOMPARE(log.texts(), QList<QByteArray>{"copied"});
}

void PasteboardContract::only_the_wanted_types_are_read()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch([](const QStringList &, const QList<PasteboardData> &soFar) {
        return soFar.isEmpty() ? html : QString();
    });

    world->copy({{plainText, "plain"}, {html, "<b>bold</b>"}});

    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));
    QCOMPARE(log.reads.first().types, QStringList({plainText, html}));
    QCOMPARE(log.reads.first().data.size(), 1);
    QCOMPARE(log.texts(), QList<QByteArray>{"<b>bold</b>"});
}

void PasteboardContract::nothing_wanted_is_nothing_read()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch([](const QStringList &types, const QList<PasteboardData> &soFar) {
        return types.contains(html) && soFar.isEmpty() ? html : QString();
    });

    world->copy(text("unwanted"));
    QVERIFY(world->waitFor([&] { return log.changes.size() == 1; }));
    world->copy({{html, "wanted"}});

    QVERIFY(world->waitFor([&] { return !log.texts().isEmpty(); }));
    QCOMPARE(log.texts(), QList<QByteArray>{"wanted"});
}

void PasteboardContract::copies_are_read_in_their_order()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    QList<QByteArray> copied;

    for (int i = 0; i < 20; ++i) {
        copied.append("copy " + QByteArray::number(i));
        world->copy(text(copied.last()));
        QVERIFY(world->waitFor([&] { return log.reads.size() == copied.size(); }));
    }

    QCOMPARE(log.texts(), copied);
    QVERIFY(std::is_sorted(log.changes.begin(), log.changes.end()));
}

void PasteboardContract::an_own_write_counts_and_is_not_reported()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    world->copy(text("theirs"));
    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));
    const quint64 before = world->pasteboard().changeCount();

    world->pasteboard().write({{plainText, [] { return QByteArray("ours"); }}});
    const quint64 written = world->pasteboard().changeCount();
    QVERIFY(written > before);
    world->copy(text("theirs again"));

    QVERIFY(world->waitFor([&] { return log.reads.size() == 2; }));
    QCOMPARE(log.texts(), QList<QByteArray>({"theirs", "theirs again"}));
    QCOMPARE(log.changes.size(), 2);
    QVERIFY(log.changes.last() > written);
}

void PasteboardContract::an_own_write_can_be_pasted_elsewhere()
{
    const auto world = makeWorld();
    world->copy(text("theirs"));

    world->pasteboard().write({{plainText, [] { return QByteArray("gr\xc3\xbc\xc3\x9f"); }},
                               {html, [] { return QByteArray("<i>ours</i>"); }}});

    QVERIFY(world->waitFor([&] { return world->paste(plainText) == "gr\xc3\xbc\xc3\x9f"; }));
    QCOMPARE(world->paste(html), QByteArray("<i>ours</i>"));
    QVERIFY(world->paste(QStringLiteral("image/png")).isNull());
}

void PasteboardContract::writing_nothing_clears()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    world->copy(text("theirs"));
    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));
    const quint64 before = world->pasteboard().changeCount();

    world->pasteboard().write({});

    QVERIFY(world->pasteboard().changeCount() > before);
    QVERIFY(world->waitFor([&] { return world->paste(plainText).isNull(); }));
    world->copy(text("after"));
    QVERIFY(world->waitFor([&] { return log.reads.size() == 2; }));
    QVERIFY(!log.story.contains(QStringLiteral("abandoned")));
}

void PasteboardContract::an_owner_that_leaves_is_told()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    world->copy(text("theirs"));
    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));

    world->ownerLeaves();

    QVERIFY(world->waitFor([&] { return log.story.contains(QStringLiteral("abandoned")); }));
    QCOMPARE(log.abandonedAt, world->pasteboard().changeCount());
    QVERIFY(log.abandonedAt > log.changes.last());
}

void PasteboardContract::a_content_over_the_limit_is_given_up_whole()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    world->pasteboard().setSizeLimit(Bytes{1000});

    world->copy(text(QByteArray(1000, 'a')));
    QVERIFY(world->waitFor([&] { return log.reads.size() == 1; }));
    world->copy({{html, QByteArray(10, 'b')}, {plainText, QByteArray(1001, 'a')}});

    QVERIFY(world->waitFor([&] { return log.reads.size() == 2; }));
    QCOMPARE(log.reads.first().outcome, PasteboardOutcome::Read);
    QCOMPARE(log.reads.last().outcome, PasteboardOutcome::TooLarge);
    QVERIFY(log.reads.last().data.isEmpty());
}

void PasteboardContract::an_owner_that_hangs_fails_and_the_next_copy_is_read()
{
    const auto world = makeWorld();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());

    world->copyAndHang({plainText});
    QVERIFY(world->waitFor([&] { return log.changes.size() == 1; }));
    world->copy(text("next"));

    QVERIFY(world->waitFor([&] { return log.reads.size() == 2; }));
    QCOMPARE(log.reads.first().outcome, PasteboardOutcome::Failed);
    QVERIFY(log.reads.first().data.isEmpty());
    QCOMPARE(log.reads.last().outcome, PasteboardOutcome::Read);
    QCOMPARE(log.texts(), QList<QByteArray>{"next"});
}

}
