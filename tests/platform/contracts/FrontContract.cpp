#include "platform/contracts/FrontContract.h"

namespace velm
{

void FrontContract::no_active_window_is_no_program()
{
    const auto world = makeWorld();
    QVERIFY(!world->front().current());

    world->workIn({.name = QStringLiteral("editor"), .identifier = QStringLiteral("editor")});
    QVERIFY(world->waitFor([&] { return world->front().current().has_value(); }));
    world->workInNothing();

    QVERIFY(world->waitFor([&] { return !world->front().current(); }));
}

void FrontContract::the_program_of_the_active_window_is_told()
{
    const auto world = makeWorld();
    const ProgramInfo editor{.name = QStringLiteral("editor"), .identifier = QStringLiteral("editor")};
    const ProgramInfo terminal{
        .name = QStringLiteral("xterm"), .identifier = QStringLiteral("xterm"), .isTerminal = true};

    world->workIn(editor);
    QVERIFY(world->waitFor([&] { return world->front().current() == editor; }));
    world->workIn(terminal);

    QVERIFY(world->waitFor([&] { return world->front().current() == terminal; }));
}

}
