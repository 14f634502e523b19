#include "platform/contracts/OverlayContract.h"

#include <QSignalSpy>

namespace velm
{

void OverlayContract::being_shown_does_not_take_the_keyboard()
{
    const auto world = makeWorld();

    world->show();

    QVERIFY(!world->hasKeyboard());
}

void OverlayContract::the_keyboard_is_taken_and_given_back()
{
    const auto world = makeWorld();
    QSignalSpy losses(&world->overlay(), &Overlay::keyboardLost);
    world->show();

    world->overlay().takeKeyboard();
    QVERIFY(world->waitFor([&] { return world->hasKeyboard(); }));
    world->overlay().returnKeyboard();

    QVERIFY(world->waitFor([&] { return !world->hasKeyboard(); }));
    QCOMPARE(losses.size(), 0);
}

void OverlayContract::giving_back_what_was_not_taken_does_nothing()
{
    const auto world = makeWorld();
    QSignalSpy losses(&world->overlay(), &Overlay::keyboardLost);
    world->show();

    world->overlay().returnKeyboard();

    QVERIFY(!world->hasKeyboard());
    QCOMPARE(losses.size(), 0);
}

void OverlayContract::a_keyboard_taken_by_another_window_is_told()
{
    const auto world = makeWorld();
    QSignalSpy losses(&world->overlay(), &Overlay::keyboardLost);
    world->show();
    world->overlay().takeKeyboard();
    QVERIFY(world->waitFor([&] { return world->hasKeyboard(); }));

    world->personClicksElsewhere();

    QVERIFY(world->waitFor([&] { return losses.size() == 1; }));
    QVERIFY(world->waitFor([&] { return !world->hasKeyboard(); }));
}

void OverlayContract::a_compositor_that_comes_or_goes_is_told()
{
    const auto world = makeWorld();
    QSignalSpy changes(&world->overlay(), &Overlay::blendingChanged);
    world->show();

    for (const bool runs : {true, false, true}) {
        if (world->overlay().isBlending() == runs)
            continue;
        changes.clear();
        world->setCompositor(runs);
        QVERIFY(world->waitFor([&] { return changes.size() == 1; }));
        QCOMPARE(world->overlay().isBlending(), runs);
    }
}

}
