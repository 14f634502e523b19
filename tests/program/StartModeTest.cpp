#include "program/StartMode.h"

#include <QTest>

using namespace velm;

Q_DECLARE_METATYPE(velm::StartRequest)

class StartModeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void the_switches_decide_before_anything_else_data();
    void the_switches_decide_before_anything_else();
};

void StartModeTest::the_switches_decide_before_anything_else_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<StartRequest>("request");

    const auto row = [](const char *words, const StartRequest &request) {
        QTest::newRow(words) << QString::fromLatin1(words).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                             << request;
    };
    const QString dir = QStringLiteral("/tmp/x");
    row("", {});
    row("--selftest", {StartMode::SelfTest});
    row("--render /tmp/x", {StartMode::Render, dir});
    row("--render /tmp/x --scale 2", {StartMode::Render, dir, 2});
    row("--scale 2 --render /tmp/x", {StartMode::Render, dir, 2});
    row("--render /tmp/x --scale 99", {StartMode::Render, dir, 4});
    row("--render /tmp/x --scale two", {StartMode::Render, dir, 1});
    row("--render", {});
    row("--render /tmp/x --selftest", {StartMode::SelfTest});
    row("--version", {StartMode::Version});
    row("--help", {StartMode::Help});
    row("-h", {StartMode::Help});
    row("clip list", {.mode = StartMode::Command, .words = {QStringLiteral("clip"), QStringLiteral("list")}});
    row("--nonsense", {.mode = StartMode::Command, .words = {QStringLiteral("--nonsense")}});
}

void StartModeTest::the_switches_decide_before_anything_else()
{
    QFETCH(QStringList, words);
    QFETCH(StartRequest, request);

    QCOMPARE(startRequest(words), request);
}

QTEST_GUILESS_MAIN(StartModeTest)

#include "StartModeTest.moc"
