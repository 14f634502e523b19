#include "app/UndoOffer.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QSignalSpy>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

struct OfferRig {
    VirtualRunLoop loop;
    UndoOffer undoOffer{loop};
    QStringList ran;

    void offer(const QString &name)
    {
        undoOffer.offer(
            u"Deleted "_s + name, [=, this] { ran.append(u"undo "_s + name); },
            [=, this] { ran.append(u"commit "_s + name); });
    }
};

}

class UndoOfferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void an_offer_lasts_five_seconds();
    void undoing_takes_back_and_never_commits();
    void dismissing_commits_at_once();
    void a_new_offer_makes_the_old_one_final();
    void without_an_offer_nothing_happens();
    void an_offer_may_be_made_while_one_ends();
    void what_cannot_be_committed_just_ends();
};

void UndoOfferTest::an_offer_lasts_five_seconds()
{
    OfferRig rig;

    rig.offer(u"a"_s);
    QVERIFY(rig.undoOffer.isOffered());
    QCOMPARE(rig.undoOffer.text(), u"Deleted a"_s);
    rig.loop.advance(4999ms);
    QCOMPARE(rig.ran, QStringList());
    rig.loop.advance(1ms);

    QCOMPARE(rig.ran, QStringList{u"commit a"_s});
    QVERIFY(!rig.undoOffer.isOffered());
}

void UndoOfferTest::undoing_takes_back_and_never_commits()
{
    OfferRig rig;

    rig.offer(u"a"_s);
    rig.undoOffer.undo();
    rig.undoOffer.undo();
    rig.loop.advance(10s);

    QCOMPARE(rig.ran, QStringList{u"undo a"_s});
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void UndoOfferTest::dismissing_commits_at_once()
{
    OfferRig rig;

    rig.offer(u"a"_s);
    rig.undoOffer.dismiss();

    QCOMPARE(rig.ran, QStringList{u"commit a"_s});
    QCOMPARE(rig.loop.armedTimers(), 0);
}

void UndoOfferTest::a_new_offer_makes_the_old_one_final()
{
    OfferRig rig;
    const QSignalSpy offered(&rig.undoOffer, &UndoOffer::offered);

    rig.offer(u"a"_s);
    rig.loop.advance(3s);
    rig.offer(u"b"_s);
    QCOMPARE(rig.ran, QStringList{u"commit a"_s});
    rig.loop.advance(4s);
    QVERIFY(rig.undoOffer.isOffered());
    rig.undoOffer.undo();

    QCOMPARE(rig.ran, (QStringList{u"commit a"_s, u"undo b"_s}));
    QCOMPARE(offered.size(), 2);
}

void UndoOfferTest::without_an_offer_nothing_happens()
{
    OfferRig rig;
    const QSignalSpy changed(&rig.undoOffer, &UndoOffer::changed);

    rig.undoOffer.undo();
    rig.undoOffer.dismiss();

    QCOMPARE(changed.size(), 0);
}

void UndoOfferTest::an_offer_may_be_made_while_one_ends()
{
    OfferRig rig;

    rig.undoOffer.offer(u"first"_s, [&] { rig.offer(u"next"_s); });
    rig.undoOffer.undo();

    QVERIFY(rig.undoOffer.isOffered());
    QCOMPARE(rig.undoOffer.text(), u"Deleted next"_s);
}

void UndoOfferTest::what_cannot_be_committed_just_ends()
{
    OfferRig rig;

    rig.undoOffer.offer(u"first"_s, [] {});
    rig.loop.advance(5s);

    QVERIFY(!rig.undoOffer.isOffered());
}

}

QTEST_GUILESS_MAIN(velm::UndoOfferTest)
#include "UndoOfferTest.moc"
