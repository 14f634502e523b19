#include "platform/runloop/LoopTimer.h"
#include "platform/runloop/QtRunLoop.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QTest>

using namespace std::chrono_literals;
using namespace velm;

namespace
{

// A loop of either form, and how its time passes.
struct Loop {
    std::unique_ptr<RunLoop> loop;
    std::function<void(std::chrono::milliseconds)> pass;
};

Loop makeLoop(const QString &form)
{
    if (form == QStringLiteral("virtual")) {
        auto loop = std::make_unique<VirtualRunLoop>();
        auto *raw = loop.get();
        return {std::move(loop), [raw](auto duration) { raw->advance(duration); }};
    }
    auto loop = std::make_unique<QtRunLoop>();
    auto *raw = loop.get();
    return {std::move(loop), [raw](std::chrono::milliseconds duration) {
                const auto end = raw->now() + duration;
                QVERIFY(QTest::qWaitFor([&] { return raw->now() >= end; }, 5000));
                QCoreApplication::processEvents();
            }};
}

void bothForms()
{
    QTest::addColumn<QString>("form");
    QTest::newRow("virtual") << QStringLiteral("virtual");
    QTest::newRow("real") << QStringLiteral("real");
}

}

class RunLoopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tasks_run_in_the_order_of_their_due_times_data() { bothForms(); }
    void tasks_run_in_the_order_of_their_due_times();
    void a_task_that_was_cancelled_by_another_does_not_run_data() { bothForms(); }
    void a_task_that_was_cancelled_by_another_does_not_run();
    void a_result_is_dropped_when_the_one_who_asked_is_gone_data() { bothForms(); }
    void a_result_is_dropped_when_the_one_who_asked_is_gone();
    void a_timer_may_be_destroyed_by_its_own_task_data() { bothForms(); }
    void a_timer_may_be_destroyed_by_its_own_task();

    void a_task_scheduled_by_a_task_runs_in_the_same_advance_when_it_falls_due();
    void missed_rounds_are_not_made_up_for();
};

void RunLoopTest::tasks_run_in_the_order_of_their_due_times()
{
    QFETCH(QString, form);
    const Loop loop = makeLoop(form);
    QStringList order;
    const auto start = loop.loop->now();

    loop.loop->schedule(start + 20ms, [&] { order.append(QStringLiteral("second")); });
    loop.loop->schedule(start + 30ms, [&] { order.append(QStringLiteral("third")); });
    loop.loop->schedule(start + 10ms, [&] { order.append(QStringLiteral("first")); });
    loop.pass(60ms);

    QCOMPARE(order,
             QStringList({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")}));
}

void RunLoopTest::a_task_that_was_cancelled_by_another_does_not_run()
{
    QFETCH(QString, form);
    const Loop loop = makeLoop(form);
    bool ran = false;
    const auto due = loop.loop->now() + 10ms;

    auto victim = RunLoop::TimerId::None;
    loop.loop->schedule(due, [&] { loop.loop->cancel(victim); });
    victim = loop.loop->schedule(due, [&] { ran = true; });
    loop.pass(30ms);

    QVERIFY(!ran);
    loop.loop->cancel(victim); // once more does no harm
}

void RunLoopTest::a_result_is_dropped_when_the_one_who_asked_is_gone()
{
    QFETCH(QString, form);
    const Loop loop = makeLoop(form);
    const auto queue = loop.loop->makeQueue("test");
    auto asker = std::make_unique<QObject>();
    QObject other;
    QList<int> results;

    loop.loop->runOn(
        *queue, asker.get(), [] { return 1; }, [&](int result) { results.append(result); });
    loop.loop->runOn(
        *queue, &other, [] { return 2; }, [&](int result) { results.append(result); });
    asker.reset();
    queue->drain();
    loop.pass(10ms);

    QCOMPARE(results, QList<int>{2});
}

void RunLoopTest::a_timer_may_be_destroyed_by_its_own_task()
{
    QFETCH(QString, form);
    const Loop loop = makeLoop(form);
    auto timer = std::make_unique<LoopTimer>(*loop.loop);
    int runs = 0;

    timer->startEvery(5ms, [&] {
        timer.reset();
        ++runs;
    });
    loop.pass(40ms);

    QCOMPARE(runs, 1);
}

void RunLoopTest::a_task_scheduled_by_a_task_runs_in_the_same_advance_when_it_falls_due()
{
    VirtualRunLoop loop;
    QStringList order;

    loop.schedule(loop.now() + 1s, [&] {
        loop.schedule(loop.now() + 500ms, [&] { order.append(QStringLiteral("inner")); });
        loop.post([&] { order.append(QStringLiteral("posted")); });
    });
    loop.schedule(loop.now() + 1400ms, [&] { order.append(QStringLiteral("between")); });
    loop.advance(1500ms);

    QCOMPARE(order,
             QStringList({QStringLiteral("posted"), QStringLiteral("between"), QStringLiteral("inner")}));
}

void RunLoopTest::missed_rounds_are_not_made_up_for()
{
    QtRunLoop loop;
    LoopTimer timer(loop);
    int runs = 0;

    timer.startEvery(10ms, [&] { ++runs; });
    const auto busyUntil = loop.now() + 95ms;
    while (loop.now() < busyUntil) {
    }
    QVERIFY(QTest::qWaitFor([&] { return runs > 0; }, 5000));

    QVERIFY2(runs <= 2, "nine rounds were missed");
}

QTEST_GUILESS_MAIN(RunLoopTest)
#include "RunLoopTest.moc"
