#include "app/SampleCommands.h"

#include "app/CommandHelp.h"

#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

class CommandTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_find_their_command_data();
    void words_find_their_command();
    void options_are_told_from_arguments();
    void what_stands_behind_two_dashes_is_no_option();
    void wrong_usage_is_answered_with_the_usage_data();
    void wrong_usage_is_answered_with_the_usage();
    void help_is_that_of_the_words_data();
    void help_is_that_of_the_words();
    void help_fits_the_screen();
    void replies_have_their_forms();
};

void CommandTableTest::words_find_their_command_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("arguments");

    QTest::newRow("a noun alone") << u"status"_s << u"status"_s << u""_s;
    QTest::newRow("without its optional argument") << u"open"_s << u"open"_s << u""_s;
    QTest::newRow("with it") << u"open notes"_s << u"open"_s << u"notes"_s;
    QTest::newRow("a noun with and without verbs") << u"prefs"_s << u"prefs"_s << u""_s;
    QTest::newRow("its verb") << u"prefs get key"_s << u"prefs get"_s << u"key"_s;
    QTest::newRow("an option behind the noun") << u"prefs --json"_s << u"prefs"_s << u""_s;
    QTest::newRow("repeated") << u"todo add call Bob !!"_s << u"todo add"_s << u"call,Bob,!!"_s;
    QTest::newRow("a negative number")
        << u"prefs set hoverDelay -1"_s << u"prefs set"_s << u"hoverDelay,-1"_s;
    QTest::newRow("a single dash") << u"note edit 3F -"_s << u"note edit"_s << u"3F,-"_s;
}

void CommandTableTest::words_find_their_command()
{
    QFETCH(QString, words);
    QFETCH(QString, command);
    QFETCH(QString, arguments);
    SampleCommands commands;

    const CommandReply reply = commands.run(words.split(u' '));

    QCOMPARE(reply, printed(command));
    QCOMPARE(commands.call->arguments.join(u','), arguments);
    QCOMPARE(commands.call->wantsJson, words.contains(u"--json"));
}

void CommandTableTest::options_are_told_from_arguments()
{
    SampleCommands commands;

    commands.run(
        {u"activity"_s, u"--icon=bolt"_s, u"Title"_s, u"--seconds"_s, u"3"_s, u"Detail"_s, u"--json"_s});
    QCOMPARE(commands.call->arguments, (QStringList{u"Title"_s, u"Detail"_s}));
    QCOMPARE(commands.call->options,
             (QMap<QString, QString>{{u"icon"_s, u"bolt"_s}, {u"seconds"_s, u"3"_s}}));
    QVERIFY(commands.call->wantsJson);

    commands.run({u"clip"_s, u"use"_s, u"3F"_s, u"--paste"_s});
    QVERIFY(commands.call->options.contains(u"paste"_s));
    commands.run({u"clip"_s, u"list"_s, u"--search"_s, u"--filter"_s, u"--search="_s});
    QCOMPARE(commands.call->options, (QMap<QString, QString>{{u"search"_s, u""_s}}));
}

void CommandTableTest::what_stands_behind_two_dashes_is_no_option()
{
    SampleCommands commands;

    const CommandReply reply = commands.run({u"todo"_s, u"add"_s, u"--"_s, u"--help"_s, u"--"_s});

    QCOMPARE(reply.status, 0);
    QCOMPARE(commands.call->arguments, (QStringList{u"--help"_s, u"--"_s}));
}

void CommandTableTest::wrong_usage_is_answered_with_the_usage_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("usage");

    const auto row = [](const char *words, const char *sentence, const char *usage) {
        QTest::newRow(words) << QString::fromUtf8(words) << QString::fromUtf8(sentence)
                             << QString::fromUtf8(usage);
    };
    row("cellar list", "there is no command \"cellar\"", "usage: velm NOUN VERB [ARGUMENTS]");
    row("", "there is no command \"\"", "usage: velm NOUN VERB [ARGUMENTS]");
    row("clip", "what to do is missing", "usage: velm clip use|list");
    row("clip fold", "there is no command \"clip fold\"", "usage: velm clip use|list");
    row("clip use", "ID is missing", "usage: velm clip use ID [--paste]");
    row("clip use 3F 4F", "\"4F\" is one argument too many", "usage: velm clip use ID [--paste]");
    row("clip use 3F --twice", "there is no option --twice", "usage: velm clip use ID [--paste]");
    row("clip use 3F --paste=1", "--paste takes no value", "usage: velm clip use ID [--paste]");
    row("clip list --filter", "--filter needs F", "usage: velm clip list");
    row("status now", "\"now\" is one argument too many", "usage: velm status");
    row("todo add", "TEXT is missing", "usage: velm todo add TEXT…");
    row("files auto /tmp", "on|off is missing", "usage: velm files auto DIR on|off");
    row("activity a --seconds 3 --sticky", "--seconds and --sticky cannot be given together",
        "usage: velm activity TITLE");
}

void CommandTableTest::wrong_usage_is_answered_with_the_usage()
{
    QFETCH(QString, words);
    QFETCH(QString, sentence);
    QFETCH(QString, usage);
    SampleCommands commands;

    const CommandReply reply = commands.run(words.split(u' '));

    QCOMPARE(reply.status, 2);
    QCOMPARE(reply.out, QString());
    const QStringList lines = reply.err.split(u'\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], u"velm: "_s + sentence);
    QVERIFY2(lines[1].startsWith(usage), qPrintable(lines[1]));
    QVERIFY(!commands.call);
}

void CommandTableTest::help_is_that_of_the_words_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("has");
    QTest::addColumn<QStringList>("hasNot");

    QTest::newRow("all") << u"--help"_s << QStringList{u"--selftest"_s, u"clip use"_s, u"status"_s}
                         << QStringList();
    QTest::newRow("a noun") << u"clip --help"_s << QStringList{u"clip use"_s, u"clip list"_s}
                            << QStringList{u"status"_s, u"--selftest"_s};
    QTest::newRow("a command") << u"clip use --help"_s << QStringList{u"clip use ID [--paste]"_s}
                               << QStringList{u"clip list"_s};
}

void CommandTableTest::help_is_that_of_the_words()
{
    QFETCH(QString, words);
    QFETCH(QStringList, has);
    QFETCH(QStringList, hasNot);
    SampleCommands commands;

    const CommandReply reply = commands.run(words.split(u' '));

    QCOMPARE(reply.status, 0);
    for (const QString &text : std::as_const(has))
        QVERIFY2(reply.out.contains(text), qPrintable(text));
    for (const QString &text : std::as_const(hasNot))
        QVERIFY2(!reply.out.contains(text), qPrintable(text));
    QVERIFY(!commands.call);
}

void CommandTableTest::help_fits_the_screen()
{
    const SampleCommands commands;

    const QStringList lines = programHelp(commands.table.commands()).split(u'\n');

    for (const QString &line : lines)
        QVERIFY2(line.size() <= 80, qPrintable(line));
    QVERIFY(manualSection(commands.table.commands())
                .contains(u".TP\nclip use ID [\\-\\-paste]\nwhat it's for\n"));
}

void CommandTableTest::replies_have_their_forms()
{
    QCOMPARE(printed(u"a"_s), (CommandReply{0, u"a\n"_s, {}}));
    QCOMPARE(printed(QString()), CommandReply());
    QCOMPARE(printed(QJsonArray{1}), (CommandReply{0, u"[\n    1\n]\n"_s, {}}));
    QCOMPARE(refused(u"no clip begins with \"3F\""_s),
             (CommandReply{1, {}, u"velm: no clip begins with \"3F\"\n"_s}));
    QCOMPARE(replyTo(done()), CommandReply());
    QCOMPARE(replyTo(Refusal{u"no"_s}), refused(u"no"_s));
}

}

QTEST_GUILESS_MAIN(velm::CommandTableTest)
#include "CommandTableTest.moc"
