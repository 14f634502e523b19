#include "app/ValueListModel.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QTest>

using namespace velm;
using namespace Qt::StringLiterals;

struct Row {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)

public:
    QString id;
    QString title;

    bool operator==(const Row &) const = default;
};

namespace
{

constexpr int titleRole = Qt::UserRole + 1;

// "abc": three rows with these ids.
QList<Row> rows(const QString &ids)
{
    QList<Row> list;
    for (const QChar id : ids)
        list.append({id, id});
    return list;
}

// Follows a model by its announcements alone, as a view does, and writes them down.
class Follower : public QObject
{
public:
    explicit Follower(ValueListModel<Row> &model) : m_model(model)
    {
        connect(&model, &QAbstractItemModel::rowsRemoved, this, [this](auto &, int first, int last) {
            log.append(u"-%1-%2"_s.arg(first).arg(last));
            titles.remove(first, last - first + 1);
            compare();
        });
        connect(&model, &QAbstractItemModel::rowsInserted, this, [this](auto &, int first, int last) {
            log.append(u"+%1-%2"_s.arg(first).arg(last));
            for (int row = first; row <= last; ++row)
                titles.insert(row, titleOf(row));
            compare();
        });
        connect(&model, &QAbstractItemModel::rowsMoved, this, [this](auto &, int from, int, auto &, int to) {
            log.append(u"%1>%2"_s.arg(from).arg(to));
            titles.move(from, from < to ? to - 1 : to);
            compare();
        });
        connect(&model, &QAbstractItemModel::dataChanged, this, [this](auto &first, auto &last) {
            log.append(u"~%1-%2"_s.arg(first.row()).arg(last.row()));
            for (int row = first.row(); row <= last.row(); ++row)
                titles[row] = titleOf(row);
        });
        connect(&model, &QAbstractItemModel::modelReset, this, [] { QFAIL("rows lose their state"); });
    }

    QStringList log;
    QStringList titles; // what the view shows once all is announced

private:
    QString titleOf(int row) const { return m_model.index(row).data(titleRole).toString(); }

    // At each announcement the model is as the follower knows it, down to the old titles.
    void compare()
    {
        QCOMPARE(m_model.count(), titles.size());
        for (int row = 0; row < titles.size(); ++row)
            QCOMPARE(titleOf(row), titles[row]);
    }

    ValueListModel<Row> &m_model;
};

}

class ValueListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void only_the_difference_is_announced();
    void any_change_can_be_followed();
};

void ValueListModelTest::only_the_difference_is_announced()
{
    const auto announced = [](const QString &before, const QString &after) {
        ValueListModel<Row> model;
        Follower follower(model);
        model.setValues(rows(before));
        follower.log.clear();
        model.setValues(rows(after));
        return follower.log.join(u' ');
    };

    QCOMPARE(announced("abc", "abc"), "");
    QCOMPARE(announced("abcd", "dabc"), "3>0");
    QCOMPARE(announced("abcdef", "acdebf"), "1>5");
    QCOMPARE(announced("abcdefg", "adg"), "-4-5 -1-2");
    QCOMPARE(announced("ad", "abcdef"), "+1-2 +4-5");
    QCOMPARE(announced("abcde", "exbc"), "-3-3 -0-0 2>0 +1-1");
}

void ValueListModelTest::any_change_can_be_followed()
{
    QRandomGenerator random(1);
    ValueListModel<Row> model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    Follower follower(model);

    for (int step = 0; step < 1000; ++step) {
        QString ids = u"abcdefghijklmnopab"_s; // two of them come twice
        std::shuffle(ids.begin(), ids.end(), random);
        QList<Row> values = rows(ids.left(random.bounded(ids.size() + 1)));
        QStringList titles;
        for (Row &row : values)
            titles.append(row.title += QString::number(random.bounded(2)));

        model.setValues(values);

        QCOMPARE(follower.titles, titles);
    }
}

QTEST_GUILESS_MAIN(ValueListModelTest)
#include "ValueListModelTest.moc"
