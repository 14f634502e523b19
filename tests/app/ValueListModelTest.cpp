#include "app/ValueListModel.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

struct Row {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int size MEMBER size)

public:
    QString id;
    QString title;
    int size = 0;

    bool operator==(const Row &) const = default;
};

namespace
{

constexpr int titleRole = Qt::UserRole + 1;
constexpr int sizeRole = Qt::UserRole + 2;

// "abc": three rows with these ids.
QList<Row> rows(const QString &ids)
{
    QList<Row> list;
    for (const QChar id : ids)
        list.append({id, id.toUpper(), 0});
    return list;
}

// Follows a model by its announcements alone, as a view does, and writes them down.
class Follower : public QObject
{
public:
    explicit Follower(ValueListModel<Row> &model) : m_model(model)
    {
        connect(&model, &QAbstractItemModel::rowsRemoved, this, [this](auto &, int first, int last) {
            note(u"-"_s, first, last);
            m_titles.remove(first, last - first + 1);
            compare();
        });
        connect(&model, &QAbstractItemModel::rowsInserted, this, [this](auto &, int first, int last) {
            note(u"+"_s, first, last);
            for (int row = first; row <= last; ++row)
                m_titles.insert(row, titleOf(row));
            compare();
        });
        connect(&model, &QAbstractItemModel::rowsMoved, this,
                [this](auto &, int from, int last, auto &, int to) {
                    log.append(u"%1>%2"_s.arg(from).arg(to));
                    QCOMPARE(from, last);
                    m_titles.move(from, from < to ? to - 1 : to);
                    compare();
                });
        connect(&model, &QAbstractItemModel::dataChanged, this, [this](auto &first, auto &last) {
            note(u"~"_s, first.row(), last.row());
            for (int row = first.row(); row <= last.row(); ++row)
                m_titles[row] = titleOf(row);
        });
        connect(&model, &QAbstractItemModel::modelReset, this, [this] { log.append(u"reset"_s); });
    }

    // What the view shows once all is announced.
    const QStringList &titles() const { return m_titles; }

    QStringList log;

private:
    QString titleOf(int row) const { return m_model.index(row).data(titleRole).toString(); }

    void note(const QString &what, int first, int last)
    {
        log.append(first == last ? what + QString::number(first)
                                 : u"%1%2-%3"_s.arg(what).arg(first).arg(last));
    }

    // At each announcement the model is as the follower knows it, down to the old titles.
    void compare()
    {
        QCOMPARE(m_model.count(), m_titles.size());
        for (int row = 0; row < m_titles.size(); ++row)
            QCOMPARE(titleOf(row), m_titles[row]);
    }

    ValueListModel<Row> &m_model;
    QStringList m_titles;
};

}

class ValueListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roles_are_the_properties();
    void the_difference_is_announced_data();
    void the_difference_is_announced();
    void what_differs_in_a_row_is_named();
    void neighbours_that_change_alike_are_one_range();
    void the_same_values_are_no_news();
    void any_change_can_be_followed_data();
    void any_change_can_be_followed();
    void ids_that_come_twice_do_no_harm();
    void the_count_is_announced_when_it_differs();
    void a_row_is_found_by_its_id();
};

void ValueListModelTest::roles_are_the_properties()
{
    ValueListModel<Row> model;
    model.setValues({{u"a"_s, u"Ant"_s, 7}});

    QCOMPARE(model.roleNames().value(titleRole), QByteArray("title"));
    QCOMPARE(model.index(0).data(titleRole).toString(), u"Ant"_s);
    QCOMPARE(model.index(0).data(sizeRole).toInt(), 7);
    QVERIFY(!model.data(model.index(1), titleRole).isValid());
    QVERIFY(!model.index(0).data(Qt::DisplayRole).isValid());
}

void ValueListModelTest::the_difference_is_announced_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("announced");

    QTest::newRow("filled") << u""_s << u"abc"_s << u"+0-2"_s;
    QTest::newRow("emptied") << u"abc"_s << u""_s << u"-0-2"_s;
    QTest::newRow("a new one on top") << u"abc"_s << u"xabc"_s << u"+0"_s;
    QTest::newRow("a new one at the end") << u"abc"_s << u"abcx"_s << u"+3"_s;
    QTest::newRow("one in, the last out") << u"abc"_s << u"xab"_s << u"-2 +0"_s;
    QTest::newRow("the last to the top") << u"abcd"_s << u"dabc"_s << u"3>0"_s;
    QTest::newRow("the first to the end") << u"abcd"_s << u"bcda"_s << u"0>4"_s;
    QTest::newRow("two neighbours change places") << u"abcd"_s << u"acbd"_s << u"1>3"_s;
    QTest::newRow("up in the middle") << u"abcdef"_s << u"aebcdf"_s << u"4>1"_s;
    QTest::newRow("down in the middle") << u"abcdef"_s << u"acdebf"_s << u"1>5"_s;
    QTest::newRow("runs go at once") << u"abcdefg"_s << u"adg"_s << u"-4-5 -1-2"_s;
    QTest::newRow("runs come at once") << u"ad"_s << u"abcdef"_s << u"+1-2 +4-5"_s;
    QTest::newRow("all others") << u"abc"_s << u"xyz"_s << u"-0-2 +0-2"_s;
    QTest::newRow("gone, moved and new") << u"abcde"_s << u"exbc"_s << u"-3 -0 2>0 +1"_s;
}

void ValueListModelTest::the_difference_is_announced()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, announced);
    ValueListModel<Row> model;
    Follower follower(model);
    model.setValues(rows(before));
    follower.log.clear();

    model.setValues(rows(after));

    QCOMPARE(follower.log.join(u' '), announced);
    QVERIFY(model.values() == rows(after));
}

void ValueListModelTest::what_differs_in_a_row_is_named()
{
    ValueListModel<Row> model;
    model.setValues(rows(u"abc"_s));
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QList<Row> values = model.values();
    values[1].size = 5;
    model.setValues(values);

    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][0].toModelIndex().row(), 1);
    QCOMPARE(changed[0][2].value<QList<int>>(), QList<int>{sizeRole});
}

void ValueListModelTest::neighbours_that_change_alike_are_one_range()
{
    ValueListModel<Row> model;
    Follower follower(model);
    model.setValues(rows(u"abcdef"_s));
    follower.log.clear();

    QList<Row> values = model.values();
    for (const int row : {0, 1, 2, 4})
        values[row].size = 5;
    values[5].title = u"Fox"_s;
    model.setValues(values);

    QCOMPARE(follower.log, (QStringList{u"~0-2"_s, u"~4"_s, u"~5"_s}));
    QCOMPARE(follower.titles().last(), u"Fox"_s);
}

void ValueListModelTest::the_same_values_are_no_news()
{
    ValueListModel<Row> model;
    Follower follower(model);
    model.setValues(rows(u"abc"_s));
    follower.log.clear();

    model.setValues(rows(u"abc"_s));

    QCOMPARE(follower.log, QStringList());
}

void ValueListModelTest::any_change_can_be_followed_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 0; seed < 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void ValueListModelTest::any_change_can_be_followed()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    ValueListModel<Row> model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    Follower follower(model);

    for (int step = 0; step < 50; ++step) {
        QString ids = u"abcdefghijklmnop"_s;
        std::shuffle(ids.begin(), ids.end(), random);
        QList<Row> values = rows(ids.left(random.bounded(ids.size() + 1)));
        for (Row &row : values)
            row.title += QString::number(random.bounded(2));
        model.setValues(values);

        QStringList titles;
        for (const Row &row : std::as_const(values))
            titles.append(row.title);
        QCOMPARE(follower.titles(), titles);
    }
    QVERIFY(!follower.log.contains(u"reset"_s));
}

void ValueListModelTest::ids_that_come_twice_do_no_harm()
{
    ValueListModel<Row> model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    Follower follower(model);

    for (const QString &ids : {u"abab"_s, u"bbaa"_s, u"xaxbx"_s, u"x"_s, u"xxxx"_s}) {
        model.setValues(rows(ids));
        QCOMPARE(follower.titles().join(QString()), ids.toUpper());
    }
}

void ValueListModelTest::the_count_is_announced_when_it_differs()
{
    ValueListModel<Row> model;
    const QSignalSpy counted(&model, &ValueListBase::countChanged);

    model.setValues(rows(u"abc"_s));
    model.setValues(rows(u"cba"_s));
    QCOMPARE(counted.size(), 1);
    model.setValues(rows(u"cb"_s));

    QCOMPARE(counted.size(), 2);
    QCOMPARE(model.property("count").toInt(), 2);
}

void ValueListModelTest::a_row_is_found_by_its_id()
{
    ValueListModel<Row> model;
    model.setValues(rows(u"abc"_s));

    QCOMPARE(model.rowOf(u"c"_s), 2);
    QCOMPARE(model.rowOf(u"x"_s), -1);
}

}

QTEST_GUILESS_MAIN(velm::ValueListModelTest)
#include "ValueListModelTest.moc"
