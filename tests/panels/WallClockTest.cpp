#include "panels/WallClock.h"

#include "platform/runloop/VirtualRunLoop.h"

#include <QSignalSpy>
#include <QTest>

namespace velm
{

using namespace std::chrono_literals;

class WallClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void it_says_the_time_without_seconds();
    void it_ticks_as_the_minute_begins();
    void nothing_is_armed_unless_it_is_looked_at();
    void it_is_right_again_when_it_is_looked_at_again();

private:
    VirtualRunLoop m_loop{QDateTime({2026, 11, 21}, {14, 32, 50})};
};

void WallClockTest::it_says_the_time_without_seconds()
{
    const WallClock clock(m_loop);

    QCOMPARE(clock.time(), QStringLiteral("14:32"));
    QCOMPARE(clock.date(), QStringLiteral("Sat 21 Nov"));
}

void WallClockTest::it_ticks_as_the_minute_begins()
{
    VirtualRunLoop loop(QDateTime({2026, 11, 21}, {14, 32, 50}));
    WallClock clock(loop);
    clock.setTicking(true);
    QSignalSpy ticked(&clock, &WallClock::ticked);

    loop.advance(9s);
    QCOMPARE(ticked.count(), 0);
    loop.advance(1s);

    QCOMPARE(ticked.count(), 1);
    QCOMPARE(clock.time(), QStringLiteral("14:33"));
    loop.advance(60s);
    QCOMPARE(ticked.count(), 2);
}

void WallClockTest::nothing_is_armed_unless_it_is_looked_at()
{
    WallClock clock(m_loop);
    QCOMPARE(m_loop.armedTimers(), 0);

    clock.setTicking(true);
    QCOMPARE(m_loop.armedTimers(), 1);
    clock.setTicking(false);

    QCOMPARE(m_loop.armedTimers(), 0);
}

void WallClockTest::it_is_right_again_when_it_is_looked_at_again()
{
    WallClock clock(m_loop);
    clock.setTicking(true);
    clock.setTicking(false);
    m_loop.suspend(3h);
    QSignalSpy ticked(&clock, &WallClock::ticked);

    clock.setTicking(true);

    QCOMPARE(ticked.count(), 1);
    QCOMPARE(clock.time(), QStringLiteral("17:32"));
}

}

QTEST_GUILESS_MAIN(velm::WallClockTest)
#include "WallClockTest.moc"
