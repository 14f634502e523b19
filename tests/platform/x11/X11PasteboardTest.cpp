#include "platform/Platform.h"
#include "platform/rig/OtherProgram.h"
#include "platform/rig/PasteboardLog.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/rig/SelectionOwner.h"
#include "platform/runloop/QtRunLoop.h"

#include <QElapsedTimer>
#include <QGuiApplication>

namespace velm
{

namespace
{

const QString plainText = QStringLiteral("text/plain;charset=utf-8");
const QString html = QStringLiteral("text/html");

// The pasteboard of the private display, what it told, and another program that copies.
struct World {
    explicit World(Pasteboard::NextType next = wantAll()) { pasteboard.watch(std::move(next)); }

    bool waitForReads(int count)
    {
        return QTest::qWaitFor([&] { return log.reads.size() == count; }, 10000);
    }
    bool waitForChanges(int count)
    {
        return QTest::qWaitFor([&] { return log.changes.size() == count; }, 10000);
    }
    static QByteArray paste(const QString &type)
    {
        return outputOf(QStringLiteral("xclip"), {QStringLiteral("-selection"), QStringLiteral("clipboard"),
                                                  QStringLiteral("-o"), QStringLiteral("-t"), type});
    }

    QtRunLoop loop;
    Platform platform = makePlatform(loop);
    Pasteboard &pasteboard = *platform.pasteboard;
    PasteboardLog log{pasteboard};
    SelectionOwner owner;
};

}

// What other programs copy, and how they answer for it: badly, late, in pieces, or never.
class X11PasteboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void what_was_there_before_is_not_reported();
    void only_the_wanted_types_are_read();
    void an_own_write_counts_and_is_not_reported();
    void what_is_written_can_be_pasted_elsewhere();
    void an_owner_that_leaves_is_told();
    void increments_are_put_together_data();
    void increments_are_put_together();
    void an_owner_that_hangs_is_given_up_after_two_seconds();
    void a_late_answer_is_not_taken_for_the_next_content();
    void a_program_may_end_while_an_owner_hangs();
};

void X11PasteboardTest::what_was_there_before_is_not_reported()
{
    SelectionOwner earlier;
    earlier.copy({{plainText, "before"}});
    World world;

    world.owner.copy({{plainText, "after"}});

    QVERIFY(world.waitForReads(1));
    QCOMPARE(world.log.story, QStringList({QStringLiteral("changed"), QStringLiteral("read")}));
    QCOMPARE(world.log.texts(), QList<QByteArray>{"after"});
    QCOMPARE(world.log.reads.first().change, world.pasteboard.changeCount());
}

void X11PasteboardTest::only_the_wanted_types_are_read()
{
    World world([](const QStringList &types, const QList<PasteboardData> &soFar) {
        return types.contains(html) && soFar.isEmpty() ? html : QString();
    });

    world.owner.copy({{plainText, "unwanted"}});
    QVERIFY(world.waitForChanges(1));
    world.owner.copy({{plainText, "plain"}, {html, "<b>bold</b>"}});

    QVERIFY(QTest::qWaitFor([&] { return !world.log.texts().isEmpty(); }));
    QCOMPARE(world.log.texts(), QList<QByteArray>{"<b>bold</b>"});
    QCOMPARE(world.log.reads.last().types, QStringList({plainText, html}));
}

void X11PasteboardTest::an_own_write_counts_and_is_not_reported()
{
    World world;
    world.owner.copy({{plainText, "theirs"}});
    QVERIFY(world.waitForReads(1));

    world.pasteboard.write({{plainText, [] { return QByteArray("ours"); }}});
    const quint64 written = world.pasteboard.changeCount();
    world.owner.copy({{plainText, "theirs again"}});

    QVERIFY(world.waitForReads(2));
    QCOMPARE(world.log.texts(), QList<QByteArray>({"theirs", "theirs again"}));
    QVERIFY(written > world.log.changes.first());
    QVERIFY(written < world.log.changes.last());
}

void X11PasteboardTest::what_is_written_can_be_pasted_elsewhere()
{
    World world;
    const QByteArray text = "gr\xc3\xbc\xc3\x9f dich " + QByteArray(3'000'000, 'y');

    world.pasteboard.write({{plainText, [text] { return text; }}});

    for (const char *asked : {"UTF8_STRING", "text/plain", "text/plain;charset=utf-8"})
        QVERIFY(world.paste(QString::fromLatin1(asked)) == text);
    QVERIFY(world.paste(html).isEmpty());
}

void X11PasteboardTest::an_owner_that_leaves_is_told()
{
    World world;
    world.owner.copy({{plainText, "theirs"}});
    QVERIFY(world.waitForReads(1));

    world.owner.leave();

    QVERIFY(QTest::qWaitFor([&] { return world.log.abandonedAt > world.log.changes.last(); }));
    QCOMPARE(world.log.abandonedAt, world.pasteboard.changeCount());
}

void X11PasteboardTest::increments_are_put_together_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<qint64>("announcedMore");
    QTest::addColumn<qsizetype>("diesAfter");
    QTest::addColumn<PasteboardOutcome>("outcome");

    constexpr qsizetype lives = -1;
    const auto row = [](const char *name, qsizetype size, qint64 more, qsizetype dies,
                        PasteboardOutcome outcome) {
        QTest::newRow(name) << size << more << dies << outcome;
    };
    row("honest", 1'000'003, 0, lives, PasteboardOutcome::Read);
    row("announces nothing", 500'000, -500'000, lives, PasteboardOutcome::Read);
    row("sends more than it said", 500'000, -100'000, lives, PasteboardOutcome::Read);
    row("sends less than it said", 500'000, 1, lives, PasteboardOutcome::Failed);
    row("dies in the middle", 500'000, 0, 200'000, PasteboardOutcome::Failed);
    row("announces more than the limit", 10'000'001, 0, lives, PasteboardOutcome::TooLarge);
    row("goes over the limit unannounced", 10'000'001, -9'000'000, lives, PasteboardOutcome::TooLarge);
}

void X11PasteboardTest::increments_are_put_together()
{
    QFETCH(qsizetype, size);
    QFETCH(qint64, announcedMore);
    QFETCH(qsizetype, diesAfter);
    QFETCH(PasteboardOutcome, outcome);
    World world;
    world.pasteboard.setSizeLimit(Bytes{10'000'000});
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>('a' + i % 23);

    world.owner.copy({{plainText, bytes}}, {.announcedMore = announcedMore, .diesAfter = diesAfter});

    QVERIFY(world.waitForReads(1));
    QCOMPARE(world.log.reads.first().outcome, outcome);
    const bool isRead = outcome == PasteboardOutcome::Read;
    QVERIFY(world.log.texts() == (isRead ? QList<QByteArray>{bytes} : QList<QByteArray>()));
    // Whatever it was, the next content is none the worse for it.
    SelectionOwner other;
    other.copy({{plainText, "next"}});
    QVERIFY(world.waitForReads(2));
    QCOMPARE(world.log.texts().last(), QByteArray("next"));
}

void X11PasteboardTest::an_owner_that_hangs_is_given_up_after_two_seconds()
{
    World world;
    QElapsedTimer clock;
    clock.start();

    world.owner.copy({{plainText, "never"}}, {.answers = false});
    QVERIFY(world.waitForReads(1));

    QCOMPARE(world.log.reads.first().outcome, PasteboardOutcome::Failed);
    QVERIFY2(clock.elapsed() >= 1900 && clock.elapsed() < 4000, qPrintable(QString::number(clock.elapsed())));
}

void X11PasteboardTest::a_late_answer_is_not_taken_for_the_next_content()
{
    World world;
    SelectionOwner late;

    late.copy({{plainText, "late"}}, {.answers = false});
    QVERIFY(world.waitForChanges(1));
    world.owner.copy({{plainText, "in time"}}, {.answers = false});
    QVERIFY(world.waitForReads(1));
    late.wakeUp();
    world.owner.wakeUp();

    QVERIFY(world.waitForReads(2));
    QCOMPARE(world.log.reads.first().outcome, PasteboardOutcome::Failed);
    QCOMPARE(world.log.texts(), QList<QByteArray>{"in time"});
}

void X11PasteboardTest::a_program_may_end_while_an_owner_hangs()
{
    auto world = std::make_unique<World>();
    SelectionOwner hanging;
    hanging.copy({{plainText, "never"}}, {.answers = false});
    QVERIFY(world->waitForChanges(1));
    QElapsedTimer clock;
    clock.start();

    world.reset();

    QVERIFY2(clock.elapsed() < 500, qPrintable(QString::number(clock.elapsed())));
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display;
    const QGuiApplication app(argc, argv);
    velm::X11PasteboardTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "X11PasteboardTest.moc"
