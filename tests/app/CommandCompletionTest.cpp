#include "app/SampleCommands.h"

#include "app/CommandCompletion.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace velm
{

using namespace Qt::StringLiterals;

namespace
{

QStringList lines(const QByteArray &output)
{
    return QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts);
}

}

class CommandCompletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bash_offers_what_can_come_next_data();
    void bash_offers_what_can_come_next();
    void other_shells_know_every_command_data();
    void other_shells_know_every_command();
};

void CommandCompletionTest::bash_offers_what_can_come_next_data()
{
    QTest::addColumn<QString>("line"); // the last word is being typed
    QTest::addColumn<QStringList>("offers");

    QTest::newRow("nouns") << u"velm st"_s << QStringList{u"status"_s};
    QTest::newRow("start modes") << u"velm --v"_s << QStringList{u"--version"_s};
    QTest::newRow("verbs") << u"velm clip "_s << QStringList{u"list"_s, u"use"_s};
    QTest::newRow("options") << u"velm clip use --p"_s << QStringList{u"--paste"_s};
    QTest::newRow("options of a bare noun")
        << u"velm activity Hello --s"_s << QStringList{u"--seconds"_s, u"--sticky"_s};
    QTest::newRow("fixed words") << u"velm todo due 3F n"_s << QStringList{u"none"_s};
    QTest::newRow("folders, not files") << u"velm files auto p"_s << QStringList{u"pictures old"_s};
    QTest::newRow("files and folders")
        << u"velm shelf add p"_s << QStringList{u"paper.txt"_s, u"pictures old"_s};
    QTest::newRow("nothing unknown") << u"velm cellar "_s << QStringList();
}

void CommandCompletionTest::bash_offers_what_can_come_next()
{
    QFETCH(QString, line);
    QFETCH(QStringList, offers);
    const SampleCommands commands;
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"pictures old"_s));
    QVERIFY(QFile(folder.filePath(u"paper.txt"_s)).open(QIODevice::WriteOnly));

    QProcess bash;
    bash.setWorkingDirectory(folder.path());
    const QString ask =
        u"\nCOMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _velm; printf '%s\\n' \"${COMPREPLY[@]}\""_s;
    bash.start(u"bash"_s, QStringList{u"-c"_s, bashCompletion(commands.table.commands()) + ask, u"bash"_s} +
                              line.split(u' '));
    QVERIFY(bash.waitForFinished());

    QCOMPARE(bash.readAllStandardError(), QByteArray());
    QStringList offered = lines(bash.readAllStandardOutput());
    offered.sort();
    QCOMPARE(offered, offers);
}

void CommandCompletionTest::other_shells_know_every_command_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("has");

    const SampleCommands commands;
    QTest::newRow("zsh") << zshCompletion(commands.table.commands())
                         << QStringList{u"#compdef velm"_s, u"clip) offers=\"use list\""_s,
                                        u"\"clip use\") offers+=\" --json --paste\""_s,
                                        u"\"files auto\") offers+=\" --json on off\"; paths='_files -/'"_s};
    QTest::newRow("fish")
        << fishCompletion(commands.table.commands())
        << QStringList{
               u"-n '__fish_seen_subcommand_from clip; and not __fish_seen_subcommand_from use list' -a use -d 'what it'\\''s for'"_s,
               u"-n '__fish_seen_subcommand_from clip; and __fish_seen_subcommand_from use' -a '--json --paste'"_s,
               u"-n '__fish_seen_subcommand_from shelf; and __fish_seen_subcommand_from add' -F"_s};
}

void CommandCompletionTest::other_shells_know_every_command()
{
    QFETCH(QString, script);
    QFETCH(QStringList, has);

    for (const QString &text : std::as_const(has))
        QVERIFY2(script.contains(text), qPrintable(script));
}

}

QTEST_GUILESS_MAIN(velm::CommandCompletionTest)
#include "CommandCompletionTest.moc"
