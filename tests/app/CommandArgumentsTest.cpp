#include "app/SampleCommands.h"

#include "app/CommandArguments.h"

#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

class CommandArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_are_resolved_where_the_client_stands_data();
    void words_are_resolved_where_the_client_stands();
    void text_from_the_standard_input_stays_text();
    void standard_input_is_read_only_when_asked_for();
};

void CommandArgumentsTest::words_are_resolved_where_the_client_stands_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("resolved");

    const auto row = [](const char *name, const QStringList &words, const QStringList &resolved) {
        QTest::newRow(name) << words << resolved;
    };
    row("a folder", {u"files"_s, u"auto"_s, u"Pictures/"_s, u"on"_s},
        {u"files"_s, u"auto"_s, u"/home/ann/Pictures"_s, u"on"_s});
    row("the folder itself", {u"files"_s, u"auto"_s, u"."_s, u"on"_s},
        {u"files"_s, u"auto"_s, u"/home/ann"_s, u"on"_s});
    row("several paths and an option",
        {u"shelf"_s, u"add"_s, u"a b"_s, u"--group"_s, u"g"_s, u"../c"_s, u"/d"_s},
        {u"shelf"_s, u"add"_s, u"--group"_s, u"g"_s, u"/home/ann/a b"_s, u"/home/c"_s, u"/d"_s});
    row("a path like an option", {u"shelf"_s, u"add"_s, u"--"_s, u"--group"_s},
        {u"shelf"_s, u"add"_s, u"/home/ann/--group"_s});
    row("no path", {u"open"_s, u"notes"_s, u"--json"_s}, {u"open"_s, u"--json"_s, u"notes"_s});
    row("the standard input", {u"note"_s, u"edit"_s, u"3F"_s, u"-"_s},
        {u"note"_s, u"edit"_s, u"3F"_s, u"read\n"_s});
    row("as an option's value", {u"clip"_s, u"list"_s, u"--search"_s, u"-"_s},
        {u"clip"_s, u"list"_s, u"--search"_s, u"read\n"_s});
    row("a dash that is no text", {u"clip"_s, u"use"_s, u"-"_s}, {u"clip"_s, u"use"_s, u"-"_s});
    row("wrong usage is left alone", {u"files"_s, u"auto"_s, u"Pictures"_s},
        {u"files"_s, u"auto"_s, u"Pictures"_s});
}

void CommandArgumentsTest::words_are_resolved_where_the_client_stands()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, resolved);
    const SampleCommands commands;

    QCOMPARE(
        resolveArguments(*commands.table.find(words), words, u"/home/ann"_s, [] { return u"read\n\n"_s; }),
        resolved);
}

void CommandArgumentsTest::text_from_the_standard_input_stays_text()
{
    SampleCommands commands;
    const QStringList words{u"note"_s, u"edit"_s, u"3F"_s, u"-"_s};

    const QStringList resolved =
        resolveArguments(*commands.table.find(words), words, u"/"_s, [] { return u"--json"_s; });

    QCOMPARE(commands.run(resolved).status, 0);
    QCOMPARE(commands.call->arguments, (QStringList{u"3F"_s, u"--json"_s}));
    QVERIFY(!commands.call->wantsJson);
}

void CommandArgumentsTest::standard_input_is_read_only_when_asked_for()
{
    const SampleCommands commands;
    const QStringList words{u"note"_s, u"edit"_s, u"3F"_s, u"text"_s};
    bool isRead = false;

    resolveArguments(*commands.table.find(words), words, u"/"_s, [&] {
        isRead = true;
        return QString();
    });

    QVERIFY(!isRead);
}

}

QTEST_GUILESS_MAIN(velm::CommandArgumentsTest)
#include "CommandArgumentsTest.moc"
