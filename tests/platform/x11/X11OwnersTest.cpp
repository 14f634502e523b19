#include "platform/contracts/PasteboardLog.h"
#include "platform/rig/PrivateDisplay.h"
#include "platform/x11/X11PasteboardWorld.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <csignal>

using namespace std::chrono_literals;

namespace velm
{

namespace
{

const QString plainText = QStringLiteral("text/plain;charset=utf-8");

}

// Programs that answer for the clipboard badly, late, in pieces, never, or all too often.
class X11OwnersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void increments_are_put_together_data();
    void increments_are_put_together();
    void a_strange_list_of_types_does_no_harm_data();
    void a_strange_list_of_types_does_no_harm();
    void a_stopped_program_is_given_up_after_two_seconds();
    void a_late_answer_is_not_taken_for_the_next_content();
    void a_program_may_end_while_an_owner_hangs();
    void a_burst_is_read_completely();
};

void X11OwnersTest::increments_are_put_together_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<qsizetype>("increment");
    QTest::addColumn<qint64>("announcedMore");
    QTest::addColumn<qsizetype>("diesAfter");
    QTest::addColumn<PasteboardOutcome>("outcome");

    constexpr qsizetype lives = -1;
    const auto row = [](const char *name, qsizetype size, qsizetype increment, qint64 more, qsizetype dies,
                        PasteboardOutcome outcome) {
        QTest::newRow(name) << size << increment << more << dies << outcome;
    };
    row("honest", 1'000'003, 65'536, 0, lives, PasteboardOutcome::Read);
    row("byte by byte", 300, 1, 0, lives, PasteboardOutcome::Read);
    row("larger than a slice", 7'000'000, 3'000'000, 0, lives, PasteboardOutcome::Read);
    row("announces nothing", 500'000, 65'536, -500'000, lives, PasteboardOutcome::Read);
    row("sends more than it said", 500'000, 65'536, -100'000, lives, PasteboardOutcome::Read);
    row("sends less than it said", 500'000, 65'536, 1, lives, PasteboardOutcome::Failed);
    row("dies in the middle", 500'000, 65'536, 0, 200'000, PasteboardOutcome::Failed);
    row("announces more than the limit", 10'000'001, 65'536, 0, lives, PasteboardOutcome::TooLarge);
    row("goes over the limit unannounced", 10'000'001, 1'000'000, -9'000'000, lives,
        PasteboardOutcome::TooLarge);
}

void X11OwnersTest::increments_are_put_together()
{
    QFETCH(qsizetype, size);
    QFETCH(qsizetype, increment);
    QFETCH(qint64, announcedMore);
    QFETCH(qsizetype, diesAfter);
    QFETCH(PasteboardOutcome, outcome);
    X11PasteboardWorld world;
    PasteboardLog log(world.pasteboard());
    world.pasteboard().setSizeLimit(Bytes{10'000'000});
    world.pasteboard().watch(wantAll());
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = static_cast<char>('a' + i % 23);

    world.owner().copy({{plainText, bytes}}, {.incrementAbove = 100,
                                              .increment = increment,
                                              .announcedMore = announcedMore,
                                              .diesAfter = diesAfter});

    QVERIFY(world.waitFor([&] { return log.reads.size() == 1; }));
    QCOMPARE(log.reads.first().outcome, outcome);
    if (outcome == PasteboardOutcome::Read)
        QVERIFY(log.texts() == QList<QByteArray>{bytes});
    else
        QVERIFY(log.texts().isEmpty());
    // Whatever it was, the next content is none the worse for it.
    SelectionOwner other;
    other.copy({{plainText, "next"}});
    QVERIFY(world.waitFor([&] { return log.reads.size() == 2; }));
    QCOMPARE(log.reads.last().data.first().bytes, QByteArray("next"));
}

void X11OwnersTest::a_strange_list_of_types_does_no_harm_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("half a name") << QByteArray("abc");
    QTest::newRow("names that the server does not know") << QByteArray(400, '\x7f');
    QTest::newRow("very long") << QByteArray(1'000'000, '\x01');
}

void X11OwnersTest::a_strange_list_of_types_does_no_harm()
{
    QFETCH(QByteArray, list);
    X11PasteboardWorld world;
    PasteboardLog log(world.pasteboard());
    world.pasteboard().watch(wantAll());

    world.owner().copy({{plainText, "odd"}}, {.rawTargets = list});
    QVERIFY(world.waitFor([&] { return log.changes.size() == 1; }));
    world.copy({{plainText, "next"}});

    QVERIFY(world.waitFor([&] { return log.texts().contains("next"); }));
}

void X11OwnersTest::a_stopped_program_is_given_up_after_two_seconds()
{
    X11PasteboardWorld world;
    PasteboardLog log(world.pasteboard());
    std::atomic<pid_t> program = 0;
    // It is stopped once it has told its types, which is when this is asked.
    std::atomic<bool> isStopped = false;
    world.pasteboard().watch([&](const QStringList &, const QList<PasteboardData> &soFar) {
        if (!isStopped.exchange(true)) {
            while (program == 0)
                std::this_thread::yield();
            kill(program, SIGSTOP);
        }
        return soFar.isEmpty() ? QStringLiteral("UTF8_STRING") : QString();
    });
    QElapsedTimer clock;
    clock.start();

    const CopyingProgram stopped(
        QStringLiteral("xclip"),
        {QStringLiteral("-quiet"), QStringLiteral("-selection"), QStringLiteral("clipboard")}, "never read");
    program = static_cast<pid_t>(stopped.pid());
    QVERIFY(world.waitFor([&] { return log.reads.size() == 1; }));

    QCOMPARE(log.reads.first().outcome, PasteboardOutcome::Failed);
    QVERIFY2(clock.elapsed() >= 1900 && clock.elapsed() < 4000, qPrintable(QString::number(clock.elapsed())));
    world.copy({{QStringLiteral("UTF8_STRING"), "next"}});
    QVERIFY(world.waitFor([&] { return log.texts() == QList<QByteArray>{"next"}; }));
}

void X11OwnersTest::a_late_answer_is_not_taken_for_the_next_content()
{
    X11PasteboardWorld world;
    PasteboardLog log(world.pasteboard());
    world.pasteboard().watch(wantAll());
    SelectionOwner late;

    late.copy({{plainText, "late"}}, {.answers = false});
    QVERIFY(world.waitFor([&] { return log.changes.size() == 1; }));
    world.owner().copy({{plainText, "in time"}}, {.answers = false});
    QVERIFY(world.waitFor([&] { return log.reads.size() == 1; }));
    late.wakeUp();
    world.owner().wakeUp();

    QVERIFY(world.waitFor([&] { return log.reads.size() == 2; }));
    QCOMPARE(log.reads.first().outcome, PasteboardOutcome::Failed);
    QCOMPARE(log.texts(), QList<QByteArray>{"in time"});
}

void X11OwnersTest::a_program_may_end_while_an_owner_hangs()
{
    auto world = std::make_unique<X11PasteboardWorld>();
    PasteboardLog log(world->pasteboard());
    world->pasteboard().watch(wantAll());
    SelectionOwner hanging;
    hanging.copy({{plainText, "never"}}, {.answers = false});
    QVERIFY(world->waitFor([&] { return log.changes.size() == 1; }));
    QElapsedTimer clock;
    clock.start();

    world.reset();

    QVERIFY2(clock.elapsed() < 500, qPrintable(QString::number(clock.elapsed())));
}

void X11OwnersTest::a_burst_is_read_completely()
{
    X11PasteboardWorld world;
    PasteboardLog log(world.pasteboard());
    world.pasteboard().watch(wantAll());
    constexpr int count = 2000;

    // The main thread is busy for the whole of it.
    world.owner().copyBurst(count, 5ms);

    QVERIFY(world.waitFor([&] { return log.reads.size() == count; }));
    const QList<QByteArray> texts = log.texts();
    QCOMPARE(texts.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(texts.at(i), "copy " + QByteArray::number(i));
}

}

int main(int argc, char **argv)
{
    const velm::PrivateDisplay display(velm::PrivateDisplay::WindowManager::None);
    const QGuiApplication app(argc, argv);
    velm::X11OwnersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "X11OwnersTest.moc"
