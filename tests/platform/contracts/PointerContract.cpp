#include "platform/contracts/PointerContract.h"

#include <QSignalSpy>

namespace velm
{

void PointerContract::a_movement_is_told_while_followed_only()
{
    const auto world = makeWorld();
    Pointer &pointer = world->pointer();
    QSignalSpy moves(&pointer, &Pointer::moved);
    const QPoint start = pointer.position();

    world->moveBy({40, 30});
    QVERIFY(world->waitFor([&] { return pointer.position() == start + QPoint(40, 30); }));
    QCOMPARE(moves.size(), 0);
    pointer.setFollowed(true);
    world->moveBy({10, 0});

    QVERIFY(world->waitFor([&] { return !moves.isEmpty(); }));
    pointer.setFollowed(false);
    moves.clear();
    world->moveBy({10, 0});
    QVERIFY(world->waitFor([&] { return pointer.position() == start + QPoint(60, 30); }));
    QCOMPARE(moves.size(), 0);
}

void PointerContract::the_last_notice_is_where_it_came_to_rest()
{
    const auto world = makeWorld();
    Pointer &pointer = world->pointer();
    const QPoint start = pointer.position();
    QSignalSpy moves(&pointer, &Pointer::moved);
    pointer.setFollowed(true);

    for (int i = 0; i < 10; ++i)
        world->moveBy({5, 2});

    const QPoint rest = start + QPoint(50, 20);
    QVERIFY(world->waitFor([&] { return !moves.isEmpty() && moves.last().first().toPoint() == rest; }));
    QCOMPARE(pointer.position(), rest);
}

void PointerContract::presses_and_releases_carry_their_place()
{
    const auto world = makeWorld();
    Pointer &pointer = world->pointer();
    QSignalSpy presses(&pointer, &Pointer::pressed);
    QSignalSpy releases(&pointer, &Pointer::released);
    world->moveBy({70, 90});
    const QPoint there = pointer.position();

    for (const auto button : {PointerWorld::Button::Left, PointerWorld::Button::Right}) {
        world->press(button);
        world->release(button);
    }

    QVERIFY(world->waitFor([&] { return releases.size() == 2; }));
    QCOMPARE(presses.size(), 2);
    QCOMPARE(presses.first().first().toPoint(), there);
    QCOMPARE(releases.last().first().toPoint(), there);
}

}
