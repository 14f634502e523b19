#include "app/AgeText.h"

#include <QLocale>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

class AgeTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ages_are_told_in_their_largest_unit_data();
    void ages_are_told_in_their_largest_unit();
};

void AgeTextTest::ages_are_told_in_their_largest_unit_data()
{
    QTest::addColumn<QDateTime>("then");
    QTest::addColumn<QString>("text");

    const QDateTime now({2026, 11, 21}, {14, 32});
    QTest::newRow("ahead") << now.addSecs(500) << u"now"_s;
    QTest::newRow("this moment") << now << u"now"_s;
    QTest::newRow("59 seconds") << now.addSecs(-59) << u"now"_s;
    QTest::newRow("a minute") << now.addSecs(-60) << u"1 min"_s;
    QTest::newRow("nearly an hour") << now.addSecs(-3599) << u"59 min"_s;
    QTest::newRow("an hour") << now.addSecs(-3600) << u"1 h"_s;
    QTest::newRow("nearly a day") << now.addSecs(-86399) << u"23 h"_s;
    QTest::newRow("a day") << now.addSecs(-86400) << u"1 d"_s;
    QTest::newRow("nearly a week") << now.addSecs(-7 * 86400 + 1) << u"6 d"_s;
    QTest::newRow("a week") << now.addDays(-7) << u"14 Nov"_s;
    QTest::newRow("new year's day") << QDateTime({2026, 1, 1}, {0, 0}) << u"1 Jan"_s;
    QTest::newRow("another year") << QDateTime({2025, 12, 31}, {23, 59}) << u"31 Dec 2025"_s;
    QTest::newRow("given in UTC") << now.addSecs(-7200).toUTC() << u"2 h"_s;
}

void AgeTextTest::ages_are_told_in_their_largest_unit()
{
    QFETCH(QDateTime, then);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale::c());

    QCOMPARE(ageText(then, QDateTime({2026, 11, 21}, {14, 32})), text);
}

}

QTEST_GUILESS_MAIN(velm::AgeTextTest)
#include "AgeTextTest.moc"
