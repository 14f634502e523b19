#include "clipboard/Paster.h"
#include "platform/fakes/FakeFrontProgram.h"
#include "platform/fakes/FakePasteKeys.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QtTest>

using namespace std::chrono_literals;
using namespace velm;

class PasterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_keys_come_a_moment_later();
    void a_terminal_has_its_own_keys();
    void an_unknown_program_gets_the_usual_keys();
    void without_trust_the_person_is_asked();
    void the_keys_wait_until_the_keyboard_is_back();
    void a_keyboard_that_never_comes_back_is_given_up();

private:
    struct Rig {
        VirtualRunLoop loop;
        FakePasteKeys keys;
        FakeFrontProgram front;
        Paster paster{loop, keys, front};
    };
};

void PasterTest::the_keys_come_a_moment_later()
{
    Rig rig;

    rig.paster.pasteIntoFrontmostApp();

    rig.loop.advance(119ms);
    QVERIFY(rig.keys.pressed.isEmpty());
    rig.loop.advance(1ms);
    QCOMPARE(rig.keys.pressed, QList<PasteChord>{PasteChord::ControlV});
    rig.loop.advance(10s);
    QCOMPARE(rig.keys.pressed.size(), 1);
}

void PasterTest::a_terminal_has_its_own_keys()
{
    Rig rig;
    rig.paster.pasteIntoFrontmostApp();
    rig.front.program->isTerminal = true; // the one in front when the keys are pressed counts

    rig.loop.advance(120ms);

    QCOMPARE(rig.keys.pressed, QList<PasteChord>{PasteChord::ControlShiftV});
}

void PasterTest::an_unknown_program_gets_the_usual_keys()
{
    Rig rig;
    rig.front.program = std::nullopt;

    rig.paster.pasteIntoFrontmostApp();
    rig.loop.advance(120ms);

    QCOMPARE(rig.keys.pressed, QList<PasteChord>{PasteChord::ControlV});
}

void PasterTest::without_trust_the_person_is_asked()
{
    Rig rig;
    rig.keys.trusted = false;

    rig.paster.pasteIntoFrontmostApp();
    rig.keys.trusted = true;
    rig.loop.advance(10s);

    QCOMPARE(rig.keys.timesAsked, 1);
    QVERIFY(rig.keys.pressed.isEmpty());
}

void PasterTest::the_keys_wait_until_the_keyboard_is_back()
{
    Rig rig;
    const auto editor = rig.front.program;
    rig.front.program->identifier = QStringLiteral("app.velm.Velm");
    rig.paster.pasteIntoFrontmostApp();

    rig.loop.advance(300ms);
    QVERIFY(rig.keys.pressed.isEmpty());
    rig.front.program = editor;
    rig.loop.advance(40ms);

    QCOMPARE(rig.keys.pressed.size(), 1);
}

void PasterTest::a_keyboard_that_never_comes_back_is_given_up()
{
    Rig rig;
    rig.front.program->identifier = QStringLiteral("app.velm.Velm");

    rig.paster.pasteIntoFrontmostApp();
    rig.loop.advance(10s);

    QVERIFY(rig.keys.pressed.isEmpty());
    QCOMPARE(rig.loop.armedTimers(), 0);
}

QTEST_APPLESS_MAIN(PasterTest)
#include "PasterTest.moc"
