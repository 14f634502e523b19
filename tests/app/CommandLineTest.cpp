#include "app/CommandArguments.h"
#include "app/CommandTable.h"
#include "app/UniquePrefix.h"

#include <QTest>

#include <optional>

using namespace velm;

namespace
{

// Commands of every shape, which remember how they were called.
struct SampleCommands {
    CommandTable table;
    std::optional<CommandCall> call;

    SampleCommands()
    {
        add("open", "", "[TAB]");
        add("prefs", "", "");
        add("prefs", "set", "KEY VALUE");
        add("activity", "", "TITLE [DETAIL] [--icon S] [--seconds N | --sticky] [--id ID]");
        add("clip", "use", "ID [--paste]");
        add("clip", "list", "[--filter F] [--search TEXT]");
        add("files", "auto", "DIR on|off");
        add("todo", "add", "TEXT…");
        add("note", "edit", "ID TEXT");
        add("shelf", "add", "PATH… [--group G]");
    }

    CommandReply run(const QStringList &words)
    {
        CommandReply got{.status = -1};
        table.run(words, [&](const CommandReply &reply) { got = reply; });
        return got;
    }

private:
    void add(const char *noun, const char *verb, const char *arguments)
    {
        const auto run = now([this, verb](const CommandCall &called) {
            call = called;
            return printed(verb);
        });
        table.add({{noun, verb, QString::fromUtf8(arguments), "what it's for", run}});
    }
};

}

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void words_find_their_command_data();
    void words_find_their_command();
    void wrong_usage_is_answered_with_the_usage_data();
    void wrong_usage_is_answered_with_the_usage();
    void words_are_resolved_where_the_client_stands_data();
    void words_are_resolved_where_the_client_stands();
    void an_id_is_found_by_its_beginning();
};

void CommandLineTest::words_find_their_command_data()
{
    QTest::addColumn<QString>("verb");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("options");

    const auto row = [](const char *words, const char *verb, const char *arguments, const char *options) {
        QTest::newRow(words) << verb << arguments << options;
    };
    row("open", "", "", "");
    row("open notes", "", "notes", "");
    row("prefs --json", "", "", "");
    row("prefs set hoverDelay -1", "set", "hoverDelay,-1", "");
    row("todo add call Bob !!", "add", "call,Bob,!!", "");
    row("todo add -- --help --", "add", "--help,--", "");
    row("activity --icon=bolt A --seconds 3 B", "", "A,B", "icon=bolt,seconds=3");
    row("clip use 3F --paste", "use", "3F", "paste=");
    row("clip list --search --filter --search=", "list", "", "search=");
}

void CommandLineTest::words_find_their_command()
{
    QFETCH(QString, verb);
    SampleCommands commands;
    const QString words = QString::fromLatin1(QTest::currentDataTag());

    QCOMPARE(commands.run(words.split(u' ')), printed(verb));

    QTEST(commands.call->arguments.join(u','), "arguments");
    QStringList options;
    for (const QString &name : commands.call->options.keys())
        options.append(name + u'=' + commands.call->options[name]);
    QTEST(options.join(u','), "options");
    QCOMPARE(commands.call->wantsJson, words.contains(u"--json"));
}

void CommandLineTest::wrong_usage_is_answered_with_the_usage_data()
{
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("usage");

    const auto row = [](const char *words, const char *sentence, const char *usage) {
        QTest::newRow(words) << sentence << usage;
    };
    row("cellar list", "there is no command \"cellar\"", "NOUN VERB");
    row("clip", "what to do is missing", "clip use|list\n");
    row("clip fold", "there is no command \"clip fold\"", "clip use|list\n");
    row("clip use", "ID is missing", "clip use ID [--paste]\n");
    row("clip use 3F 4F", "\"4F\" is one argument too many", "clip use ID");
    row("clip use 3F --twice", "there is no option --twice", "clip use ID");
    row("clip use 3F --paste=1", "--paste takes no value", "clip use ID");
    row("clip list --filter", "--filter needs F", "clip list");
    row("todo add", "TEXT is missing", "todo add TEXT…");
    row("activity a --seconds 3 --sticky", "--seconds and --sticky cannot be given together", "activity");
}

void CommandLineTest::wrong_usage_is_answered_with_the_usage()
{
    QFETCH(QString, sentence);
    QFETCH(QString, usage);
    SampleCommands commands;

    const CommandReply reply = commands.run(QString::fromLatin1(QTest::currentDataTag()).split(u' '));

    QCOMPARE(reply.status, 2);
    QVERIFY2(reply.err.startsWith("velm: " + sentence + "\nusage: velm " + usage), qPrintable(reply.err));
    QVERIFY(!commands.call);
}

void CommandLineTest::words_are_resolved_where_the_client_stands_data()
{
    QTest::addColumn<QString>("resolved");

    QTest::newRow("files auto Pictures/ on") << "files auto /home/ann/Pictures on";
    QTest::newRow("files auto . on") << "files auto /home/ann on";
    QTest::newRow("files auto Pictures") << "files auto Pictures"; // wrong usage is left alone
    QTest::newRow("shelf add ab --group g ../c /d") << "shelf add --group g /home/ann/ab /home/c /d";
    QTest::newRow("shelf add -- --group") << "shelf add /home/ann/--group";
    QTest::newRow("open notes --json") << "open --json notes";
    QTest::newRow("note edit 3F -") << "note edit -- 3F --read\n";
    QTest::newRow("clip list --search -") << "clip list --search --read\n";
    QTest::newRow("clip use -") << "clip use -";
}

void CommandLineTest::words_are_resolved_where_the_client_stands()
{
    QFETCH(QString, resolved);
    const SampleCommands commands;
    const QStringList words = QString::fromLatin1(QTest::currentDataTag()).split(u' ');
    bool isInputRead = false;

    const QStringList got = resolveArguments(*commands.table.find(words), words, "/home/ann", [&] {
        isInputRead = true;
        return QString("--read\n\n");
    });

    QCOMPARE(got.join(u' '), resolved);
    QCOMPARE(isInputRead, resolved.contains("--read"));
}

void CommandLineTest::an_id_is_found_by_its_beginning()
{
    const auto found = [](const QString &prefix) {
        const Result<QString> id = uniquePrefix(prefix, {"3F01-22", "3F01", "3F02", "A7"}, "clip");
        return id ? *id : id.sentence();
    };

    QCOMPARE(found("3f01-2"), "3F01-22");
    QCOMPARE(found("3f01"), "3F01"); // whole, though another goes on
    QCOMPARE(found("3F"), "several clips begin with \"3F\"");
    QCOMPARE(found(""), "no clip begins with \"\"");
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "CommandLineTest.moc"
