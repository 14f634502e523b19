#include "app/UniquePrefix.h"

#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

class UniquePrefixTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void an_id_is_found_by_its_beginning_data();
    void an_id_is_found_by_its_beginning();
};

void UniquePrefixTest::an_id_is_found_by_its_beginning_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("found");
    QTest::addColumn<QString>("sentence");

    QTest::newRow("whole") << u"3F01"_s << u"3F01"_s << u""_s;
    QTest::newRow("part") << u"3F01-2"_s << u"3F01-22"_s << u""_s;
    QTest::newRow("lower case") << u"3f01-2"_s << u"3F01-22"_s << u""_s;
    QTest::newRow("whole, though another goes on") << u"3f01"_s << u"3F01"_s << u""_s;
    QTest::newRow("one letter") << u"a"_s << u"A7"_s << u""_s;
    QTest::newRow("several") << u"3F"_s << u""_s << u"several clips begin with \"3F\""_s;
    QTest::newRow("none") << u"4f"_s << u""_s << u"no clip begins with \"4f\""_s;
    QTest::newRow("longer than the id") << u"A77"_s << u""_s << u"no clip begins with \"A77\""_s;
    QTest::newRow("nothing") << u""_s << u""_s << u"no clip begins with \"\""_s;
}

void UniquePrefixTest::an_id_is_found_by_its_beginning()
{
    QFETCH(QString, prefix);
    QFETCH(QString, found);
    QFETCH(QString, sentence);

    const Result<QString> id = uniquePrefix(prefix, {u"3F01-22"_s, u"3F01"_s, u"3F02"_s, u"A7"_s}, u"clip"_s);

    QCOMPARE(id ? *id : QString(), found);
    QCOMPARE(id ? QString() : id.sentence(), sentence);
}

}

QTEST_GUILESS_MAIN(velm::UniquePrefixTest)
#include "UniquePrefixTest.moc"
