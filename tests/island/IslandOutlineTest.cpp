#include "island/IslandOutline.h"

#include <QTest>

namespace velm
{

class IslandOutlineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_outline_is_the_body_that_is_drawn_data();
    void the_outline_is_the_body_that_is_drawn();
    void it_is_the_same_from_both_sides();
    void an_empty_body_paints_nothing();
};

void IslandOutlineTest::the_outline_is_the_body_that_is_drawn_data()
{
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<bool>("isPainted");

    QTest::newRow("top middle") << QPoint(400, 0) << true;
    QTest::newRow("bottom row") << QPoint(400, 429) << true;
    QTest::newRow("below") << QPoint(400, 431) << false;
    QTest::newRow("left side") << QPoint(71, 200) << true;
    QTest::newRow("beside") << QPoint(68, 200) << false;
    QTest::newRow("shoulder at the edge") << QPoint(66, 0) << true;
    QTest::newRow("hollow of the shoulder") << QPoint(62, 10) << false;
    QTest::newRow("past the shoulder") << QPoint(57, 0) << false;
    QTest::newRow("cut corner") << QPoint(72, 428) << false;
    QTest::newRow("inside the corner") << QPoint(90, 410) << true;
}

void IslandOutlineTest::the_outline_is_the_body_that_is_drawn()
{
    QFETCH(QPoint, pixel);
    const IslandOutline panel{.body = QSizeF(660, 430), .corner = 28, .shoulder = 12};

    QTEST(panel.region().contains(pixel), "isPainted");
}

void IslandOutlineTest::it_is_the_same_from_both_sides()
{
    const QRegion region = IslandOutline{.body = QSizeF(190, 32), .corner = 10, .shoulder = 6}.region();

    for (int y = 0; y < 34; ++y) {
        for (int x = 280; x < 400; ++x)
            QVERIFY2(region.contains(QPoint(x, y)) == region.contains(QPoint(799 - x, y)),
                     qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
    }
}

void IslandOutlineTest::an_empty_body_paints_nothing() { QVERIFY(IslandOutline{}.region().isEmpty()); }

}

QTEST_GUILESS_MAIN(velm::IslandOutlineTest)
#include "IslandOutlineTest.moc"
